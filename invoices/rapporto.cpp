#include "invoices/rapporto.h"

#include "core/numeri.h"

namespace {

constexpr std::size_t larghezza_euro = 10;

Testo Euro(double centesimi, char separatore) {
  return Pad_Sinistra(Formato(0.01 * centesimi, "#0.00", separatore), larghezza_euro);
}

void Riga(Testo& testo, const Testo& riga) { testo.append(riga).append(FINE_RIGA); }

// The lines of the report for that kind, each with its end.
Testo TestoReport(const Programma& programma, TipoFattura tipo, const Tabella_Run& run) {
  const bool fatture = tipo == TipoFattura::Fattura;
  const char separatore = programma.Separatore_Decimale;
  const Testo quanti = std::to_string(run.righe.size());
  // Invoices stand between lines of one blank, notes between empty ones.
  const Testo spazio = fatture ? " " : "";
  Testo testo;
  Riga(testo, spazio);
  if (fatture) {
    Riga(testo, "Report Fatture emesse il " + programma.Data_Giorno + " da: " + programma.Ragione[0]);
    Riga(testo, "numero Fatture emesse = " + quanti);
  } else {
    Riga(testo, "Note di credito");
    Riga(testo, "numero Note di credito = " + quanti);
  }
  Riga(testo, spazio);
  for (const Riga_Run& riga : run.righe)
    Riga(testo, (fatture ? "Fat n." : "Nac n.") + riga.numero + " a: " + riga.codice + " per euro " +
                    Euro(Valore(riga.centesimi, separatore), separatore));
  Riga(testo, "*************** Totale euro = " + Euro(run.somma, separatore));
  return testo;
}

}  // namespace

std::optional<Tabella_Run> LeggiDocumenti(const Programma& programma, TipoFattura tipo,
                                          const Avanzamento& avanzamento, int* errore) {
  if (avanzamento) avanzamento("Selezione documenti....");
  Tabella_Run run;
  const auto nomi = programma.disco.Elenca(CartellaGiornoFatture(programma), ModelloDocumenti(tipo), errore);
  if (!nomi) return std::nullopt;
  for (const Percorso& file : *nomi) {
    const Testo nome = Testo_Percorso(file);
    const Dati_Nome dati = LeggiNome(nome);
    if (run.data.empty()) {
      run.data = dati.data;
      run.ditta = dati.ditta;
    }
    if (dati.pagina == "1")
      run.righe.push_back(
          {dati.codice, dati.numero, dati.data, dati.ditta, dati.centesimi, dati.pagina, nome});
  }
  if (run.righe.empty() && !nomi->empty()) run.righe.emplace_back();
  for (const Riga_Run& riga : run.righe) run.somma += Valore(riga.centesimi, programma.Separatore_Decimale);
  return run;
}

Percorso PercorsoReport(const Programma& programma) {
  return Unisci_Percorso(
      CartellaReport(programma),
      In_Nome_File(programma.Data_AAAAMMGG + "_" +
                   CinqueCaratteri(programma.preferenze.Codice_Commissionario) + "_RepFat.txt"));
}

Esito_File ScriviReport(const Programma& programma, TipoFattura tipo, const Avanzamento& avanzamento) {
  const Percorso file = PercorsoReport(programma);
  const Percorso cartella = CartellaReport(programma);
  if (const int errore = programma.disco.Crea_Cartella(cartella)) return {errore, cartella, true};
  int errore = 0;
  const auto run = LeggiDocumenti(programma, tipo, avanzamento, &errore);
  if (!run) return {errore, CartellaGiornoFatture(programma), true};
  const Testo testo = TestoReport(programma, tipo, *run);
  errore = tipo == TipoFattura::Fattura ? programma.disco.Sostituisci(file, testo)
                                        : programma.disco.Aggiungi(file, testo);
  return {errore, file, true};
}
