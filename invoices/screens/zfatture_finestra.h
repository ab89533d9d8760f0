#pragma once

#include <map>

#include "invoices/zfatture.h"
#include "platform/finestra.h"

class QBoxLayout;
class QGroupBox;
class QKeyEvent;
class QLineEdit;
class QListView;
class QMenuBar;

// The day's invoices and credit notes: `ZFatture`, or `ZFattureBRENVAL` with its carrier.
class ZFattureFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  // The screen as ApriFatture has left it.
  ZFattureFinestra(Programma& programma, ZFatture zfatture, QWidget* padre = nullptr);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

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
  QLineEdit* fa_campo_trasporto(const QString& nome, CampoTesto Campi_Spedizione::*campo,
                                const Scritta& didascalia);
  bool tasto_spese(QKeyEvent& evento);
  bool evento_trasporto(CampoTesto Campi_Spedizione::*campo, QEvent& evento);

  Programma& programma_;
  ZFatture zfatture_;
  QListView* fatture_ = nullptr;
  QListView* note_ = nullptr;
  std::map<QObject*, CampoTesto Campi_Spedizione::*> campi_trasporto_;
};
