#pragma once

#include "lists/schermo_esclusi.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGroupBox;
class QListView;
class QPlainTextEdit;

// The excluded codes. Stands beside the entry screen, which stays in use: its "Escludi questo codice" adds to
// the open list.
class EsclusiFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  explicit EsclusiFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;
  void apri();  // shows it beside the screen that opened it
  void escludi(const Testo& codice);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void lega_lista();
  QGroupBox* fa_manuale();
  QGroupBox* fa_automatico();
  QBoxLayout* fa_comandi();

  Programma& programma_;
  SchermoEsclusi schermo_;
  QListView* lista_;
  QLineEdit* campo_;
  QPlainTextEdit* appunti_;
};

// The open list of that screen, or a new one; it goes when it closes, and then calls `chiusa`.
EsclusiFinestra* Apri_Esclusi(Programma& programma, QWidget* padre, const std::function<void()>& chiusa = {});

// The list, opened where it isn't, and the code on it.
EsclusiFinestra* Escludi_Questo_Codice(Programma& programma, QWidget* padre, const Testo& codice,
                                       const std::function<void()>& chiusa = {});
