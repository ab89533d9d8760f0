#include <algorithm>

#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

namespace {

using Campi_Cliente = std::array<Testo, 9>;

// The ninth field is whatever is left of the line.
Campi_Cliente Cliente_32(Vista riga) {
  Campi_Cliente campi;
  for (std::size_t i = 0; i < cliente::Iban; ++i) campi[i] = Prossimo_Campo(riga);
  campi[cliente::Iban] = riga;
  return campi;
}

// Six fields; behind the eleven digits of the tax number the old program kept other things.
Campi_Cliente Cliente_16(Vista riga) {
  Campi_Cliente campi;
  for (std::size_t i = 0; i <= cliente::PIva; ++i) campi[i] = Prossimo_Campo(riga);
  campi[cliente::PIva].resize(std::min<std::size_t>(campi[cliente::PIva].size(), 11));
  campi[cliente::Escluso] = campi[cliente::Ristorante] = "-";
  return campi;
}

// Zeros in front of a number; a text that is no number stays.
Testo Riempi_Zeri(Vista testo, std::size_t cifre) {
  return Tutte_Cifre(testo) ? Pad_Sinistra(testo, cifre, '0') : Testo(testo);
}

// A line of the bank's register in the form of the customer file. The province is always Venice's: the towns
// of other provinces were looked for in the tax number, and every firm's file has come out so since.
Testo Riga_Convertita(Vista riga) {
  std::array<Vista, 6> valori;
  for (Vista& valore : valori) valore = Prossimo_Campo(riga);
  Testo citta(valori[4]);
  citta += ' ';
  citta += valori[5];
  citta += " (VE)";
  const Testo campi[] = {Riempi_Zeri(valori[0], 5),
                         Testo(valori[1]),
                         "-",
                         Testo(valori[3]),
                         citta,
                         Riempi_Zeri(Pulito(riga), 11),
                         " ",
                         " ",
                         " "};
  Testo convertita;
  for (const Testo& campo : campi) {
    Aggiungi_Campo(convertita, campo);
    convertita += TAB;
  }
  convertita.pop_back();
  return convertita.append(FINE_RIGA);
}

Testo Converti_Registro_Banca(Vista registro) {
  constexpr std::size_t righe_intestazione = 2;
  const auto righe = Righe(registro);
  Testo contenuto;
  for (std::size_t i = righe_intestazione; i < righe.size(); ++i)
    if (!Pulito(righe[i]).empty()) contenuto += Riga_Convertita(righe[i]);
  return contenuto;
}

void Riempi_Clienti(Programma& programma, Vista contenuto, Campi_Cliente (*leggi)(Vista)) {
  const auto righe = Righe(contenuto);
  auto& tabella = programma.Vet_Clienti;
  tabella.clear();
  tabella.reserve(righe.size());
  for (const Vista riga : righe) {
    auto& nuova = tabella.emplace_back(leggi(riga));
    // Last in the order of nicknames. Blanks at the end of a line aren't trimmed, but are none all the same.
    if (Pulito(nuova[cliente::Soprannome]).empty()) nuova[cliente::Soprannome] = "zz";
  }
}

int Cerca(const Programma& programma, cliente::Colonna colonna, Vista testo) {
  testo = Pulito(testo);
  if (testo.empty()) return -1;
  int riga = 0;
  for (const auto& campi : programma.Vet_Clienti) {
    if (Uguali(Pulito(campi[colonna]), testo)) return riga;
    ++riga;
  }
  return -1;
}

}  // namespace

void Leggi_Clienti(Programma& programma) {
  if (const auto contenuto = Leggi_File_Lista(programma, nomi_file::Clienti))
    return Riempi_Clienti(programma, *contenuto, Cliente_32);
  if (const auto contenuto = Leggi_File_Lista(programma, nomi_file::Clienti_16))
    return Riempi_Clienti(programma, *contenuto, Cliente_16);
  if (const auto registro = Leggi_File_Lista(programma, nomi_file::Clienti_Banca)) {
    const Testo convertito = Converti_Registro_Banca(*registro);
    Semina_File_Lista(programma, nomi_file::Clienti, convertito);
    return Riempi_Clienti(programma, convertito, Cliente_32);
  }
  programma.Vet_Clienti = Seme_Clienti();
  Testo testo = "ATTENZIONE, non è stato trovato nessuno di questi file:"_t;
  for (const Vista nome : {nomi_file::Clienti, nomi_file::Clienti_16, nomi_file::Clienti_Banca})
    testo += '\n' + Testo_Percorso(Percorso_Lista(programma, nome));
  programma.piattaforma.Messaggio(testo + "\ni clienti devono essere immessi manualmente...");
}

bool Salva_Clienti(Programma& programma) {
  return Salva_File_Lista(programma, nomi_file::Clienti, Contenuto_Tabella(programma.Vet_Clienti, true));
}

int Cerca_Cliente_Per_Nome(const Programma& programma, Vista nome) {
  return Cerca(programma, cliente::RagioneSociale1, nome);
}

int Cerca_Cliente_Per_Codice(const Programma& programma, Vista codice) {
  return Cerca(programma, cliente::Codice, codice);
}
