#include "entry/macro.h"

#include <cmath>
#include <span>

#include "core/giorno.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

using Riga_Macro = std::optional<CampoRiga>;  // the field of a line; none: the line stays empty

// The lines of a file, in the order that the firms' macros have.
constexpr Riga_Macro righe_fornitore[] = {
    CampoRiga::Fornitore,    CampoRiga::Specie,     CampoRiga::ZonaP,         CampoRiga::Iva,
    CampoRiga::CodSpecie,    CampoRiga::Prov,       CampoRiga::Lotti,         CampoRiga::NomeLatino,
    CampoRiga::Famiglia,     CampoRiga::NomeComune, CampoRiga::CodNumVeritas, CampoRiga::MetodoPesca,
    CampoRiga::Alfa,         CampoRiga::Pezzatura,  CampoRiga::StatoFisico,   CampoRiga::Lavorazione,
    CampoRiga::Preparazione, CampoRiga::PrimoImb};
constexpr Riga_Macro righe_specie[] = {
    CampoRiga::Specie,     CampoRiga::ZonaP,         CampoRiga::Prov,        CampoRiga::Iva,
    CampoRiga::CodSpecie,  CampoRiga::NomeLatino,    CampoRiga::Famiglia,    std::nullopt,
    CampoRiga::NomeComune, CampoRiga::CodNumVeritas, CampoRiga::MetodoPesca, CampoRiga::Alfa,
    CampoRiga::Pezzatura,  CampoRiga::StatoFisico,   CampoRiga::Lavorazione, CampoRiga::Preparazione};

// What a supplier macro empties before it is read.
constexpr CampoRiga vuotati[] = {CampoRiga::Fornitore,  CampoRiga::ZonaP,       CampoRiga::Prov,
                                 CampoRiga::PrimoImb,   CampoRiga::MetodoPesca, CampoRiga::Pezzatura,
                                 CampoRiga::StatoFisico};

// The fields that a macro fills are held: the operator goes on with the weight.
constexpr CampoRiga tenuti[] = {CampoRiga::Specie,      CampoRiga::ZonaP,       CampoRiga::Prov,
                                CampoRiga::Lotti,       CampoRiga::MetodoPesca, CampoRiga::Pezzatura,
                                CampoRiga::StatoFisico, CampoRiga::Lavorazione, CampoRiga::Preparazione,
                                CampoRiga::PrimoImb};

constexpr std::size_t minimo_codice = 2, massimo_codice = 8;

// How the two kinds differ.
struct Forma_Macro {
  CampoRiga campo;  // the field that calls it, the first line of its file
  Vista cartella;
  std::span<const Riga_Macro> righe;
  bool vuota_prima;    // the fields start empty, and a line without text empties its field
  Richiesta finestra;  // the window that lists the stored ones
  Vista titolo;        // of the box that asks for the code
  Testo manca;         // nothing to store
  std::size_t minimo;  // characters of a word
  Vista con_spazi;     // a word with a blank
};

const Forma_Macro& Forma(Tipo_Macro tipo) {
  static const Forma_Macro fornitore = {
      CampoRiga::Fornitore,
      "PREDEF_FOR",
      righe_fornitore,
      true,
      Richiesta::Macro_Fornitore,
      "Fornitore Predefinito",
      "immettere:\nFornitore\nZona\nprovenienza\nAttrezzo di pesca\nStato Fisico\nLavorazione\nPreparazione\nPrimo Imbarco\nLotto\ne ripetere il comando...il fornitore verrà memorizzata\ne sarà possibile richiamerlo con un numero (da 01 1 99)o con un codice alfanumerico"_t,
      1,
      "immettere un codice senza spazi...."};
  static const Forma_Macro specie = {
      CampoRiga::Specie,
      "PREDEF",
      righe_specie,
      false,
      Richiesta::Macro_Specie,
      "Specie Predefinita",
      "immettere Specie, provenienza e zona e ripetere il comando...la specie verrà memorizzata e sarà possibile richiamarla con un numero"_t,
      minimo_codice,
      "togliere gli spazi dal nome.."};
  return tipo == Tipo_Macro::Fornitore ? fornitore : specie;
}

void SegnaCaselle(const Programma& programma, Edita& edita) {
  if (!programma.preferenze.FlagNonBloccaMacro) return;
  for (const CampoRiga campo : tenuti)
    edita.Check[static_cast<std::size_t>(CasellaCampo(Indice(campo)))].segnata = true;
}

void PreparaRiga(Edita& edita) {
  edita.Aggiungi.attivo = true;
  edita.List1.visibile = false;
  Semaforo(edita, StatoSemaforo::NORMALE);
}

// The whole file, nothing when there is none. One that is there and can't be read is told.
std::optional<Testo> Contenuto_Macro(Programma& programma, Tipo_Macro tipo, Vista codice) {
  const Percorso file = File_Macro(programma, tipo, codice);
  if (programma.disco.Manca_File(file)) return std::nullopt;
  int errore = 0;
  auto contenuto = programma.disco.Leggi_Testo(file, &errore);
  if (!contenuto) Mostra_Guasti(programma, {{errore, file}});
  return contenuto;
}

// The supplier's prefix goes with the row from here on; the stored lot gives way to today's where the firm
// wants so.
void LottoDellaMacro(Programma& programma, Edita& edita) {
  const Preferenze& preferenze = programma.preferenze;
  if (preferenze.FlagLottiAutomatici)
    programma.PrefissoLotto = Codice_Lotto(programma, Campo(edita, CampoRiga::Fornitore).testo);
  if (!preferenze.FlagDataMacro) return;
  const Testo prefisso = preferenze.FlagLottiAutomatici ? programma.PrefissoLotto : Testo();
  Campo(edita, CampoRiga::Lotti).testo = prefisso + Testo_Data(programma.Oggi, "yymmdd");
}

// ---- storing

// A word that can't be stored, told; the box comes again.
std::optional<Testo> DifettoParola(const Forma_Macro& forma, Vista parola) {
  if (parola.size() < forma.minimo) return "almeno 2 caratteri...";
  if (parola.find(' ') != Vista::npos) return Testo(forma.con_spazi);
  if (!Codice_Macro_Lecito(parola)) return Difetto_Codice_Macro();
  return std::nullopt;
}

// The code to store under; nothing when the command ends.
std::optional<Testo> ChiediCodice(Programma& programma, const Edita& edita, const Forma_Macro& forma) {
  const char separatore = programma.Separatore_Decimale;
  const Testo domanda =
      "a che numero (01-99) o codice (8 caratteri) vuoi associare " + Campo(edita, forma.campo).testo + " ?";
  while (true) {
    const auto risposta = programma.piattaforma.Chiedi(domanda, Testo(forma.titolo));
    if (!risposta || risposta->empty()) return std::nullopt;
    if (const auto numero = Numero(*risposta, separatore)) {
      const double intero = std::trunc(std::abs(*numero));
      if (intero < 1 || intero > 99) return std::nullopt;
      return Formato(intero, "00", separatore);
    }
    if (risposta->size() > massimo_codice)
      programma.piattaforma.Messaggio("il codice deve essere al massimo di 8 caratteri...");
    Testo parola(Sinistra(*risposta, massimo_codice));
    const auto difetto = DifettoParola(forma, parola);
    if (!difetto) return parola;
    programma.piattaforma.Messaggio(*difetto);
  }
}

Testo Contenuto_Da_Campi(const Edita& edita, const Forma_Macro& forma) {
  Testo contenuto;
  for (const Riga_Macro& riga : forma.righe) {
    if (riga) Aggiungi_Campo(contenuto, Campo(edita, *riga).testo);
    contenuto += FINE_RIGA;
  }
  return contenuto;
}

void Memorizza(Programma& programma, Edita& edita, Tipo_Macro tipo) {
  if (Occupata(edita)) return;
  const Schermo_Fermo fermo(edita);
  const Forma_Macro& forma = Forma(tipo);
  Semaforo(edita, StatoSemaforo::NORMALE);
  if (Pulito(Campo(edita, forma.campo).testo).empty()) return programma.piattaforma.Messaggio(forma.manca);
  const auto codice = ChiediCodice(programma, edita, forma);
  if (!codice) return;
  const Percorso file = File_Macro(programma, tipo, *codice);
  if (!programma.disco.Manca_File(file) && !programma.piattaforma.Domanda("OK per sovrascrivere")) return;
  if (!Crea_Cartella(programma, Cartella_Macro(programma, tipo))) return;
  if (const int errore = programma.disco.Sostituisci(file, Contenuto_Da_Campi(edita, forma)))
    return Mostra_Guasti(programma, {{errore, file}});
  Semaforo(edita, StatoSemaforo::BENE);
}

std::optional<Tipo_Macro> TipoDelCampo(int indice) {
  for (const Tipo_Macro tipo : {Tipo_Macro::Fornitore, Tipo_Macro::Specie})
    if (Indice(Forma(tipo).campo) == indice) return tipo;
  return std::nullopt;
}

}  // namespace

bool Codice_Macro_Lecito(Vista codice) {
  return !codice.empty() && codice.find_first_of("/\\:*?\"<>|") == Vista::npos &&
         codice.find("..") == Vista::npos &&
         std::ranges::none_of(codice, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

Testo Difetto_Codice_Macro() { return "il codice non può contenere / \\ : * ? \" < > | .."_t; }

Testo Codice_Scritto(Vista codice, char separatore) {
  const auto numero = Numero(codice, separatore);
  if (!numero || *numero < 1) return Testo(codice);
  return Formato(std::trunc(*numero), "00", separatore);
}

Percorso Cartella_Macro(const Programma& programma, Tipo_Macro tipo) {
  return Unisci_Percorso(programma.Cartella_Dati, Forma(tipo).cartella);
}

Percorso File_Macro(const Programma& programma, Tipo_Macro tipo, Vista codice) {
  return Unisci_Percorso(Cartella_Macro(programma, tipo), Testo(codice) + ".txt");
}

std::vector<Voce_Macro> Leggi_Macro(Tipo_Macro tipo, Vista contenuto) {
  const Forma_Macro& forma = Forma(tipo);
  const std::vector<Vista> righe = Righe(contenuto);
  std::vector<Voce_Macro> voci;
  for (std::size_t i = 0; i < std::min(righe.size(), forma.righe.size()); ++i)
    if (forma.righe[i]) voci.push_back({*forma.righe[i], Senza_Separatori(righe[i])});
  return voci;
}

int EseguiMacro(Programma& programma, Edita& edita, Tipo_Macro tipo, Vista codice) {
  codice = Pulito(codice);
  if (Occupata(edita) || codice.size() < minimo_codice || !Codice_Macro_Lecito(codice)) return 1;
  const Testo nome(codice);  // the code may be the text of a field that is emptied here
  const Forma_Macro& forma = Forma(tipo);
  if (forma.vuota_prima) {
    for (const CampoRiga campo : vuotati) Campo(edita, campo).testo.clear();
    SegnaCaselle(programma, edita);
  }
  PreparaRiga(edita);
  if (tipo == Tipo_Macro::Specie) Campo(edita, CampoRiga::Specie).attivo = true;
  const Schermo_Fermo fermo(edita);
  const auto contenuto = Contenuto_Macro(programma, tipo, nome);
  if (!contenuto) return 1;
  SegnaCaselle(programma, edita);
  for (Voce_Macro& voce : Leggi_Macro(tipo, *contenuto))
    if (forma.vuota_prima || !Pulito(voce.testo).empty())
      Campo(edita, voce.campo).testo = std::move(voce.testo);
  if (tipo == Tipo_Macro::Fornitore) LottoDellaMacro(programma, edita);
  return 0;
}

int EseguiMacroFornitore(Programma& programma, Edita& edita, Vista codice) {
  return EseguiMacro(programma, edita, Tipo_Macro::Fornitore, codice);
}

int EseguiMacroSpecie(Programma& programma, Edita& edita, Vista codice) {
  return EseguiMacro(programma, edita, Tipo_Macro::Specie, codice);
}

void MemorizzaFornitore(Programma& programma, Edita& edita) {
  Memorizza(programma, edita, Tipo_Macro::Fornitore);
}

void MemorizzaSpecie(Programma& programma, Edita& edita) { Memorizza(programma, edita, Tipo_Macro::Specie); }

bool MacroDalCampo(Programma& programma, Edita& edita, int indice) {
  const auto tipo = TipoDelCampo(indice);
  if (!tipo) return false;
  const Testo& testo = edita.Text1[static_cast<std::size_t>(indice)].testo;
  if (testo.starts_with('-')) {
    edita.List1.visibile = false;
    edita.richiesta = Forma(*tipo).finestra;
    return true;
  }
  if (!Numerico(testo, programma.Separatore_Decimale)) return false;
  if (EseguiMacro(programma, edita, *tipo, testo) == 0) CampoSuccessivo(edita, Indice(CampoRiga::PrimoImb));
  return true;
}
