#include "lists/screens/mappa_finestra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "lists/screens/tela_mappa.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampa_immagine_finestra.h"

MappaFinestra::MappaFinestra(const QString& nome, Programma& programma, const Testo& zona_attuale,
                             Scelta scelta, QWidget* padre)
    : FinestraDavanti(nome, padre, Qt::Window),
      programma_(programma),
      zona_attuale_(zona_attuale),
      scelta_(std::move(scelta)),
      mappa_(Leggi_Mappa(Da_QString(nome), programma.Vet_Zone)) {
  setWindowTitle(In_QString(mappa_.titolo));
  setAttribute(Qt::WA_DeleteOnClose);

  // Not every desktop gives the keyboard back by itself.
  if (padre) connect(this, &Finestra::chiusa, padre, [padre] { padre->activateWindow(); });

  tela_ = new TelaMappa(mappa_, Bersaglio_Di_Zona(mappa_, zona_attuale_));
  tela_->setAccessibleName(windowTitle());
  connect(tela_, &TelaMappa::scelto, this, &MappaFinestra::scegli);
  connect(tela_, &TelaMappa::guardato, this, &MappaFinestra::spiega);

  spiegazione_ = new QLabel;
  spiegazione_->setObjectName(QStringLiteral("Zona"));
  spiegazione_->setFont(Carattere(punti_grandi, true));
  spiegazione_->setMinimumWidth(0);
  spiegazione_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

  auto* chiudi = Bottone_Comodo(QStringLiteral("Chiudi"), QStringLiteral("&Chiudi"));
  connect(chiudi, &QPushButton::clicked, this, &QWidget::close);

  auto* stampa = Bottone_Comodo(QStringLiteral("Stampa"), QStringLiteral("S&tampa"));
  connect(stampa, &QPushButton::clicked, this,
          [this] { Stampa_Immagine(programma_, *tela_, windowTitle()); });

  auto* sotto = new QHBoxLayout;
  sotto->setSpacing(14);
  sotto->addWidget(spiegazione_, 1);
  sotto->addWidget(stampa);
  sotto->addWidget(chiudi);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(12, 12, 12, 12);
  tutto->setSpacing(10);
  tutto->addWidget(tela_, 1);
  tutto->addLayout(sotto);

  const QSize posto = screen()->availableSize() * 0.92;
  resize(QSize(1200, 700).boundedTo(posto));
  spiega(-1);
  tela_->al_primo();
}

// The label with the focus loses it as it goes, which is no news to a window that goes too.
MappaFinestra::~MappaFinestra() { disconnect(tela_, nullptr, this, nullptr); }

void MappaFinestra::spiega(int bersaglio) {
  spiegazione_->setText(bersaglio < 0
                            ? QStringLiteral("Scegliere un'area: clic, oppure frecce e Invio")
                            : In_QString(mappa_.bersagli[static_cast<std::size_t>(bersaglio)].spiegazione));
}

void MappaFinestra::scegli(int bersaglio) {
  const Bersaglio& area = mappa_.bersagli[static_cast<std::size_t>(bersaglio)];
  if (!area.apre.empty()) {
    const auto con_questa = [this, scelta = scelta_](const Testo& zona) {
      close();
      scelta(zona);
    };
    Apri_Mappa(In_QString(area.apre), programma_, zona_attuale_, con_questa, this);
    return;
  }
  if (area.zona.empty()) return;
  const Scelta scelta = scelta_;
  const Testo zona = area.zona;
  close();  // first, so that the screen that asked has the keyboard again
  scelta(zona);
}

void Apri_Mappa(const QString& nome, Programma& programma, const Testo& zona_attuale,
                MappaFinestra::Scelta scelta, QWidget* padre) {
  auto* finestra = new MappaFinestra(nome, programma, zona_attuale, std::move(scelta), padre);
  finestra->setWindowModality(Qt::WindowModal);
  finestra->show();
  finestra->activateWindow();
}
