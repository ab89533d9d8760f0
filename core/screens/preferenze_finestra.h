#pragma once

#include "core/schermo_preferenze.h"
#include "platform/finestra.h"

class QGridLayout;
class QGroupBox;
class QPushButton;

// What the preferences open and call in other rooms; what is empty isn't there.
struct Vicini_Preferenze {
  std::function<void()> larghezza_edita;  // the open entry screen follows FlagBarra
  std::function<void()> dimensioni_ddt;   // "Dimensioni DDT"
  std::function<void()> personalizza;     // "Personalizza"
};

// The preferences screen `Preferenze`: every setting in sight at once, in groups by subject.
class PreferenzeFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  explicit PreferenzeFinestra(Programma& programma, Vicini_Preferenze vicini = {}, QWidget* padre = nullptr);

 private:
  QGroupBox* fa_gruppo(Gruppo gruppo, const QString& titolo);
  void fa_controllo(QGridLayout* griglia, const Impostazione& impostazione);
  QWidget* fa_valore(const Impostazione& impostazione);
  QPushButton* fa_bottone_piccolo(const QString& nome, Bottone& stato, Legame::Evento evento);
  QLayout* fa_comandi();

  Programma& programma_;
  SchermoPreferenze schermo_;
};
