#include "platform/piattaforma_qt.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStorageInfo>
#include <QTimer>
#include <QUrl>

#include "platform/aspetto.h"
#include "platform/finestra.h"
#include "platform/interruzione.h"
#include "platform/testo_qt.h"
#include "printing/dispositivo.h"

namespace {

// A loop over thousands of rows asks to repaint at each: more often than this the eye doesn't see it.
constexpr qint64 ms_fra_ridipinture = 30;
constexpr qint64 ms_lavoro_lungo = 300;  // less is typing ahead, which counts
constexpr double punti_messaggio = 13;
constexpr std::size_t massimo_aperti = 5;  // viewers at a time

QString Titolo(const Testo& titolo) {
  return titolo.empty() ? QStringLiteral("Prima Nota") : In_QString(titolo);
}

QString Nome_Qt(const Percorso& percorso) { return QFile::decodeName(percorso.string().c_str()); }

QMessageBox::Icon In_Icona(Icona icona) {
  switch (icona) {
    case Icona::Informazione:
      return QMessageBox::Information;
    case Icona::Esclamazione:
      return QMessageBox::Warning;
    case Icona::Domanda:
      return QMessageBox::Question;
    case Icona::Nessuna:
      break;
  }
  return QMessageBox::NoIcon;
}

// The pointer is the normal one while a message stands, also in the midst of a long job.
// Afterwards the keyboard goes back to the window it was in, also where no window manager sees to that.
class Interruzione {
 public:
  Interruzione()
      : occupato_(QApplication::overrideCursor() != nullptr), finestra_(QApplication::activeWindow()) {
    if (occupato_) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~Interruzione() {
    if (occupato_) QApplication::restoreOverrideCursor();
    if (finestra_) finestra_->activateWindow();
  }
  Interruzione(const Interruzione&) = delete;
  Interruzione& operator=(const Interruzione&) = delete;
  QWidget* finestra() const { return finestra_; }

 private:
  bool occupato_;
  QPointer<QWidget> finestra_;
};

// Texts come with their own line ends: lines that fit the screen aren't broken a second time.
void Righe_Intere(QMessageBox& box) {
  auto* scritta = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!scritta) return;
  int larga = 0;
  const auto righe = box.text().split(QLatin1Char('\n'));
  for (const QString& riga : righe) larga = std::max(larga, scritta->fontMetrics().horizontalAdvance(riga));
  if (larga < box.screen()->availableGeometry().width() * 3 / 4) scritta->setMinimumWidth(larga + 4);
}

// An Esc still held down, as after it has stopped a print, answers nothing: the message would go unread, and
// the screen behind it close.
class Esc_Tenuto : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() != QEvent::KeyPress) return false;
    const auto& tasto = static_cast<const QKeyEvent&>(*evento);
    return tasto.key() == Qt::Key_Escape && tasto.isAutoRepeat();
  }
};

bool Mostra_Messaggio(const Testo& testo, Icona icona, const Testo& titolo, bool annullabile) {
  Mostra_Finestre();
  const Interruzione interruzione;
  QMessageBox box(In_Icona(icona), Titolo(titolo), In_QString(testo), QMessageBox::NoButton,
                  interruzione.finestra());
  box.setTextFormat(Qt::PlainText);
  box.setFont(Carattere(punti_messaggio));
  Righe_Intere(box);
  QPushButton* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
  box.setDefaultButton(ok);
  if (annullabile)
    box.setEscapeButton(box.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole));
  else
    box.setEscapeButton(ok);
  Esc_Tenuto tenuto;
  box.installEventFilter(&tenuto);
  box.exec();
  return box.clickedButton() == ok;
}

}  // namespace

void Piattaforma_Qt::Messaggio(const Testo& testo, Icona icona, const Testo& titolo) {
  Mostra_Messaggio(testo, icona, titolo, false);
}

bool Piattaforma_Qt::Domanda(const Testo& testo, Icona icona, const Testo& titolo) {
  const bool si = Mostra_Messaggio(testo, icona, titolo, true);
  // The work that is asked about begins with the answer.
  if (occupato_da_.isValid()) occupato_da_.start();
  return si;
}

std::optional<Testo> Piattaforma_Qt::Chiedi(const Testo& testo, const Testo& titolo, const Testo& proposta) {
  Mostra_Finestre();
  const Interruzione interruzione;
  QInputDialog box(interruzione.finestra());
  box.setFont(Carattere(punti_messaggio));
  box.setWindowTitle(Titolo(titolo));
  box.setLabelText(In_QString(testo));
  for (QLabel* scritta : box.findChildren<QLabel*>()) scritta->setTextFormat(Qt::PlainText);
  box.setTextValue(In_QString(proposta));
  box.setOkButtonText(QStringLiteral("OK"));
  box.setCancelButtonText(QStringLiteral("Annulla"));
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return Senza_Separatori(Da_QString(box.textValue()));
}

void Piattaforma_Qt::Ridipingi() {
  if (ultima_ridipintura_.isValid() && ultima_ridipintura_.elapsed() < ms_fra_ridipinture) return;
  Mostra_Finestre();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  ultima_ridipintura_.start();
  if (occupato_da_.isValid() && occupato_da_.elapsed() > ms_lavoro_lungo) lavoro_lungo_ = true;
}

// The Esc of somebody who types ahead, for when the command is done, stays in the queue for a while.
bool Piattaforma_Qt::Vuole_Fermare() {
  Ridipingi();
  if (occupato_da_.isValid() && occupato_da_.elapsed() <= ms_lavoro_lungo) return false;
  return Esc_Premuto();
}

void Piattaforma_Qt::Attendi(double secondi) {
  Mostra_Finestre();
  QEventLoop giro;
  QTimer::singleShot(static_cast<int>(secondi * 1000), &giro, &QEventLoop::quit);
  giro.exec(QEventLoop::ExcludeUserInputEvents);
}

void Piattaforma_Qt::Occupato(bool si) {
  const bool gia = QApplication::overrideCursor() != nullptr;
  if (si == gia) return;
  if (si) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    occupato_da_.start();
    return;
  }
  // Otherwise a second F2 while all the documents come out would bring them all out again.
  if (lavoro_lungo_) Butta_Tasti();
  lavoro_lungo_ = false;
  occupato_da_.invalidate();
  QApplication::restoreOverrideCursor();
  const auto finiti = std::exchange(finiti_, {});
  if (finiti.size() > massimo_aperti) return Apri_Con_Desktop(finiti.back().parent_path());
  for (const Percorso& file : finiti) Apri_Con_Desktop(file);
}

void Piattaforma_Qt::Mostra_Finito(const Percorso& file) {
  if (QApplication::overrideCursor() == nullptr) return Apri_Con_Desktop(file);
  finiti_.push_back(file);
}

Data Piattaforma_Qt::Oggi() {
  const QDate oggi = QDate::currentDate();
  return {oggi.year(), oggi.month(), oggi.day()};
}

char Piattaforma_Qt::Separatore_Decimale() {
  return QLocale::system().decimalPoint() == QLatin1String(".") ? '.' : ',';
}

Testo Piattaforma_Qt::Appunti() { return Da_QString(QApplication::clipboard()->text()); }

// Sticks and other drives that the operator carries away, not the machine's own disks. A drive without a
// label has an empty one; that of a floppy isn't read, since asking for it makes the drive turn.
std::vector<Volume> Piattaforma_Qt::Volumi() {
  static constexpr std::array cartelle = {"/media/", "/run/media/", "/mnt/"};  // where desktops mount sticks
  static constexpr std::array di_sistema = {"tmpfs", "ramfs", "overlay", "squashfs", "autofs"};  // no drives
  std::vector<Volume> esito;
  const auto montati = QStorageInfo::mountedVolumes();
  for (const QStorageInfo& volume : montati) {
    const QString radice = volume.rootPath();
    const bool con_lettera = radice.size() >= 2 && radice[1] == QLatin1Char(':');
    const bool dischetto = con_lettera && QStringLiteral("abAB").contains(radice[0]);
    const bool staccabile = std::any_of(cartelle.begin(), cartelle.end(), [&](const char* cartella) {
      return radice.startsWith(QLatin1String(cartella));
    });
    if ((!con_lettera && !staccabile) || (!dischetto && !volume.isReady())) continue;
    if (std::find(di_sistema.begin(), di_sistema.end(), volume.fileSystemType()) != di_sistema.end())
      continue;
    esito.push_back({Percorso(QFile::encodeName(radice).toStdString()),
                     Da_QString(con_lettera ? radice.left(2) : radice),
                     dischetto ? Testo() : Da_QString(volume.name())});
  }
  return esito;
}

std::optional<Stampante> Piattaforma_Qt::Stampante_Corrente() {
  auto nome = dispositivo_.DeviceName();
  if (!nome) return std::nullopt;
  return Stampante{std::move(*nome), dispositivo_.Orientation() == Orizzontale};
}

bool Piattaforma_Qt::Avvia_Programma(const Percorso& programma, const std::vector<Testo>& argomenti) {
  QStringList lista;
  for (const Testo& argomento : argomenti) lista << In_QString(argomento);
  const QString file = Nome_Qt(programma);
  return QProcess::startDetached(file, lista, QFileInfo(file).absolutePath());
}

void Piattaforma_Qt::Apri_Con_Desktop(const Percorso& file_o_cartella) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(Nome_Qt(file_o_cartella)));
}

void Piattaforma_Qt::Termina() {
  // Not quit(), which would ask every window to close once more.
  QMetaObject::invokeMethod(
      qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}
