#pragma once

#include <array>
#include <optional>

#include "core/controlli.h"
#include "platform/finestra.h"
#include "start/avvio.h"

class QLineEdit;

// The first run in a new folder asks who the firm is: the seven letterhead lines, the firm's code, the stall.
class PrimoAvvioFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit PrimoAvvioFinestra(Piattaforma& piattaforma, char separatore);

  // Stands until it is confirmed or cancelled (nothing).
  std::optional<PrimoAvvio> chiedi();

 private:
  void conferma();
  QWidget* fa_campi();

  Piattaforma& piattaforma_;
  char separatore_;
  std::array<CampoTesto, 7> Text1_;
  CampoTesto Text2_, Text3_;
  Bottone Command1_, Command2_;
  QLineEdit* posteggio_ = nullptr;
  bool confermato_ = false;
};
