#pragma once

#include <map>

#include "invoices/zfatture.h"
#include "platform/finestra.h"

class QAction;
class QBoxLayout;
class QGroupBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QMenuBar;
class QPushButton;

// The day's invoices and credit notes: `ZFatture`, or `ZFattureBRENVAL` with its carrier.
class ZFattureFinestra : public Finestra {
  Q_OBJECT

 public:
  // The screen as ApriFatture has left it.
  ZFattureFinestra(Programma& programma, ZFatture zfatture, QWidget* padre = nullptr);

  void mostra() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  QMenuBar* fa_menu();
  QWidget* fa_liste();
  QListView* fa_lista(const QString& nome, Elenco& stato, const Scritta& didascalia, TipoFattura tipo);
  QBoxLayout* fa_ordini();
  QGroupBox* fa_documento();
  QGroupBox* fa_stampa();
  QGroupBox* fa_caselle_filtri();
  QGroupBox* fa_bottoni_filtri();
  QGroupBox* fa_trasporto();
  void fa_menu_vettori(QMenuBar* barra);
  QAction* fa_voce(QWidget* menu, const char* nome, Bottone& stato, Legame::Evento evento);
  QLineEdit* fa_campo_trasporto(const QString& nome, CampoTesto Campi_Spedizione::*campo,
                                const Scritta& didascalia);
  bool tasto_spese(QKeyEvent& evento);
  bool evento_trasporto(CampoTesto Campi_Spedizione::*campo, QEvent& evento);
  QWidget* fa_casella(const QString& nome, Spunta& stato, Legame::Evento evento = {});
  QLabel* fa_scritta(const QString& nome, Scritta& stato);
  QLineEdit* fa_campo(const QString& nome, CampoTesto& stato, const Scritta& didascalia);
  QPushButton* fa_bottone(const QString& nome, Bottone& stato, Legame::Evento evento);
  void stampa(TipoFattura tipo);  // the document selected in its list

  Programma& programma_;
  ZFatture zfatture_;
  QListView* fatture_ = nullptr;
  QListView* note_ = nullptr;
  std::map<QObject*, CampoTesto Campi_Spedizione::*> campi_trasporto_;
  bool in_chiusura_ = false;
};
