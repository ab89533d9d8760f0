#pragma once

#include <functional>

#include "documents/zsani.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGroupBox;
class QListView;
class QMenuBar;

// The day's transport and sanitary documents, `Zsani`.
class ZsaniFinestra : public Finestra {
  Q_OBJECT

 public:
  // `apri` opens the screen in one of its three ways, and says how it prints.
  ZsaniFinestra(Programma& programma, const std::function<void(Zsani&)>& apri, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool tasto(const Pressione& pressione) override;

 private:
  QMenuBar* fa_menu();
  QWidget* fa_lista();
  QBoxLayout* fa_ordini();
  QGroupBox* fa_documento();
  QGroupBox* fa_numerazione();
  QGroupBox* fa_stampa();

  Programma& programma_;
  Zsani zsani_;
  QListView* lista_ = nullptr;
};
