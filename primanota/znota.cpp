#include "primanota/znota.h"

#include <algorithm>
#include <utility>

#include "core/corsa.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/aiuto_esportazione.h"
#include "primanota/esporta.h"
#include "primanota/nota.h"
#include "primanota/stampa_nota.h"
#include "printing/pagina.h"

namespace {

constexpr Vista tutto = "TUTTO";
constexpr Vista in_stampa = "Prima Nota in stampa : ";

// A command runs or asks.
auto Ferma(const Programma& programma, Znota& znota) {
  return Schermo_Fermo(znota, [&programma, &znota] { AggiornaComandi(programma, znota); });
}

Testo Titolo(const Programma& programma, const Znota& znota) {
  return "Stampa Prima Nota del " + programma.Data_Giorno +
         (znota.Ordina_Specie.segnata ? " Ordinata per Specie" : " Ordinata per Immissione");
}

void Mostra_Avanzamento(const Programma& programma, Znota& znota, Vista testo) {
  znota.titolo = testo;
  programma.piattaforma.Ridipingi();
}

void Prepara_Controlli(const Programma& programma, Znota& znota) {
  const Preferenze& preferenze = programma.preferenze;
  znota.Text1[1].attivo = false;
  znota.Destinatario.testo = "La Prima Nota deve essere inviata a\na chi le redige fatture";
  znota.Copie.Riempi(Voci_Copie());
  znota.Copie.scelta = 0;
  znota.Tutte_Le_Note.didascalia = "Stampa Tutte le Note (F4)";
  znota.Unico_Documento.didascalia = "Stampa Tutte in un unico documento";
  znota.Unico_Documento.suggerimento = "utile per fare un unico documento pdf";
  znota.Scrivi_Totale.didascalia = "Scrivi ImportoTotale";
  znota.Ordina_Specie.didascalia = "Ordina per Specie (altrimenti per immissione)";
  znota.Limita_Zona.didascalia = "Limita la Zona di pesca A ai primi 5 caratteri (6 per Mediterraneo)";
  znota.Tante_NA.didascalia = "Tante NA";
  znota.Tante_NA.suggerimento = "se ci sono tante note di accredito...";
  znota.Tutte_Le_Note.segnata = preferenze.FlagC1pn;
  znota.Unico_Documento.segnata = preferenze.FlagC2pn;
  znota.Scrivi_Totale.segnata = preferenze.FlagC4pn;
  znota.Ordina_Specie.segnata = preferenze.FlagOrdina1;
  znota.Limita_Zona.segnata = preferenze.FlagZ5;
  znota.Stampa_Nota.testo = "Stampa Nota (F2)";
  znota.Esporta_Nota.testo = "F6 - Esport Prima Nota con codici FAO";
  znota.Chiudi.testo = "&Chiudi";
  znota.Scelta_Stampante.testo = "Stampante";
  znota.Aiuto_Esportazione.testo = "Help";
}

void Riempi_Esclusi(const Programma& programma, Znota& znota) {
  znota.esclusi = ClientiEsclusi(programma);
  znota.MenuEsclusi.testo = "Esclusi=" + std::to_string(znota.esclusi.size());
  znota.Caption_ListaEsclusi.testo = "Lista Clienti Esclusi";
  std::vector<Testo> righe;
  for (const Cliente_Lasciato& escluso : znota.esclusi) righe.push_back(escluso.Codice + "  " + escluso.Nome);
  znota.ListaEsclusi.Riempi(std::move(righe));
  znota.ListaEsclusi.visibile = znota.Caption_ListaEsclusi.visibile = false;
  for (const Cliente_Lasciato& escluso : znota.esclusi)
    programma.piattaforma.Messaggio(escluso.Nome + " è escluso"_t);
}

void Riempi_Note(const Programma& programma, Znota& znota) {
  znota.note = NoteDelGiorno(RigheDelGiorno(programma.Vet_Tabella), programma.preferenze.FlagC3pn);
  std::vector<Testo> righe;
  righe.reserve(znota.note.size());
  for (const Nota& nota : znota.note) righe.push_back(VoceNota(nota));
  znota.ListaNote.Riempi(std::move(righe));
  znota.ListaNote.scelta = -1;
}

// The note of the selected line; null without one.
const Nota* Nota_Scelta(const Znota& znota) {
  const int scelta = znota.ListaNote.scelta;
  if (scelta < 0 || scelta >= static_cast<int>(znota.note.size())) return nullptr;
  return &znota.note[static_cast<std::size_t>(scelta)];
}

int Numero_Copie(const Programma& programma, const Znota& znota) {
  return std::max(1, Intero(Sinistra(znota.Copie.Scelta(), 1), programma.Separatore_Decimale));
}

// The day without the customers that are left out; each of whom there was a row is told.
void Prepara_Righe(const Programma& programma, Znota& znota) {
  std::vector<Cliente_Lasciato> trovati;
  znota.Vet_Nota = SenzaEsclusi(RigheDelGiorno(programma.Vet_Tabella), znota.esclusi, &trovati);
  for (const Cliente_Lasciato& escluso : trovati) programma.piattaforma.Messaggio("trovato " + escluso.Nome);
}

// One document, and counted in the run; without a row there is none.
void Stampa_Una(Programma& programma, Znota& znota, Corsa& corsa, const std::vector<LedgerRow>& righe,
                Vista chiave) {
  StampaNota(programma, znota, righe, chiave);
  if (!righe.empty()) corsa.Fatta();
}

void Stampa_Tutto(Programma& programma, Znota& znota, Corsa& corsa) {
  znota.Text1[1].testo = "Tutto...";
  OrdinaNota(znota.Vet_Nota, znota.Ordina_Specie.segnata);
  for (int copia = Numero_Copie(programma, znota); copia > 0 && corsa.Avanti(); --copia)
    Stampa_Una(programma, znota, corsa, znota.Vet_Nota, tutto);
}

void Stampa_Nota_Selezionata(Programma& programma, Znota& znota, Corsa& corsa) {
  const Nota* nota = Nota_Scelta(znota);
  if (nota == nullptr) return;
  Mostra_Avanzamento(programma, znota, "Eleborazione in corso ... ");
  std::vector<LedgerRow> righe = RigheDellaNota(znota.Vet_Nota, *nota, programma.preferenze.FlagC3pn);
  OrdinaNota(righe, znota.Ordina_Specie.segnata);
  Stampa_Una(programma, znota, corsa, righe, "");
}

void Stampa_Tutte(Programma& programma, Znota& znota, Corsa& corsa) {
  for (int copia = Numero_Copie(programma, znota); copia > 0; --copia) {
    for (std::size_t i = 0; i < znota.note.size() && corsa.Avanti(); ++i) {
      znota.ListaNote.scelta = static_cast<int>(i);
      SceltaNota(znota);
      Stampa_Nota_Selezionata(programma, znota, corsa);
    }
  }
}

void Stampa_Scelta(Programma& programma, Znota& znota, Corsa& corsa) {
  if (Nota_Scelta(znota) == nullptr) {
    programma.piattaforma.Messaggio("Scegliere un cliente sulla lista e ridare il comando");
    return;
  }
  for (int copia = Numero_Copie(programma, znota); copia > 0 && corsa.Avanti(); --copia)
    Stampa_Nota_Selezionata(programma, znota, corsa);
}

bool Una_Per_Nota(const Znota& znota) {
  return znota.Tutte_Le_Note.segnata && !znota.Unico_Documento.segnata;
}

}  // namespace

void ApriNote(Programma& programma, Znota& znota) {
  Prepara_Controlli(programma, znota);
  Riempi_Esclusi(programma, znota);
  Riempi_Note(programma, znota);
  znota.titolo = Titolo(programma, znota);
  SceltaNota(znota);
  AggiornaComandi(programma, znota);
}

void AggiornaComandi(const Programma& programma, Znota& znota) {
  Controllo* const comandi[] = {&znota.ListaNote,
                                &znota.Copie,
                                &znota.Tutte_Le_Note,
                                &znota.Unico_Documento,
                                &znota.Scrivi_Totale,
                                &znota.Ordina_Specie,
                                &znota.Limita_Zona,
                                &znota.Tante_NA,
                                &znota.Stampa_Nota,
                                &znota.Esporta_Nota,
                                &znota.Chiudi,
                                &znota.MenuEsclusi,
                                &znota.ListaEsclusi,
                                &znota.Scelta_Stampante,
                                &znota.Aiuto_Esportazione};
  for (Controllo* comando : comandi) comando->attivo = znota.attiva;
  TitoloStampante(Dispositivo(programma), znota.Stampante);
}

void SceltaNota(Znota& znota) { znota.Text1[1].testo = Testo(in_stampa) + znota.ListaNote.Scelta(); }

void CambiaOrdine(const Programma& programma, Znota& znota) {
  if (znota.attiva) znota.titolo = Titolo(programma, znota);
}

void MostraEsclusi(const Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  if (znota.esclusi.empty()) {
    programma.piattaforma.Messaggio("nessun cliente escluso...", Icona::Informazione);
    return;
  }
  znota.ListaEsclusi.visibile = znota.Caption_ListaEsclusi.visibile = !znota.ListaEsclusi.visibile;
}

void MostraAiutoEsportazione(const Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  programma.piattaforma.Messaggio(Aiuto_Esportazione(Testo_Percorso(programma.Cartella_Dati)),
                                  Icona::Informazione);
}

bool TastoNote(Programma& programma, Znota& znota, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  switch (pressione.tasto) {
    case Tasto::F2:
      StampaNote(programma, znota);
      return true;
    case Tasto::F4:
      if (znota.attiva) znota.Tutte_Le_Note.segnata = !znota.Tutte_Le_Note.segnata;
      return true;
    case Tasto::F6:
      Esporta(programma, znota);
      return true;
    case Tasto::Esc:
      ChiudiNote(programma, znota);
      return true;
    default:
      return false;
  }
}

void StampaNote(Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  Corsa corsa(programma.piattaforma, Una_Per_Nota(znota) ? znota.note.size() : 1,
              Numero_Copie(programma, znota));
  {
    const auto fermo = Ferma(programma, znota);
    const Clessidra clessidra(programma.piattaforma);
    Prepara_Righe(programma, znota);
    if (znota.Unico_Documento.segnata)
      Stampa_Tutto(programma, znota, corsa);
    else if (znota.Tutte_Le_Note.segnata)
      Stampa_Tutte(programma, znota, corsa);
    else
      Stampa_Scelta(programma, znota, corsa);
    znota.Vet_Nota.clear();
  }
  SceltaNota(znota);
  znota.titolo = Titolo(programma, znota);
  if (!corsa.Fermata()) return;
  const auto fermo = Ferma(programma, znota);
  programma.piattaforma.Messaggio(corsa.Testo_Fermata({"Stampa interrotta", "nota", "note"}),
                                  Icona::Informazione);
}

void StampaNota(Programma& programma, Znota& znota, const std::vector<LedgerRow>& righe, Vista chiave) {
  if (righe.empty()) {
    programma.piattaforma.Messaggio("Nessuna trovata ...");
    return;
  }
  const bool di_tutto = chiave == tutto;
  const Nota* nota = di_tutto ? nullptr : Nota_Scelta(znota);
  const Modo_Nota modo{di_tutto, znota.Tante_NA.segnata, znota.Scrivi_Totale.segnata};
  Mostra_Avanzamento(programma, znota, "Calcolo Importo Totale della nota ...");
  Documento documento{programma.Data_AAAAMMGG, "Prima Nota", "", ""};
  if (nota != nullptr) {
    documento.numero = nota->Prov.substr(0, nota->Prov.find(' '));
    documento.codice = nota->Fornitore;
  }
  Dispositivo(programma).documento = std::move(documento);
  const Foglio_Nota foglio = PreparaFoglioNota(programma);
  DisegnaNota(programma, ComponiNota(programma, righe, nota, modo, foglio), foglio, znota.titolo);
}

void Esporta(Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  const auto fermo = Ferma(programma, znota);
  EsportaPrimaNota(programma, znota.Limita_Zona.segnata, znota.scegli_drive);
}

void EsportaSulDisco(Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  const auto fermo = Ferma(programma, znota);
  EsportaPrimaNota(programma, znota.Limita_Zona.segnata, {});
}

void ChiudiNote(Programma& programma, Znota& znota) {
  if (!znota.attiva) return;
  Preferenze& preferenze = programma.preferenze;
  preferenze.FlagC1pn = znota.Tutte_Le_Note.segnata;
  preferenze.FlagC2pn = znota.Unico_Documento.segnata;
  preferenze.FlagC4pn = znota.Scrivi_Totale.segnata;
  preferenze.FlagOrdina1 = znota.Ordina_Specie.segnata;
  preferenze.FlagZ5 = znota.Limita_Zona.segnata;
  // a settings file that can't be written costs the operator his ticks at the next start, not the closing
  Scrivi_Preferenze(programma, {"FlagC1pn", "FlagC2pn", "FlagC4pn", "FlagOrdina1", "FlagZ5"});
  znota.chiusa = true;
}
