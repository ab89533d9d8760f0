#include "stats/screens/controllo_cv_finestra.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int margine = 14, stacco = 12, righe_in_vista = 16;

}  // namespace

ControlloCVFinestra::ControlloCVFinestra(Programma& programma, QWidget* padre)
    : FinestraModulo(QStringLiteral("ControlloCV"), padre, Qt::Window), programma_(programma) {
  Apri_Controllo(programma_, schermo_);
  setFont(Carattere(punti_normali));
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(margine, margine, margine, margine);
  tutto->setSpacing(stacco);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(fa_periodo());
  tutto->addWidget(fa_lista(), 1);
  auto* esito = new QLabel;
  esito->setWordWrap(true);
  esito->setMinimumHeight(esito->fontMetrics().lineSpacing() * 2);  // the list above stays where it is
  legame.lega(esito, QStringLiteral("Esito"), schermo_.Esito);
  tutto->addWidget(esito);
  tutto->addLayout(fa_totali());
  tutto->addLayout(fa_comandi());
  mostra();
}

QMenuBar* ControlloCVFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  const auto lega = [&](QAction* voce, const char* nome, Bottone& stato, Legame::Evento evento) {
    legame.lega(voce, QString::fromUtf8(nome), stato, std::move(evento));
  };
  auto* ordina = barra->addMenu(QStringLiteral("&Ordina"));
  struct Ordine {
    const char* nome;
    Bottone& stato;
    controllo::Colonna colonna;
  };
  const Ordine ordini[] = {{"OrdinaNumero", schermo_.OrdinaNumero, controllo::Numero},
                           {"OrdinaFornitore", schermo_.OrdinaFornitore, controllo::Fornitore},
                           {"OrdinaProvvigione", schermo_.OrdinaProvvigione, controllo::Commissioni}};
  for (const auto& [nome, stato, colonna] : ordini)
    lega(ordina->addAction(QString()), nome, stato,
         [this, quale = colonna] { Ordina_Controllo(programma_, schermo_, quale); });
  lega(barra->addAction(QString()), "MenuCancella", schermo_.MenuCancella,
       [this] { Cancella_Controllo(programma_, schermo_); });
  lega(barra->addAction(QString()), "Scelta_Stampante", schermo_.Scelta_Stampante, [this] {
    StampanteFinestra(programma_, this).esegui();
    Aggiorna_Comandi_Controllo(programma_, schermo_);
  });
  lega(barra->addAction(QString()), "MenuChiudi", schermo_.MenuChiudi, [this] { close(); });
  return barra;
}

QBoxLayout* ControlloCVFinestra::fa_periodo() {
  auto* riga = new QHBoxLayout;
  QLineEdit* anno = fa_campo(QStringLiteral("Text1"), schermo_.Text1, QStringLiteral("Caption_Text1"),
                             schermo_.Caption_Text1, riga);
  anno->setMaximumWidth(anno->fontMetrics().averageCharWidth() * 12);
  auto* didascalia = new QLabel;
  legame.lega(didascalia, QStringLiteral("Caption_Combo1"), schermo_.Caption_Combo1);
  auto* mese = new QComboBox;
  mese->setFont(Carattere(punti_grandi));
  mese->setAccessibleName(QStringLiteral("Mese"));
  mese->setMaxVisibleItems(13);
  didascalia->setBuddy(mese);
  legame.lega(mese, QStringLiteral("Combo1"), schermo_.Combo1);
  riga->addWidget(didascalia);
  riga->addWidget(mese);
  riga->addWidget(fa_bottone(QStringLiteral("Command3"), schermo_.Command3,
                             [this] { Leggi_Controllo(programma_, schermo_); }));
  riga->addStretch();
  auto* stampante = new QLabel;
  legame.lega(stampante, QStringLiteral("Stampante"), schermo_.Stampante);
  riga->addWidget(stampante);
  return riga;
}

QWidget* ControlloCVFinestra::fa_lista() {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(2);
  lista_ = new ListaVoci(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Conti vendita"));
  auto* titoli = new QLabel;
  titoli->setFont(lista_->font());
  titoli->setTextFormat(Qt::PlainText);
  titoli->setIndent(lista_->frameWidth() + 3);  // over the list's own columns
  legame.lega(titoli, QStringLiteral("Titoli"), schermo_.Titoli);
  legame.lega(lista_, QStringLiteral("ListaControllo"), schermo_.ListaControllo);
  const QFontMetrics misure = lista_->fontMetrics();
  lista_->setMinimumWidth(misure.horizontalAdvance(In_QString(schermo_.Titoli.testo)) + misure.height() * 3);
  lista_->setMinimumHeight(misure.height() * righe_in_vista);
  colonna->addWidget(titoli);
  colonna->addWidget(lista_, 1);
  return parte;
}

QBoxLayout* ControlloCVFinestra::fa_totali() {
  auto* riga = new QHBoxLayout;
  riga->addStretch();
  struct Totale {
    const char *nome, *nome_scritta;
    CampoTesto& stato;
    Scritta& scritta;
  };
  const Totale totali[] = {{"Text2", "Caption_Text2", schermo_.Text2, schermo_.Caption_Text2},
                           {"Text3", "Caption_Text3", schermo_.Text3, schermo_.Caption_Text3}};
  for (const auto& [nome, nome_scritta, stato, scritta] : totali) {
    QLineEdit* campo =
        fa_campo(QString::fromUtf8(nome), stato, QString::fromUtf8(nome_scritta), scritta, riga);
    campo->setReadOnly(true);
    campo->setAlignment(Qt::AlignRight);
    campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 14);
  }
  return riga;
}

QBoxLayout* ControlloCVFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_bottone(QStringLiteral("Command4"), schermo_.Command4,
                             [this] { Consolida_Controllo(programma_, schermo_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Command5"), schermo_.Command5,
                             [this] { Stampa_Controllo(programma_, schermo_); }));
  riga->addStretch();
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { close(); }));
  return riga;
}

QLineEdit* ControlloCVFinestra::fa_campo(const QString& nome, CampoTesto& stato, const QString& nome_scritta,
                                         Scritta& scritta, QBoxLayout* riga) {
  auto* didascalia = new QLabel;
  auto* campo = new CasellaTesto;
  campo->setFont(Carattere(punti_grandi));
  campo->setAccessibleName(Senza_Scorciatoia(In_QString(scritta.testo)));
  didascalia->setBuddy(campo);
  legame.lega(didascalia, nome_scritta, scritta);
  legame.lega(campo, nome, stato);
  riga->addWidget(didascalia);
  riga->addWidget(campo);
  return campo;
}

QPushButton* ControlloCVFinestra::fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, nome, stato, std::move(evento));
  return bottone;
}

void ControlloCVFinestra::mostra() {
  FinestraModulo::mostra();
  const QString titolo = In_QString(schermo_.titolo);
  if (windowTitle() != titolo) setWindowTitle(titolo);
}

// What is being read or printed is finished first.
void ControlloCVFinestra::closeEvent(QCloseEvent* evento) {
  if (schermo_.attiva)
    FinestraModulo::closeEvent(evento);
  else
    evento->ignore();
}
