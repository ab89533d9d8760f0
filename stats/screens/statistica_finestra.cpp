#include "stats/screens/statistica_finestra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenuBar>

namespace {

constexpr int caratteri_fornitori = 22, caratteri_statistica = 79, righe_titoli = 2;

}  // namespace

StatisticaFinestra::StatisticaFinestra(Programma& programma, const Chi_Chiede_File& chi_chiede,
                                       QWidget* padre)
    : FinestraStatistica(QStringLiteral("Statistica"), programma, statistica_.titolo, statistica_.grafico,
                         padre),
      programma_(programma) {
  if (chi_chiede) statistica_.scegli_file = chi_chiede(this);
  Apri_Statistica(programma_, statistica_);
  fa_menu();
  disponi_con_grafico(fa_liste());
  lista_->setFocus(Qt::OtherFocusReason);
  mostra();
}

void StatisticaFinestra::fa_menu() {
  fa_voce(menu_, QStringLiteral("Chiudi"), statistica_.Chiudi, [this] { chiudi_dopo(); });
  fa_voce(menu_, QStringLiteral("Salva"), statistica_.Salva,
          [this] { Salva_Statistica(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("Stampa"), statistica_.Stampa,
          [this] { Stampa_Statistica(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("stampaFornitore"), statistica_.stampaFornitore,
          [this] { Stampa_Fornitore(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("StampaGrafico"), statistica_.StampaGrafico,
          [this] { Stampa_Barre(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("Aiuto"), statistica_.Aiuto, [this] { Aiuto_Statistica(programma_); });
  interruttore("Grassetto", statistica_.Grassetto);
}

QBoxLayout* StatisticaFinestra::fa_liste() {
  QListView* fornitori = fa_pannello("ListaFornitori", "Fornitori", statistica_.ListaFornitori,
                                     caratteri_fornitori, [this] { Scelto_Fornitore(statistica_); });
  QListView* titoli = fa_lista("ListaTitoli", "Titoli", statistica_.ListaTitoli, caratteri_statistica);
  titoli->setFocusPolicy(Qt::NoFocus);
  titoli->setSelectionMode(QAbstractItemView::NoSelection);
  titoli->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  titoli->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  titoli->setFixedHeight(titoli->sizeHintForRow(0) * righe_titoli + 2 * titoli->frameWidth());
  lista_ = fa_lista("ListaStatistica", "Statistica", statistica_.ListaStatistica, caratteri_statistica);
  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(2);
  colonna->addWidget(titoli);
  colonna->addWidget(lista_, 1);
  colonna->addWidget(fa_scritta(QStringLiteral("Avviso"), statistica_.Avviso));
  auto* riga = new QHBoxLayout;
  riga->addWidget(fornitori, 1);
  riga->addLayout(colonna, 3);
  return riga;
}
