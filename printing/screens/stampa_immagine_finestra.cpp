#include "printing/screens/stampa_immagine_finestra.h"

#include <utility>

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr double mm_per_pollice = 25.4;

Immagine Da_QImage(const QImage& immagine) {
  const QImage punti = immagine.convertToFormat(QImage::Format_RGB32);
  Immagine esito{punti.width(), punti.height(), {}};
  esito.punti.reserve(static_cast<std::size_t>(punti.width()) * static_cast<std::size_t>(punti.height()));
  for (int y = 0; y < punti.height(); ++y) {
    const auto* riga = reinterpret_cast<const QRgb*>(punti.constScanLine(y));
    for (int x = 0; x < punti.width(); ++x) esito.punti.push_back(riga[x] & 0xFFFFFFU);
  }
  return esito;
}

}  // namespace

FoglioAnteprima::FoglioAnteprima(const FrmStampaFCPB& schermo, const QImage& immagine, QWidget* padre)
    : QFrame(padre), schermo_(schermo), immagine_(immagine) {
  setCursor(Qt::PointingHandCursor);
}

void FoglioAnteprima::mousePressEvent(QMouseEvent* /*evento*/) { emit cliccato(); }

void FoglioAnteprima::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pennello(this);
  pennello.fillRect(rect(), palette().color(QPalette::Mid));
  const Carta& foglio = schermo_.foglio;
  if (foglio.larghezza <= 0 || foglio.altezza <= 0) return;
  constexpr int margine = 12;
  const double scala =
      qMin((width() - 2 * margine) / foglio.larghezza, (height() - 2 * margine) / foglio.altezza);
  if (scala <= 0) return;
  pennello.translate((width() - foglio.larghezza * scala) / 2, (height() - foglio.altezza * scala) / 2);
  pennello.scale(scala, scala);  // millimetres from here on
  const QRectF carta(0, 0, foglio.larghezza, foglio.altezza);
  pennello.fillRect(carta, Qt::white);
  pennello.setClipRect(carta);
  const QRectF stampabile((foglio.larghezza - foglio.larghezza_stampabile) / 2,
                          (foglio.altezza - foglio.altezza_stampabile) / 2, foglio.larghezza_stampabile,
                          foglio.altezza_stampabile);
  const Posto_Immagine posto = Posto_Sul_Foglio(schermo_);
  const QRectF figura(stampabile.x() + posto.x, stampabile.y() + posto.y, posto.larghezza, posto.altezza);
  pennello.setRenderHint(QPainter::SmoothPixmapTransform);
  pennello.drawImage(figura, immagine_);
  QPen penna(Qt::gray);
  penna.setCosmetic(true);
  penna.setStyle(Qt::DashLine);
  pennello.setPen(penna);
  pennello.drawRect(stampabile);
}

StampaImmagineFinestra::StampaImmagineFinestra(Programma& programma, FrmStampaFCPB schermo, QImage immagine,
                                               QWidget* padre)
    : FinestraDavanti(QStringLiteral("frmStampaFCPB"), padre, Qt::Window),
      programma_(programma),
      schermo_(std::move(schermo)),
      immagine_(std::move(immagine)) {
  intitola(schermo_.titolo);
  si_chiude(schermo_.chiusa, [this] { LasciaStampante(programma_, schermo_); });
  setFont(Carattere(punti_normali));
  anteprima_ = new FoglioAnteprima(schermo_, immagine_);
  anteprima_->setObjectName(QStringLiteral("picPreview"));
  anteprima_->setToolTip(QStringLiteral("Anteprima di stampa "));
  anteprima_->setAccessibleName(QStringLiteral("Anteprima di stampa"));
  anteprima_->setMinimumSize(360, 420);
  connect(anteprima_, &FoglioAnteprima::cliccato, this, [this] { ingrandisci(true); });

  auto* affiancate = new QHBoxLayout(this);
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(16);
  affiancate->addWidget(anteprima_, 1);
  affiancate->addLayout(fa_scelte());

  ingrandita_ = new FoglioAnteprima(schermo_, immagine_, this);
  ingrandita_->setObjectName(QStringLiteral("picPreviewZoom"));
  ingrandita_->setToolTip(QStringLiteral("Chiudi "));
  ingrandita_->setAccessibleName(QStringLiteral("Anteprima ingrandita"));
  ingrandita_->hide();
  connect(ingrandita_, &FoglioAnteprima::cliccato, this, [this] { ingrandisci(false); });

  resize(QSize(900, 620).boundedTo(screen()->availableSize() * 0.92));
  mostra();
  scala_->setFocus(Qt::OtherFocusReason);
}

QLineEdit* StampaImmagineFinestra::fa_numero(const QString& nome, CampoTesto& stato, Scritta& didascalia,
                                             QBoxLayout* colonna) {
  auto* titolo = fa_scritta(QStringLiteral("Caption_") + nome.mid(3), didascalia);
  auto* campo = fa_campo(nome, stato, didascalia);
  campo->setAlignment(Qt::AlignRight);
  campo->setFixedWidth(campo->fontMetrics().averageCharWidth() * 10);
  titolo->setBuddy(campo);
  auto* riga = new QHBoxLayout;
  riga->addWidget(titolo, 1);
  riga->addWidget(campo);
  colonna->addLayout(riga);
  return campo;
}

QBoxLayout* StampaImmagineFinestra::fa_scelte() {
  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(10);
  auto* titolo = fa_scritta(QStringLiteral("Caption_Stampante"), schermo_.Caption_Stampante);
  auto* stampanti =
      fa_tendina(QStringLiteral("cboPrinterNames"), In_QString(schermo_.Caption_Stampante.testo),
                 schermo_.cboPrinterNames, [this] { CambiaStampante(programma_, schermo_); });
  stampanti->setMinimumContentsLength(24);
  titolo->setBuddy(stampanti);
  colonna->addWidget(titolo);
  colonna->addWidget(stampanti);
  colonna->addWidget(fa_bottone(QStringLiteral("cmdProprieta"), schermo_.cmdProprieta, [this] {
    auto* finestra = new StampanteFinestra(programma_, this);
    finestra->setAttribute(Qt::WA_DeleteOnClose);
    finestra->esegui();
    RiprendiDaProprieta(programma_, schermo_);
  }));
  colonna->addWidget(fa_scritta(QStringLiteral("fraFoglio"), schermo_.fraFoglio));
  colonna->addWidget(fa_scritta(QStringLiteral("Altezza"), schermo_.Altezza));
  colonna->addWidget(fa_scritta(QStringLiteral("Larghezza"), schermo_.Larghezza));
  colonna->addSpacing(10);
  scala_ = fa_numero(QStringLiteral("txtScala"), schermo_.txtScala, schermo_.Caption_Scala, colonna);
  legame.invio(scala_, [this] { ConfermaScala(programma_, schermo_); });
  colonna->addWidget(fa_bottone(QStringLiteral("cmdScalaOK"), schermo_.cmdScalaOK,
                                [this] { ConfermaScala(programma_, schermo_); }));
  fa_numero(QStringLiteral("txtNCopies"), schermo_.txtNCopies, schermo_.Caption_NCopies, colonna);
  for (Scritta* avviso : {&schermo_.lblFuoriFoglio, &schermo_.lblStampaInCorso}) {
    auto* scritta = fa_scritta(avviso == &schermo_.lblFuoriFoglio ? QStringLiteral("lblFuoriFoglio")
                                                                  : QStringLiteral("lblStampaInCorso"),
                               *avviso);
    scritta->setFont(Carattere(punti_normali, true));
    colonna->addWidget(scritta);
  }
  colonna->addStretch();
  colonna->addWidget(fa_bottone(QStringLiteral("cmdStampa"), schermo_.cmdStampa,
                                [this] { Print_FCPB(programma_, schermo_); }));
  colonna->addWidget(fa_bottone(QStringLiteral("cmdChiudi"), schermo_.cmdChiudi,
                                [this] { ApplicaEChiudi(programma_, schermo_); }));
  return colonna;
}

void StampaImmagineFinestra::ingrandisci(bool si) {
  ingrandita_->setGeometry(rect());
  ingrandita_->setVisible(si);
  ingrandita_->raise();
}

void StampaImmagineFinestra::mostra() {
  Finestra::mostra();
  anteprima_->update();
  ingrandita_->update();
}

void StampaImmagineFinestra::resizeEvent(QResizeEvent* evento) {
  Finestra::resizeEvent(evento);
  if (ingrandita_) ingrandita_->setGeometry(rect());
}

bool StampaImmagineFinestra::tasto(const Pressione& pressione) {
  const bool riduce = pressione.tasto == Tasto::Esc && pressione.Nudo() && ingrandita_->isVisible();
  if (!riduce) return FinestraDavanti::tasto(pressione);
  ingrandisci(false);
  return true;
}

void Stampa_Immagine(Programma& programma, QWidget& cosa, const QString& nome) {
  QImage immagine = cosa.grab().toImage();
  const double mm_per_punto = mm_per_pollice / cosa.logicalDpiX();
  FrmStampaFCPB schermo;
  if (!StampaFCPB(programma, schermo, Da_QString(nome), Da_QImage(immagine), cosa.width() * mm_per_punto,
                  cosa.height() * mm_per_punto))
    return;
  auto* finestra =
      new StampaImmagineFinestra(programma, std::move(schermo), std::move(immagine), cosa.window());
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->esegui();
}
