#include "lists/anagrafica_specie.h"

#include <algorithm>

#include "core/numeri.h"
#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/ordina.h"

namespace {

constexpr Vista file_esportato = "Vet_Descrizioni.txt";
constexpr Vista campioni[] = {"Sogliola\t10", "Orata\t10"};
constexpr Vista famiglie[] = {"Altro", "Crostacei", "Molluschi", "Pesci"};
// What is told of each empty field; fields without a text refuse the row.
constexpr Vista mancanze[8] = {"manca IVA", "manca DESCRIZIONE", "manca Nome latino", "", "manca CODICE", "",
                               "",          "manca codice ALFA"};

std::array<double, 3> Aliquote(const Programma& programma) {
  const Preferenze& preferenze = programma.preferenze;
  return {preferenze.Aliquota1, preferenze.Aliquota2, preferenze.Aliquota3};
}

bool Aliquota_In_Uso(const Programma& programma, Vista testo) {
  const auto aliquota = Numero(testo, programma.Separatore_Decimale);
  return aliquota && std::ranges::count(Aliquote(programma), *aliquota) > 0;
}

bool Riga_Valida(const TabellaLista<8>& tabella, int riga) {
  return riga >= 0 && static_cast<std::size_t>(riga) < tabella.size();
}

// The first row for which `trovata` holds, looked for from the row behind `da` when that one has it already.
template <class Trovata>
int Cerca(const TabellaLista<8>& tabella, int da, const Trovata& trovata) {
  const std::size_t numero = tabella.size();
  const bool avanti = Riga_Valida(tabella, da) && trovata(tabella[static_cast<std::size_t>(da)]);
  const std::size_t inizio = avanti ? static_cast<std::size_t>(da) + 1 : 0;
  for (std::size_t passo = 0; passo < numero; ++passo) {
    const std::size_t riga = (inizio + passo) % numero;
    if (trovata(tabella[riga])) return static_cast<int>(riga);
  }
  return -1;
}

template <class Corrisponde>
int Chiedi_E_Cerca(Programma& programma, const TabellaLista<8>& tabella, int da, Vista richiesta,
                   Vista non_trovato, const Corrisponde& corrisponde) {
  const auto risposta = programma.piattaforma.Chiedi(Testo(richiesta));
  const Vista cercato = risposta ? Pulito(*risposta) : Vista();
  if (cercato.empty()) return da;
  const int riga = Cerca(tabella, da, [&](const Campi_Specie& campi) { return corrisponde(campi, cercato); });
  if (riga < 0) programma.piattaforma.Messaggio(Testo(non_trovato));
  return riga;
}

Vista Nome_Senza_Nota(Vista nome) { return Pulito(nome.substr(0, nome.find('('))); }

// The line of the official list: what it is looked up by, in columns.
Testo Riga_Ufficiale(const Campi_Specie& campi) {
  return Pad(campi[specie::Alfa], 3) + "  " + Pad(campi[specie::Descrizione], 34) + "  " +
         Pad(campi[specie::NomeLatino], 34) + "  " + campi[specie::Famiglia];
}

bool Pieno(const CampoTesto& campo) { return !Pulito(campo.testo).empty(); }

void Riempi_Se_Vuoto(CampoTesto& campo, Vista testo) {
  if (!Pieno(campo)) campo.testo = testo;
}

Testo Domanda_Copia(const Campi_Specie& ufficiale, const std::vector<CampoTesto>& campi) {
  Testo testo = "OK per copiare :\n";
  if (Pieno(campi[specie::Descrizione]))
    testo += "Nome personalizzato invariato ";
  else
    testo.append("Nome personalizzato = ").append(Nome_Senza_Nota(ufficiale[specie::Descrizione]));
  testo += "\nNome latino = " + ufficiale[specie::NomeLatino];
  testo += "\nFamiglia = " + ufficiale[specie::Famiglia];
  testo += "\nNome in fattura = " + ufficiale[specie::NomeFattura];
  testo += "\nCodice ALFA " + ufficiale[specie::Alfa];
  if (Pieno(campi[specie::CodiceMercato])) testo += "\nCodice mercato invariato";
  if (Pieno(campi[specie::CodiceNumerico])) testo += "\nCodice numerico invariato";
  return testo;
}

// ---- the table as the shared list and editor use it

// Without a file the list has two samples in place of the table's one empty row.
std::size_t Righe_Tabella(const Programma& programma) {
  return Specie_Provvisorie(programma) ? std::size(campioni) : programma.Vet_Specie.size();
}

std::span<const Testo> Riga_Tabella(const Programma& programma, std::size_t r) {
  return programma.Vet_Specie[std::min(r, programma.Vet_Specie.size() - 1)];
}

void Scrivi_Riga(Programma& programma, std::size_t r, std::span<const Testo> valori) {
  if (!Specie_Provvisorie(programma)) Accesso<&Programma::Vet_Specie>().scrivi(programma, r, valori);
}

Testo Voce(const Programma& programma, std::size_t r, int) {
  return Specie_Provvisorie(programma) ? Testo(campioni[r]) : Riga_Specie(programma.Vet_Specie[r]);
}

bool Si_Puo_Scrivere(Programma& programma) {
  if (!Specie_Provvisorie(programma)) return true;
  programma.piattaforma.Messaggio("non sarà possibile inserire dati"_t);
  return false;
}

bool Incompleta(Programma& programma, std::span<const Testo> valori) {
  if (!Si_Puo_Scrivere(programma)) return true;
  Campi_Specie campi;
  std::ranges::copy(valori, campi.begin());
  return Controlla_Specie(programma, campi) != 0;
}

// A changed row's rate has two digits. A missing one has been told and is "00": a row without any would be a
// deleted one.
void Componi(const Programma& programma, std::span<Testo> valori, bool nuova) {
  const char separatore = programma.Separatore_Decimale;
  if (!nuova) valori[specie::Iva] = Formato(Valore(valori[specie::Iva], separatore), "00", separatore);
}

template <int colonna>
bool Ordina_Per(Programma& programma) {
  return Si_Puo_Scrivere(programma) && Ordina_Specie(programma, colonna);
}

template <auto cerca>
void Cerca_Nel_Modulo(Programma& programma, SchermoAnagrafica& schermo) {
  const int scelta = Riga_Scelta(schermo);
  const int trovata = cerca(programma, programma.Vet_Specie, scelta);
  if (trovata >= 0 && trovata != scelta) Vai_Alla_Riga(programma, schermo, trovata + 1);
}

Anagrafica Descrizione() {
  Anagrafica elenco;
  elenco.lista = "Descrizioni";
  elenco.modulo = "ModDescr";
  elenco.file = nomi_file::Specie;
  elenco.didascalia_lista = "Lista delle Specie";
  elenco.titolo_modulo = "Aggiungi/Modifica Descrizioni delle Specie";
  elenco.comando_modulo = "Aggiungi/&Modifica";
  elenco.campi = {
      {.didascalia = "Aliquota IVA",
       .suggerimento = "doppio click per cambiare",
       .numero = true,
       .doppio_clic = Prossima_Aliquota},
      {.didascalia = "Descrizione Personalizzata", .suggerimento = "questo nome può essere personalizzato"_t},
      {.didascalia = "Nome Latino", .suggerimento = "Nome latino obbligatorio e deve essere giusto"},
      {.didascalia = "Famiglia",
       .suggerimento = "doppio click per cambiare",
       .doppio_clic = [](const Programma&, Vista famiglia) { return Prossima_Famiglia(famiglia); }},
      {.didascalia = "Vecchio Codice Mercato",
       .suggerimento = "Il vecchio codice di mercato oppure un codice di fantasia",
       .numero = true,
       .doppio_clic = [](const Programma&, Vista) { return Testo("AAAAA"); }},
      {.didascalia = "Nome in fattura", .suggerimento = "Questo deve essere copiato dalla lista ufficiale"},
      {.didascalia = "Codice numerico",
       .suggerimento = "non strettamente necessario -> un numero di fantasia",
       .numero = true,
       .doppio_clic = [](const Programma&, Vista) { return Testo("99999"); }},
      {.didascalia = "Codice ALFA", .suggerimento = "Deve essere quello corrispondente al nome latino"}};
  elenco.ordini = {{"Ordina_Alfa", "per codice AL&FA", Ordina_Per<specie::Alfa>},
                   {"Ordina_Latino", "per Nome La&tino", Ordina_Per<specie::NomeLatino>},
                   {"Ordina_Descrizione", "per &descrizione", Ordina_Per<specie::Descrizione>},
                   {"Ordina_Iva", "per &IVA", Ordina_Per<specie::Iva>}};
  elenco.comandi = {{"Cerca_Alfa", "Cerca A&LFA", Cerca_Nel_Modulo<Cerca_Codice_Alfa>},
                    {"Cerca_Latino", "Cerca &Nome Latino", Cerca_Nel_Modulo<Cerca_Nome_Latino>},
                    {comando_ufficiali, "Lista &ufficiale", nullptr, true}};
  elenco.tabella = {Righe_Tabella, Riga_Tabella, Scrivi_Riga, Accesso<&Programma::Vet_Specie>().ripristino};
  elenco.titolo = [](std::size_t voci) { return "Lista Specie " + std::to_string(voci) + " voci"; };
  elenco.voce = Voce;
  elenco.leggi = Leggi_Specie;
  elenco.salva = [](Programma& programma) { return Si_Puo_Scrivere(programma) && Salva_Specie(programma); };
  elenco.incompleta = Incompleta;
  elenco.componi = Componi;
  elenco.aggiunta = Aggiunta::In_Coda_Al_File;
  return elenco;
}

}  // namespace

const Anagrafica& Anagrafica_Specie() {
  static const Anagrafica elenco = Descrizione();
  return elenco;
}

Testo Riga_Specie(const Campi_Specie& campi) {
  Testo riga = campi[specie::Iva] + " - " + campi[specie::Descrizione];
  if (campi[specie::NomeLatino].size() < 2 || campi[specie::Alfa].size() < 3) riga += " <--------definire";
  return riga;
}

bool Specie_Provvisorie(const Programma& programma) {
  const auto& tabella = programma.Vet_Specie;
  return tabella.size() == 1 && tabella.front() == Campi_Specie{} &&
         !Esiste_Lista(programma, nomi_file::Specie);
}

std::optional<Campi_Specie> Specie_Da_Copiare(const Programma& programma, std::size_t r) {
  if (Specie_Provvisorie(programma) || r >= programma.Vet_Specie.size()) return std::nullopt;
  return programma.Vet_Specie[r];
}

int Controlla_Specie(Programma& programma, Campi_Specie& campi) {
  bool rifiuta = false;
  for (std::size_t i = 0; i < campi.size(); ++i) {
    campi[i] = Testo(Pulito(campi[i]));
    if (!campi[i].empty()) continue;
    if (mancanze[i].empty()) {
      rifiuta = true;
      continue;
    }
    programma.piattaforma.Messaggio(Testo(mancanze[i]));
    return rifiuta ? 1 : 0;
  }
  if (!Aliquota_In_Uso(programma, campi[specie::Iva])) {
    programma.piattaforma.Messaggio("ma che minkia di aliquota IVA hai messo?");
    rifiuta = true;
  }
  return rifiuta ? 1 : 0;
}

Testo Prossima_Aliquota(const Programma& programma, Vista aliquota) {
  const auto aliquote = Aliquote(programma);
  const auto attuale = Numero(aliquota, programma.Separatore_Decimale);
  std::size_t posto = 0;
  if (attuale) {
    // Two equal rates count as one, or the turn would never pass them.
    while (posto < aliquote.size() && aliquote[posto] != *attuale) ++posto;
    while (posto < aliquote.size() && aliquote[posto] == *attuale) ++posto;
  }
  return Formato(aliquote[posto % aliquote.size()], "00", programma.Separatore_Decimale);
}

Testo Prossima_Famiglia(Vista famiglia) {
  const Vista attuale = Pulito(famiglia);
  for (std::size_t i = 0; i < std::size(famiglie); ++i)
    if (Uguali(famiglie[i], attuale)) return Testo(famiglie[(i + 1) % std::size(famiglie)]);
  return Testo(famiglie[0]);
}

int Cerca_Codice_Alfa(Programma& programma, const TabellaLista<8>& tabella, int da) {
  return Chiedi_E_Cerca(
      programma, tabella, da, "Immettere il codice ALFA", "non trovato",
      [](const Campi_Specie& campi, Vista cercato) { return Uguali(Pulito(campi[specie::Alfa]), cercato); });
}

int Cerca_Nome_Latino(Programma& programma, const TabellaLista<8>& tabella, int da) {
  return Chiedi_E_Cerca(
      programma, tabella, da, "Immettere il Nome Latino", "non tovato",
      [](const Campi_Specie& campi, Vista cercato) { return Contiene(campi[specie::NomeLatino], cercato); });
}

void Apri_Ufficiali(Programma& programma, SchermoUfficiali& ufficiali) {
  if (programma.Vet_Pelmoro.empty()) Leggi_Pelmoro(programma);
  ufficiali.List1.Collega([&programma] { return programma.Vet_Pelmoro.size(); },
                          [&programma](std::size_t r) { return Riga_Ufficiale(programma.Vet_Pelmoro[r]); });
  ufficiali.List1.scelta = programma.Vet_Pelmoro.empty() ? -1 : 0;
  ufficiali.Copia.testo = "C&opia";
  ufficiali.Cerca_Alfa.testo = "Cerca A&LFA";
  ufficiali.Cerca_Latino.testo = "Cerca &Nome Latino";
  ufficiali.Chiudi.testo = "&Chiudi";
}

void Cerca_Ufficiale(Programma& programma, SchermoUfficiali& ufficiali, bool per_alfa) {
  const auto cerca = per_alfa ? Cerca_Codice_Alfa : Cerca_Nome_Latino;
  const int trovata = cerca(programma, programma.Vet_Pelmoro, ufficiali.List1.scelta);
  if (trovata >= 0) ufficiali.List1.scelta = trovata;
}

bool Copia_Ufficiale(Programma& programma, const SchermoUfficiali& ufficiali, SchermoAnagrafica& schermo) {
  if (!Riga_Valida(programma.Vet_Pelmoro, ufficiali.List1.scelta)) return false;
  const Campi_Specie riga = programma.Vet_Pelmoro[static_cast<std::size_t>(ufficiali.List1.scelta)];
  auto& campi = schermo.Text1;
  if (!programma.piattaforma.Domanda(Domanda_Copia(riga, campi))) return false;
  for (const auto colonna : {specie::NomeLatino, specie::Famiglia, specie::NomeFattura, specie::Alfa})
    campi[colonna].testo = riga[colonna];
  Riempi_Se_Vuoto(campi[specie::Descrizione], Nome_Senza_Nota(riga[specie::Descrizione]));
  Riempi_Se_Vuoto(campi[specie::CodiceMercato], "BBBBB");
  Riempi_Se_Vuoto(campi[specie::CodiceNumerico], "88888");
  return true;
}

bool Esporta_Specie(Programma& programma) {
  Testo contenuto;
  for (const Campi_Specie& riga : programma.Vet_Specie) {
    for (const Testo& campo : riga) {
      contenuto += '"';
      Aggiungi_Campo(contenuto, campo);
      contenuto.append("\"").append(1, TAB);
    }
    contenuto += FINE_RIGA;
  }
  const Percorso percorso = Percorso_Lista(programma, file_esportato);
  if (const int errore = programma.disco.Sostituisci(percorso, contenuto); errore != 0) {
    Mostra_Guasti(programma, {{errore, percorso}});
    return false;
  }
  programma.piattaforma.Messaggio("scritto il file:\n" + Testo_Percorso(percorso));
  return true;
}
