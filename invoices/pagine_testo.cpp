#include "invoices/pagine_testo.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

constexpr std::size_t larghezza = 130;             // of the page
constexpr std::size_t colonna_pagina = 123;        // where the page's number stands
constexpr std::size_t sinistra = 65, destra = 63;  // of the two columns of the head
constexpr std::array<std::size_t, 7> colonne_voci = {34, 34, 29, 9, 9, 6, 9};
constexpr std::array<std::size_t, 8> colonne_totali = {17, 10, 17, 10, 17, 10, 20, 30};
constexpr Vista bordo = "| ";
constexpr Vista legenda = "(*) Vedi Legenda CE sulla identificazione del pesce. Reg. CE Nr. 104/2000 art. 4";
constexpr Vista legenda_codici =
    "(**) Vedi Legenda Codici: Attrezzo, Pezzatura, StatoFisico, Lavorazione, Preparazione";
constexpr std::array<int, 3> ordine_aliquote = {2, 0, 1};  // third, first, second
constexpr std::size_t consolida_in_pagina = 20;            // characters of the codes that fit their column

Testo Tratteggio() { return Testo(larghezza + 1, '-') + " "; }

Testo Due_Colonne(Vista a, Vista b) { return Testo(bordo) + Pad(a, sinistra) + "|" + Pad(b, destra) + "|"; }

Testo Riga_Vuota_Tabella() { return Testo(bordo) + Testo(larghezza - 1, ' ') + "|"; }

// A field of an item: its text is cut so that a blank always parts it from the next one.
Testo Campo_Voce(Vista testo, std::size_t largo) { return Pad(Sinistra(testo, largo - 1), largo); }

Testo Riga_Voce(const std::array<Testo, 7>& campi) {
  Testo riga = Testo(bordo) + Campo_Voce(campi[0], colonne_voci[0] - bordo.size());
  for (std::size_t i = 1; i < campi.size(); ++i) riga += Campo_Voce(campi[i], colonne_voci[i]);
  return riga + " |";
}

// A total: never cut, money least of all; what is too wide moves what follows to the right.
Testo Campo_Totale(Vista testo, std::size_t largo) {
  return testo.size() < largo ? Pad(testo, largo) : Testo(testo) + " ";
}

Testo Riga_Totali(const std::array<Testo, 8>& campi) {
  Testo riga = Testo(bordo) + Campo_Totale(campi[0], colonne_totali[0] - bordo.size());
  for (std::size_t i = 1; i < campi.size(); ++i) riga += Campo_Totale(campi[i], colonne_totali[i]);
  return riga + "|";
}

// All that goes through the pages of one document.
struct Stesura {
  const Programma& programma;
  const Documento_Fattura& documento;
  char separatore = programma.Separatore_Decimale;
  bool esteso = programma.preferenze.Flag_fatture_Esteso;
  int voci = static_cast<int>(documento.voci.size());
  int pagine = Pagine_Di(voci, Voci_Per_Pagina);

  Testo Importo(double valore) const { return Euro2_Migliaia(valore, separatore); }

  Testo Riga_Titolo(int pagina) const {
    const bool fattura = documento.tipo == TipoFattura::Fattura;
    Testo riga = Testo(10, ' ') + " MERCATO ITTICO ALL'INGROSSO" +
                 (fattura ? "FATTURA N." : "NOTA di CREDITO N.") + documento.Numero + " del  " +
                 documento.Data + " ";
    if (!documento.RifDocumento.empty()) riga += "Rif. Doc. " + documento.RifDocumento;
    if (riga.size() < colonna_pagina) riga.resize(colonna_pagina, ' ');
    return riga + "pag. " + std::to_string(pagina) + "/" + std::to_string(pagine);
  }

  void Testata(Pagina_Testo& righe, int pagina) const {
    const auto& ragione = programma.Ragione;
    const Cliente_Fattura& cliente = documento.cliente;
    righe.push_back(Pad_Sinistra(cliente.Codice, larghezza));
    righe.push_back(Riga_Titolo(pagina));
    righe.emplace_back("                  di VENEZIA");
    righe.emplace_back("   (CEE N. 940)");
    righe.push_back(Tratteggio());
    const Testo mittente = ragione[6] + "   " + programma.preferenze.Codice_Commissionario;
    const std::pair<Testo, Testo> colonne[] = {{"MITTENTE:", "DESTINATARIO:"},
                                               {"", ""},
                                               {ragione[0] + " " + ragione[1], "Spett.le Ditta"},
                                               {ragione[3], cliente.Nome},
                                               {ragione[4], cliente.Indirizzo},
                                               {mittente, cliente.Citta},
                                               {"", "PART. IVA " + cliente.PIva},
                                               {"", "cod. " + cliente.Codice},
                                               {"", ""}};
    for (const auto& [a, b] : colonne) righe.push_back(Due_Colonne(a, b));
    righe.push_back(Tratteggio());
    righe.push_back(Tratteggio());
    righe.push_back(Riga_Voce({" PRODOTTO", esteso ? "ZONA (*) (**)" : "ZONA (*)", "LOTTO", "Pesokg.",
                               "Prezzo", "IVA%", "Importo"}));
    righe.push_back(Tratteggio());
  }

  void Voce(Pagina_Testo& righe, const Voce_Documento& voce) const {
    righe.push_back(
        Riga_Voce({voce.Voce, voce.ZonaRiga, voce.Lotto, Importo(voce.PesoRiga), Importo(voce.PrezzoRiga),
                   Formato(voce.IvaRiga, "00", separatore) + "%", Importo(voce.Importo)}));
    Testo codici, dopo_asterisco;
    if (esteso) {
      codici = Sinistra(voce.Consolida, consolida_in_pagina);
      const std::size_t asterisco = voce.Consolida.find('*');
      if (asterisco != Testo::npos) dopo_asterisco = voce.Consolida.substr(asterisco + 1);
    }
    righe.push_back(Riga_Voce({"", voce.Latino + "  ", codici, dopo_asterisco, "", "", ""}));
  }

  void Totali(Pagina_Testo& righe) const {
    const Importi& importi = documento.importi;
    std::array<Testo, 8> titoli, valori;
    std::size_t posto = 0;
    for (const int aliquota : ordine_aliquote) {
      const auto i = static_cast<std::size_t>(aliquota);
      const Testo percento = Piano(importi.Aliquota[i], separatore);
      titoli[posto] = "IMPONIBILE" + percento;
      valori[posto++] = Importo(importi.Imponibile[i]);
      titoli[posto] = "IVA" + percento + "%";
      valori[posto++] = Importo(importi.Iva[i]);
    }
    titoli[6] = "ESENTE";
    valori[6] = "0.00";
    titoli[7] = "T O T A L E";
    valori[7] = Importo(importi.TotaleDocumento) + " Euro";
    righe.push_back(Riga_Totali(titoli));
    righe.push_back(Riga_Totali(valori));
  }

  void Fine(Pagina_Testo& righe, bool ultima) const {
    if (ultima) {
      const int vuote = (Voci_Per_Pagina * pagine - voci - 1) * 2;
      for (int i = 0; i < vuote; ++i) righe.push_back(Riga_Vuota_Tabella());
      Totali(righe);
    } else {
      righe.push_back(Testo(bordo) + "Continua ...");
      righe.push_back(Tratteggio());
    }
    righe.push_back(Tratteggio());
    righe.emplace_back(legenda);
    righe.emplace_back(esteso ? legenda_codici : "");
  }

  Pagina_Testo Pagina(int pagina) const {
    Pagina_Testo righe;
    Testata(righe, pagina);
    const int prima = (pagina - 1) * Voci_Per_Pagina;
    for (int i = prima; i < std::min(voci, prima + Voci_Per_Pagina); ++i)
      Voce(righe, documento.voci[static_cast<std::size_t>(i)]);
    Fine(righe, pagina == pagine);
    return righe;
  }
};

Testo Contenuto(const Pagina_Testo& pagina) {
  Testo contenuto;
  for (const Testo& riga : pagina) contenuto.append(riga).append(FINE_RIGA);
  return contenuto;
}

// ---- on paper, in twips

constexpr Vista carattere = "Courier";
constexpr float corpo_grande = 10, corpo_piccolo = 7;
constexpr std::size_t righe_per_meta = 52;  // as many as half a sheet holds
constexpr float margine = 10;

// The pages of the document whose first page is `nome`.
std::vector<Percorso> File_Delle_Pagine(const Percorso& nome) {
  std::vector<Percorso> file;
  const Testo primo = Nome_File(nome);
  const int pagine = PagineDelNome(primo);
  for (int pagina = 1; pagina <= pagine; ++pagina)
    file.push_back(Unisci_Percorso(nome.parent_path(), NomePagina(Testo(primo), pagine, pagina)));
  return file;
}

void Prepara_Carattere(Printer& printer, float corpo) {
  printer.FontBold = false;
  printer.FontItalic = false;
  printer.ScaleMode(Scala_Twip);
  printer.CurrentX = margine;
  printer.CurrentY = margine;
  printer.FontName = carattere;
  printer.Print(" ");
  printer.FontSize = corpo;
}

// A page from the given height down. A whole sheet's lines stand a little closer when they wouldn't all fit,
// so that the totals of a full page aren't lost.
void Disegna_Pagina(Printer& printer, Vista contenuto, float inizio, bool intera) {
  std::vector<Vista> righe = Righe(contenuto);
  if (!intera && righe.size() > righe_per_meta) righe.resize(righe_per_meta);
  float passo = printer.TextHeight("A");
  if (intera) passo = std::min(passo, printer.ScaleHeight() / static_cast<float>(righe.size() + 1));
  float y = inizio;
  for (const Vista riga : righe) {
    y += passo;
    printer.CurrentX = margine;
    printer.CurrentY = y;
    printer.Print(riga);
  }
}

// A page's file, and whether it is the first or the last one of its document.
struct Pagina_Da_Stampare {
  Percorso file;
  bool prima = false, ultima = false;
};

std::vector<Pagina_Da_Stampare> Pagine_Da_Stampare(const std::vector<Percorso>& nomi) {
  std::vector<Pagina_Da_Stampare> pagine;
  for (const Percorso& nome : nomi) {
    const auto file = File_Delle_Pagine(nome);
    for (std::size_t i = 0; i < file.size(); ++i) pagine.push_back({file[i], i == 0, i + 1 == file.size()});
  }
  return pagine;
}

std::optional<Testo> Rileggi(const Programma& programma, const Percorso& file, Pagine_Mancate& mancate) {
  int errore = 0;
  auto contenuto = programma.disco.Leggi_Testo(file, &errore);
  if (!contenuto) mancate.push_back({errore, file, true});
  return contenuto;
}

void Nomina(Printer& printer, const Percorso& file, TipoFattura tipo) {
  const Dati_Nome dati = LeggiNome(Nome_File(file));
  printer.documento = {dati.data, Testo(GenereDocumento(tipo)), dati.numero, dati.codice};
}

}  // namespace

Vista GenereDocumento(TipoFattura tipo) {
  return tipo == TipoFattura::Fattura ? "Fattura" : "Nota di Accredito";
}

std::vector<Pagina_Testo> ComponiPagineTesto(const Programma& programma, const Documento_Fattura& documento,
                                             const Avanzamento& avanzamento) {
  const Stesura stesura{programma, documento};
  std::vector<Pagina_Testo> pagine;
  for (int pagina = 1; pagina <= stesura.pagine; ++pagina) {
    if (avanzamento) avanzamento(Pagina_In_Corso(documento.codice, pagina, stesura.pagine));
    pagine.push_back(stesura.Pagina(pagina));
  }
  return pagine;
}

std::vector<File_Documento> PagineDocumento(const Programma& programma, const Documento_Fattura& documento,
                                            const Avanzamento& avanzamento) {
  const Testo nome = NomeDocumento(programma, documento);
  std::vector<File_Documento> file;
  const auto pagine = ComponiPagineTesto(programma, documento, avanzamento);
  for (std::size_t i = 0; i < pagine.size(); ++i)
    file.push_back(
        {NomePagina(nome, static_cast<int>(pagine.size()), static_cast<int>(i) + 1), Contenuto(pagine[i])});
  return file;
}

Esito_File ScriviPagineTesto(const Programma& programma, const Percorso& cartella,
                             const std::vector<File_Documento>& pagine) {
  for (const File_Documento& pagina : pagine) {
    const Percorso file = Unisci_Percorso(cartella, pagina.nome);
    if (const int errore = programma.disco.Sostituisci(file, pagina.contenuto)) return {errore, file, true};
  }
  return {};
}

Pagine_Mancate StampaFileTesto(const Programma& programma, const Percorso& nome, TipoFattura tipo) {
  Printer& printer = Dispositivo(programma);
  Pagine_Mancate mancate;
  for (const Percorso& file : File_Delle_Pagine(nome)) {
    const auto contenuto = Rileggi(programma, file, mancate);
    if (!contenuto) continue;
    Nomina(printer, file, tipo);
    Prepara_Carattere(printer, corpo_grande);
    Disegna_Pagina(printer, *contenuto, 0, true);
    printer.EndDoc();
  }
  return mancate;
}

Pagine_Mancate StampaDuePerFoglio(const Programma& programma, const std::vector<Percorso>& nomi,
                                  TipoFattura tipo, Corsa& corsa) {
  const std::vector<Pagina_Da_Stampare> pagine = Pagine_Da_Stampare(nomi);
  Printer& printer = Dispositivo(programma);
  Pagine_Mancate mancate;
  bool foglio_vuoto = true;
  for (std::size_t i = 0; i < pagine.size(); ++i) {
    const bool sotto = i % 2 == 1;
    if (!sotto && pagine[i].prima && !corsa.Avanti()) break;
    if (!sotto) {
      printer.Orientation(Verticale);
      Due_Pause(programma);
      foglio_vuoto = true;
    }
    if (const auto contenuto = Rileggi(programma, pagine[i].file, mancate)) {
      if (std::exchange(foglio_vuoto, false)) Nomina(printer, pagine[i].file, tipo);
      Prepara_Carattere(printer, corpo_piccolo);
      Disegna_Pagina(printer, *contenuto, sotto ? static_cast<float>(printer.Height()) / 2 : 0, false);
    }
    if (sotto || i + 1 == pagine.size()) printer.EndDoc();
    if (pagine[i].ultima) corsa.Fatta();
  }
  return mancate;
}
