#include "stats/screens/statistica2_finestra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int caratteri_lista = 66;

}  // namespace

Statistica2Finestra::Statistica2Finestra(Programma& programma, Statistica2 statistica, QWidget* padre)
    : FinestraStatistica(QStringLiteral("Statistica2"), programma, statistica_.titolo, statistica_.grafico,
                         padre),
      programma_(programma),
      statistica_(std::move(statistica)) {
  fa_menu();
  QListView* lista = fa_lista("ListaSaldo", "Fornitori", statistica_.ListaSaldo, caratteri_lista);
  auto* colonna = new QVBoxLayout;
  colonna->addLayout(fa_date());
  colonna->addWidget(fa_titoli(QStringLiteral("Titoli"), statistica_.Titoli, *lista));
  colonna->addWidget(lista, 1);
  colonna->addWidget(fa_scritta(QStringLiteral("Avanzamento"), statistica_.Avanzamento));
  colonna->addWidget(fa_scritta(QStringLiteral("Avviso"), statistica_.Avviso));
  disponi_con_grafico(colonna);
  mostra();
}

void Statistica2Finestra::fa_menu() {
  fa_voce(menu_, QStringLiteral("MenuChiudi"), statistica_.MenuChiudi, [this] { chiudi_dopo(); });
  fa_voce(menu_, QStringLiteral("Stampante"), statistica_.Stampante,
          [this] { StampanteFinestra(programma_, this).esegui(); });
  fa_voce(menu_, QStringLiteral("Stampa"), statistica_.Stampa,
          [this] { Stampa_Periodo(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("StampaGrafico"), statistica_.StampaGrafico,
          [this] { Stampa_Barre(programma_, statistica_); });
  fa_voce(menu_, QStringLiteral("Aiuto"), statistica_.Aiuto, [this] { Aiuto_Statistica2(programma_); });
  interruttore("Grassetto", statistica_.Grassetto);
}

QBoxLayout* Statistica2Finestra::fa_date() {
  auto* riga = new QHBoxLayout;
  fa_data(riga, QStringLiteral("Text1"), statistica_.Text1, statistica_.Caption_Text1);
  fa_data(riga, QStringLiteral("Text2"), statistica_.Text2, statistica_.Caption_Text2);
  riga->addWidget(fa_bottone(QStringLiteral("Applica"), statistica_.Applica,
                             [this] { Applica_Periodo(programma_, statistica_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Chiudi"), statistica_.Chiudi, [this] { chiudi_dopo(); }));
  riga->addStretch();
  return riga;
}
