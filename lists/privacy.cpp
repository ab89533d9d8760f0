#include "lists/privacy.h"

#include "printing/pagina.h"

namespace {

constexpr Vista carattere = "Arial";
constexpr float punti = 10;
// millimetres
constexpr float x_destinatario = 105, y_destinatario = 55, passo_destinatario = 5;
constexpr float x_lettera = 10, y_lettera = 90, passo_lettera = 4;
constexpr float alto_pagine_seguenti = 20, margine_basso = 15;

void Stampa_Destinatario(Printer& printer, const Destinatario& destinatario) {
  float y = y_destinatario;
  for (std::size_t i = 0; i < destinatario.size(); ++i) {
    if (i == 1 && Pulito(destinatario[i]).empty()) continue;  // the lines below move up
    const Testo riga = i == 0 ? "Spett.le " + destinatario[i] : destinatario[i];
    StampaTesto(printer, x_destinatario, y, riga, carattere, punti, true);
    y += passo_destinatario;
  }
}

}  // namespace

std::optional<std::vector<Testo>> CaricaPrivacy(Programma& programma) {
  const Percorso file = Unisci_Percorso(programma.Cartella_Dati, File_Privacy);
  Piattaforma& piattaforma = programma.piattaforma;
  int errore = 0;
  const auto contenuto = programma.disco.Leggi_Testo(file, &errore);
  if (!contenuto && programma.disco.Esiste_File(file)) {
    piattaforma.Messaggio(Testo_Percorso(file) + "\nnon si legge: " + Testo_Errore(errore));
    return std::nullopt;
  }
  if (!contenuto) {
    piattaforma.Messaggio(Testo_Percorso(file) + " non trovato...abort");
    return std::nullopt;
  }
  if (Pulito(*contenuto).empty()) {
    piattaforma.Messaggio(Testo_Percorso(file) + "\nè vuoto...manca il testo della lettera"_t);
    return std::nullopt;
  }
  const std::vector<Vista> righe = Righe(*contenuto);
  return std::vector<Testo>(righe.begin(), righe.end());
}

void StampaPrivacy(Programma& programma, const std::vector<Testo>& lettera, const Destinatario& destinatario,
                   Vista codice) {
  Printer& printer = Dispositivo(programma);
  printer.documento = {Testo_Data(programma.Oggi, "yyyymmdd"), "Privacy", "", Testo(codice)};
  PreparaPagina(programma);
  printer.FontName = carattere;
  Stampa_Destinatario(printer, destinatario);
  float y = y_lettera;
  for (const Testo& riga : lettera) {
    if (y + passo_lettera > printer.ScaleHeight() - margine_basso) {
      printer.NewPage();
      y = alto_pagine_seguenti;
    }
    StampaTesto(printer, x_lettera, y, riga, carattere, punti, false);
    y += passo_lettera;
  }
  printer.Print("");
  printer.EndDoc();
}
