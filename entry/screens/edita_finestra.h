#pragma once

#include <array>
#include <map>
#include <vector>

#include <QContextMenuEvent>

#include "core/programma.h"
#include "entry/edita.h"
#include "entry/lotti.h"
#include "platform/finestra.h"

class CasellaTesto;
class QAbstractButton;
class QAction;
class QFrame;
class QGridLayout;
class QLabel;
class QListView;
class QMenuBar;
class SemaforoLuce;
struct Finestra_Campo;
struct Voce_Menu;

// The window of the entry form: makes the widgets, turns the toolkit's events into calls of the logic, and
// shows the state after each.
class EditaFinestra : public Finestra {
  Q_OBJECT

 public:
  EditaFinestra(Programma& programma, Edita& edita, QWidget* padre = nullptr);

  void apri();    // a day was opened: sizes of the settings, the keyboard
  bool chiudi();  // the closing routine; false when the day stays open
  void mostra() override;
  // What opens the screen, of another room, of a command.
  void apre(const QString& comando, std::function<void()> schermo);
  void riprendi_fuoco();  // the keyboard comes back to the field it was in

 signals:
  void mostrata();
  void giornata_chiusa();
  void riduci();  // F12: the frame window

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  bool tasto(const Pressione& pressione) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  struct Comando {
    std::vector<QAbstractButton*> bottoni;
    std::vector<QAction*> voci;
  };

  // edita_modulo.cpp: what stands where
  QWidget* fa_modulo();
  void fa_cella(QGridLayout* griglia, const struct Cella& cella);
  QWidget* fa_lato();
  QWidget* fa_comandi();
  void fa_menu(QMenuBar* barra);
  void fa_sopra();
  void fa_tastierino();
  QAbstractButton* fa_bottone(const QString& nome, const QString& didascalia, const QString& suggerimento);
  QAbstractButton* fa_bottone_lista(const Finestra_Campo& finestra);
  void adatta_caratteri();
  void dai_nomi();

  // edita_finestra.cpp: events
  void prepara_azioni();
  void lega_campo(int indice);
  bool tasto_campo(int indice, QKeyEvent& evento);
  bool tasto_alt_gr(int indice, const QKeyEvent& evento);
  bool carattere(int indice, QKeyEvent& evento);
  bool tasto_lista(QKeyEvent& evento);
  bool evento_campo(int indice, QEvent& evento);
  bool menu_del_campo(int indice, QContextMenuEvent::Reason motivo);
  void fuoco_campo(int indice, Qt::FocusReason motivo);
  void sposta_fuoco(const QWidget* prima);
  void fuoco_a(int indice, const QWidget* prima);
  void mostra_lista();
  void mostra_salvataggio();
  void mostra_comandi();
  void esegui_comando(const QString& nome);
  void apri_preferenze();
  void apri_nota_acc();
  std::function<void()> schermo_di(const char* comando) const;
  void apri_richiesta();
  void riduci_edita();

  // edita_liste.cpp: the windows behind the fields
  void prepara_azioni_liste();
  void apri_lista_campo();
  void apri_mappa(Vista nome);
  void chiudi_lista_campo();
  int indice_di(const QObject* oggetto) const;  // of the field, -1 for none

  Programma& programma_;
  Edita& edita_;
  Lotti_Predefiniti lotti_;
  std::array<CasellaTesto*, Num_Campi> campi_{};
  std::map<QString, std::function<void()>> azioni_;
  std::map<QString, std::function<void()>> schermi_;  // of other rooms, by the command that opens them
  std::map<QString, Comando> comandi_;
  std::vector<std::pair<QAction*, const Voce_Menu*>> voci_mutevoli_;  // captions that change
  std::vector<QWidget*> piegabili_;  // what goes away while the form is folded
  QListView* lista_ = nullptr;
  QLabel* riga_aiuto_ = nullptr;
  QLabel* data_ = nullptr;
  QLabel* salvataggio_ = nullptr;
  QFrame* tastierino_ = nullptr;  // of numbers, for the mouse
  SemaforoLuce* luce_ = nullptr;
  bool piegata_ = false;
  bool alt_gr_solo_ = false;       // Alt Gr went down and no other key with it
  bool carattere_nostro_ = false;  // the key event is the one that the filter made
};
