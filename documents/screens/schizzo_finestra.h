#pragma once

#include <QWidget>

#include "documents/dimddt.h"

// The picture of the form in the window DimDDT, as large as its place lets it be.
class SchizzoDDT : public QWidget {
 public:
  explicit SchizzoDDT(QWidget* padre = nullptr);
  void mostra(std::optional<Schizzo_DDT> schizzo);

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  std::optional<Schizzo_DDT> schizzo_;
};
