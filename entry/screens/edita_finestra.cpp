#include "entry/screens/edita_finestra.h"

#include <utility>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>

#include "core/screens/colori_finestra.h"
#include "core/screens/preferenze_finestra.h"
#include "entry/aiuto.h"
#include "entry/comandi.h"
#include "entry/comandi_file.h"
#include "entry/etichette.h"
#include "entry/liste_campi.h"
#include "entry/ordinamenti.h"
#include "entry/screens/elenco_macro_finestra.h"
#include "entry/screens/lotti_finestra.h"
#include "entry/screens/nota_acc_finestra.h"
#include "entry/screens/semaforo.h"
#include "lists/anagrafica_specie.h"
#include "lists/mappe.h"
#include "lists/stampa_liste.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampa_immagine_finestra.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int righe_lista = 10;  // of List1, more are scrolled

}  // namespace

int EditaFinestra::indice_di(const QObject* oggetto) const {
  const auto dove = std::ranges::find(campi_, oggetto);
  return dove == campi_.end() ? -1 : static_cast<int>(dove - campi_.begin());
}

void EditaFinestra::lega_campo(int indice) {
  const auto i = static_cast<std::size_t>(indice);
  CasellaTesto* campo = campi_[i];
  legame.lega(campo, QStringLiteral("Text1(%1)").arg(indice), edita_.Text1[i],
              [this, indice] { CambiaCampo(programma_, edita_, indice); });
  campo->installEventFilter(this);
}

// The commands of this window, by the names that the tables of commands and menus give them.
void EditaFinestra::prepara_azioni() {
  const auto con_stato = [this](void (*routine)(Programma&, Edita&)) {
    return [this, routine] { routine(programma_, edita_); };
  };
  const auto richiesta = [this](Richiesta quale) { return [this, quale] { edita_.richiesta = quale; }; };
  azioni_ = {
      {QStringLiteral("Aggiungi"), con_stato(Aggiungi)},
      {QStringLiteral("Modifica"), con_stato(Modifica)},
      {QStringLiteral("Elimina"), con_stato(Elimina)},
      {QStringLiteral("Salva"), con_stato(Salva)},
      {QStringLiteral("RigaPrecedente"), con_stato(RigaPrecedente)},
      {QStringLiteral("RigaSuccessiva"), con_stato(RigaSuccessiva)},
      {QStringLiteral("Pulisci"), con_stato(Pulisci)},
      {QStringLiteral("Marca"), [this] { Marca(edita_); }},
      {QStringLiteral("Command25"), [this] { PassoLotto(programma_, edita_, true); }},
      {QStringLiteral("Lista_F12"), [this] { emit riduci(); }},
      {QStringLiteral("Preferenze_Operative"), [this] { apri_preferenze(); }},
      {QStringLiteral("Colore_Lista"), [this] { ColoriFinestra(programma_, this).esegui(); }},
      {QStringLiteral("Riduce_Edita"), [this] { riduci_edita(); }},
      {QStringLiteral("Stampante"), [this] { StampanteFinestra(programma_, this).esegui(); }},
      {QStringLiteral("Stampa_Schermo"), [this] { Stampa_Immagine(programma_, *window(), windowTitle()); }},
      {QStringLiteral("Stampa_Liste"), [this] { Stampa_Liste(programma_, edita_.titolo); }},
      {QStringLiteral("Memorizza_Fornitore"), con_stato(MemorizzaFornitore)},
      {QStringLiteral("Memorizza_Specie"), con_stato(MemorizzaSpecie)},
      {QStringLiteral("Lotti"), con_stato(AttribuisciLotti)},
      {QStringLiteral("Etichetta"), con_stato(Etichette)},
      {QStringLiteral("Imposta_Lotti"), richiesta(Richiesta::Lotti_Predefiniti)},
      {QStringLiteral("PrefFornitori"), richiesta(Richiesta::Elenco_Fornitori)},
      {QStringLiteral("PrefSpecie"), richiesta(Richiesta::Elenco_Specie)},
      {QStringLiteral("Cancella_Tutto"), con_stato(CancellaTutto)},
      {QStringLiteral("Rinnova_Liste"), con_stato(RinnovaListe)},
      {QStringLiteral("Aiuto_Campi"), [this] { ListaCampi(programma_); }},
      {QStringLiteral("Manuale"), [this] { ApriManuale(programma_); }},
      {QStringLiteral("Salva_Lista_Specie"), [this] { Esporta_Specie(programma_); }},
      {QStringLiteral("Chiudi"), [this] { chiudi(); }},
  };
  for (const Ordinamento& ordine : Ordinamenti())
    azioni_[In_QString(ordine.nome)] = [this, &ordine] { Ordina(programma_, edita_, ordine); };
  for (const Voce_Aiuto& aiuto : Aiuti())
    azioni_[In_QString(aiuto.nome)] = [this, nome = aiuto.nome] { MostraAiuto(programma_, nome); };
  for (const Vista nome : Comandi_Altrui())
    azioni_[In_QString(nome)] = [this, nome] { ChiediSchermo(edita_, nome); };
  prepara_azioni_liste();
}

void EditaFinestra::apre(const QString& comando, std::function<void()> schermo) {
  schermi_[comando] = std::move(schermo);
}

// What opens it, empty where the screen isn't there.
std::function<void()> EditaFinestra::schermo_di(const char* comando) const {
  const auto schermo = schermi_.find(QString::fromUtf8(comando));
  return schermo == schermi_.end() ? std::function<void()>() : schermo->second;
}

void EditaFinestra::esegui_comando(const QString& nome) {
  const auto azione = azioni_.find(nome);
  if (azione != azioni_.end()) legame.esegui(azione->second);
}

void EditaFinestra::apri() {
  adatta_caratteri();
  edita_.Text1[Indice(CampoRiga::CodiciConsolidare)].visibile = false;  // the program's own key
  dai_nomi();
  edita_.hd.visibile = programma_.preferenze.FlagBarra;
  edita_.Check[18].visibile = !edita_.Check[18].didascalia.empty();
  if (piegata_) riduci_edita();
  mostra();
  if (indice_di(QApplication::focusWidget()) < 0) setFocus();
}

// A field is read aloud by its caption.
void EditaFinestra::dai_nomi() {
  for (std::size_t i = 0; i < campi_.size(); ++i) {
    const QString titolo = In_QString(edita_.Caption[i].testo);
    campi_[i]->setAccessibleName(titolo);
    if (auto* spunta =
            findChild<QAbstractButton*>(QStringLiteral("Check%1").arg(CasellaCampo(static_cast<int>(i)))))
      spunta->setAccessibleName(QStringLiteral("Tiene ") + titolo);
  }
}

bool EditaFinestra::chiudi() {
  legame.esegui([this] { Chiudi_Edita(programma_, edita_); });
  if (programma_.Edita_Aperta) return false;
  emit giornata_chiusa();
  return true;
}

// ---- keys

bool EditaFinestra::tasto_campo(int indice, QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  if (pressione.tasto == Tasto::F12 && pressione.Nudo()) {
    emit riduci();
    return true;
  }
  bool usata = false;
  legame.esegui([&] {
    if (pressione.ctrl && pressione.tasto == Tasto::Spazio)
      usata = InvertiSpuntaCampo(programma_, edita_, indice);
    else if (pressione.ctrl && pressione.tasto == Tasto::Backspace)
      LiberaCampi(edita_), usata = true;
    else
      usata =
          TastoCampo(programma_, edita_, indice, pressione) || TastoSchermo(programma_, edita_, pressione);
  });
  return usata || carattere(indice, evento);
}

// Alt Gr by itself switches the hold box; together with another key it makes that key's third sign.
bool EditaFinestra::tasto_alt_gr(int indice, const QKeyEvent& evento) {
  const bool alt_gr = evento.key() == Qt::Key_AltGr;
  if (evento.type() == QEvent::KeyPress) {
    alt_gr_solo_ = alt_gr;
    return false;
  }
  if (!alt_gr || !std::exchange(alt_gr_solo_, false)) return false;
  legame.esegui([&] { InvertiSpuntaCampo(programma_, edita_, indice); });
  return true;
}

// A typed character goes in as the field takes it: itself, the decimal separator in its place, or not at all.
bool EditaFinestra::carattere(int indice, QKeyEvent& evento) {
  const QString testo = evento.text();
  if (testo.size() != 1 || !testo[0].isPrint() || evento.modifiers().testFlag(Qt::ControlModifier))
    return false;
  CasellaTesto* campo = campi_[static_cast<std::size_t>(indice)];
  const Testo resta = Testo_Che_Resta(*campo);
  const char prima = Da_QString(testo)[0];
  bool chiede_nota = false;
  legame.esegui([&] {
    chiede_nota = ChiediNotaAcc(edita_, indice, prima, static_cast<std::size_t>(campo->cursorPosition()));
  });
  if (chiede_nota) return true;
  const char dopo = FiltraCarattere(programma_, edita_, indice, resta, prima);
  if (dopo == 0) return true;
  if (dopo == prima) return false;
  QKeyEvent nostro(QEvent::KeyPress, 0, Qt::NoModifier, In_QString(Vista(&dopo, 1)));
  carattere_nostro_ = true;
  QApplication::sendEvent(campo, &nostro);
  carattere_nostro_ = false;
  return true;
}

bool EditaFinestra::tasto_lista(QKeyEvent& evento) {
  const Pressione pressione = Da_QKeyEvent(evento);
  return legame.usa([&] {
    return TastoList1(programma_, edita_, pressione) || TastoSchermo(programma_, edita_, pressione);
  });
}

bool EditaFinestra::tasto(const Pressione& pressione) {
  if (pressione.tasto == Tasto::F12 && pressione.Nudo()) {
    emit riduci();
    return true;
  }
  if (indice_di(QApplication::focusWidget()) >= 0) return false;  // the field has offered it to the screen
  return legame.usa([&] { return TastoSchermo(programma_, edita_, pressione); });
}

// ---- events

bool EditaFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (const int indice = indice_di(oggetto); indice >= 0) {
    if (evento_campo(indice, *evento)) return true;
  } else if (oggetto == lista_ && evento->type() == QEvent::KeyPress) {
    if (tasto_lista(*static_cast<QKeyEvent*>(evento))) return true;
  } else if (evento->type() == QEvent::ContextMenu && lista_ && oggetto == lista_->viewport()) {
    legame.esegui([this] { TastoList1(programma_, edita_, {.tasto = Tasto::Esc}); });
    return true;
  } else if (evento->type() == QEvent::ContextMenu && oggetto->objectName() == QLatin1String("Command25")) {
    legame.esegui([this] { PassoLotto(programma_, edita_, false); });
    return true;
  }
  return Finestra::eventFilter(oggetto, evento);
}

bool EditaFinestra::evento_campo(int indice, QEvent& evento) {
  if (carattere_nostro_) return false;
  switch (evento.type()) {
    case QEvent::KeyPress: {
      auto& tasto = static_cast<QKeyEvent&>(evento);
      tasto_alt_gr(indice, tasto);
      return tasto_campo(indice, tasto);
    }
    case QEvent::KeyRelease:
      return tasto_alt_gr(indice, static_cast<QKeyEvent&>(evento));
    case QEvent::FocusIn:
      fuoco_campo(indice, static_cast<QFocusEvent&>(evento).reason());
      return false;
    case QEvent::Enter:
      if (!legame.in_evento()) legame.esegui([&] { SopraCampo(programma_, edita_, indice); });
      return false;
    case QEvent::MouseButtonDblClick:
      legame.esegui([&] { DoppioClicCampo(programma_, edita_, indice); });
      return false;
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent&>(evento).button() == Qt::LeftButton)
        legame.esegui([&] { SinistroCampo(programma_, edita_, indice); });
      else if (indice == Indice(CampoRiga::Lotti))
        esegui_comando(QStringLiteral("Imposta_Lotti"));
      else
        legame.esegui([&] { DestroCampo(edita_, indice); });
      return false;
    case QEvent::ContextMenu:
      return menu_del_campo(indice, static_cast<QContextMenuEvent&>(evento).reason());
    default:
      return false;
  }
}

// Fields with a window of their own have no menu of the toolkit: the right button opens the window, and so
// does the key.
bool EditaFinestra::menu_del_campo(int indice, QContextMenuEvent::Reason motivo) {
  const bool lotti = indice == Indice(CampoRiga::Lotti);
  if (!lotti && !FinestraDelCampo(indice)) return false;
  if (motivo != QContextMenuEvent::Keyboard) return true;
  if (lotti)
    esegui_comando(QStringLiteral("Imposta_Lotti"));
  else
    legame.esegui([&] { ApriListaCampo(edita_, indice); });
  return true;
}

// The toolkit moves the focus by itself when a control goes away, and gives it back when a message closes:
// these are no arrivals of the operator.
void EditaFinestra::fuoco_campo(int indice, Qt::FocusReason motivo) {
  if (!edita_.pronta || legame.in_mostra() || legame.in_evento()) return;
  if (motivo == Qt::ActiveWindowFocusReason && edita_.CampoCorrente == indice) return;
  legame.esegui([&] { FuocoCampo(programma_, edita_, indice); });
  if (motivo == Qt::MouseFocusReason) return;  // the press puts the cursor where it points
  CasellaTesto* campo = campi_[static_cast<std::size_t>(indice)];
  if (campo->hasFocus()) Seleziona_Tutto(campo);
}

// ---- showing

void EditaFinestra::mostra() {
  const QWidget* prima = QApplication::focusWidget();
  Finestra::mostra();
  luce_->mostra(edita_.SemaforoRiga);
  for (int i = 0; i < Num_Campi; ++i)
    if (const int casella = CasellaCampo(i); casella > 0)
      campi_[static_cast<std::size_t>(i)]->tieni(edita_.Check[static_cast<std::size_t>(casella)].segnata);
  mostra_comandi();
  mostra_lista();
  mostra_salvataggio();
  if (!legame.in_evento()) sposta_fuoco(prima);
  emit mostrata();
  if (!legame.in_evento()) apri_richiesta();
}

void EditaFinestra::mostra_comandi() {
  const auto tavola = Comandi();
  for (const auto& [nome, comando] : comandi_) {
    const Testo nome_testo = Da_QString(nome);
    Stato_Comando stato = StatoComando(programma_, edita_, nome_testo);
    // What only the window does is in no table of the logic.
    if (std::ranges::find(tavola, Vista(nome_testo), &Voce_Comando::nome) == tavola.end())
      stato.attivo = azioni_.contains(nome) && !Occupata(edita_);
    for (QAbstractButton* bottone : comando.bottoni) {
      if (bottone->isHidden() == stato.visibile) bottone->setVisible(stato.visibile);
      bottone->setEnabled(stato.attivo);
    }
    for (QAction* voce : comando.voci) voce->setEnabled(stato.attivo);
  }
  for (const auto& [azione, voce] : voci_mutevoli_) {
    const QString didascalia = In_QString(DidascaliaMenu(edita_, *voce));
    if (azione->text() != didascalia) azione->setText(didascalia);
  }
}

// The look-up list lies under its field, over what stands below.
void EditaFinestra::mostra_lista() {
  if (!edita_.List1.visibile || edita_.CampoLista < 0) return;
  const CasellaTesto* campo = campi_[static_cast<std::size_t>(edita_.CampoLista)];
  const QPoint sotto = campo->mapTo(this, QPoint(0, campo->height()));
  const int larghezza = qMin(campo->width() * LarghezzaLista(edita_.CampoLista), width());
  const int riga = lista_->sizeHintForRow(0);
  const int righe = qBound(1, static_cast<int>(edita_.List1.Numero()), righe_lista);
  const int altezza = qMin(righe * riga + 2 * lista_->frameWidth(), height() - sotto.y());
  lista_->setGeometry(qMin(sotto.x(), width() - larghezza), sotto.y(), larghezza, altezza);
  lista_->raise();
}

void EditaFinestra::mostra_salvataggio() {
  if (!edita_.Frame_Salvataggio.visibile) return;
  const int margine = salvataggio_->fontMetrics().height();
  const QSize misura = salvataggio_->sizeHint() + QSize(2 * margine, margine);
  salvataggio_->setGeometry(QRect(QPoint(width() - misura.width(), height() - misura.height()) / 2, misura));
  salvataggio_->raise();
}

void EditaFinestra::sposta_fuoco(const QWidget* prima) {
  const int dove = std::exchange(edita_.fuoco, Edita::nessun_fuoco);
  if (dove >= 0)
    fuoco_a(dove, prima);
  else if (dove == Edita::fuoco_List1)
    lista_->setFocus(Qt::OtherFocusReason);
  else if (dove == Edita::fuoco_schermo)
    setFocus(Qt::OtherFocusReason);
  else if (prima == lista_ && lista_->isHidden())
    riprendi_fuoco();
  else if (QApplication::focusWidget() != prima && indice_di(prima) >= 0)
    setFocus(Qt::OtherFocusReason);  // the field went away under the cursor
  if (const auto cursore = std::exchange(edita_.cursore, {}))
    campi_[static_cast<std::size_t>(Indice(CampoRiga::Prezzo))]->setCursorPosition(
        static_cast<int>(*cursore));
}

void EditaFinestra::fuoco_a(int indice, const QWidget* prima) {
  CasellaTesto* campo = campi_[static_cast<std::size_t>(indice)];
  if (campo->hasFocus() && campo != prima)
    fuoco_campo(indice, Qt::OtherFocusReason);  // the toolkit has brought it there unasked
  else
    campo->setFocus(Qt::OtherFocusReason);
}

void EditaFinestra::riprendi_fuoco() {
  const int campo = edita_.CampoCorrente;
  QWidget* dove = campo >= 0 ? campi_[static_cast<std::size_t>(campo)] : nullptr;
  if (!dove || !dove->isEnabled() || !dove->isVisible()) dove = this;
  dove->setFocus(Qt::OtherFocusReason);
}

void EditaFinestra::apri_preferenze() {
  const auto larghezza = [this] {
    edita_.hd.visibile = programma_.preferenze.FlagBarra;
    PreferenzeCambiate(programma_, edita_);
    mostra();
  };
  PreferenzeFinestra(programma_,
                     {larghezza, schermo_di("Preferenze_Documenti"), schermo_di("Preferenze_Fatture")}, this)
      .esegui();
}

void EditaFinestra::apri_nota_acc() {
  NotaAccFinestra(programma_, edita_, this).esegui();
  mostra();
}

// A window that the logic, a button or a menu asked for, once the event that asked is done.
void EditaFinestra::apri_richiesta() {
  const auto schermo = schermi_.find(In_QString(std::exchange(edita_.schermo, {})));
  if (schermo != schermi_.end()) {
    const LedgerRow prima = RigaCorrente(programma_, edita_);
    schermo->second();
    legame.esegui([&] { RiprendiEdita(programma_, edita_, prima); });
    return;
  }
  switch (std::exchange(edita_.richiesta, Richiesta::Nessuna)) {
    case Richiesta::Nessuna:
      return;
    case Richiesta::Macro_Fornitore:
      return Apri_DescPre(programma_, edita_, Tipo_Macro::Fornitore, true, this);
    case Richiesta::Macro_Specie:
      return Apri_DescPre(programma_, edita_, Tipo_Macro::Specie, true, this);
    case Richiesta::Elenco_Fornitori:
      return Apri_DescPre(programma_, edita_, Tipo_Macro::Fornitore, false, this);
    case Richiesta::Elenco_Specie:
      return Apri_DescPre(programma_, edita_, Tipo_Macro::Specie, false, this);
    case Richiesta::Lotti_Predefiniti:
      return Apri_Lotti(programma_, edita_, lotti_, this);
    case Richiesta::Lista_Campo:
      return apri_lista_campo();
    case Richiesta::Mappa_Mediterraneo:
      return apri_mappa(nomi_mappa::Mediterraneo);
    case Richiesta::Mappa_Mondo:
      return apri_mappa(nomi_mappa::Mondo);
    case Richiesta::Nota_Accredito:
      return apri_nota_acc();
  }
}

void EditaFinestra::riduci_edita() {
  piegata_ = !piegata_;
  for (QWidget* widget : piegabili_) widget->setVisible(!piegata_);
}

void EditaFinestra::resizeEvent(QResizeEvent* evento) {
  Finestra::resizeEvent(evento);
  mostra_salvataggio();
  tastierino_->resize(tastierino_->sizeHint());
  // Below the fields that it writes to and beside the light.
  tastierino_->move(width() - tastierino_->width() - 30, height() - tastierino_->height() - 4);
  mostra_lista();
}
