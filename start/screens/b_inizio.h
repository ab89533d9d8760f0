#pragma once

#include "core/programma.h"
#include "platform/finestra.h"
#include "start/inizio.h"

class CasellaTesto;
class QListView;
class Quadro;

// The window of the start screen.
class B_InizioFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit B_InizioFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;
  void ritorna();  // a day was closed; or the screen comes up for the first time

 signals:
  void giorno_aperto();

 protected:
  bool tasto(const Pressione& pressione) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dragMoveEvent(QDragMoveEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

 private:
  QWidget* fa_data();
  QWidget* fa_numeri();
  QWidget* fa_comandi();
  QWidget* fa_recenti();
  QWidget* fa_strumenti();
  QWidget* fa_ditta();
  void continua();
  void copia(bool dalla_chiavetta);
  static void prendi(QDropEvent* evento);
  void copia_file(const QList<QUrl>& file);

  Programma& programma_;
  B_Inizio inizio_;
  Quadro* quadro_;
  CasellaTesto* giorno_ = nullptr;
  QListView* recenti_ = nullptr;
  QWidget* copia_ = nullptr;  // Command7
};
