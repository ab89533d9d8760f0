#pragma once

#include <memory>

#include "lists/anagrafica.h"
#include "lists/screens/modulo_finestra.h"
#include "platform/finestra.h"

class CasellaTesto;
class QBoxLayout;
class QLayout;
class QListView;

// The window of a list of the firm: its lines, the search, the orders, and the command that opens the editor.
// It stands in front of the screen that opened it until it closes.
class AnagraficaFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  // `copia` gets the row of the table that the operator takes over; may be empty.
  AnagraficaFinestra(Programma& programma, const Anagrafica& anagrafica, QWidget* padre,
                     std::function<void(std::size_t)> copia);

  void apri();  // shows it, beside where its editor will stand
  SchermoAnagrafica& schermo() { return schermo_; }

 signals:
  void comando(Vista nome, ModuloFinestra* da);  // one that opens a window of its own

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  QBoxLayout* fa_ricerca();
  void fa_ordini(QBoxLayout* ricerca, QBoxLayout* tutto);
  QLayout* fa_comandi();
  void lega_lista();
  bool tasto_lista(QKeyEvent& evento);
  void apri_modulo();

  Programma& programma_;
  SchermoAnagrafica schermo_;
  CasellaTesto* cerca_;
  QListView* lista_;
  std::unique_ptr<ModuloFinestra> modulo_;  // before the toolkit would, since it shows this window's state
};

// Makes the window and shows it; it goes when it closes, and then calls `chiusa`.
AnagraficaFinestra* Apri_Finestra_Anagrafica(Programma& programma, const Anagrafica& anagrafica,
                                             QWidget* padre, std::function<void(std::size_t)> copia,
                                             const std::function<void()>& chiusa);
