#pragma once

#include "platform/finestra.h"
#include "primanota/znota.h"

class QBoxLayout;
class QGroupBox;
class QListView;
class QMenuBar;

// The day's ledger on paper and as a file, `Znota`.
class ZnotaFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit ZnotaFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool tasto(const Pressione& pressione) override;

 private:
  QMenuBar* fa_menu();
  QBoxLayout* fa_sinistra();
  QGroupBox* fa_stampa();
  QGroupBox* fa_file();
  void apri_stampante();

  Programma& programma_;
  Znota znota_;
  QListView* lista_ = nullptr;
};
