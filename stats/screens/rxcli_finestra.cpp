#include "stats/screens/rxcli_finestra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenuBar>

namespace {

constexpr int caratteri_clienti = 30, caratteri_totali = 72;

}  // namespace

RXcliFinestra::RXcliFinestra(Programma& programma, Vista cliente, const Chi_Chiede_File& chi_chiede,
                             QWidget* padre)
    : FinestraStatistica(QStringLiteral("RXcli"), programma, rxcli_.titolo, rxcli_.grafico, padre),
      programma_(programma) {
  if (chi_chiede) rxcli_.scegli_file = chi_chiede(this);
  Apri_RXcli(programma_, rxcli_, cliente);
  fa_menu();
  disponi_con_grafico(fa_liste());
  clienti_->setFocus(Qt::OtherFocusReason);
  mostra();
}

void RXcliFinestra::fa_menu() {
  fa_voce(menu_, QStringLiteral("Stampa"), rxcli_.Stampa, [this] { Stampa_Clienti(programma_, rxcli_); });
  fa_voce(menu_, QStringLiteral("Salva"), rxcli_.Salva, [this] { Salva_Totali(programma_, rxcli_); });
  fa_voce(menu_, QStringLiteral("StampaGrafico"), rxcli_.StampaGrafico,
          [this] { Stampa_Barre(programma_, rxcli_); });
  interruttore("SoloPeso", rxcli_.SoloPeso);
  fa_voce(menu_, QStringLiteral("Chiudi"), rxcli_.Chiudi, [this] { chiudi_dopo(); });
}

QBoxLayout* RXcliFinestra::fa_liste() {
  clienti_ = fa_pannello("ListaClienti", "Clienti", rxcli_.ListaClienti, caratteri_clienti,
                         [this] { Scelto_Cliente(rxcli_); });
  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(2);
  colonna->addWidget(fa_lista("ListaTotali", "Totali per cliente", rxcli_.ListaTotali, caratteri_totali), 1);
  colonna->addWidget(fa_scritta(QStringLiteral("Avviso"), rxcli_.Avviso));
  auto* riga = new QHBoxLayout;
  riga->addWidget(clienti_, 1);
  riga->addLayout(colonna, 3);
  return riga;
}
