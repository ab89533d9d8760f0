#include "entry/elenco_macro.h"

#include <cerrno>
#include <span>

#include "lists/file_lista.h"
#include "printing/pagina_righe.h"

namespace {

constexpr Vista estensione = ".txt";
constexpr std::size_t largo_codice = 10;

struct Colonna_Letta {
  colonna_macro::Colonna colonna;
  CampoRiga campo;
};
constexpr Colonna_Letta intere[] = {
    {colonna_macro::Fornitore, CampoRiga::Fornitore}, {colonna_macro::Specie, CampoRiga::Specie},
    {colonna_macro::ZonaP, CampoRiga::ZonaP},         {colonna_macro::Prov, CampoRiga::Prov},
    {colonna_macro::Alfa, CampoRiga::Alfa},           {colonna_macro::Lotti, CampoRiga::Lotti}};
constexpr CampoRiga codici[] = {CampoRiga::MetodoPesca, CampoRiga::Pezzatura, CampoRiga::StatoFisico,
                                CampoRiga::Lavorazione, CampoRiga::Preparazione};

// A column of a line, behind the code.
struct Colonna_Linea {
  colonna_macro::Colonna colonna;
  std::size_t largo;
  bool minuscola;
};
constexpr Colonna_Linea linea_specie[] = {
    {colonna_macro::Specie, 20, true}, {colonna_macro::ZonaP, 20, false}, {colonna_macro::Prov, 20, false}};
// narrower, so that the lot at the end stands in sight
constexpr Colonna_Linea linea_fornitore[] = {{colonna_macro::Fornitore, 20, true},
                                             {colonna_macro::Specie, 20, true},
                                             {colonna_macro::ZonaP, 10, false},
                                             {colonna_macro::Prov, 12, false}};

std::span<const Colonna_Linea> Colonne(Tipo_Macro tipo) {
  if (tipo == Tipo_Macro::Fornitore) return linea_fornitore;
  return linea_specie;
}

using Riga_Elenco = std::array<Testo, 8>;

Riga_Elenco Riga_Letta(Tipo_Macro tipo, Vista codice, Vista contenuto) {
  LedgerRow campi;
  for (const Voce_Macro& voce : Leggi_Macro(tipo, contenuto)) campi[voce.campo] = voce.testo;
  Riga_Elenco riga;
  riga[colonna_macro::Codice] = codice;
  for (const auto& [colonna, campo] : intere) riga[colonna] = campi[campo];
  for (const CampoRiga campo : codici) riga[colonna_macro::Codici] += Pad(Sinistra(campi[campo], 3), 4);
  return riga;
}

Testo Linea(Tipo_Macro tipo, const Riga_Elenco& riga) {
  constexpr Vista sep = " | ";
  Testo linea = Pad(riga[colonna_macro::Codice], largo_codice);
  for (const auto& [colonna, largo, minuscola] : Colonne(tipo))
    linea.append(sep).append(Pad(minuscola ? Minuscolo(riga[colonna]) : riga[colonna], largo));
  linea.append(sep).append(riga[colonna_macro::Codici]).append(Pad(riga[colonna_macro::Alfa], 3));
  if (tipo == Tipo_Macro::Fornitore) linea.append(sep).append(riga[colonna_macro::Lotti]);
  return linea;
}

void MostraTabella(Elenco_Macro& elenco) {
  std::vector<Testo> linee;
  linee.reserve(elenco.tabella.size());
  for (const Riga_Elenco& riga : elenco.tabella) linee.push_back(Linea(elenco.tipo, riga));
  elenco.List1.Riempi(std::move(linee));
  elenco.titolo = elenco.tipo == Tipo_Macro::Specie
                      ? "Lista delle Specie Predefinite (massimo 99) - presenti "
                      : "Lista delle Fornitori Predefiniti - presenti ";
  elenco.titolo += std::to_string(elenco.tabella.size());
  elenco.Stampa.attivo = !elenco.tabella.empty();
}

void Seleziona(Elenco_Macro& elenco, int riga) {
  elenco.List1.scelta = std::min(riga, static_cast<int>(elenco.tabella.size()) - 1);
}

const Testo* CodiceScelto(const Elenco_Macro& elenco) {
  const int riga = elenco.List1.scelta;
  if (riga < 0 || static_cast<std::size_t>(riga) >= elenco.tabella.size()) return nullptr;
  return &elenco.tabella[static_cast<std::size_t>(riga)][colonna_macro::Codice];
}

int RigaDelCodice(const Elenco_Macro& elenco, Vista codice) {
  for (std::size_t i = 0; i < elenco.tabella.size(); ++i)
    if (Uguali(elenco.tabella[i][colonna_macro::Codice], codice)) return static_cast<int>(i);
  return -1;
}

// The first line from `da` on that is wanted, -1 for none.
template <class Condizione>
int CercaLinea(const Elenco& lista, int da, Condizione voluta) {
  const int numero = static_cast<int>(lista.Numero());
  for (int i = std::max(da, 0); i < numero; ++i)
    if (voluta(lista.Riga(static_cast<std::size_t>(i)))) return i;
  return -1;
}

void Esegui(Programma& programma, Edita& edita, Elenco_Macro& elenco, const Testo& codice) {
  if (Pulito(codice).empty()) return;
  elenco.eseguita = EseguiMacro(programma, edita, elenco.tipo, codice) == 0;
  elenco.chiusa = elenco.eseguita;
  elenco.Esito.testo = elenco.eseguita ? Testo() : codice + "   non trovato...";
}

}  // namespace

void Leggi_ElencoMacro(Programma& programma, Elenco_Macro& elenco) {
  const Percorso cartella = Cartella_Macro(programma, elenco.tipo);
  elenco.tabella.clear();
  int errore = 0;
  const auto nomi = programma.disco.Elenca(cartella, "*.txt", &errore);
  if (!nomi)
    Mostra_Guasti(programma, {{errore, cartella}});  // the list stays empty, the macros where they are
  for (const Percorso& nome : nomi.value_or(std::vector<Percorso>())) {
    const Testo testo = Testo_Percorso(nome);
    const Vista codice = Vista(testo).substr(0, testo.size() - estensione.size());
    // a name from elsewhere that no code can call, also one outside the code page, would only make a line
    // that does nothing
    if (Pulito(codice) != codice || !Codice_Macro_Lecito(codice)) continue;
    const auto contenuto = programma.disco.Leggi_Testo(File_Macro(programma, elenco.tipo, codice));
    elenco.tabella.push_back(Riga_Letta(elenco.tipo, codice, contenuto.value_or(Testo())));
  }
  MostraTabella(elenco);
}

void Apri_ElencoMacro(Programma& programma, Elenco_Macro& elenco, Tipo_Macro tipo, bool dal_campo) {
  elenco.tipo = tipo;
  elenco.dal_campo = dal_campo;
  elenco.eseguita = elenco.chiusa = false;
  elenco.Chiudi.testo = "&Chiudi";
  elenco.Copia.testo = "C&opia";
  elenco.Elimina.testo = "&Elimina";
  elenco.Rinomina.testo = "&Rinomina";
  elenco.Stampa.testo = "&Stampa";
  elenco.Aiuto.testo = "&Aiuto";
  elenco.Text1.suggerimento = "codice della macro da eseguire, poi Invio";
  elenco.Text2.suggerimento = "testo da cercare nella lista, poi Invio";
  Leggi_ElencoMacro(programma, elenco);
  Seleziona(elenco, 0);
}

void Chiudi_ElencoMacro(Edita& edita, const Elenco_Macro& elenco) {
  if (elenco.dal_campo || elenco.eseguita) CampoSuccessivo(edita, Indice(CampoRiga::PrimoImb));
}

void EseguiCodice(Programma& programma, Edita& edita, Elenco_Macro& elenco) {
  Esegui(programma, edita, elenco, elenco.Text1.testo);
}

void EseguiScelta(Programma& programma, Edita& edita, Elenco_Macro& elenco) {
  if (const Testo* codice = CodiceScelto(elenco)) Esegui(programma, edita, elenco, *codice);
}

void CercaMacro(Elenco_Macro& elenco) {
  const Testo& testo = elenco.Text2.testo;
  if (Pulito(testo).empty()) return;
  const int scelta = elenco.List1.scelta;
  const bool ancora = testo == elenco.cercato && scelta == elenco.riga_trovata;
  const int riga = CercaLinea(elenco.List1, ancora ? scelta + 1 : scelta,
                              [&](const Testo& linea) { return Contiene(linea, testo); });
  elenco.Esito.testo = riga < 0 ? testo + "   non trovato..." : Testo();
  if (riga < 0) return;
  elenco.cercato = testo;
  elenco.riga_trovata = riga;
  Seleziona(elenco, riga);
}

void SaltaMacro(Elenco_Macro& elenco, char carattere) {
  const int riga = CercaLinea(elenco.List1, elenco.List1.scelta + 1, [&](const Testo& linea) {
    return linea.size() > 3 && Minuscola(linea[3]) == Minuscola(carattere);
  });
  if (riga >= 0) Seleziona(elenco, riga);
}

void EliminaMacro(Programma& programma, Elenco_Macro& elenco) {
  const Testo* codice = CodiceScelto(elenco);
  if (codice == nullptr || !programma.piattaforma.Domanda(*codice + "\nOK per eliminare")) return;
  if (programma.disco.Cancella(File_Macro(programma, elenco.tipo, *codice)) != 0)
    return programma.piattaforma.Messaggio("cancellazione non riuscita");
  const int riga = elenco.List1.scelta;
  elenco.tabella.erase(elenco.tabella.begin() + riga);
  MostraTabella(elenco);
  Seleziona(elenco, riga);
}

void RinominaMacro(Programma& programma, Elenco_Macro& elenco) {
  const Testo* codice = CodiceScelto(elenco);
  if (codice == nullptr) return;
  const auto risposta = programma.piattaforma.Chiedi("Rinominare " + *codice + " in:");
  const Vista pulita = Pulito(risposta ? Vista(*risposta) : Vista());
  if (pulita.size() < 2) return;
  const Testo nuovo = Codice_Scritto(pulita, programma.Separatore_Decimale);
  if (!Codice_Macro_Lecito(nuovo)) return programma.piattaforma.Messaggio(Difetto_Codice_Macro());
  const Percorso da = File_Macro(programma, elenco.tipo, *codice);
  const Percorso a = File_Macro(programma, elenco.tipo, nuovo);
  const int errore = programma.disco.Esiste_File(a) ? EEXIST : programma.disco.Rinomina(da, a);
  if (errore == EEXIST) return programma.piattaforma.Messaggio("Questo nome/numero è già usato...."_t);
  if (errore != 0) return Mostra_Guasti(programma, {{errore, da}});
  Leggi_ElencoMacro(programma, elenco);
  Seleziona(elenco, RigaDelCodice(elenco, nuovo));
}

void StampaMacro(Programma& programma, Elenco_Macro& elenco) {
  const bool specie = elenco.tipo == Tipo_Macro::Specie;
  Foglio_Di_Righe foglio;
  foglio.documento = {programma.Data_AAAAMMGG, specie ? "Specie Predefinite" : "Fornitori Predefiniti", "",
                      ""};
  foglio.codice = "Macro";
  if (specie) {
    foglio.testa = {"Lista delle Macro delle Spece (Predefinite)"};
  } else {
    foglio.testa = {"Dati Predefiniti Fornitori "};
    foglio.testa_seguito = {"Dati Predefiniti Fornitori (continua)"};
  }
  for (std::size_t i = 0; i < elenco.List1.Numero(); ++i) foglio.righe.push_back({elenco.List1.Riga(i)});
  Stampa_Righe(programma, foglio, elenco.titolo);
}

void MostraStampante(Programma& programma, Elenco_Macro& elenco) {
  TitoloStampante(Dispositivo(programma), elenco.Stampante);
}

void AiutoMacro(Programma& programma, const Elenco_Macro& elenco) {
  const bool fornitore = elenco.tipo == Tipo_Macro::Fornitore;
  const Testo campo = fornitore ? "Fornitore" : "Specie";
  programma.piattaforma.Messaggio(
      "Una macro riempie in un colpo i campi che si ripetono da una riga all'altra.\n"
      "Si memorizza dalla finestra di immissione con il bottone \"" +
          Testo(fornitore ? "Memorizza Fornitore Predefinito" : "Memorizza Specie Predefinita") +
          "\",\ncon un numero da 01 a 99 o con una parola di 8 caratteri al massimo.\n"
          "Si richiama scrivendo il numero di due cifre nel campo " +
          campo + ",\noppure un - nello stesso campo e scegliendo qui: Invio o doppio click sulla riga,\n" +
          "o il codice nella casella in alto a sinistra."_t,
      Icona::Informazione, "Aiuto");
}
