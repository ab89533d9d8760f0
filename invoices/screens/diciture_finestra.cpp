#include "invoices/screens/diciture_finestra.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

// What the fields and the default button of each set are called, in the order of Serie_Diciture.
struct Nomi_Serie {
  const char* campi;
  const char* bottone;
};
constexpr Nomi_Serie nomi[] = {
    {"Text1", "Command5"}, {"Text2", "Command6"}, {"Text3", "Command4"}, {"Text4", "Command1"}};

}  // namespace

DicitureFinestra::DicitureFinestra(Programma& programma, QWidget* padre)
    : FinestraModulo(QStringLiteral("Personalizza_Fattura"), padre, Qt::Window), programma_(programma) {
  Apri_Personalizza(programma_, schermo_);
  intitola(schermo_.titolo);
  si_chiude(schermo_.chiusa, [this] { Chiudi_Personalizza(schermo_); });
  setFont(Carattere(punti_normali));
  auto* griglia = new QGridLayout;
  griglia->setSpacing(14);
  for (const Serie_Dicitura quale : Serie_Diciture) {
    const int posto = static_cast<int>(quale);
    griglia->addWidget(fa_serie(quale), posto / 2, posto % 2);
  }
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(12);
  tutto->addLayout(griglia, 1);
  tutto->addLayout(fa_comandi());
  mostra();
}

QGroupBox* DicitureFinestra::fa_serie(Serie_Dicitura quale) {
  const auto posto = static_cast<std::size_t>(quale);
  Serie_Campi& serie = schermo_.serie[posto];
  auto* riquadro = Riquadro_Titolato(In_QString(serie.didascalia.testo));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setSpacing(5);
  for (std::size_t i = 0; i < serie.campi.size(); ++i) {
    auto* campo = new CasellaTesto;
    campo->setFont(Carattere(punti_normali));
    campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 64);
    legame.lega(campo, QStringLiteral("%1(%2)").arg(QLatin1String(nomi[posto].campi)).arg(i), serie.campi[i],
                [this] { Tocca_Personalizza(schermo_); });
    campo->setAccessibleName(
        QStringLiteral("%1, riga %2").arg(In_QString(serie.didascalia.testo)).arg(i + 1));
    campo->setCursorPosition(0);
    colonna->addWidget(campo);
  }
  auto* riga = new QHBoxLayout;
  riga->addStretch();
  riga->addWidget(fa_bottone(QLatin1String(nomi[posto].bottone), serie.predefinita,
                             [this, quale] { Predefinita_Personalizza(programma_, schermo_, quale); }));
  colonna->addLayout(riga);
  return riquadro;
}

QBoxLayout* DicitureFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  riga->addWidget(fa_scritta(QStringLiteral("Esito"), schermo_.Esito), 1);
  riga->addWidget(fa_bottone(QStringLiteral("Command2"), schermo_.Command2,
                             [this] { Applica_Personalizza(programma_, schermo_); }));
  riga->addWidget(
      fa_bottone(QStringLiteral("Command3"), schermo_.Command3, [this] { Chiudi_Personalizza(schermo_); }));
  return riga;
}
