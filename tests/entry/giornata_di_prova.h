#pragma once

#include "core/date.h"
#include "core/giorno.h"
#include "entry/edita.h"
#include "lists/liste.h"
#include "tests/core/ditta_di_prova.h"

// A case's name in the test lists: the field and the text, without characters that these lists can't hold.
inline std::string Nome_Caso(CampoRiga campo, Vista testo) {
  std::string nome = std::to_string(static_cast<int>(campo)) + " ";
  for (const char c : testo.substr(0, 40))
    nome += (c >= '0' && c <= '9') || (Minuscola(c) >= 'a' && Minuscola(c) <= 'z') ||
                    Vista(" ,.-").find(c) != Vista::npos
                ? c
                : '_';
  return nome + " " + std::to_string(testo.size());
}

// A firm with a few list entries, an open day and its entry screen. What the operator does goes the way of
// the window: the field's text is stored, then the change is told.
struct Giornata_Di_Prova : Ditta_Di_Prova {
  Edita edita;

  explicit Giornata_Di_Prova(char separatore = ',') {
    Apri_Giorno(separatore);
    std::filesystem::create_directories(programma.Cartella_Anno);
    const Testo commissione = separatore == ',' ? "6,5" : "6.5";
    programma.Vet_Fornitori = {{"0001", "Mare Blu", "", "", "", "", commissione, "MB", ""},
                               {"0002", "Marina Nord", "", "", "", "", "8", "", ""}};
    programma.Vet_Clienti = {{"00123", "Laguna Pesca", "zz", "", "", "", "-", "-", ""},
                             {"00124", "Trattoria Lido", "zz", "", "", "", "-", "-", ""},
                             {"00200", "Lagunare", "zz", "", "", "", "-", "-", ""}};
    programma.Vet_Specie = {
        {"10", "Orata (Grande)", "Sparus aurata", "Pesci", "ORA1", "Orata", "1001", "SBG"},
        {"22", "Seppia", "Sepia officinalis", "Molluschi", "SEP1", "Seppia comune", "1002", "CTC"}};
    programma.Vet_Zone = {{"A0837 - Mar Mediterraneo", "FAO n.37"},
                          {"A0327 - Mar Baltico", "FAO n.27 IIId"},
                          {"6 zona della casa", "-"},
                          {"A1161 - Pacifico nord-occidentale", "FAO n.61"},
                          {"B - Prodotto della pesca in acqua dolce", "Pesca in acqua dolce"}};
    programma.Vet_Provenienze = {"001 IT Laguna Venezia", "IT Italia", "HR Croazia"};
    programma.Vet_Metodi = {"AEP Ami e palangari", "RDT Reti da traino", "XXX   "};
    programma.Vet_Pezzature = {"GRA Grande", "MED Medio"};
    programma.Vet_Stati = {"ABC  SALATO", "SAL  PESCE", "FRE Fresco / Refrigerato"};
    programma.Vet_Lavorazioni = {"XXX Non Lavorato", "FIL Filone"};
    programma.Vet_Presentazioni = {"WHL Intero", "OTH Bottarga", "OTH Altro"};
    programma.Vet_Barche = {".", ", Barca 1"};
    programma.Vet_Esclusi = {"99999"};
    programma.Vet_Esclusi_Puliti = {"99999"};
    programma.Vet_Tabella.righe = {Riga_Segnaposto()};
  }

  void Apri() { Apri_Edita(programma, edita); }

  // A decimal text as this machine writes it.
  Testo N(Vista con_virgola) const {
    return programma.Separatore_Decimale == ',' ? Testo(con_virgola)
                                                : Sostituisci_Tutti(con_virgola, ",", ".");
  }

  static LedgerRow RigaBuona() {
    LedgerRow riga;
    riga[CampoRiga::Fornitore] = "Mare Blu";
    riga[CampoRiga::Cliente] = "Laguna Pesca";
    riga[CampoRiga::CodCliente] = "00123";
    riga[CampoRiga::Specie] = "Orata";
    riga[CampoRiga::ZonaP] = "A0837 - Mar Mediterraneo";
    riga[CampoRiga::Peso] = "10";
    riga[CampoRiga::Prezzo] = "5";
    riga[CampoRiga::Iva] = "10";
    riga[CampoRiga::Colli] = "3";
    riga[CampoRiga::CodSpecie] = "ORA1";
    riga[CampoRiga::Prov] = "001 IT Laguna Venezia";
    riga[CampoRiga::Lotti] = "MB250313";
    riga[CampoRiga::NomeLatino] = "Sparus aurata";
    riga[CampoRiga::Famiglia] = "Pesci";
    riga[CampoRiga::NomeComune] = "Orata";
    riga[CampoRiga::CodNumVeritas] = "1001";
    riga[CampoRiga::MetodoPesca] = "RDT Reti da traino";
    riga[CampoRiga::Alfa] = "SBG";
    riga[CampoRiga::Pezzatura] = "GRA Grande";
    riga[CampoRiga::StatoFisico] = "FRE Fresco / Refrigerato";
    riga[CampoRiga::Lavorazione] = "XXX Non Lavorato";
    riga[CampoRiga::Preparazione] = "WHL Intero";
    riga[CampoRiga::PrimoImb] = ", Barca 1";
    riga[CampoRiga::Allergeni] = "-";
    return riga;
  }

  // A row as the day holds it, with its entry number, for a day of several rows.
  LedgerRow RigaDelGiorno(int n, Vista cliente, Vista codice, Vista ddt = "") const {
    LedgerRow riga = RigaBuona();
    riga[CampoRiga::Num] = std::string(n < 10 ? "000" : "00") + std::to_string(n);
    riga[CampoRiga::Cliente] = cliente;
    riga[CampoRiga::CodCliente] = codice;
    riga[CampoRiga::DDT] = ddt;
    riga[CampoRiga::NCV] = "-";
    riga[CampoRiga::DDT_CV] = "-";
    return riga;
  }

  Testo& operator[](CampoRiga campo) { return Campo(edita, campo).testo; }

  // Everything a good row needs stands in the fields, without a key pressed yet.
  void RiempiCampi(const LedgerRow& riga = RigaBuona()) {
    for (std::size_t i = 1; i < edita.Text1.size(); ++i) edita.Text1[i].testo = riga.campi[i];
  }
  void Scrivi(CampoRiga campo, Vista testo) {
    Campo(edita, campo).testo = testo;
    CambiaCampo(programma, edita, Indice(campo));
  }
  // Fields filled and the last key typed, so that the commands are enabled.
  void Compila(const LedgerRow& riga = RigaBuona()) {
    RiempiCampi(riga);
    edita.Aggiungi.attivo = edita.Modifica.attivo = edita.Elimina.attivo = true;
  }
  bool Premi(CampoRiga campo, Tasto tasto) {
    return TastoCampo(programma, edita, Indice(campo), {.tasto = tasto});
  }
  bool PremiSchermo(Tasto tasto) { return TastoSchermo(programma, edita, {.tasto = tasto}); }
  void Segna(int casella, bool si = true) {
    edita.Check[static_cast<std::size_t>(casella)].segnata = si;
    CambiaSpunta(programma, edita, casella);
  }
  // The field that was asked to take the focus since the last look; 0 for none.
  int Fuoco() {
    const int campo = edita.fuoco == Edita::nessun_fuoco ? 0 : edita.fuoco + 1;
    edita.fuoco = Edita::nessun_fuoco;
    return campo;
  }
  std::vector<Testo> Lista() const {
    std::vector<Testo> righe;
    for (std::size_t i = 0; i < edita.List1.Numero(); ++i) righe.push_back(edita.List1.Riga(i));
    return righe;
  }
  LedgerRow& Riga(int n) { return programma.Vet_Tabella.Riga(n); }
  Testo Titolo() const { return edita.titolo; }
  Vista Luce() const { return Parola(edita.SemaforoRiga); }
};

// A day of two rows, the fields of a good row typed.
struct Giorno_Di_Due : Giornata_Di_Prova {
  Giorno_Di_Due() {
    programma.Vet_Tabella.righe = {RigaDelGiorno(1, "Trattoria Lido", "00124", "001"),
                                   RigaDelGiorno(2, "Lagunare", "00200", "002")};
    Apri();
    Compila();
    Fuoco();
  }
  void Aggiunge() { Aggiungi(programma, edita); }
  void Modifica_Riga() { Modifica(programma, edita); }
};
