#pragma once

#include <functional>

#include <QMainWindow>

class QStackedWidget;

// The frame window "Prima Nota": holds the start screen and the screens of the day, one page at a time, and
// shows the page's caption in its own.
class Cornice : public QMainWindow {
  Q_OBJECT

 public:
  Cornice();

  void aggiungi(QWidget* pagina, QWidget* con_titolo);
  void vai(QWidget* pagina);
  QWidget* pagina() const;
  bool grande() const;  // more than half the screen high
  void riduci();        // F12: a small window in the corner, or back to the working size

  std::function<void()> chiusura;  // what the window manager's X does

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  void aggiorna_titolo();

  QStackedWidget* pagine_;
  QRect misura_;  // the working size while the window is small
  bool massima_ = false;
};
