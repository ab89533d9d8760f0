#pragma once

#include "platform/finestra.h"
#include "printing/schermo_stampante.h"

class QBoxLayout;
class QGroupBox;
class QListView;
class QPushButton;

// The screen `Stampante`: printer and orientation. In the list Enter or a double click takes the printer.
class StampanteFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit StampanteFinestra(Programma& programma, QWidget* padre = nullptr);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QGroupBox* fa_orientamento();
  QBoxLayout* fa_comandi();
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);
  void applica();

  Programma& programma_;
  SchermoStampante schermo_;
  QListView* lista_;
};
