#include "stats/screens/rxfor_finestra.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>

namespace {

constexpr int caratteri_lista = 84;

}  // namespace

RXForFinestra::RXForFinestra(Programma& programma, QWidget* padre)
    : FinestraStatistica(QStringLiteral("RXFor"), programma, rxfor_.titolo, rxfor_.grafico, padre),
      programma_(programma) {
  Apri_RXFor(programma_, rxfor_);
  fa_menu();
  auto* colonna = new QVBoxLayout;
  colonna->addLayout(fa_date());
  colonna->addLayout(fa_scelte());
  colonna->addWidget(fa_lista("ListaSaldo", "Saldi", rxfor_.ListaSaldo, caratteri_lista), 1);
  colonna->addWidget(fa_scritta(QStringLiteral("Avanzamento"), rxfor_.Avanzamento));
  colonna->addWidget(fa_scritta(QStringLiteral("Avviso"), rxfor_.Avviso));
  disponi_con_grafico(colonna);
  mostra();
}

void RXForFinestra::fa_menu() {
  fa_voce(menu_, QStringLiteral("Stampa"), rxfor_.Stampa, [this] { Stampa_Saldo(programma_, rxfor_); });
  fa_voce(menu_, QStringLiteral("Salva"), rxfor_.Salva, [this] { Salva_Saldo(programma_, rxfor_); });
  fa_voce(menu_, QStringLiteral("StampaGrafico"), rxfor_.StampaGrafico,
          [this] { Stampa_Barre(programma_, rxfor_); });
  fa_voce(menu_, QStringLiteral("Chiudi"), rxfor_.Chiudi, [this] { chiudi_dopo(); });
}

QBoxLayout* RXForFinestra::fa_date() {
  auto* riga = new QHBoxLayout;
  const auto passo = [&](const char* nome, const char* letto, Bottone& stato, CampoTesto& campo,
                         bool avanti) {
    auto* bottone =
        fa_bottone(QString::fromUtf8(nome), stato, [&campo, avanti] { Passo_Data(campo, avanti); });
    bottone->setAccessibleName(QString::fromUtf8(letto));
    riga->addWidget(bottone);
  };
  riga->addWidget(fa_scritta(QStringLiteral("Caption"), rxfor_.Caption));
  fa_data(riga, QStringLiteral("Text1"), rxfor_.Text1, rxfor_.Caption_Text1);
  passo("Command26", "da, il giorno prima", rxfor_.Command26, rxfor_.Text1, false);
  passo("Command25", "da, il giorno dopo", rxfor_.Command25, rxfor_.Text1, true);
  fa_data(riga, QStringLiteral("Text2"), rxfor_.Text2, rxfor_.Caption_Text2);
  passo("Command2", "a, il giorno prima", rxfor_.Command2, rxfor_.Text2, false);
  passo("Command3", "a, il giorno dopo", rxfor_.Command3, rxfor_.Text2, true);
  riga->addStretch();
  return riga;
}

QBoxLayout* RXForFinestra::fa_scelte() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_casella(QStringLiteral("Check1"), rxfor_.Check1));
  riga->addWidget(fa_casella(QStringLiteral("Check2"), rxfor_.Check2));
  riga->addWidget(fa_casella(QStringLiteral("Check3"), rxfor_.Check3));
  riga->addSpacing(20);
  riga->addWidget(
      fa_bottone(QStringLiteral("Command4"), rxfor_.Command4, [this] { Calcola_Saldo(programma_, rxfor_); }));
  riga->addStretch();
  return riga;
}
