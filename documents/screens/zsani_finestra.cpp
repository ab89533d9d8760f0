#include "documents/screens/zsani_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "core/screens/preferenze_finestra.h"
#include "documents/screens/dimddt_finestra.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int caratteri_campo = 24;

}  // namespace

ZsaniFinestra::ZsaniFinestra(Programma& programma, const std::function<void(Zsani&)>& apri, QWidget* padre)
    : Finestra(QStringLiteral("Zsani"), padre, Qt::Window), programma_(programma) {
  zsani_.stampa = [this](const Documento_Cliente& documento, const Avanzamento& avanzamento) {
    return StampaPagine(programma_, documento, avanzamento);
  };
  apri(zsani_);
  intitola(zsani_.titolo);
  si_chiude(zsani_.chiusa, [this] { ChiudiDocumenti(programma_, zsani_); });
  setFont(Carattere(punti_normali));

  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_documento());
  destra->addWidget(fa_numerazione());
  destra->addWidget(fa_stampa());
  destra->addStretch();
  destra->addWidget(fa_bottone(QStringLiteral("Command2"), zsani_.Command2,
                               [this] { ChiudiDocumenti(programma_, zsani_); }));
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(14);
  affiancate->addWidget(fa_lista(), 1);
  affiancate->addLayout(destra);
  disponi(fa_menu(), affiancate);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZsaniFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  fa_voce(barra, QStringLiteral("Num_Automatica"), zsani_.Num_Automatica,
          [this] { NumeraAutomatica(programma_, zsani_); });
  fa_voce(barra, QStringLiteral("Aggiorna_Num"), zsani_.Aggiorna_Num, [this] { AggiornaNumeri(zsani_); });
  fa_voce(barra, QStringLiteral("Annulla_Num"), zsani_.Annulla_Num,
          [this] { AnnullaNumeri(programma_, zsani_); });
  const auto dimensioni = [this] { DimDDTFinestra(programma_, this).esegui(); };
  fa_voce(barra, QStringLiteral("Intestazione_Dimensioni"), zsani_.Intestazione_Dimensioni, dimensioni);
  fa_voce(barra, QStringLiteral("Preferenze_Operative"), zsani_.Preferenze_Operative, [this, dimensioni] {
    Vicini_Preferenze vicini;
    vicini.dimensioni_ddt = dimensioni;
    PreferenzeFinestra(programma_, std::move(vicini), this).esegui();
  });
  fa_voce(barra, QStringLiteral("Scelta_Stampante"), zsani_.Scelta_Stampante, [this] {
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
  riga->addWidget(fa_bottone(QStringLiteral("Command5"), zsani_.Command5,
                             [this] { OrdinaDocumenti(programma_, zsani_, 0); }));
  riga->addWidget(fa_bottone(QStringLiteral("Command7"), zsani_.Command7,
                             [this] { OrdinaDocumenti(programma_, zsani_, 1); }));
  riga->addWidget(fa_bottone(QStringLiteral("Command8"), zsani_.Command8,
                             [this] { OrdinaDocumenti(programma_, zsani_, 2); }));
  return riga;
}

QGroupBox* ZsaniFinestra::fa_documento() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Documento"));
  auto* griglia = new QGridLayout(riquadro);
  for (int i = 0; i < 3; ++i) {
    const auto posto = static_cast<std::size_t>(i);
    auto* didascalia = fa_scritta(QStringLiteral("Caption(%1)").arg(i), zsani_.Caption[posto]);
    auto* campo = fa_campo(QStringLiteral("Text1(%1)").arg(i), zsani_.Text1[posto], zsani_.Caption[posto],
                           caratteri_campo);
    didascalia->setBuddy(campo);
    griglia->addWidget(didascalia, i, 0);
    griglia->addWidget(campo, i, 1);
  }
  griglia->addWidget(
      fa_bottone(QStringLiteral("Command3"), zsani_.Command3, [this] { ModificaNumero(zsani_); }), 3, 0, 1,
      2);
  return riquadro;
}

QGroupBox* ZsaniFinestra::fa_numerazione() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Numerazione"));
  auto* griglia = new QGridLayout(riquadro);
  auto* didascalia = fa_scritta(QStringLiteral("Caption_Text2"), zsani_.Caption_Text2);
  auto* primo = fa_campo(QStringLiteral("Text2"), zsani_.Text2, zsani_.Caption_Text2, caratteri_campo);
  didascalia->setBuddy(primo);
  griglia->addWidget(didascalia, 0, 0);
  griglia->addWidget(primo, 0, 1);
  griglia->addWidget(fa_bottone(QStringLiteral("Command4"), zsani_.Command4,
                                [this] { ControllaNumeri(programma_, zsani_); }),
                     1, 0);
  griglia->addWidget(
      fa_bottone(QStringLiteral("Command6"), zsani_.Command6, [this] { SalvaNumeri(programma_, zsani_); }), 1,
      1);
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
  for (const auto& [nome, stato] : caselle)
    colonna->addWidget(fa_casella(QString::fromUtf8(nome), stato, [this] { AggiornaComandi(zsani_); }));
  colonna->addWidget(fa_tendina(QStringLiteral("Combo2"), QStringLiteral("Copie"), zsani_.Combo2));
  auto* dove = fa_scritta(QStringLiteral("TitoloStampante"), zsani_.TitoloStampante);
  dove->setWordWrap(true);
  colonna->addWidget(dove);
  colonna->addWidget(fa_bottone(QStringLiteral("Command1"), zsani_.Command1,
                                [this] { StampaDocumenti(programma_, zsani_); }));
  return riquadro;
}

void ZsaniFinestra::mostra() {
  const bool nascosta = lista_->isHidden();
  Finestra::mostra();
  // a hidden list has lost the keyboard
  if (nascosta && !lista_->isHidden()) lista_->setFocus(Qt::OtherFocusReason);
}

// The list takes the arrows itself; what the fields leave comes here.
bool ZsaniFinestra::tasto(const Pressione& pressione) {
  return legame.usa([&] { return TastoDocumenti(programma_, zsani_, pressione); });
}
