#pragma once

#include <initializer_list>

#include "documents/dimddt.h"
#include "documents/screens/schizzo_finestra.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;

// The page of the transport and sanitary documents, `DimDDT`.
class DimDDTFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit DimDDTFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 private:
  struct Gruppo_Campi {
    const char* titolo;
    std::initializer_list<Vista> campi;
    std::initializer_list<Vista> predefiniti;
    bool testi;                // long texts take the whole width, under one caption
    Spunta* spunta = nullptr;  // whether they are printed
  };

  QGroupBox* fa_gruppo(const Gruppo_Campi& gruppo);
  void fa_campo(QGridLayout* griglia, Vista chiave, bool testo);
  QBoxLayout* fa_comandi();

  Programma& programma_;
  DimDDT schermo_;
  SchizzoDDT* schizzo_;
};
