#include "invoices/transazioni.h"

#include <cerrno>

#include "core/numeri.h"
#include "invoices/record.h"

namespace {

constexpr std::size_t cifre_ditta = 10, cifre_importo = 15, cifre_numero = 18, cifre_cliente = 5;
constexpr std::size_t lunghezza_testo = 140, lunghezza_data = 8;
constexpr Vista mercato = "ITTIVE";

Testo Ditta(const Programma& programma) {
  return CodiceRecord(programma.preferenze.Codice_Commissionario, cifre_ditta);
}

Testo Giorno(const Programma& programma) { return Pad(programma.Data_GGMMAAAA, lunghezza_data); }

Testo TestoTransazioni(const Programma& programma, Vista cliente, const Tabella_Run& fatture,
                       const Tabella_Run& note) {
  Testo testo = RecordTesta(programma) + Testo(FINE_RIGA);
  for (const Riga_Run& riga : fatture.righe)
    testo.append(RecordDettaglio(programma, TipoFattura::Fattura, cliente, riga)).append(FINE_RIGA);
  for (const Riga_Run& riga : note.righe)
    testo.append(RecordDettaglio(programma, TipoFattura::Nota, cliente, riga)).append(FINE_RIGA);
  return testo.append(RecordCoda(programma, fatture, note)).append(FINE_RIGA);
}

}  // namespace

Percorso FileTransazioni(const Programma& programma) {
  return Unisci_Percorso(
      CartellaTransazioni(programma),
      In_Nome_File("Transazioni_" + CinqueCaratteri(programma.preferenze.Codice_Commissionario) + "_" +
                   programma.Data_AAAAMMGG + ".txt"));
}

Testo RecordTesta(const Programma& programma) {
  return Pad("00" + Giorno(programma) + "    " + Testo(mercato) + Ditta(programma), lunghezza_testa);
}

Testo RecordDettaglio(const Programma& programma, TipoFattura tipo, Vista cliente, const Riga_Run& riga) {
  const char separatore = programma.Separatore_Decimale;
  const bool fattura = tipo == TipoFattura::Fattura;
  const Testo testo =
      (fattura ? "FAT n. " : "NAC n. ") + riga.numero + "/" + programma.Anno_Lavoro + " per " + riga.codice;
  return Pad((fattura ? "10" : "20") + Testo("00000") + CodiceRecord(cliente, cifre_cliente) +
                 NumeroRecord(Valore(riga.centesimi, separatore), cifre_importo, separatore) +
                 Ditta(programma) + Pad_Sinistra(testo, lunghezza_testo),
             lunghezza_dettaglio);
}

Testo RecordCoda(const Programma& programma, const Tabella_Run& fatture, const Tabella_Run& note) {
  const char separatore = programma.Separatore_Decimale;
  const auto quanti = static_cast<double>(fatture.righe.size() + note.righe.size());
  return Pad("99" + Giorno(programma) + NumeroRecord(quanti, cifre_numero, separatore) +
                 NumeroRecord((fatture.somma + note.somma) * 100, cifre_importo, separatore),
             lunghezza_testa);
}

Esito_File ScriviTransazioni(const Programma& programma, Vista cliente, const Avanzamento& avanzamento) {
  const Percorso cartella = CartellaTransazioni(programma);
  if (const int errore = programma.disco.Crea_Cartella(cartella)) return {errore, cartella, true};
  int errore = 0;
  const auto fatture = LeggiDocumenti(programma, TipoFattura::Fattura, avanzamento, &errore);
  if (!fatture) return {errore, CartellaGiornoFatture(programma), true};
  const auto note = LeggiDocumenti(programma, TipoFattura::Nota, avanzamento, &errore);
  if (!note) return {errore, CartellaGiornoFatture(programma), true};
  const Percorso file = FileTransazioni(programma);
  return {programma.disco.Sostituisci(file, TestoTransazioni(programma, cliente, *fatture, *note)), file,
          true};
}

Esito_File CancellaAltreTransazioni(const Programma& programma) {
  Esito_File esito;
  const Percorso cartella = CartellaTransazioni(programma);
  if (programma.disco.E_Collegamento(cartella)) return {ELOOP, cartella, true};
  const Testo nostro = Testo_Percorso(FileTransazioni(programma).filename());
  int illeggibile = 0;
  const auto nomi = programma.disco.Elenca(cartella, ModelloTutti, &illeggibile);
  if (!nomi) return {illeggibile, cartella, true};
  for (const Percorso& nome : *nomi) {
    if (Uguali(Testo_Percorso(nome), nostro)) continue;
    const int errore = programma.disco.Cancella(cartella / nome);
    if (errore != 0 && esito.errore == 0) esito = {errore, cartella / nome, true};
  }
  return esito;
}
