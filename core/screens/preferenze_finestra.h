#pragma once

#include "core/schermo_preferenze.h"
#include "platform/finestra.h"

class QGridLayout;
class QGroupBox;
class QPushButton;

// The preferences screen `Preferenze`: every setting in sight at once, in groups by subject.
class PreferenzeFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  // `larghezza_edita` lets the open entry screen follow FlagBarra; may be empty.
  explicit PreferenzeFinestra(Programma& programma, std::function<void()> larghezza_edita = {},
                              QWidget* padre = nullptr);

 private:
  QGroupBox* fa_gruppo(Gruppo gruppo, const QString& titolo);
  void fa_controllo(QGridLayout* griglia, const Impostazione& impostazione);
  QWidget* fa_valore(const Impostazione& impostazione);
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);
  QLayout* fa_comandi();

  Programma& programma_;
  SchermoPreferenze schermo_;
};
