#pragma once

#include <array>
#include <functional>
#include <optional>

#include "core/controlli.h"
#include "core/programma.h"

// The entry screen Edita and the ledger list Albero: the state that their windows show. Text1[i] edits field
// i+1 of the row.

enum class StatoSemaforo { NORMALE, BENE, ERRORE };
Vista Parola(StatoSemaforo stato);  // "NORMALE", "BENE", "ERRORE"

// A window that the logic asks for; the screen's window opens it and clears the request.
// The macros by a "-" in their field, the same lists by their menus, the predefined lots, the list of a field
// and the maps of the fishing zones.
enum class Richiesta {
  Nessuna,
  Macro_Fornitore,
  Macro_Specie,
  Elenco_Fornitori,
  Elenco_Specie,
  Lotti_Predefiniti,
  Lista_Campo,  // of the field `campo_lista_aperta`
  Mappa_Mediterraneo,
  Mappa_Mondo,
  Nota_Accredito  // by a "-" in the price
};

struct Albero {
  Elenco Titoli;     // the one heading line
  Elenco ListaVoci;  // one line per row; line i (from 0) is row i+1
};

struct Edita {
  std::array<CampoTesto, Num_Campi> Text1;
  std::array<Scritta, Num_Campi> Caption;  // captions of the fields, "Rif. Fattura" and so on
  // The hold boxes by their number: Check[5] is Check5. Check5..Check7 supplier, customer, customer's code;
  // 1 species, 2 zone, 3 provenance, 4 lot, 8 weight, 9 price, 10 gear, 11 size, 13 state, 14 working,
  // 15 presentation, 16 first landing, 12 automatic document number, 18 all labels.
  std::array<Spunta, 19> Check;
  Elenco List1;              // the look-up list
  int CampoLista = -1;       // index of the field that List1 belongs to
  int CampoCorrente = -1;    // index of the field that last had the focus
  bool ListaChiusa = false;  // the arrow keys ask for the unfiltered list
  Scritta Label2;            // hint line
  Scritta Label4;            // date of the day
  StatoSemaforo SemaforoRiga = StatoSemaforo::NORMALE;
  Cursore hd;  // selected row
  Bottone Aggiungi, Modifica, Elimina, Salva;
  Bottone BottoneDDT, BottoneFAT;  // "DDT", "N.Fat": numbers by hand
  Scritta Frame_Salvataggio;       // "Salvataggio Automatico in corso..."
  Controllo Frame1;                // the keypad
  Testo titolo;                    // caption of the window
  bool attiva = true;              // false while a commit or load is under way: hd then loads nothing
  bool pronta = false;             // finished loading
  bool aggiunta_in_corso = false;
  Albero albero;
  // The field (index of Text1) that shall get the focus, or one of the marks below; the window clears it.
  int fuoco = nessun_fuoco;
  std::size_t posto_meno = 0;  // where the "-" that asked for the credit note's dialog was typed in the price
  std::optional<std::size_t> cursore;  // where the cursor goes in the price; the window clears it
  static constexpr int nessun_fuoco = -1, fuoco_List1 = -2, fuoco_schermo = -3;
  Richiesta richiesta = Richiesta::Nessuna;
  Testo schermo;  // the command whose screen, of another room, shall open; the window clears it
  bool filtro_in_corso = false;  // the look-up list is being filled
  bool riga_marcata = false;     // row 1 is listed as one to be keyed, though the table has no mark
  bool bottoni_liste = true;     // the small buttons beside the fields are shown
  int campo_lista_aperta = -1;   // index of the field whose list window stands open
  bool campo_era_attivo = true;  // what that field was before
  bool caselle_marcate = false;  // what the menu "Marca" did last; its caption is then "SMarca"
};

inline constexpr int Massimo_Righe = 32767;  // rows that a day holds: their number is a 16-bit integer

// Background of DDT and FAT while they are closed, and while they are open for a number by hand.
inline constexpr Colore Rosa{255, 192, 192}, Bianco{255, 255, 255};

CampoTesto& Campo(Edita& edita, CampoRiga campo);
const CampoTesto& Campo(const Edita& edita, CampoRiga campo);
// True while a commit, a load or a question of a command is under way: keys and clicks then do nothing.
bool Occupata(const Edita& edita);
// Asks for the focus. A field that is disabled or hidden can't take it: then it stays where it is.
void ChiediFuoco(Edita& edita, int indice);

// ---- opening, closing, moving between rows (edita.cpp)

// Sets up the screen for the day that Carica_Giorno has loaded.
void Apri_Edita(Programma& programma, Edita& edita);
// The closing: asks for a save when rows changed, stores Flag5 to Flag7. When the save fails the screen stays
// open (Edita_Aperta and `pronta` stay set), so that the operator can try again.
void Chiudi_Edita(Programma& programma, Edita& edita);
// The preferences were stored while the screen is open: the fields that they show or hide follow.
void PreferenzeCambiate(Programma& programma, Edita& edita);
void CaricaRiga(Programma& programma, Edita& edita);  // row hd into the fields
// The operator moved the scroll bar or clicked a line: that row is loaded, also when it was selected already.
void CambiaHd(Programma& programma, Edita& edita, int valore);
void VaiRiga(Programma& programma, Edita& edita, int n);  // selects row n (brought into range) and loads it
void RigaSuccessiva(Programma& programma, Edita& edita);  // F9, from the last to the first
void RigaPrecedente(Programma& programma, Edita& edita);  // F8
// Row hd as the day has it; an empty one without a day.
LedgerRow RigaCorrente(const Programma& programma, const Edita& edita);
// A screen of another room is gone and may have changed, sorted or loaded anew the rows: the list follows,
// and so do the fields where row hd isn't what it was when that screen opened. Else what was keyed and not
// stored yet stays.
void RiprendiEdita(Programma& programma, Edita& edita, const LedgerRow& prima);
Testo RigaVoci(const Programma& programma, int n);  // the list line of row n
Testo TitoliVoci();
void Semaforo(Edita& edita, StatoSemaforo stato);

// ---- the field flow and the keys (flusso.cpp, tasti.cpp)

void CampoSuccessivo(Edita& edita, int indice);
void CampoPrecedente(Edita& edita, int indice);
// A key went down in field `indice`. True: it is used up; false: it goes on to the field and the screen's
// keys.
bool TastoCampo(Programma& programma, Edita& edita, int indice, const Pressione& pressione);
// The screen's own command keys (F1 to F12, page keys) of this room. True when it was one.
bool TastoSchermo(Programma& programma, Edita& edita, const Pressione& pressione);
// The character that a typed one becomes in field `indice`: itself, the decimal separator, or nothing (0).
char FiltraCarattere(const Programma& programma, const Edita& edita, int indice, char carattere);
// The same where `resta` of the field's text stays behind the typed character (a selection is replaced by
// it).
char FiltraCarattere(const Programma& programma, const Edita& edita, int indice, Vista resta, char carattere);
bool TastoList1(Programma& programma, Edita& edita, const Pressione& pressione);
void ScegliList1(Programma& programma, Edita& edita, int riga);  // an entry was clicked
void CambiaCampo(Programma& programma, Edita& edita,
                 int indice);  // the operator changed the text of the field
void FuocoCampo(Programma& programma, Edita& edita, int indice);  // the field got the focus
void DoppioClicCampo(Programma& programma, Edita& edita, int indice);
void SopraCampo(Programma& programma, Edita& edita, int indice);     // the mouse is over the field
void SinistroCampo(Programma& programma, Edita& edita, int indice);  // left button in the field
void CambiaSpunta(Programma& programma, Edita& edita, int numero);   // the box Check<numero> was switched
// The hold box beside a field, 0 for none.
int CasellaCampo(int indice);
// Alt Gr in a field: switches its hold box. False for a field without one.
bool InvertiSpuntaCampo(Programma& programma, Edita& edita, int indice);
// Unmarks Check5, Check8 and Check9, whose fields are disabled by them and so can't be reached by a key.
void LiberaCampi(Edita& edita);
void Marca(Edita& edita);             // menu "Marca" / "SMarca"
Vista VoceMarca(const Edita& edita);  // its caption
void Pulisci(Programma& programma, Edita& edita);
void PassoLotto(Programma& programma, Edita& edita, bool avanti);  // Command25
// The keypad: a button with its text ("7", "000", the separator), "Invio", and the right button on a digit.
void BottoneTastierino(Programma& programma, Edita& edita, Vista testo);
void InvioTastierino(Programma& programma, Edita& edita);
void SvuotaTastierino(Programma& programma, Edita& edita);

// ---- look-up (ricerca.cpp, copie.cpp)

void MostraListaCampo(Programma& programma, Edita& edita, int indice);
// How many times the field's width List1 is wide.
int LarghezzaLista(int indice);
// The operator changed a field (by typing, a choice from List1, a double click, the lot button): the commands
// are enabled, the light goes to NORMALE.
void SegnaCambiamento(Edita& edita, int indice);
// What Enter does in `indice` before the focus moves: the supplier's automatic lot, the customer's code or
// name.
void AzioneInvio(Programma& programma, Edita& edita, int indice);
// The supplier's lot prefix and the day before start-up into Lotti, where lots are automatic.
void LottoAutomatico(Programma& programma, Edita& edita);
void RigaImporti(Programma& programma, Edita& edita);
void SegnoPrezzo(Programma& programma, Edita& edita);  // the sign rule of the price
// Fills the fields that depend on the species; `nome` is the whole description of the species list.
void CompilaSpecie(Programma& programma, Edita& edita, Vista nome);
// An entry of a list window or map copied into the row being keyed; `r` is its row in the table, from 0.
void CopiaFornitore(Programma& programma, Edita& edita, int r);  // with commission and automatic lot
void CopiaFornitore(Programma& programma, Edita& edita, Vista nome, Vista provvigione);
void CopiaCliente(Programma& programma, Edita& edita, int r);
void CopiaCliente(Edita& edita, Vista nome, Vista codice);
void CopiaSpecie(Programma& programma, Edita& edita, int r);
void CopiaSpecie(Programma& programma, Edita& edita, const std::array<Testo, 8>& riga);
void CopiaVoce(Edita& edita, CampoRiga campo, Vista voce);  // zone, provenance, the coded lists
// What of a description goes into Specie: "Orata (Grande)" is "Orata".
Testo NomeSpecie(Vista descrizione);
// A price of the row, also one per crate ("12.5c" is 12.5); nothing when it can't be read, 0 when it is
// blank.
std::optional<double> LeggiPrezzo(const Programma& programma, const Edita& edita);
bool PrezzoPerCassa(const Edita& edita);
// A number field, 0 when it is blank, nothing when it can't be read.
std::optional<double> LeggiNumero(const Programma& programma, const Edita& edita, CampoRiga campo);

// ---- checks and commit (convalida.cpp, righe.cpp)

void TitoloVoci(const Programma& programma, Edita& edita);  // the caption with the number of rows

int ValidaRiga(Programma& programma, Edita& edita, Vista modo);  // 0 good, 1 fault, 999 refused and told
void ComponiCodici(Edita& edita);
void ConvertiCassa(const Programma& programma, Edita& edita);
void NumeroDocumento(const Programma& programma, Edita& edita, Vista codice);
void CercaNCV(const Programma& programma, Edita& edita);
void ScriviRiga(Programma& programma, Edita& edita, int n);
void Aggiungi(Programma& programma, Edita& edita);
void Modifica(Programma& programma, Edita& edita);
void Elimina(Programma& programma, Edita& edita);
void Salva(Programma& programma, Edita& edita);
enum class EsitoSalvataggio { Annullato, Salvato, Fallito };
EsitoSalvataggio SalvaConDomanda(Programma& programma, Edita& edita);     // Salva, with what came of it
void BottoneNumero(Programma& programma, Edita& edita, CampoRiga campo);  // "DDT" and "N.Fat"
