#include "stats/screens/rxfor_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

constexpr int caratteri_lista = 84, caratteri_data = 12;

}  // namespace

RXForFinestra::RXForFinestra(Programma& programma, QWidget* padre)
    : FinestraStatistica(QStringLiteral("RXFor"), programma, rxfor_.titolo, rxfor_.grafico, padre),
      programma_(programma) {
  Apri_RXFor(programma_, rxfor_);
  rxfor_.fermata = Esc_Premuto;
  fa_menu();
  auto* colonna = new QVBoxLayout;
  colonna->addLayout(fa_date());
  colonna->addLayout(fa_scelte());
  colonna->addWidget(fa_lista("ListaSaldo", "Saldi", rxfor_.ListaSaldo, caratteri_lista), 1);
  colonna->addWidget(fa_scritta("Avanzamento", rxfor_.Avanzamento));
  colonna->addWidget(fa_scritta("Avviso", rxfor_.Avviso));
  disponi(colonna);
  mostra();
}

void RXForFinestra::fa_menu() {
  voce("Stampa", rxfor_.Stampa, [this] { Stampa_Saldo(programma_, rxfor_); });
  voce("Salva", rxfor_.Salva, [this] { Salva_Saldo(programma_, rxfor_); });
  voce("StampaGrafico", rxfor_.StampaGrafico, [this] { Stampa_Barre(programma_, rxfor_); });
  voce("Chiudi", rxfor_.Chiudi, [this] { chiudi_dopo(); });
}

QBoxLayout* RXForFinestra::fa_date() {
  auto* riga = new QHBoxLayout;
  const auto passo = [&](const char* nome, const char* letto, Bottone& stato, CampoTesto& campo,
                         bool avanti) {
    fa_bottone(riga, nome, stato, [&campo, avanti] {
      Passo_Data(campo, avanti);
    })->setAccessibleName(QString::fromUtf8(letto));
  };
  riga->addWidget(fa_scritta("Caption", rxfor_.Caption));
  fa_campo(riga, "Text1", rxfor_.Text1, "Caption_Text1", rxfor_.Caption_Text1, caratteri_data);
  passo("Command26", "da, il giorno prima", rxfor_.Command26, rxfor_.Text1, false);
  passo("Command25", "da, il giorno dopo", rxfor_.Command25, rxfor_.Text1, true);
  fa_campo(riga, "Text2", rxfor_.Text2, "Caption_Text2", rxfor_.Caption_Text2, caratteri_data);
  passo("Command2", "a, il giorno prima", rxfor_.Command2, rxfor_.Text2, false);
  passo("Command3", "a, il giorno dopo", rxfor_.Command3, rxfor_.Text2, true);
  riga->addStretch();
  return riga;
}

QBoxLayout* RXForFinestra::fa_scelte() {
  auto* riga = new QHBoxLayout;
  struct Scelta {
    const char* nome;
    Spunta& stato;
  };
  const Scelta scelte[] = {{"Check1", rxfor_.Check1}, {"Check2", rxfor_.Check2}, {"Check3", rxfor_.Check3}};
  for (const auto& [nome, stato] : scelte) {
    auto* casella = new QCheckBox(In_QString(stato.didascalia));
    casella->setFont(Carattere(punti_normali));
    casella->setAccessibleName(In_QString(stato.didascalia));
    legame.lega(casella, QString::fromUtf8(nome), stato);
    riga->addWidget(casella);
  }
  riga->addSpacing(20);
  fa_bottone(riga, "Command4", rxfor_.Command4, [this] { Calcola_Saldo(programma_, rxfor_); });
  riga->addStretch();
  return riga;
}
