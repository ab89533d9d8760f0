#include "lists/screens/parti.h"

#include "platform/aspetto.h"

ListaVoci::ListaVoci(double punti, QWidget* padre) : QListView(padre) {
  setFont(Carattere_Fisso(punti));
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
}
