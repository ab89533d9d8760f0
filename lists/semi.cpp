#include "lists/semi.h"

#include <unordered_map>

#include "core/numeri.h"
#include "lists/dati.h"
#include "lists/liste.h"

namespace {

// An entry is a code of three letters, a blank and the description; "XXX" and "OTH" mark what stays off the
// official documents. The blanks behind a bare "XXX" belong to the entry.
constexpr Vista metodi[] = {"AEP Ami e palangari",
                            "DRA Draghe",
                            "NET Nasse e trappole",
                            "RCR Reti da circuizione e reti da raccolta",
                            "RDI Reti da imbrocco e reti analoghe",
                            "RDT Reti da traino",
                            "SCI Sciabiche",
                            "XXX   ",
                            "XXX raccolta a mano",
                            "XXX raccolta con paletta e secchiello",
                            "XXX con teletrasporto"};

constexpr Vista pezzature[] = {
    "GRA Grande",          "MED Medio",           "PIC Piccolo",        "A01 (0,2-0,3kg)", "A02 (0,3-0,45kg)",
    "A03 (0,45-0,6kg)",    "A04 (0,6-0,8kg)",     "A05 (0,8-1,0kg)",    "A06 (1,0-1,5kg)", "A07 (1,5-2,0kg)",
    "A08 (1-2kg)",         "A09 (3-4kg)",         "A10 (4-5kg)",        "A11 (5-6kg)",     "XXX    ",
    "XXX personalizzata1", "XXX personalizzata2", "XXX personalizzata3"};

constexpr Vista stati[] = {"ALI Vivo",        "BOI Bollito", "CON Conserva",
                           "DEC Decongelato", "DRI Secco",   "FRE Fresco / Refrigerato",
                           "FRO Congelato",   "SAL Salato"};

constexpr Vista lavorazioni[] = {"XXX .",          "XXX Non Lavorato", "AFE Affettato",   "AFU Affumicato",
                                 "ALP Al pepe",    "ANE Anelli",       "ALI Ali",         "BAS Bastoncini",
                                 "BUR Burger",     "CAR Carpaccio",    "COD Coda",        "COT Cotolette",
                                 "CRO Crocchette", "DEC Decapitato",   "FIL Filone",      "FLT Filetto",
                                 "IMP Impanato",   "INT Intero",       "MEZ Mezzoguscio", "NER Nero",
                                 "PEZ Pezzi",      "PUL Pulito",       "RIT Ritagli",     "SGU Sgusciato",
                                 "SPI Spiedini",   "STR Strisce",      "TRA Trasformato"};

constexpr Vista presentazioni[] = {"OTH Altro",
                                   "CBF Filetto doppio di merluzzo bianco (eviscerato)",
                                   "CLA Chele",
                                   "DWT Codice ICCAT",
                                   "FIL Filetto",
                                   "FIS Filettato e filetti senza pelle",
                                   "FSB Filettato, con pelle e lische",
                                   "FSP Filettato, senza pelle, con lische sottili",
                                   "GHT Eviscerato, decapitato e senza coda",
                                   "GUG Eviscerato e senza branchie",
                                   "GUH Eviscerato e decapitato",
                                   "GUL Eviscerato, con il fegato",
                                   "GUS Eviscerato, decapitato e senza pelle",
                                   "GUT eviscerato",
                                   "HEA Decapitato",
                                   "JAP Taglio giapponese",
                                   "JAT Senza coda, taglio giapponese",
                                   "LAP Lappen",
                                   "LVR Fegato",
                                   "ROE Uova",
                                   "SAD Salato a secco",
                                   "SAL Leggermente salato in salamoia",
                                   "SGH Salato, eviscerato e decapitato",
                                   "SGT Salato, eviscerato",
                                   "SKI Senza pelle",
                                   "SUR Surimi",
                                   "TAL Coda",
                                   "TLD Senza coda",
                                   "TNG Lingua",
                                   "TUB Corpo unicamente",
                                   "WHL Intero",
                                   "WNG Pinne",
                                   "OTH Teste",
                                   "OTH Burro",
                                   "OTH Bianche",
                                   "OTH Bottarga",
                                   "OTH Ciuffi",
                                   "OTH Coscie",
                                   "OTH Ganasce",
                                   "OTH Tubi",
                                   "OTH Vaso",
                                   "OTH Sottolio",
                                   "OTH Bagnato",
                                   "OTH Precotto",
                                   "OTH Mantecato",
                                   "OTH Affumicato",
                                   "OTH Al pepe",
                                   "OTH Impanato",
                                   "OTH Hamburger"};

constexpr Vista barche[] = {".", ", Barca 1", ", Barca 2", ", Barca 3"};

constexpr Vista allergeni[] = {"-", "XXX Assenti", "XXX Presenti", "XXX PESCE - MOLLUSCHI - CROSTACEI",
                               "XXX Pesce - Molluschi - Crostacei"};

template <const auto& voci>
std::vector<Testo> Copia() {
  return {std::begin(voci), std::end(voci)};
}

std::vector<Testo> Provenienze() {
  std::vector<Testo> voci;
  for (const auto& riga : Righe_Incorporate("nazioni.tsv")) voci.push_back(riga.at(0) + ' ' + riga.at(1));
  return voci;
}

constexpr Lista_Codificata liste[] = {
    {nomi_file::Provenienze, Provenienze, &Programma::Vet_Provenienze},
    {nomi_file::Lavorazioni, Copia<lavorazioni>, &Programma::Vet_Lavorazioni},
    {nomi_file::Pezzature, Copia<pezzature>, &Programma::Vet_Pezzature},
    {nomi_file::Stati, Copia<stati>, &Programma::Vet_Stati},
    {nomi_file::Presentazioni, Copia<presentazioni>, &Programma::Vet_Presentazioni},
    {nomi_file::Metodi, Copia<metodi>, &Programma::Vet_Metodi},
    {nomi_file::Allergeni, Copia<allergeni>, &Programma::Vet_Allergeni},
    {nomi_file::Barche, Copia<barche>, &Programma::Vet_Barche}};

}  // namespace

std::span<const Lista_Codificata> Liste_Codificate() { return liste; }

TabellaLista<2> Seme_Zone() {
  TabellaLista<2> zone;
  for (const auto& riga : Righe_Incorporate("zone.tsv")) zone.push_back({riga.at(0), riga.at(1)});
  return zone;
}

TabellaLista<8> Seme_Specie() {
  const auto righe = Righe_Incorporate("specie.tsv");
  std::unordered_map<Testo, int> quante;
  for (const auto& riga : righe) ++quante[riga.at(2)];
  TabellaLista<8> elenco;
  for (const auto& riga : righe) {
    const Testo& codice = riga.at(0);
    const Testo& nome = riga.at(2);
    const Testo& latino = riga.at(3);
    // A species is found by its description, so two species of one trade name carry their Latin name as a
    // note in brackets, which a ledger row leaves out.
    const Testo descrizione = quante[nome] > 1 ? nome + " (" + latino + ")" : nome;
    const Testo numerico = std::to_string(Intero(codice, '.'));
    elenco.push_back({"10", descrizione, latino, riga.at(4), codice, nome, numerico, riga.at(1)});
  }
  return elenco;
}

TabellaLista<9> Seme_Clienti() {
  return {{"00000", "Cliente di esempio", "Esempio", "", "", "", "", "", ""}};
}

TabellaLista<3> Seme_Vettori() {
  return {{"Forserivo di Noso Sicuro", "via Setetrovo, 22", "Isola che non c'è"_t}};
}

TabellaLista<9> Seme_Fornitori() {
  return {{"0001", "Fornitore di esempio 1", "", "", "", "", "0", "", ""},
          {"0002", "Fornitore di esempio 2", "", "", "", "", "0", "", ""}};
}

Testo Riga_Fornitore_Predefinita() {
  return "0001\tPesca Esempio s.n.c.\tdi Esempio Mario & C.\tvia della Laguna, 1\t30100 Venezia - VE\t"
         "99010000000\t6.5\tppqq\r\n";
}

Testo Riga_Vettore_Predefinita() {
  return "Forserivo di Noso Sicuro\ttrasporti ittici\tvia Setetrovo, 22\t30100 Isola che non c'è\t99010370007\r\n"_t;
}
