#pragma once

#include <QListView>

#include "core/controlli.h"

class QPushButton;

// What the windows of the lists are made of.

// A list in fixed pitch. Its frame is the mark of the keyboard's focus; the selected line is seen also while
// the keyboard is elsewhere.
class ListaVoci : public QListView {
  Q_OBJECT

 public:
  explicit ListaVoci(double punti, QWidget* padre = nullptr);

 protected:
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;

 private:
  void incornicia(bool in_uso);
};

// A button as high and wide as its caption wants for a hand in a hurry; Enter presses it.
QPushButton* Fa_Bottone(const Bottone& stato);
