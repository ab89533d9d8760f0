#pragma once

#include <QListView>

// A list in fixed pitch, whose lines are never cut with dots.
class ListaVoci : public QListView {
  Q_OBJECT

 public:
  explicit ListaVoci(double punti, QWidget* padre = nullptr);
};
