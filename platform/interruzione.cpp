#include "platform/interruzione.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

class Mangia_Tasti : public QObject {
 public:
  Mangia_Tasti() { QCoreApplication::instance()->installEventFilter(this); }

  bool esc = false;

  bool eventFilter(QObject*, QEvent* evento) override {
    switch (evento->type()) {
      case QEvent::KeyPress: {
        const auto& tasto = static_cast<const QKeyEvent&>(*evento);
        esc = esc || (tasto.key() == Qt::Key_Escape && !tasto.isAutoRepeat());
        return true;
      }
      case QEvent::ShortcutOverride:
        evento->accept();  // no command's shortcut: it comes as a key
        return true;
      case QEvent::Close:
        return evento->spontaneous();
      case QEvent::KeyRelease:
      case QEvent::InputMethod:
      case QEvent::Shortcut:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::ContextMenu:
        return true;
      default:
        return false;
    }
  }
};

}  // namespace

bool Esc_Premuto() {
  Mangia_Tasti mangia;
  // A key that came while the screen was only repainted is kept back until the dispatcher wakes up again,
  // which without this it does at the next key only.
  if (auto* smistatore = QAbstractEventDispatcher::instance()) smistatore->wakeUp();
  QCoreApplication::processEvents();
  return mangia.esc;
}

void Butta_Tasti() { Esc_Premuto(); }
