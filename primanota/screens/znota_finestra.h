#pragma once

#include "platform/finestra.h"
#include "primanota/znota.h"

class QBoxLayout;
class QGroupBox;
class QListView;
class QMenuBar;
class QPushButton;

// The day's ledger on paper and as a file, `Znota`.
class ZnotaFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit ZnotaFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  QMenuBar* fa_menu();
  QBoxLayout* fa_sinistra();
  QGroupBox* fa_stampa();
  QGroupBox* fa_file();
  QPushButton* fa_bottone(const char* nome, Bottone& stato, Legame::Evento evento);
  void fa_casella(QBoxLayout* colonna, const char* nome, Spunta& stato, Legame::Evento evento = {});
  void apri_stampante();

  Programma& programma_;
  Znota znota_;
  QListView* lista_ = nullptr;
  bool in_chiusura_ = false;
};
