#include "core/screens/colori_finestra.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "core/programma.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

QColor Qt_Di(const Colore& colore) { return {colore.rosso, colore.verde, colore.blu}; }

void Dipingi(QLabel* scritta, const Campione& campione) {
  QPalette tavolozza = scritta->palette();
  tavolozza.setColor(QPalette::Window, Qt_Di(campione.fondo));
  tavolozza.setColor(QPalette::WindowText, Qt_Di(campione.inchiostro));
  if (tavolozza != scritta->palette()) scritta->setPalette(tavolozza);
}

}  // namespace

ColoriFinestra::ColoriFinestra(Programma& programma, QWidget* padre)
    : FinestraModulo(QStringLiteral("Colori"), padre, Qt::Window), programma_(programma) {
  Apri_Colori(programma_, schermo_);
  intitola(schermo_.titolo);

  auto* riga = new QHBoxLayout;
  riga->setSpacing(14);
  riga->addWidget(fa_inchiostri());
  riga->addWidget(fa_fondo(), 1);

  auto* comandi = new QHBoxLayout;
  auto* nota = new QLabel(QStringLiteral("I colori valgono dalla prossima apertura di un giorno."));
  nota->setFont(Carattere(punti_normali));
  comandi->addWidget(nota, 1);
  comandi->addWidget(fa_bottone(QStringLiteral("Applica"), schermo_.Applica,
                                [this] { Applica_Colori(programma_, schermo_); }));
  comandi->addWidget(fa_bottone(QStringLiteral("Chiudi"), schermo_.Chiudi, [this] { chiudi_dopo(); }));

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 14, 18, 14);
  tutto->setSpacing(14);
  tutto->addLayout(riga);
  tutto->addWidget(fa_campioni());
  tutto->addStretch();
  tutto->addLayout(comandi);
  mostra();
}

QGroupBox* ColoriFinestra::fa_inchiostri() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Colore del &testo"));
  auto* colonna = new QVBoxLayout(riquadro);
  for (int i = 0; i < 4; ++i) {
    auto* scelta = new QRadioButton;
    scelta->setFont(Carattere(punti_normali));
    legame.lega(scelta, QStringLiteral("ColoreTesto(%1)").arg(i + 1), schermo_.ColoreTesto[i], [this, i] {
      if (schermo_.ColoreTesto[i].segnata) Scegli_Inchiostro(schermo_, i + 1);
    });
    colonna->addWidget(scelta);
  }
  colonna->addStretch();
  return riquadro;
}

QGroupBox* ColoriFinestra::fa_fondo() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Colore dello &sfondo"));
  auto* griglia = new QGridLayout(riquadro);
  griglia->setHorizontalSpacing(12);
  struct Componente {
    const char* nome;
    const char* didascalia;
    Cursore& stato;
  };
  const Componente componenti[] = {{"Colore1", "&Rosso", schermo_.Colore1},
                                   {"Colore2", "&Verde", schermo_.Colore2},
                                   {"Colore3", "&Blu", schermo_.Colore3}};
  int riga = 0;
  for (const auto& [nome, didascalia, stato] : componenti) {
    auto* scritta = new QLabel(QString::fromUtf8(didascalia));
    auto* cursore = new QSlider(Qt::Horizontal);
    auto* numero = new QLabel;
    cursore->setMinimumWidth(320);
    cursore->setPageStep(16);
    cursore->setAccessibleName(Senza_Scorciatoia(scritta->text()));
    scritta->setBuddy(cursore);
    for (QWidget* widget : {static_cast<QWidget*>(scritta), static_cast<QWidget*>(numero)})
      widget->setFont(Carattere(punti_normali));
    numero->setMinimumWidth(numero->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(cursore, &QSlider::valueChanged, numero, qOverload<int>(&QLabel::setNum));
    legame.lega(cursore, QString::fromUtf8(nome), stato, [this] { Rinfresca_Campioni(schermo_); });
    numero->setNum(stato.valore);
    griglia->addWidget(scritta, riga, 0);
    griglia->addWidget(cursore, riga, 1);
    griglia->addWidget(numero, riga++, 2);
  }
  return riquadro;
}

QGroupBox* ColoriFinestra::fa_campioni() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Esempio"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->setSpacing(0);
  normale_ = new QLabel;
  selezionato_ = new QLabel;
  legame.lega(normale_, QStringLiteral("Normale"), schermo_.Normale);
  legame.lega(selezionato_, QStringLiteral("Selezionato"), schermo_.Selezionato);
  const QFont carattere = Carattere_Fisso(programma_.preferenze.DimFontListe);
  for (QLabel* campione : {normale_, selezionato_}) {
    campione->setFont(carattere);
    campione->setAutoFillBackground(true);
    campione->setMargin(8);
    colonna->addWidget(campione);
  }
  return riquadro;
}

void ColoriFinestra::mostra() {
  Finestra::mostra();
  Dipingi(normale_, schermo_.Normale);
  Dipingi(selezionato_, schermo_.Selezionato);
}
