#pragma once

#include "lists/anagrafica.h"
#include "platform/finestra.h"

class CasellaTesto;
class QGridLayout;
class QLayout;
class QScrollBar;

// The editor of a list of the firm: one field a column, a scroller over the rows. Stands in front of its list
// until it closes; the list follows its row.
class ModuloFinestra : public FinestraModulo {
  Q_OBJECT

 public:
  ModuloFinestra(Programma& programma, SchermoAnagrafica& schermo, QWidget* padre);

  void mostra() override;
  void apri(const QRect& spazio);  // shows it on the right side of that room

 signals:
  void mostrata();
  void comando(Vista nome);  // one that opens a window of its own

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  bool tasto(const Pressione& pressione) override;

 private:
  QLayout* fa_campi();
  QLayout* fa_note();
  QLayout* fa_scorrimento();
  QLayout* fa_comandi();
  QLayout* fa_altri_comandi();
  void fa_campo(QGridLayout* griglia, std::size_t i);
  void campo_cambiato(std::size_t i);
  bool evento_campo(std::size_t i, QEvent& evento);

  Programma& programma_;
  SchermoAnagrafica& schermo_;
  std::vector<CasellaTesto*> campi_;
  QScrollBar* scorri_;
};
