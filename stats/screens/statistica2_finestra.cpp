#include "stats/screens/statistica2_finestra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int caratteri_lista = 66, caratteri_data = 12;

}  // namespace

Statistica2Finestra::Statistica2Finestra(Programma& programma, Statistica2 statistica, QWidget* padre)
    : FinestraStatistica(QStringLiteral("Statistica2"), programma, statistica_.titolo, statistica_.grafico,
                         padre),
      programma_(programma),
      statistica_(std::move(statistica)) {
  statistica_.fermata = Esc_Premuto;
  fa_menu();
  QListView* lista = fa_lista("ListaSaldo", "Fornitori", statistica_.ListaSaldo, caratteri_lista);
  auto* colonna = new QVBoxLayout;
  colonna->addLayout(fa_date());
  colonna->addWidget(fa_titoli("Titoli", statistica_.Titoli, *lista));
  colonna->addWidget(lista, 1);
  colonna->addWidget(fa_scritta("Avanzamento", statistica_.Avanzamento));
  colonna->addWidget(fa_scritta("Avviso", statistica_.Avviso));
  disponi(colonna);
  mostra();
}

void Statistica2Finestra::fa_menu() {
  voce("MenuChiudi", statistica_.MenuChiudi, [this] { chiudi_dopo(); });
  voce("Stampante", statistica_.Stampante, [this] { StampanteFinestra(programma_, this).esegui(); });
  voce("Stampa", statistica_.Stampa, [this] { Stampa_Periodo(programma_, statistica_); });
  voce("StampaGrafico", statistica_.StampaGrafico, [this] { Stampa_Barre(programma_, statistica_); });
  voce("Aiuto", statistica_.Aiuto, [this] { Aiuto_Statistica2(programma_); });
  interruttore("Grassetto", statistica_.Grassetto);
}

QBoxLayout* Statistica2Finestra::fa_date() {
  auto* riga = new QHBoxLayout;
  fa_campo(riga, "Text1", statistica_.Text1, "Caption_Text1", statistica_.Caption_Text1, caratteri_data);
  fa_campo(riga, "Text2", statistica_.Text2, "Caption_Text2", statistica_.Caption_Text2, caratteri_data);
  fa_bottone(riga, "Applica", statistica_.Applica, [this] { Applica_Periodo(programma_, statistica_); });
  fa_bottone(riga, "Chiudi", statistica_.Chiudi, [this] { chiudi_dopo(); });
  riga->addStretch();
  return riga;
}
