#include "entry/screens/davanti.h"

void Apri_Davanti(Finestra* finestra, Finestra* padre) {
  const auto ripresa = [padre] {
    padre->window()->activateWindow();
    padre->mostra();
  };
  // once the window is out of the way, so that the keyboard can go back
  QObject::connect(finestra, &Finestra::chiusa, padre, ripresa, Qt::QueuedConnection);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->setWindowModality(Qt::WindowModal);
  finestra->move(padre->window()->geometry().center() - finestra->rect().center());
  finestra->show();
  finestra->activateWindow();
}
