#include "lists/anagrafica_codificate.h"

#include <array>
#include <utility>

#include "lists/file_lista.h"
#include "lists/liste.h"

namespace {

using Voci = std::vector<Testo>;

struct Tipo {
  Voci Programma::*voci;
  void (*leggi)(Programma&);
  Vista file;
  Vista titolo, titolo_modulo;
};
constexpr std::array<Tipo, 7> tipi = {{
    {&Programma::Vet_Metodi, Leggi_Metodi, nomi_file::Metodi, "Attrezzo di Pesca", "Attrezzo di Pesca "},
    {&Programma::Vet_Pezzature, Leggi_Pezzature, nomi_file::Pezzature, "Pezzatura", "Pezzatura"},
    {&Programma::Vet_Stati, Leggi_Stati, nomi_file::Stati, "Stato Fisico", "Stato Fisico"},
    {&Programma::Vet_Lavorazioni, Leggi_Lavorazioni, nomi_file::Lavorazioni, "Presentazione (Lavorazione)",
     "Lavorazione (non va in fattura)"},
    {&Programma::Vet_Presentazioni, Leggi_Presentazioni, nomi_file::Presentazioni, "Preparazione",
     "Presentazione"},
    {&Programma::Vet_Barche, Leggi_Barche, nomi_file::Barche, "Primo Imbarco", "Barca"},
    {&Programma::Vet_Allergeni, Leggi_Allergeni, nomi_file::Allergeni, "Allergeni", "Allergeni"},
}};

Testo Nota(std::size_t tipo) {
  const std::array<Testo, tipi.size()> note = {
      "Il codice XXX non va in fattura e può  essere cambiato/aggiunto a piacere."_t,
      "I codici vanno in fattura e devono essere queli ufficciali.",
      "I codici vanno in fattura e devono essere queli ufficciali.",
      "I codici NON vanno in fattura e possono essere cambiati/aggiunti a piacere.",
      "I codici vanno in fattura e e devono essere queli ufficciali. Il codice OTH è a piacere."_t,
      "",
      ""};
  return note[tipo];
}

std::size_t Indice_Tipo(int tipo) {
  return static_cast<std::size_t>(std::clamp(tipo, 1, static_cast<int>(tipi.size())) - 1);
}

Voci Non_Vuote(const Voci& voci) {
  Voci esito;
  for (const Testo& voce : voci)
    if (!Pulito(voce).empty()) esito.push_back(voce);
  return esito;
}

template <Voci Programma::*voci>
Accesso_Tabella Accesso_Voci() {
  return {[](const Programma& programma) { return (programma.*voci).size(); },
          [](const Programma& programma, std::size_t r) {
            return std::span<const Testo>(&(programma.*voci)[r], 1);
          },
          [](Programma& programma, std::size_t r, std::span<const Testo> valori) {
            if (r >= (programma.*voci).size())
              (programma.*voci).push_back(valori[0]);
            else
              (programma.*voci)[r] = valori[0];
          },
          [](Programma& programma) -> std::function<void()> {
            return [&programma, prima = programma.*voci] { programma.*voci = prima; };
          }};
}

bool Vuota(Programma&, std::span<const Testo> valori) { return Pulito(valori[0]).empty(); }

template <Voci Programma::*voci>
Anagrafica Di_Voci() {
  Anagrafica lista;
  lista.comando_modulo = "Aggiungi/&Modifica";
  lista.tabella = Accesso_Voci<voci>();
  lista.voce = [](const Programma& programma, std::size_t r, int) { return (programma.*voci)[r]; };
  lista.incompleta = Vuota;
  return lista;
}

template <std::size_t tipo>
Anagrafica Codificata() {
  constexpr const Tipo& dati = tipi[tipo];
  Anagrafica lista = Di_Voci<dati.voci>();
  lista.lista = "MetodoPesca";
  lista.modulo = "ModMetodo";
  lista.file = dati.file;
  lista.didascalia_lista = dati.titolo;
  lista.titolo_modulo = dati.titolo_modulo;
  // The blanks behind a code count: they go onto documents.
  lista.campi = {{.didascalia = "Voce", .bianchi = true, .riprende = true}};
  lista.note = {"I primi tre caratteri sono il codice e vanno in maiuscolo ",
                "poi va uno spazio e quindi la descrizione."};
  if (const Testo nota = Nota(tipo); !nota.empty()) lista.note.push_back(nota);
  lista.titolo = [](std::size_t) { return Testo(tipi[tipo].titolo); };
  lista.leggi = dati.leggi;
  lista.salva = [](Programma& programma) { return Salva_Lista_Tipo(programma, static_cast<int>(tipo) + 1); };
  return lista;
}

template <std::size_t... tipo>
std::array<Anagrafica, sizeof...(tipo)> Codificate(std::index_sequence<tipo...>) {
  return {Codificata<tipo>()...};
}

Anagrafica Descrizione_Provenienze() {
  Anagrafica lista = Di_Voci<&Programma::Vet_Provenienze>();
  lista.lista = "Provenienze";
  lista.modulo = "ModProv";
  lista.file = nomi_file::Provenienze;
  lista.didascalia_lista = "Lista Provenienza";
  lista.titolo_modulo = "Aggiungi/Modifica Specie";
  lista.campi = {{.didascalia = "Provenienza", .riprende = true}};
  lista.titolo = [](std::size_t) { return Testo("Lista Provenienza"); };
  lista.leggi = Leggi_Provenienze;
  lista.salva = Salva_Provenienze;
  return lista;
}

}  // namespace

const Anagrafica& Anagrafica_Codificata(int tipo) {
  static const auto liste = Codificate(std::make_index_sequence<tipi.size()>());
  return liste[Indice_Tipo(tipo)];
}

const Anagrafica& Anagrafica_Provenienze() {
  static const Anagrafica lista = Descrizione_Provenienze();
  return lista;
}

const Testo& Voce_Codificata(const Programma& programma, int tipo, std::size_t r) {
  return (programma.*tipi[Indice_Tipo(tipo)].voci)[r];
}

bool Salva_Lista_Tipo(Programma& programma, int tipo) {
  const Tipo& dati = tipi[Indice_Tipo(tipo)];
  if (!Salva_File_Lista(programma, dati.file, Contenuto_Voci(Non_Vuote(programma.*dati.voci)))) return false;
  dati.leggi(programma);
  return true;
}

bool Salva_Provenienze(Programma& programma) {
  const Voci voci = Non_Vuote(programma.Vet_Provenienze);
  if (!Salva_File_Lista(programma, nomi_file::Provenienze, Contenuto_Voci(voci))) return false;
  Testo seme;
  for (const Testo& voce : voci) {
    seme += "print #numfile, !";
    Aggiungi_Campo(seme, voce);
    seme.append("!").append(FINE_RIGA);
  }
  const Percorso percorso = Percorso_Lista(programma, "zzzzz.txt");
  if (const int errore = programma.disco.Sostituisci(percorso, seme); errore != 0)
    Mostra_Guasti(programma, {{errore, percorso}});
  return true;
}
