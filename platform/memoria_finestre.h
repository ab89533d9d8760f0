#pragma once

#include <QHash>
#include <QObject>

#include "core/posti_finestre.h"

// Windows come up where the operator has left them. Those that carry the property "ricordata" are remembered
// by their objectName when they close, if they were moved or resized since they came up.
class Memoria_Finestre : public QObject {
  Q_OBJECT

 public:
  explicit Memoria_Finestre(Posti_Finestre& posti, QObject* padre = nullptr);

  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void ritrova(QWidget& finestra);
  void ricorda(const QWidget& finestra);

  Posti_Finestre& posti_;
  QHash<const QObject*, Posto_Finestra> venute_;  // where they came up
};
