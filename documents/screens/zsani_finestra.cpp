#include "documents/screens/zsani_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "core/screens/preferenze_finestra.h"
#include "documents/screens/dimddt_finestra.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

ZsaniFinestra::ZsaniFinestra(Programma& programma, const std::function<void(Zsani&)>& apri, QWidget* padre)
    : Finestra(QStringLiteral("Zsani"), padre, Qt::Window), programma_(programma) {
  zsani_.stampa = [this](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
    return StampaPagine(programma_, documento, avanzamento);
  };
  apri(zsani_);
  setFont(Carattere(punti_normali));

  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_voce());
  destra->addWidget(fa_numerazione());
  destra->addWidget(fa_stampa());
  destra->addStretch();
  destra->addWidget(fa_bottone(2, zsani_.Command2, [this] { ChiudiDocumenti(programma_, zsani_); }));
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(14);
  affiancate->addWidget(fa_lista(), 1);
  affiancate->addLayout(destra);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(affiancate, 1);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZsaniFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  const auto voce = [&](const char* nome, Bottone& stato, Legame::Evento evento) {
    legame.lega(barra->addAction(In_QString(stato.testo)), QString::fromUtf8(nome), stato, std::move(evento));
  };
  voce("Num_Automatica", zsani_.Num_Automatica, [this] { NumeraAutomatica(programma_, zsani_); });
  voce("Aggiorna_Num", zsani_.Aggiorna_Num, [this] { AggiornaNumeri(zsani_); });
  voce("Annulla_Num", zsani_.Annulla_Num, [this] { AnnullaNumeri(programma_, zsani_); });
  const auto dimensioni = [this] { DimDDTFinestra(programma_, this).esegui(); };
  voce("Intestazione_Dimensioni", zsani_.Intestazione_Dimensioni, dimensioni);
  voce("Preferenze_Operative", zsani_.Preferenze_Operative, [this, dimensioni] {
    Vicini_Preferenze vicini;
    vicini.dimensioni_ddt = dimensioni;
    PreferenzeFinestra(programma_, std::move(vicini), this).esegui();
  });
  voce("Scelta_Stampante", zsani_.Scelta_Stampante, [this] {
    StampanteFinestra(programma_, this).esegui();
    MostraStampante(programma_, zsani_);
  });
  return barra;
}

QWidget* ZsaniFinestra::fa_lista() {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  lista_ = new ListaVoci(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Documenti"));
  lista_->setMinimumWidth(lista_->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 70);
  legame.lega(lista_, QStringLiteral("MList2"), zsani_.MList2,
              [this] { SceltaVoce(zsani_, zsani_.MList2.scelta); });
  colonna->addWidget(lista_, 1);
  colonna->addLayout(fa_ordini());
  return parte;
}

QBoxLayout* ZsaniFinestra::fa_ordini() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(5, zsani_.Command5, [this] { OrdinaDocumenti(programma_, zsani_, 0); }));
  riga->addWidget(fa_bottone(7, zsani_.Command7, [this] { OrdinaDocumenti(programma_, zsani_, 1); }));
  riga->addWidget(fa_bottone(8, zsani_.Command8, [this] { OrdinaDocumenti(programma_, zsani_, 2); }));
  return riga;
}

QGroupBox* ZsaniFinestra::fa_voce() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Documento"));
  auto* griglia = new QGridLayout(riquadro);
  for (int i = 0; i < 3; ++i) {
    const auto posto = static_cast<std::size_t>(i);
    auto* didascalia = new QLabel;
    didascalia->setFont(Carattere(punti_normali));
    legame.lega(didascalia, QStringLiteral("Caption(%1)").arg(i), zsani_.Caption[posto]);
    auto* campo = fa_campo(QStringLiteral("Text1(%1)").arg(i), zsani_.Text1[posto], zsani_.Caption[posto]);
    didascalia->setBuddy(campo);
    griglia->addWidget(didascalia, i, 0);
    griglia->addWidget(campo, i, 1);
  }
  griglia->addWidget(fa_bottone(3, zsani_.Command3, [this] { ModificaNumero(zsani_); }), 3, 0, 1, 2);
  return riquadro;
}

QGroupBox* ZsaniFinestra::fa_numerazione() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Numerazione"));
  auto* griglia = new QGridLayout(riquadro);
  auto* didascalia = new QLabel;
  didascalia->setFont(Carattere(punti_normali));
  legame.lega(didascalia, QStringLiteral("Caption_Text2"), zsani_.Caption_Text2);
  auto* primo = fa_campo(QStringLiteral("Text2"), zsani_.Text2, zsani_.Caption_Text2);
  didascalia->setBuddy(primo);
  griglia->addWidget(didascalia, 0, 0);
  griglia->addWidget(primo, 0, 1);
  griglia->addWidget(fa_bottone(4, zsani_.Command4, [this] { ControllaNumeri(programma_, zsani_); }), 1, 0);
  griglia->addWidget(fa_bottone(6, zsani_.Command6, [this] { SalvaNumeri(programma_, zsani_); }), 1, 1);
  return riquadro;
}

QGroupBox* ZsaniFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* colonna = new QVBoxLayout(riquadro);
  struct Casella {
    const char* nome;
    Spunta& stato;
  };
  const Casella caselle[] = {{"Check1", zsani_.Check1}, {"Check4", zsani_.Check4}, {"Check6", zsani_.Check6}};
  for (const auto& [nome, stato] : caselle) {
    const QString didascalia = In_QString(stato.didascalia);
    auto* casella = new QCheckBox(didascalia);
    casella->setFont(Carattere(punti_normali));
    casella->setAccessibleName(didascalia);
    legame.lega(casella, QString::fromUtf8(nome), stato, [this] { AggiornaComandi(zsani_); });
    colonna->addWidget(casella);
  }
  auto* copie = new QComboBox;
  copie->setFont(Carattere(punti_normali));
  copie->setAccessibleName(QStringLiteral("Copie"));
  legame.lega(copie, QStringLiteral("Combo2"), zsani_.Combo2);
  colonna->addWidget(copie);
  auto* dove = new QLabel;
  dove->setFont(Carattere(punti_normali));
  dove->setTextFormat(Qt::PlainText);
  dove->setWordWrap(true);
  legame.lega(dove, QStringLiteral("TitoloStampante"), zsani_.TitoloStampante);
  colonna->addWidget(dove);
  colonna->addWidget(fa_bottone(1, zsani_.Command1, [this] { StampaDocumenti(programma_, zsani_); }));
  return riquadro;
}

QLineEdit* ZsaniFinestra::fa_campo(const QString& nome, CampoTesto& stato, const Scritta& didascalia) {
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti_normali));
  campo->setAccessibleName(In_QString(didascalia.testo));
  campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 24);
  legame.lega(campo, nome, stato);
  return campo;
}

QPushButton* ZsaniFinestra::fa_bottone(int numero, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, QStringLiteral("Command%1").arg(numero), stato, std::move(evento));
  return bottone;
}

void ZsaniFinestra::mostra() {
  const bool nascosta = lista_->isHidden();
  Finestra::mostra();
  const QString titolo = In_QString(zsani_.titolo);
  if (windowTitle() != titolo) setWindowTitle(titolo);
  // a hidden list has lost the keyboard
  if (nascosta && !lista_->isHidden()) lista_->setFocus(Qt::OtherFocusReason);
  if (!zsani_.chiusa || in_chiusura_) return;
  in_chiusura_ = true;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

// The list takes the arrows itself; what the fields leave comes here.
void ZsaniFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  bool usato = false;
  legame.esegui([&] { usato = TastoDocumenti(programma_, zsani_, pressione); });
  if (!usato) Finestra::keyPressEvent(evento);
}

void ZsaniFinestra::closeEvent(QCloseEvent* evento) {
  if (!zsani_.chiusa) {
    in_chiusura_ = true;
    if (!occupata()) legame.esegui([this] { ChiudiDocumenti(programma_, zsani_); });
    in_chiusura_ = zsani_.chiusa;
  }
  if (zsani_.chiusa)
    Finestra::closeEvent(evento);
  else
    evento->ignore();
}
