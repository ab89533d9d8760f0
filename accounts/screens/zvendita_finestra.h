#pragma once

#include "accounts/zvendita.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QListView;
class QMenuBar;

// The day's consignment accounts, `Zvendita`.
class ZvenditaFinestra : public Finestra {
  Q_OBJECT

 public:
  explicit ZvenditaFinestra(Programma& programma, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  bool tasto(const Pressione& pressione) override;

 private:
  QMenuBar* fa_menu();
  QWidget* fa_pannello();
  QBoxLayout* fa_lista();
  QGroupBox* fa_conto();
  QGroupBox* fa_stampa();
  QGroupBox* fa_opzioni();
  void fa_cella(int indice, QGridLayout* griglia, int riga, int colonna);
  QWidget* fa_spunta(const QString& nome, Spunta& stato, Legame::Evento evento = {});
  int indice_di(const QObject* oggetto) const;
  bool tasto_campo(int indice, const QKeyEvent& evento);
  void apri_fornitori();
  void prendi_fuoco();

  Programma& programma_;
  Zvendita zvendita_;
  std::array<QLineEdit*, 8> campi_{};
  QListView* lista_ = nullptr;
  QListView* anteprima_ = nullptr;
  QWidget* copie_ = nullptr;
};
