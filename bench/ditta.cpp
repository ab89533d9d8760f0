#include "bench/ditta.h"

#include <cstdlib>
#include <stdexcept>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/genera.h"
#include "lists/liste.h"

namespace {

constexpr int Numero_Clienti = 10'000, Numero_Fornitori = 200;
constexpr Vista Insegne[] = {"Pescheria", "Ristorante", "Trattoria", "Mercato",
                             "Laguna",    "Ittica",     "Mare",      "Adriatica"};

Testo Cifre(int numero, std::size_t quante) { return Pad_Sinistra(std::to_string(numero), quante, '0'); }

Testo Nome_Cliente(int n) {
  return Testo(Insegne[static_cast<std::size_t>(n) % std::size(Insegne)]) + " Cliente " + Cifre(n, 5);
}

void Scrivi(const Disco& disco, const Percorso& cartella, Vista nome, const Testo& contenuto) {
  if (disco.Sostituisci(Unisci_Percorso(cartella, nome), contenuto) != 0)
    throw std::runtime_error("la ditta di prova non si può scrivere");
}

Testo Clienti() {
  Testo contenuto;
  for (int n = 1; n <= Numero_Clienti; ++n)
    contenuto += Cifre(n, 5) + "\t" + Nome_Cliente(n) + "\tzz\tvia Roma, " + std::to_string(n % 200) +
                 "\t30100 Venezia - VE\t" + Cifre(n, 11) + "\t-\t-\t\r\n";
  return contenuto;
}

Testo Fornitori() {
  Testo contenuto;
  for (int n = 1; n <= Numero_Fornitori; ++n)
    contenuto += Cifre(n, 4) + "\tFornitore " + Cifre(n, 4) + "\t\tvia Mare, 1\t30015 Chioggia - VE\t" +
                 Cifre(n, 11) + "\t6,5\tL" + Cifre(n, 3) + "\t\r\n";
  return contenuto;
}

template <class Lista>
const auto& Voce(const Lista& lista, int n) {
  return lista[static_cast<std::size_t>(n) % lista.size()];
}

}  // namespace

Ditta::Ditta() {
  std::string modello = (std::filesystem::temp_directory_path() / "velmara_bench_XXXXXX").string();
  if (mkdtemp(modello.data()) == nullptr) throw std::runtime_error("cartella di prova");
  cartella_ = modello;
  Piattaforma_Muta macchina;
  Programma programma(macchina);
  programma.Cartella_Dati = cartella_;
  Scrivi(programma.disco, cartella_, nomi_file::Clienti, Clienti());
  Scrivi(programma.disco, cartella_, nomi_file::Fornitori, Fornitori());
  Scrivi(programma.disco, cartella_, "_2020_RAGIONE.txt", "Mare Blu s.n.c.\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
  Scrivi(programma.disco, cartella_, "Velmara_2020.ini", "[VELMARA]\r\nCodiceCOM=0\r\nnposteggio=01\r\n");
  Genera_Liste(programma);
}

Ditta::~Ditta() {
  std::error_code errore;
  std::filesystem::remove_all(cartella_, errore);
}

void Ditta::Scrivi_Giorno(Piattaforma& macchina, int righe) const {
  Programma programma(macchina);
  programma.Cartella_Dati = cartella_;
  Leggi_Liste(programma);
  programma.Vet_Tabella.righe.clear();
  for (int n = 1; n <= righe; ++n) programma.Vet_Tabella.righe.push_back(Riga_Inventata(programma, n));
  const Testo giorno = Testo_Data(macchina.Oggi(), "yyyymmdd");
  const Percorso anno = Unisci_Percorso(cartella_, giorno.substr(0, 4));
  programma.disco.Crea_Cartella(anno);
  Scrivi(programma.disco, anno, giorno + ".txt", Scrivi_Tabella(programma.Vet_Tabella));
}

LedgerRow Riga_Inventata(const Programma& programma, int n) {
  using enum CampoRiga;
  const auto& merce = Voce(programma.Vet_Specie, n);
  const auto& compratore = Voce(programma.Vet_Clienti, n * 7);
  LedgerRow riga;
  riga[Num] = Cifre(n, 4);
  riga[Fornitore] = Voce(programma.Vet_Fornitori, n)[fornitore::RagioneSociale1];
  riga[Cliente] = compratore[cliente::RagioneSociale1];
  riga[CodCliente] = compratore[cliente::Codice];
  riga[Specie] = merce[specie::Descrizione].substr(0, merce[specie::Descrizione].find('('));
  riga[ZonaP] = Voce(programma.Vet_Zone, n)[zona::Etichetta];
  riga[Peso] = std::to_string(1 + n % 40) + ",50";
  riga[Prezzo] = std::to_string(3 + n % 25) + ",80";
  riga[Iva] = "10";
  riga[Colli] = std::to_string(1 + n % 5);
  riga[NCV] = "9999";
  riga[DDT_CV] = "-";
  riga[SAnt] = "0";
  riga[Provvigione] = "6,5";
  riga[CodSpecie] = merce[specie::CodiceMercato];
  riga[Prov] = Voce(programma.Vet_Provenienze, n);
  riga[Lotti] = "L" + Cifre(n % 200, 3) + "250313";
  riga[DDT] = Cifre(n % 999, 3);
  riga[NomeLatino] = merce[specie::NomeLatino];
  riga[Famiglia] = merce[specie::Famiglia];
  riga[NomeComune] = merce[specie::NomeFattura];
  riga[CodNumVeritas] = merce[specie::CodiceNumerico];
  riga[MetodoPesca] = Voce(programma.Vet_Metodi, n);
  riga[Alfa] = merce[specie::Alfa];
  riga[Pezzatura] = Voce(programma.Vet_Pezzature, n);
  riga[StatoFisico] = Voce(programma.Vet_Stati, n);
  riga[Lavorazione] = Voce(programma.Vet_Lavorazioni, n);
  riga[Preparazione] = Voce(programma.Vet_Presentazioni, n);
  riga[PrimoImb] = Voce(programma.Vet_Barche, n);
  riga[Allergeni] = "-";
  return riga;
}
