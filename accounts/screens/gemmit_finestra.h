#pragma once

#include <array>

#include "accounts/gemmit.h"
#include "platform/finestra.h"

class CasellaTesto;
class QGridLayout;
class QListView;
class QMenuBar;

// The day's accounts whose numbers were given by hand, `Zgemmit`.
class ZgemmitFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit ZgemmitFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  bool tasto(const Pressione& pressione) override;

 private:
  QMenuBar* fa_menu();
  QWidget* fa_pannello();
  QWidget* fa_lista();
  QWidget* fa_conto();
  QWidget* fa_stampa();
  void fa_cella(QGridLayout* griglia, int campo);
  bool tasto_campo(int campo, const QKeyEvent& evento);
  void apri_fornitori();
  void porta_fuoco();

  Programma& programma_;
  Zgemmit zgemmit_;
  std::array<CasellaTesto*, 7> campi_{};
  QListView* lista_ = nullptr;
  QListView* anteprima_ = nullptr;
};
