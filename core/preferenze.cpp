#include "core/preferenze.h"

#include <algorithm>
#include <cerrno>
#include <limits>

#include "core/ini.h"
#include "core/numeri.h"
#include "core/programma.h"

namespace {

using P = Preferenze;
using Tabella_Chiavi = std::vector<Impostazione>;

constexpr char PUNTO = '.';  // decimals in the file are written with a point, whatever the machine
constexpr double SENZA_LIMITE = std::numeric_limits<double>::max();

const std::vector<Testo> Corpi = {"8", "8.25", "9", "9.75", "10", "11", "12"};

template <std::size_t N>
void Serie(Tabella_Chiavi& tabella, Vista nome, Testo (P::*serie)[N], const std::vector<Testo>& predefiniti,
           SeVuoto vuoto = SeVuoto::Resta) {
  for (std::size_t i = 0; i < N; ++i)
    tabella.push_back({.chiave = Testo(nome) + static_cast<char>('1' + i),
                       .posto = Elemento<N>{serie, i},
                       .predefinito = predefiniti[i],
                       .vuoto = vuoto});
}

Impostazione Flag(Vista chiave, bool P::*posto, bool predefinito, Testo didascalia = {},
                  Gruppo gruppo = Gruppo::Nessuno, Testo suggerimento = {}) {
  return {.chiave = Testo(chiave),
          .posto = posto,
          .predefinito = predefinito ? "-1" : "0",
          .didascalia = std::move(didascalia),
          .gruppo = gruppo,
          .suggerimento = std::move(suggerimento)};
}

Impostazione Numero_Intero(Vista chiave, int P::*posto, Vista predefinito, Testo didascalia = {},
                           std::optional<Limiti> limiti = {}, Gruppo gruppo = Gruppo::Nessuno,
                           std::vector<Testo> scelte = {}) {
  return {.chiave = Testo(chiave),
          .posto = posto,
          .predefinito = Testo(predefinito),
          .didascalia = std::move(didascalia),
          .gruppo = gruppo,
          .limiti = limiti,
          .scelte = std::move(scelte)};
}

void Chiavi_Di_Testo(Tabella_Chiavi& t) {
  const auto righe = Righe_Piede_Fattura();
  const std::vector<Testo> piede(righe.begin(), righe.end());
  const std::vector<Testo> vuote(6);
  t.push_back({.chiave = "Testo_ContoVendita", .posto = &P::Testo_ContoVendita, .vuoto = SeVuoto::Riscritto});
  Serie(t, "Testo_Fattura_", &P::Testo_Fattura, piede, SeVuoto::Riscritto);
  Serie(t, "Testo_Fattura_Completa_", &P::Testo_Fattura_Completa, piede, SeVuoto::Riscritto);
  Serie(t, "Testo_Fattura_Gra_", &P::Testo_Fattura_Gra, vuote);
  Serie(t, "Testo_Fattura_Gra2_", &P::Testo_Fattura_Gra2, vuote);
  Serie(t, "DS_intesta", &P::DS_intesta, vuote);
  t.push_back({.chiave = "PiedePaginaBolla1",
               .posto = &P::PiedePaginaBolla1,
               .predefinito = "assolve gli obblighi di cui all'Art. 62 comma 1 del D.L.24 gennaio 2012",
               .didascalia = "Nota a piè pagina (su due righe) solo doc sanitario"_t});
  t.push_back({.chiave = "PiedePaginaBolla2",
               .posto = &P::PiedePaginaBolla2,
               .predefinito = "n. 1 convertito con modificazioni dalla Legge 24 marzo 2012 n° 27"_t});
  t.push_back({.chiave = "TitoloBolla",
               .posto = &P::TitoloBolla,
               .predefinito = "DOCUMENTO sulla TRACCIABILITA' dei PRODOTTI ITTICI",
               .didascalia = "Intestazione del documento sanitario"});
  t.push_back({.chiave = "StringaCEE",
               .posto = &P::StringaCEE,
               .predefinito = "CEE IT 940",
               .didascalia = "Bollo sanitario CEE",
               .gruppo = Gruppo::Documenti});
  t.push_back({.chiave = "CodiceCOM", .posto = &P::Codice_Commissionario, .predefinito = "0"});
  t.push_back({.chiave = "IBANCommissionario1",
               .posto = &P::IBANCommissionario1,
               .didascalia = "Primo IBAN",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "IBANCommissionario2",
               .posto = &P::IBANCommissionario2,
               .didascalia = "Secondo IBAN",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "AggioBanca", .posto = &P::AggioBanca});
  t.push_back({.chiave = "PercentualeAggioBanca",
               .posto = &P::PercentualeAggioBanca,
               .predefinito = "1",
               .didascalia = "Aggio Banca"});
  t.push_back({.chiave = "nposteggio",
               .posto = &P::Numero_Posteggio,
               .predefinito = "nposteggio",  // no number: the operator is asked for it
               .didascalia = "Numero del posteggio",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "StringaB",
               .posto = &P::StringaB,
               .predefinito = "Prodotto della Pesca in Acque Dolci, ",
               .didascalia = "Pesca in acque dolci",
               .gruppo = Gruppo::Documenti,
               .vuoto = SeVuoto::Predefinito});
  t.push_back({.chiave = "StringaC",
               .posto = &P::StringaC,
               .predefinito = "Allevato, ",
               .didascalia = "Prodotto allevato",
               .gruppo = Gruppo::Documenti,
               .vuoto = SeVuoto::Predefinito});
  t.push_back({.chiave = "FlagColonneListaVoci",
               .posto = &P::FlagColonneListaVoci,
               .predefinito = "NOTA",
               .didascalia = "Colonne della lista",
               .gruppo = Gruppo::Inserimento,
               .vuoto = SeVuoto::Predefinito,
               .scelte = {"TUTTO", "NOTA", "VENDITA", "DDT"}});
  t.push_back({.chiave = "sep_exp", .posto = &P::sep_exp, .predefinito = ";"});
}

void Caratteri_E_Aliquote(Tabella_Chiavi& t) {
  const Limiti corpo_video{8, 14, {}};
  t.push_back({.chiave = "DimFontListe",
               .posto = &P::DimFontListe,
               .predefinito = "12",
               .didascalia = "Carattere delle liste",
               .gruppo = Gruppo::Stampa,
               .limiti = corpo_video,
               .scelte = Corpi});
  t.push_back({.chiave = "DimFontEdita",
               .posto = &P::DimFontEdita,
               .predefinito = "10",
               .didascalia = "Carattere dell'immissione",
               .gruppo = Gruppo::Stampa,
               .limiti = corpo_video,
               .scelte = Corpi});
  t.push_back({.chiave = "DimFont",
               .posto = &P::DimFont,
               .predefinito = "11",
               .didascalia = "Carattere di stampa",
               .gruppo = Gruppo::Stampa,
               .limiti = Limiti{std::numeric_limits<double>::min(), SENZA_LIMITE, 8.25},
               .scelte = Corpi});
  t.push_back({.chiave = "DimFontEtichetta",
               .posto = &P::DimFontEtichetta,
               .didascalia = "Carattere delle etichette",
               .gruppo = Gruppo::Stampa,
               .scelte = Corpi});
  t.push_back({.chiave = "PrimaAliquota",
               .posto = &P::Aliquota1,
               .predefinito = "10",
               .didascalia = "Prima aliquota IVA",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "SecondaAliquota",
               .posto = &P::Aliquota2,
               .predefinito = "22",
               .didascalia = "Seconda aliquota IVA",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "TerzaAliquota",
               .posto = &P::Aliquota3,
               .predefinito = "4",
               .didascalia = "Terza aliquota IVA",
               .gruppo = Gruppo::Ditta});
  t.push_back({.chiave = "fonte",
               .posto = &P::fonte,
               .predefinito = "Arial",
               .didascalia = "Fonte di stampa",
               .gruppo = Gruppo::Stampa,
               .vuoto = SeVuoto::Predefinito,
               .scelte = {"Arial"},
               .lunghezza = 64});
  t.push_back(
      {.chiave = "CittaCV", .posto = &P::CittaCV, .predefinito = "Venezia", .vuoto = SeVuoto::Predefinito});
  t.push_back({.chiave = "CittaVC", .posto = &P::CittaCV, .vuoto = SeVuoto::Ignora, .fra_tutte = false});
}

void Fattura_Con_Vettore(Tabella_Chiavi& t) {
  t.push_back({.chiave = "Causale",
               .posto = &P::Causale,
               .predefinito = "Vendita",
               .didascalia = "Causale del trasporto"});
  t.push_back({.chiave = "Aspetto",
               .posto = &P::Aspetto,
               .predefinito = "Casse",
               .didascalia = "Aspetto esteriore dei beni"});
  t.push_back(
      {.chiave = "Mezzo", .posto = &P::Mezzo, .predefinito = "Vettore", .didascalia = "Trasporto a mezzo"});
  t.push_back(
      {.chiave = "Spese", .posto = &P::Spese, .predefinito = "0", .didascalia = "Spese e  IVA spese"});
  t.push_back({.chiave = "SpeseIVA",
               .posto = &P::SpeseIVA,
               .predefinito = "22%",
               .didascalia = "Spese e  IVA spese"});
  Serie(t, "Vettore_", &P::Vettore, {"-", "-", "-"});
}

void Chiavi_Intere(Tabella_Chiavi& t) {
  const Limiti colore{0, 255, {}};
  const Limiti casella{0, 1, 1};  // any value but 0 is a marked box
  const Testo come_segnate = "Stato delle caselle dell'immissione";
  const Testo figura = "Figura della schermata iniziale";
  using enum Gruppo;
  const Tabella_Chiavi righe = {
      Numero_Intero("ColoreTesto", &P::ColoreTesto, "2", "Colore del testo", Limiti{1, 4, 2}),
      Numero_Intero("Colore1", &P::Colore1, "125", "Rosso", colore),
      Numero_Intero("Colore2", &P::Colore2, "125", "Verde", colore),
      Numero_Intero("Colore3", &P::Colore3, "125", "Blu", colore),
      Flag("FlagStringaEE", &P::FlagStringaEE, true, "CEE in fattura", Fatture),
      Flag("FlagPiedePagina", &P::FlagPiedePagina, true),
      Flag("Flag_Lear", &P::Flag_Lear, true, "Report Lear", Fatture),
      Flag("FlagComponiDDTNuovo", &P::FlagComponiDDTNuovo, true, "DocSani Nuovo", Documenti),
      Flag("FlagAllergeni", &P::FlagAllergeni, false, "Allergeni", Inserimento),
      Numero_Intero("flagSortOrder", &P::flagSortOrder, "0", {}, Limiti{0, 2, 0}),
      Flag("FlagDSimmediato", &P::FlagDSimmediato, false, "Doc_Sani del Cliente", Documenti),
      Flag("FlagDSimmediatoUR", &P::FlagDSimmediatoUR, false, "Doc_Sani 1R (una riga)", Documenti),
      Flag("FlagNonBloccaMacro", &P::FlagNonBloccaMacro, true, "Non blocca macro", Inserimento),
      Flag("FlagRistoranti", &P::FlagRistoranti, false, "Ristoranti", Fatture),
      Flag("FlagSarvena", &P::FlagSarvena, false, "Spese % (nel Conto Vendita)", Conto_Vendita),
      Flag("FlagC3pn", &P::FlagC3pn, true, "Prima Nota Senza Provenienza", Prima_Nota),
      Flag("FlagLottiAutomatici", &P::FlagLottiAutomatici, false, "Lotto Automatico", Inserimento),
      Flag("FlagCopiaNPinCommento", &P::FlagCopiaNPinCommento, false, "Copia Nome Personalizzaro in Commento",
           Inserimento),
      Flag("FlagFatBrenval", &P::FlagFatBrenval, false, "Fatture con Vettore", Fatture),
      Flag("FlagSaldoDaA", &P::FlagSaldoDaA, false, "Saldo da...a", Conto_Vendita),
      Flag("Flag_fatture_Esteso", &P::Flag_fatture_Esteso, false, "Fatture con tutti i codici", Fatture),
      Flag("FlagAutoSalvataggio", &P::FlagAutoSalvataggio, true, "Salvataggio Automatico ogni ... immissioni",
           Inserimento),
      Flag("FlagBarra", &P::FlagBarra, true, "Barra scorrimento a destra", Inserimento),
      Flag("FlagModificaCV", &P::FlagModificaCV, false, "Modifica Conto Vendita", Conto_Vendita),
      Flag("FlagCaselleCV", &P::FlagCaselleCV, false, "Mostra le caselle del Conto Vendita", Conto_Vendita),
      Flag("FlagCVManuale", &P::FlagCVManuale, false, "Numerazione Manuale Conto Vendita", Conto_Vendita),
      Flag("FlagAggDDT", &P::FlagAggDDT, false, "Modifica numero DDT, Doc Sani e Fattura", Documenti),
      Flag("FlagEllisse", &P::FlagEllisse, true, "Stampa Ellisse CEEI", Documenti),
      Flag("v_pesce1", &P::v_pesce1, true, figura),
      Flag("v_pesce2", &P::v_pesce2, false, figura),
      Flag("v_pesce3", &P::v_pesce3, false, figura),
      Flag("v_pesce4", &P::v_pesce4, false, figura),
      Flag("FlagDetto", &P::FlagDetto, false, "Bottone \"Detto\"", Inserimento),
      Flag("FlagDataMacro", &P::FlagDataMacro, false, "Data Macro (Tolvera)", Inserimento),
      Flag("FlagTastierino", &P::FlagTastierino, false, "Mostra Tastierino Numerico", Inserimento,
           "Per immissione numeri con mouse"),
      Flag("FlagAzzSoloPeso", &P::FlagAzzSoloPeso, false, "Azzera il  Peso", Inserimento),
      Flag("FlagAzzCliente", &P::FlagAzzCliente, false, "Azzera l' Acquirente", Inserimento),
      Flag("FlagMouse", &P::FlagMouse, false, "Usa prevalentemente Mouse", Inserimento),
      // older files hold -1 here, which is SI
      Numero_Intero("FlagFirmaPN", &P::FlagFirmaPN, "-1", "Firma nella Prima Nota", casella, Prima_Nota,
                    {"NO", "SI"}),
      Numero_Intero("FlagStampaFrame", &P::FlagStampaFrame, "0", "Stampa Grafica Conto Vendita",
                    Limiti{0, 6, 0}, Conto_Vendita,
                    {"NO", "tipo 1 (M)", "tipo 2", "Busta Gra.", "Busta", "tipo 3 (Z)", "tipo 4 (Colli)"}),
      Numero_Intero("FlagStampaFramePN", &P::FlagStampaFramePN, "0", "Stampa Grafica Prima Nota",
                    Limiti{0, 2, 1}, Prima_Nota, {"NO", "tipo 1", "tipo 2"}),
      Flag("FlagAzzeraPrezzo", &P::FlagAzzeraPrezzo, false, "Azzera il  Prezzo", Inserimento),
      Flag("FlagFAO", &P::FlagFAO, false, "Zona FAO in ddt", Documenti),
      Numero_Intero("DocSani_dadestra", &P::DocSani_dadestra, "0", "Sposta tutto a destra (in mm.)"),
      Numero_Intero("DocSani_AltezzaPagina", &P::DocSani_AltezzaPagina, "172", "Altezza in mm."),
      Numero_Intero("DocSani_LarghezzaPagina", &P::DocSani_LarghezzaPagina, "154", "Larghezza in mm."),
      Numero_Intero("DocSani_Offset_Logo", &P::DocSani_Offset_Logo, "45", "Offset Logo in mm."),
      Numero_Intero("DocSani_Aggiustamento", &P::DocSani_Aggiustamento, "15",
                    "Sposta Intestazione a destra di mm."),
      Numero_Intero("DocSani_AltezzaDest", &P::DocSani_AltezzaDest, "0", "Abbassare il destinatario di mm."),
      Numero_Intero("ellisse_centrox", &P::ellisse_centrox, "165", "Posizione ellisse da sinistra"),
      Numero_Intero("ellisse_centroy", &P::ellisse_centroy, "8", "dall'alto"),
      Flag("FlagSpessoreEllisse", &P::FlagSpessoreEllisse, true, "Grossa", Documenti,
           "Linea grossa dell'ellisse CEE"),
      Flag("FlagNumCVAutomatica", &P::FlagNumCVAutomatica, true, "Num.Automatica Conto Vendita",
           Conto_Vendita),
      Numero_Intero("Flag5", &P::Flag5, "0", come_segnate, casella),
      Numero_Intero("Flag6", &P::Flag6, "0", come_segnate, casella),
      Numero_Intero("Flag7", &P::Flag7, "1", come_segnate, casella),
      Numero_Intero("maxrighesalvate", &P::maxrighesalvate, "5", "Immissioni fra due salvataggi", {},
                    Inserimento),
      Numero_Intero("DASU3", &P::DASU3, "0", "Millimetri dall'Alto (6)", {}, Stampa),
      Numero_Intero("BORDO3", &P::BORDO3, "0", "Millimetri da Destra (5)", {}, Stampa),
  };
  t.insert(t.end(), righe.begin(), righe.end());
}

void Segni_Delle_Schermate(Tabella_Chiavi& t) {
  const Tabella_Chiavi righe = {
      Flag("FlagC1", &P::FlagC1, false, "Stampa Tutti i CV F4"),
      Flag("FlagC2", &P::FlagC2, false, "Stampa Statistica"),
      Flag("FlagC3", &P::FlagC3, false, "Solo Controllo"),
      Flag("FlagKT", &P::FlagKT, false, "Kg. Totali"),
      Flag("FlagIVA", &P::FlagIVA, false, "Azzera IVA"),
      Flag("FlagNOTA", &P::FlagNOTA, false, "Nota DDLL 331/93"),
      Flag("FlagC1ds", &P::FlagC1ds, false, "Stampa Tutti i documenti F4"),
      Flag("FlagC2ds", &P::FlagC2ds, false),
      Flag("FlagC4ds", &P::FlagC4ds, false, "Stampa DDT"),
      Flag("FlagC1pn", &P::FlagC1pn, false, "Stampa Tutte le Note (F4)"),
      Flag("FlagC2pn", &P::FlagC2pn, false, "Stampa Tutte in un unico documento"),
      Flag("FlagC4pn", &P::FlagC4pn, false, "Scrivi ImportoTotale"),
      Flag("FlagOrdina1", &P::FlagOrdina1, false, "Ordina per Specie (altrimenti per immissione)"),
      Flag("FlagZ5", &P::FlagZ5, false,
           "Limita la Zona di pesca A ai primi 5 caratteri (6 per Mediterraneo)"),
      Flag("FlagPersonalizzata", &P::FlagPersonalizzata, false, "Personalizzata"),
      Flag("FlagPersonalizzataCompleta", &P::FlagPersonalizzataCompleta, false, "Completa"),
      Flag("FlagEE", &P::FlagEE, false, "Solo gli Esclusi (fatture) "),
      Flag("FlagSoloRis", &P::FlagSoloRis, false, "Ristoranti"),
  };
  t.insert(t.end(), righe.begin(), righe.end());
}

Tabella_Chiavi Componi_Tabella() {
  Tabella_Chiavi tabella;
  Chiavi_Di_Testo(tabella);
  Caratteri_E_Aliquote(tabella);
  Fattura_Con_Vettore(tabella);
  Chiavi_Intere(tabella);
  Segni_Delle_Schermate(tabella);
  return tabella;
}

// Where the numbers and texts of the program stand in the file, one routine for each kind of member.
struct Lettura {
  const Impostazione& impostazione;
  Preferenze& preferenze;
  Vista valore;

  void Testuale(Testo& posto) const {
    const Vista tagliato = Sinistra(valore, impostazione.lunghezza);
    // Blanks at the end of a value are lost in the file; the built-in wordings go on with another text and
    // need theirs, also once they have been written and read back.
    if (!Pulito(tagliato).empty()) {
      posto =
          tagliato == Pulito_Destra(impostazione.predefinito) ? Vista(impostazione.predefinito) : tagliato;
    } else if (impostazione.vuoto == SeVuoto::Resta) {
      posto.clear();
    } else if (impostazione.vuoto != SeVuoto::Ignora) {
      posto = impostazione.predefinito;
    }
  }

  double Numerico() const {
    const auto iniziale = [](Vista testo) -> std::optional<double> {
      testo = Pulito(testo);
      const auto cifra = testo.find_first_of("0123456789");
      constexpr Vista davanti[] = {"", "+", "-", ".", ",", "+.", "+,", "-.", "-,"};
      if (cifra == Vista::npos || std::ranges::find(davanti, testo.substr(0, cifra)) == std::end(davanti))
        return std::nullopt;
      return Valore(Normalizza_Numero(testo, PUNTO), PUNTO);
    };
    const double letto =
        iniziale(Sinistra(valore, impostazione.lunghezza)).value_or(Valore(impostazione.predefinito, PUNTO));
    if (!impostazione.limiti) return letto;
    const Limiti& limiti = *impostazione.limiti;
    if (letto >= limiti.minimo && letto <= limiti.massimo) return letto;
    return limiti.fuori.value_or(letto < limiti.minimo ? limiti.minimo : limiti.massimo);
  }

  int Intera() const {
    using Limite = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<double>(Numerico(), Limite::min(), Limite::max()));
  }

  void operator()(Testo Preferenze::*posto) const { Testuale(preferenze.*posto); }
  template <std::size_t N>
  void operator()(const Elemento<N>& posto) const {
    Testuale((preferenze.*posto.serie)[posto.indice]);
  }
  void operator()(char Preferenze::*posto) const { preferenze.*posto = valore.starts_with('T') ? TAB : ';'; }
  void operator()(double Preferenze::*posto) const { preferenze.*posto = Numerico(); }
  void operator()(int Preferenze::*posto) const { preferenze.*posto = Intera(); }
  void operator()(bool Preferenze::*posto) const { preferenze.*posto = Intera() != 0; }
};

struct Scrittura {
  const Preferenze& preferenze;

  Testo operator()(Testo Preferenze::*posto) const { return preferenze.*posto; }
  template <std::size_t N>
  Testo operator()(const Elemento<N>& posto) const {
    return (preferenze.*posto.serie)[posto.indice];
  }
  Testo operator()(char Preferenze::*posto) const { return preferenze.*posto == TAB ? "TAB" : ";"; }
  Testo operator()(double Preferenze::*posto) const { return Piano(preferenze.*posto, PUNTO); }
  Testo operator()(int Preferenze::*posto) const { return Piano(preferenze.*posto, PUNTO); }
  Testo operator()(bool Preferenze::*posto) const { return preferenze.*posto ? "-1" : "0"; }
};

using Chiavi = std::vector<std::pair<Testo, Testo>>;

// A file that is there and can't be read, or couldn't when the program started, is left alone: writing one
// key would lose all the others, writing all would put defaults in the place of the firm's.
bool Scrivi(Programma& programma, const Chiavi& chiavi) {
  if (programma.Impostazioni_Ignote) return false;
  int errore = 0;
  const auto contenuto = programma.disco.Leggi(programma.File_Ini, &errore);
  if (!contenuto && errore != ENOENT) return false;
  return programma.disco.Sostituisci(programma.File_Ini,
                                     Scrivi_Ini(contenuto.value_or(""), Sezione_Ini, chiavi)) == 0;
}

// The stall's number stands on documents by law, so there is no going on without one.
void Chiedi_Posteggio(Programma& programma) {
  Preferenze& preferenze = programma.preferenze;
  if (Posteggio_Valido(preferenze.Numero_Posteggio)) return;
  std::optional<Testo> risposta;
  do {
    risposta = programma.piattaforma.Chiedi(preferenze.Codice_Commissionario +
                                            "\nnumero del posteggio su due cifre per esempio 01");
  } while (!risposta || Valore(*risposta, PUNTO) == 0);
  preferenze.Numero_Posteggio = Pulito(Senza_Separatori(*risposta));
  Scrivi_Preferenze(programma, {"nposteggio"});
}

}  // namespace

std::span<const Testo, 6> Righe_Piede_Fattura() {
  static const Testo righe[6] = {
      "La merce viaggia a rischio e pericolo del committente anche se venduta franco destinazione.",
      "Non si accettano reclami se non al momento della consegna. Non si accettano pagamenti se non "
      "effettuati ",
      "direttamente alla Ditta in intestazione. Per qualsiasi controversia è competente il Foro di Venezia. "_t,
      "Contributo CONAI assolto ove dovuto. Assolve gli Obblighi di cui all'art.62, comma1. del D.L. "
      "24/01/2012, n. 1 ",
      "convertito con modificazioni della legge 24 marzo 2012, n. 27. Prezzo concordato giornalmente.",
      "Durata del contratto: limitata solo alla presente consegna."};
  return righe;
}

std::span<const Impostazione> Impostazioni() {
  static const Tabella_Chiavi tabella = Componi_Tabella();
  return tabella;
}

const Impostazione* Trova_Impostazione(Vista chiave) {
  const auto tabella = Impostazioni();
  const auto trovata =
      std::ranges::find_if(tabella, [&](const Impostazione& i) { return Uguali(i.chiave, chiave); });
  return trovata == tabella.end() ? nullptr : &*trovata;
}

Testo Valore_Scritto(const Impostazione& impostazione, const Preferenze& preferenze) {
  return std::visit(Scrittura{preferenze}, impostazione.posto);
}

void Prendi_Valore(const Impostazione& impostazione, Preferenze& preferenze, Vista valore) {
  std::visit(Lettura{impostazione, preferenze, valore}, impostazione.posto);
}

Preferenze Preferenze_Predefinite() {
  Preferenze preferenze;
  for (const Impostazione& impostazione : Impostazioni())
    Prendi_Valore(impostazione, preferenze, impostazione.predefinito);
  return preferenze;
}

bool Posteggio_Valido(Vista testo) { return Valore(testo, PUNTO) > 0; }

void Leggi_Preferenze(Programma& programma) {
  int errore = 0;
  const auto contenuto = programma.disco.Leggi(programma.File_Ini, &errore);
  programma.Impostazioni_Ignote = !contenuto && errore != ENOENT;
  if (programma.Impostazioni_Ignote)
    programma.piattaforma.Messaggio(
        "Le impostazioni non si possono leggere: valgono quelle predefinite, e finché il programma non viene riavviato nulla le sostituisce\n"_t +
        Testo_Percorso(programma.File_Ini) + "\n" + Testo_Errore(errore));
  const Valori_Ini letti = Leggi_Ini(contenuto.value_or(""), Sezione_Ini);
  programma.preferenze = {};
  Chiavi da_riscrivere;
  for (const Impostazione& impostazione : Impostazioni()) {
    const auto letto = letti.find(impostazione.chiave);
    const Vista valore = letto == letti.end() ? Vista(impostazione.predefinito) : Vista(letto->second);
    Prendi_Valore(impostazione, programma.preferenze, valore);
    if (impostazione.vuoto == SeVuoto::Riscritto && (letto == letti.end() || Pulito(letto->second).empty()))
      da_riscrivere.emplace_back(impostazione.chiave, impostazione.predefinito);
  }
  // A file that can't be written leaves the values of this run as they are; the next start tries again.
  Scrivi(programma, da_riscrivere);
  Chiedi_Posteggio(programma);
}

bool Scrivi_Chiave(Programma& programma, Vista chiave, Vista valore) {
  return Scrivi(programma, {{Testo(chiave), Testo(valore)}});
}

bool Scrivi_Chiavi(Programma& programma, const std::vector<std::pair<Testo, Testo>>& chiavi) {
  return Scrivi(programma, chiavi);
}

bool Scrivi_Preferenze(Programma& programma) {
  Chiavi chiavi;
  for (const Impostazione& impostazione : Impostazioni())
    if (impostazione.fra_tutte)
      chiavi.emplace_back(impostazione.chiave, Valore_Scritto(impostazione, programma.preferenze));
  return Scrivi(programma, chiavi);
}

bool Scrivi_Preferenze(Programma& programma, std::initializer_list<Vista> nomi) {
  Chiavi chiavi;
  for (const Vista nome : nomi) {
    const Impostazione* impostazione = Trova_Impostazione(nome);
    if (!impostazione) return false;
    chiavi.emplace_back(impostazione->chiave, Valore_Scritto(*impostazione, programma.preferenze));
  }
  return Scrivi(programma, chiavi);
}

void Limita_Per_Codice(Programma& programma) {
  if (Valore(programma.preferenze.Codice_Commissionario, PUNTO) < 5)
    programma.preferenze.FlagCopiaNPinCommento = false;
}

int Spessore_Ellisse(const Preferenze& preferenze) { return preferenze.FlagSpessoreEllisse ? 10 : 1; }
