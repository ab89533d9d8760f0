#include "platform/tasti_qt.h"

#include <array>
#include <utility>

#include <QLineEdit>

#include "platform/testo_qt.h"

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

Testo Testo_Che_Resta(const QLineEdit& campo) {
  QString resta = campo.text();
  if (campo.hasSelectedText()) resta.remove(campo.selectionStart(), campo.selectedText().size());
  return Da_QString(resta);
}

bool Batti_Carattere(QLineEdit& campo, const QKeyEvent& evento, const Filtro_Carattere& filtro) {
  const QString testo = evento.text();
  if (testo.size() != 1 || !testo[0].isPrint() ||
      (evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0)
    return false;
  const char battuto = Da_QString(testo)[0];
  const auto entra = filtro(battuto, Testo_Che_Resta(campo));
  if (entra == battuto) return false;
  if (entra) campo.insert(In_QString(Testo(1, *entra)));
  return true;
}
