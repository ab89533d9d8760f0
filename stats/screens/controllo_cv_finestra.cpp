#include "stats/screens/controllo_cv_finestra.h"

#include <QBoxLayout>
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
  intitola(schermo_.titolo);
  setFont(Carattere(punti_normali));
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(margine, margine, margine, margine);
  tutto->setSpacing(stacco);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(fa_periodo());
  tutto->addWidget(fa_lista(), 1);
  auto* esito = fa_scritta(QStringLiteral("Esito"), schermo_.Esito);
  esito->setWordWrap(true);
  esito->setMinimumHeight(esito->fontMetrics().lineSpacing() * 2);  // the list above stays where it is
  tutto->addWidget(esito);
  tutto->addLayout(fa_totali());
  tutto->addLayout(fa_comandi());
  mostra();
}

QMenuBar* ControlloCVFinestra::fa_menu() {
  auto* barra = new QMenuBar;
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
    fa_voce(ordina, QString::fromUtf8(nome), stato,
            [this, quale = colonna] { Ordina_Controllo(programma_, schermo_, quale); });
  fa_voce(barra, QStringLiteral("MenuCancella"), schermo_.MenuCancella,
          [this] { Cancella_Controllo(programma_, schermo_); });
  fa_voce(barra, QStringLiteral("Scelta_Stampante"), schermo_.Scelta_Stampante, [this] {
    StampanteFinestra(programma_, this).esegui();
    Aggiorna_Comandi_Controllo(programma_, schermo_);
  });
  fa_voce(barra, QStringLiteral("MenuChiudi"), schermo_.MenuChiudi, [this] { chiudi_dopo(); });
  return barra;
}

QBoxLayout* ControlloCVFinestra::fa_periodo() {
  auto* riga = new QHBoxLayout;
  QLineEdit* anno = fa_campo_grande(QStringLiteral("Text1"), schermo_.Text1, schermo_.Caption_Text1, riga);
  anno->setMaximumWidth(anno->fontMetrics().averageCharWidth() * 12);
  auto* didascalia = fa_scritta(QStringLiteral("Caption_Combo1"), schermo_.Caption_Combo1);
  auto* mese = fa_tendina(QStringLiteral("Combo1"), QStringLiteral("Mese"), schermo_.Combo1);
  mese->setFont(Carattere(punti_grandi));
  mese->setMaxVisibleItems(13);
  didascalia->setBuddy(mese);
  riga->addWidget(didascalia);
  riga->addWidget(mese);
  riga->addWidget(fa_bottone(QStringLiteral("Command3"), schermo_.Command3,
                             [this] { Leggi_Controllo(programma_, schermo_); }));
  riga->addStretch();
  riga->addWidget(fa_scritta(QStringLiteral("Stampante"), schermo_.Stampante));
  return riga;
}

QWidget* ControlloCVFinestra::fa_lista() {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(2);
  lista_ = new ListaVoci(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Conti vendita"));
  legame.lega(lista_, QStringLiteral("ListaControllo"), schermo_.ListaControllo);
  const QFontMetrics misure = lista_->fontMetrics();
  lista_->setMinimumWidth(misure.horizontalAdvance(In_QString(schermo_.Titoli.testo)) + misure.height() * 3);
  lista_->setMinimumHeight(misure.height() * righe_in_vista);
  colonna->addWidget(fa_titoli(QStringLiteral("Titoli"), schermo_.Titoli, *lista_));
  colonna->addWidget(lista_, 1);
  return parte;
}

QBoxLayout* ControlloCVFinestra::fa_totali() {
  auto* riga = new QHBoxLayout;
  riga->addStretch();
  struct Totale {
    const char* nome;
    CampoTesto& stato;
    Scritta& scritta;
  };
  const Totale totali[] = {{"Text2", schermo_.Text2, schermo_.Caption_Text2},
                           {"Text3", schermo_.Text3, schermo_.Caption_Text3}};
  for (const auto& [nome, stato, scritta] : totali) {
    QLineEdit* campo = fa_campo_grande(QString::fromUtf8(nome), stato, scritta, riga);
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
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));
  return riga;
}

QLineEdit* ControlloCVFinestra::fa_campo_grande(const QString& nome, CampoTesto& stato, Scritta& scritta,
                                                QBoxLayout* riga) {
  auto* didascalia = fa_scritta(QStringLiteral("Caption_") + nome, scritta);
  auto* campo = fa_campo(nome, stato, scritta);
  campo->setFont(Carattere(punti_grandi));
  didascalia->setBuddy(campo);
  riga->addWidget(didascalia);
  riga->addWidget(campo);
  return campo;
}
