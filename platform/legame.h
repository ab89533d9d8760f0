#pragma once

#include <functional>
#include <vector>

#include <QAbstractListModel>
#include <QObject>

#include "core/controlli.h"

class QAbstractButton;
class QAbstractSlider;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QWidget;

// The lines of an Elenco, each made when it is looked at.
class ModelloElenco : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit ModelloElenco(const Elenco& elenco, QObject* padre = nullptr);
  int rowCount(const QModelIndex& padre = {}) const override;
  QModelIndex index(int riga, int colonna = 0, const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  void aggiorna();  // after a change of the list; the views keep their place

 private:
  const Elenco& elenco_;
  unsigned versione_;
  int righe_;
};

// Joins the controls of a screen's state with widgets. The widget gets the control's name as objectName. The
// operator's edit is stored in the state first, then `evento` is called, then the screen shows its state;
// showing never comes back as an edit. The states must outlive the binder.
class Legame : public QObject {
  Q_OBJECT

 public:
  using Evento = std::function<void()>;

  // `mostra_schermo` is called after each event.
  Legame(QWidget* schermo, Evento mostra_schermo);

  void lega(QLineEdit* campo, const QString& nome, CampoTesto& stato, Evento evento = {});
  void lega(QAbstractButton* casella, const QString& nome, Spunta& stato, Evento evento = {});
  void lega(QAbstractButton* bottone, const QString& nome, Bottone& stato, Evento evento = {});
  void lega(QAction* voce, const QString& nome, Bottone& stato, Evento evento = {});
  void lega(QLabel* scritta, const QString& nome, Scritta& stato);
  void lega(QComboBox* elenco, const QString& nome, Elenco& stato, Evento evento = {});
  void lega(QListView* elenco, const QString& nome, Elenco& stato, Evento evento = {});
  void lega(QAbstractSlider* cursore, const QString& nome, Cursore& stato, Evento evento = {});
  void lega(QWidget* widget, const QString& nome, Controllo& stato);

  void invio(QWidget* widget, Evento evento);     // Enter in that control
  void scelta(QListView* elenco, Evento evento);  // Enter or a double click in that list

  // Any other toolkit event of the screen: calls it, then shows the state.
  void esegui(const Evento& evento);
  // The same for a routine that says whether it has used what came.
  bool usa(const std::function<bool()>& evento);

  void mostra();  // writes what differs from the state
  bool in_mostra() const { return mostrando_; }
  bool in_evento() const { return profondita_ > 0; }  // a routine of the logic is running

 private:
  void al_widget(QWidget* widget, const QString& nome, Controllo& stato);

  Evento mostra_schermo_;
  std::vector<std::function<void()>> voci_;
  bool mostrando_ = false;
  int profondita_ = 0;
};

// The caption as it is read aloud and compared: without "&".
QString Senza_Scorciatoia(const QString& didascalia);

// All of a field selected from its end to its beginning, which is what shows of a long text.
void Seleziona_Tutto(QLineEdit* campo);

// Paints the widget's background in that colour, with a text that can be read on it; nothing: the desktop's
// own.
void Mostra_Sfondo(QWidget* widget, const std::optional<Colore>& sfondo);
