#include "platform/tasti_qt.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<int, Tasto>, 16> tasti = {{{Qt::Key_Return, Tasto::Invio},
                                                          {Qt::Key_Enter, Tasto::Invio},
                                                          {Qt::Key_Escape, Tasto::Esc},
                                                          {Qt::Key_Up, Tasto::Su},
                                                          {Qt::Key_Down, Tasto::Giu},
                                                          {Qt::Key_Left, Tasto::Sinistra},
                                                          {Qt::Key_Right, Tasto::Destra},
                                                          {Qt::Key_PageUp, Tasto::PagSu},
                                                          {Qt::Key_PageDown, Tasto::PagGiu},
                                                          {Qt::Key_Home, Tasto::Inizio},
                                                          {Qt::Key_End, Tasto::Fine},
                                                          {Qt::Key_Delete, Tasto::Canc},
                                                          {Qt::Key_Backspace, Tasto::Backspace},
                                                          {Qt::Key_Tab, Tasto::Tab},
                                                          {Qt::Key_Backtab, Tasto::Tab},
                                                          {Qt::Key_Space, Tasto::Spazio}}};

Tasto Da_Codice(int codice) {
  if (codice >= Qt::Key_F1 && codice <= Qt::Key_F12)
    return static_cast<Tasto>(static_cast<int>(Tasto::F1) + codice - Qt::Key_F1);
  for (const auto& [qt, tasto] : tasti)
    if (qt == codice) return tasto;
  return Tasto::Altro;
}

}  // namespace

Pressione Da_QKeyEvent(const QKeyEvent& evento) {
  const auto modi = evento.modifiers();
  return {Da_Codice(evento.key()), modi.testFlag(Qt::ShiftModifier), modi.testFlag(Qt::ControlModifier),
          modi.testFlag(Qt::AltModifier)};
}
