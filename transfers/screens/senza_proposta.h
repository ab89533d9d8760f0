#pragma once

#include <QAbstractItemView>

// A list in which nothing is selected until the operator moves or clicks: a list of the toolkit takes its
// first line as soon as it gets the keyboard, and then a key pressed too early prints or saves what nobody
// chose.
template <class Lista>
class Senza_Proposta : public Lista {
 public:
  using Lista::Lista;

 protected:
  // MoveNext is how the list looks for that first line; arrows ask for other moves.
  QModelIndex moveCursor(QAbstractItemView::CursorAction passo, Qt::KeyboardModifiers modi) override {
    if (passo == QAbstractItemView::MoveNext && !this->currentIndex().isValid()) return {};
    return Lista::moveCursor(passo, modi);
  }
};
