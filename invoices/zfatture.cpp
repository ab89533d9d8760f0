#include "invoices/zfatture.h"

#include <algorithm>
#include <utility>

#include "core/giorno.h"
#include "core/numeri.h"
#include "invoices/fermo.h"
#include "invoices/zfatture_vettore.h"
#include "lists/ordina.h"
#include "printing/pagina.h"

namespace {

constexpr std::size_t larghezza_colonna = 25;  // of name and reference in the lists
constexpr std::size_t segni_riferimento = 3;   // of a reference that its date goes behind

// ---- the lists

Elenco& Lista(ZFatture& zfatture, TipoFattura tipo) {
  return tipo == TipoFattura::Fattura ? zfatture.MList2 : zfatture.ListNA;
}

TabellaDocumenti& Documenti(ZFatture& zfatture, TipoFattura tipo) {
  return tipo == TipoFattura::Fattura ? zfatture.TabellaFatture : zfatture.TabellaNote;
}

// The selected document of the list; null without one.
Voce_Fattura* Scelto(ZFatture& zfatture, TipoFattura tipo) {
  TabellaDocumenti& documenti = Documenti(zfatture, tipo);
  const int scelta = Lista(zfatture, tipo).scelta;
  return scelta >= 0 && scelta < static_cast<int>(documenti.size())
             ? &documenti[static_cast<std::size_t>(scelta)]
             : nullptr;
}

Testo Riga_Lista(const Voce_Fattura& voce) {
  return " | " + voce.Codice + Pad(voce.Cliente, larghezza_colonna) + "| " +
         Pad(voce.Riferimento, larghezza_colonna) + voce.Numero;
}

void Riempi_Lista(ZFatture& zfatture, TipoFattura tipo, int scelta) {
  const TabellaDocumenti& documenti = Documenti(zfatture, tipo);
  std::vector<Testo> righe;
  righe.reserve(documenti.size());
  for (const Voce_Fattura& voce : documenti) righe.push_back(Riga_Lista(voce));
  Elenco& lista = Lista(zfatture, tipo);
  lista.Riempi(std::move(righe));
  lista.scelta = std::min(scelta, static_cast<int>(documenti.size()) - 1);
}

void Riempi_Liste(const Programma& programma, ZFatture& zfatture) {
  Riempi_Lista(zfatture, TipoFattura::Fattura, 0);
  Riempi_Lista(zfatture, TipoFattura::Nota, 0);
  AggiornaComandi(programma, zfatture);
}

void Ordina_Liste(const Programma& programma, ZFatture& zfatture, ColonnaFatture colonna) {
  OrdinaDocumenti(zfatture.TabellaFatture, colonna);
  OrdinaDocumenti(zfatture.TabellaNote, colonna);
  Riempi_Liste(programma, zfatture);
}

Testo Titolo(const Programma& programma, const ZFatture& zfatture, TipoFattura tipo) {
  const Vista titolo = tipo == TipoFattura::Fattura ? zfatture.variante->titolo_del_giorno
                                                    : Vista("Stampa Note di Accredito del ");
  return Testo(titolo) + programma.Data_Giorno;
}

// The document in work, in the fields beside the lists.
void Mostra_Documento(ZFatture& zfatture) {
  const Voce_Fattura* voce = Scelto(zfatture, zfatture.ListaAttiva);
  zfatture.Text1[1].testo = voce ? voce->Cliente : Testo();
  zfatture.Text1[2].testo = voce ? voce->Riferimento : Testo();
  zfatture.Text1[3].testo = voce ? voce->Numero : Testo();
}

void Scegli(const Programma& programma, ZFatture& zfatture, TipoFattura tipo, int riga) {
  zfatture.ListaAttiva = tipo;
  Lista(zfatture, tipo).scelta = riga;
  zfatture.titolo = Titolo(programma, zfatture, tipo);
  Mostra_Documento(zfatture);
  AggiornaComandi(programma, zfatture);
}

// ---- opening

struct Didascalia {
  Scritta ZFatture::*scritta;
  Bottone ZFatture::*bottone;
  Vista testo, suggerimento;
};
constexpr Didascalia didascalie[] = {
    {&ZFatture::Caption_MList2, nullptr, "Fatture - doppio click per stampare", ""},
    {&ZFatture::Caption_ListNA, nullptr, "Note di accredito - doppio click per stampare", ""},
    {&ZFatture::Caption_Text2, nullptr, "Luogo", ""},
    {nullptr, &ZFatture::Ordina_Codice, "Ordina per Codice Codice", ""},
    {nullptr, &ZFatture::Ordina_Cliente, "Ordina Nome per Cliente", ""},
    {nullptr, &ZFatture::Ordina_Numero, "Ordina per Numero Fattura", ""},
    {nullptr, &ZFatture::ModificaFAT, "Modifica FAT", ""},
    {nullptr, &ZFatture::ModificaNA, "Modifica NA", ""},
    {nullptr, &ZFatture::Command3, "Stampa Fat+Na", ""},
    {nullptr, &ZFatture::Command7, "Report", ""},
    {nullptr, &ZFatture::Command6, "", "Opzioni predefinite"},
    {nullptr, &ZFatture::Chiudi, "&Chiudi", ""},
    {nullptr, &ZFatture::NumeraFat, "Numerasolo Fatture", ""},
    {nullptr, &ZFatture::NumeraNA, "Numera solo Note di Credito", ""},
    {nullptr, &ZFatture::Numera_Tutto, "Numera Tutto", ""},
    {nullptr, &ZFatture::Aggiungi_Data, "Aggiungi la data al DDT ", ""},
    {nullptr, &ZFatture::Togli_Data, "Togli la data al DDT ", ""},
    {nullptr, &ZFatture::Mostra_Transazioni, "Transazioni", ""},
    {nullptr, &ZFatture::Mostra_Fatture, "Fatture e Note", ""},
    {nullptr, &ZFatture::Mostra_Report, "Report Fatture e NaC", ""},
    {nullptr, &ZFatture::Formato_Semplice, "Formato Record semplice", ""},
    {nullptr, &ZFatture::Formato_Lear, "Formato record Lear", ""},
    {nullptr, &ZFatture::Personalizza_Fatture, "Personalizza Fatture", ""},
    {nullptr, &ZFatture::Scelta_Stampante, "Stampante", ""},
};

struct Casella {
  Spunta ZFatture::*spunta;
  Vista didascalia, suggerimento;
  bool anche_spedizione = false;
};
constexpr Casella caselle[] = {
    {&ZFatture::Tutte, "Tutte", "Scrive tutte le fatture in formato Testo su disco", true},
    {&ZFatture::Stampale, "Stampa", "Stampa le fatture con la stampante"},
    {&ZFatture::Paginax2, "2 x pagina", "Stampa due fatture per pagina (foglio verticale)"},
    {&ZFatture::Personalizzata, "Personalizzata", "Stampa le fatture con grafica"},
    {&ZFatture::Check1, "Personalizzata 2", "Stampa le fatture con grafica (alternativa)"},
    {&ZFatture::Completa, "Completa", ""},
    {&ZFatture::Check2, "Solo gli Esclusi (fatture) ", "Stampa solo le fatture degli esclusi"},
    {&ZFatture::Check3, "Ristoranti", ""},
};

// The boxes as they were left; a carrier's screen hasn't those of the layouts and filters.
void Prepara_Caselle(const Preferenze& preferenze, ZFatture& zfatture) {
  const bool spedizione = zfatture.variante->spedizione;
  for (const Casella& casella : caselle) {
    Spunta& spunta = zfatture.*casella.spunta;
    spunta.didascalia = casella.didascalia;
    spunta.suggerimento = casella.suggerimento;
    spunta.visibile = casella.anche_spedizione || !spedizione;
  }
  zfatture.Tutte.segnata = true;
  if (spedizione) return;
  zfatture.Personalizzata.segnata = preferenze.FlagPersonalizzata;
  zfatture.Completa.segnata = preferenze.FlagPersonalizzataCompleta;
  zfatture.Check2.segnata = preferenze.FlagEE;
  zfatture.Check3.segnata = preferenze.FlagSoloRis;
  zfatture.Check3.visibile = preferenze.FlagRistoranti;
}

void Prepara_Controlli(const Programma& programma, ZFatture& zfatture) {
  for (const Didascalia& didascalia : didascalie) {
    Scritta& scritta = didascalia.scritta ? zfatture.*didascalia.scritta : zfatture.*didascalia.bottone;
    scritta.testo = didascalia.testo;
    scritta.suggerimento = didascalia.suggerimento;
  }
  const Preferenze& preferenze = programma.preferenze;
  zfatture.Command6.testo = zfatture.variante->didascalia_Command6;
  zfatture.Esclusi.visibile = !zfatture.variante->spedizione;
  Prepara_Caselle(preferenze, zfatture);
  PreparaSpedizione(preferenze, zfatture);
  zfatture.ListaTitolo.testo = "Codice|" + Pad(" Cliente", larghezza_colonna + 1) +
                               Pad(" DDT Riferimento", larghezza_colonna + 1) + " N.Fat ";
  zfatture.Caption[1].testo = "Destinatario";
  zfatture.Caption[2].testo = "riferimento DDT";
  zfatture.Text1[1].attivo = false;
  zfatture.Text2.testo = preferenze.CittaCV;
  zfatture.Combo2.Riempi(Voci_Copie());
  zfatture.Combo2.scelta = 0;
}

// Invoices of excluded customers are left out; with FlagEE, which a carrier's screen doesn't know, they alone
// stay. Credit notes always stay. False when nothing is left to be done.
bool Filtra_Esclusi(Programma& programma, ZFatture& zfatture) {
  TabellaDocumenti& fatture = zfatture.TabellaFatture;
  const auto escluso = [&](const Voce_Fattura& voce) { return E_Escluso(programma, voce.Codice); };
  if (zfatture.variante->spedizione || !programma.preferenze.FlagEE) {
    const auto esclusi = std::erase_if(fatture, escluso);
    zfatture.Esclusi.testo = std::to_string(esclusi) + " Esclusi";
    return true;
  }
  if (std::ranges::none_of(fatture, escluso) && zfatture.TabellaNote.empty()) {
    programma.piattaforma.Messaggio(" le liste sono vuote...nulla da fare");
    programma.preferenze.FlagEE = zfatture.Check2.segnata = false;
    return false;
  }
  std::erase_if(fatture, [&](const Voce_Fattura& voce) { return !escluso(voce); });
  return true;
}

void Filtra_Ristoranti(const Programma& programma, ZFatture& zfatture) {
  if (zfatture.variante->spedizione || !programma.preferenze.FlagSoloRis) return;
  std::erase_if(zfatture.TabellaFatture,
                [&](const Voce_Fattura& voce) { return !E_Ristorante(programma, voce.Codice); });
}

// The day's file for the market operator, which tells of the day as it was before invoicing.
void Cancella_Trasmissione(const Programma& programma) {
  const Percorso cartella = Unisci_Percorso(programma.Cartella_Dati, "XBanca");
  programma.disco.Cancella(Unisci_Percorso(cartella, programma.Data_AAAAMMGG + ".txt"));  // none is no fault
}

// ---- numbering

int Massimo_Nota(const ZFatture& zfatture, char separatore) {
  int massimo = 0;
  for (const Voce_Fattura& voce : zfatture.TabellaNote)
    massimo = std::max(massimo, ValoreNumero(voce.Numero, separatore));
  return massimo;
}

// Stored at once: a note's number is issued with it.
void Emetti_Note(Programma& programma, const ZFatture& zfatture) {
  const int massimo = Massimo_Nota(zfatture, programma.Separatore_Decimale);
  if (massimo == 0) return;
  programma.Ultima_NA = massimo;
  Salva_Ultimi_Numeri(programma);  // a failure is told, and the number kept in mind
}

void Numera_Fatture(Programma& programma, ZFatture& zfatture) {
  if (zfatture.TabellaFatture.empty()) return;
  const auto risposta = programma.piattaforma.Chiedi(
      "immettere il numero della prima fattura di oggi... ", "Numerazione Automatica Fatture",
      std::to_string(std::int64_t{programma.Ultima_Fattura} + 1));
  const std::int64_t primo = risposta ? Intero(*risposta, programma.Separatore_Decimale) : 0;
  if (primo <= 0) return;
  Ordina_Liste(programma, zfatture, ColonnaFatture::Codice);
  for (std::size_t i = 0; i < zfatture.TabellaFatture.size(); ++i)
    zfatture.TabellaFatture[i].Numero = NumeroFattura(primo + static_cast<std::int64_t>(i));
  Riempi_Liste(programma, zfatture);
}

void Numera_Note(Programma& programma, ZFatture& zfatture) {
  if (zfatture.TabellaNote.empty()) return;
  const auto risposta = programma.piattaforma.Chiedi(
      "immettere il numero della nota di accredito di oggi... ", "Numerazione Automatica Note di Accredito",
      std::to_string(std::int64_t{programma.Ultima_NA} + 1));
  if (!risposta) return;
  const std::int64_t primo = std::max(1, Intero(*risposta, programma.Separatore_Decimale));
  Ordina_Liste(programma, zfatture, ColonnaFatture::Codice);
  for (std::size_t i = 0; i < zfatture.TabellaNote.size(); ++i)
    zfatture.TabellaNote[i].Numero = NumeroNota(primo + static_cast<std::int64_t>(i));
  Riempi_Liste(programma, zfatture);
  Emetti_Note(programma, zfatture);
}

void Ordina_Con_Bottone(const Programma& programma, ZFatture& zfatture, ColonnaFatture colonna) {
  if (colonna == ColonnaFatture::Codice) zfatture.Paginax2.segnata = false;
  if (colonna == ColonnaFatture::Numero) zfatture.Paginax2.segnata = true;
  Ordina_Liste(programma, zfatture, colonna);
}

// Clears all invoice numbers of the ledger and saves the day; when that fails they are put back.
bool Azzera_FAT(Programma& programma) {
  auto& righe = programma.Vet_Tabella.righe;
  std::vector<Testo> prima;
  prima.reserve(righe.size());
  for (LedgerRow& riga : righe) prima.push_back(std::exchange(riga[CampoRiga::FAT], {}));
  bool errore = false;
  Salva_Giorno(programma, errore);
  if (!errore) return true;
  for (std::size_t i = 0; i < righe.size(); ++i) righe[i][CampoRiga::FAT] = std::move(prima[i]);
  return false;
}

// ---- edits

// The fields into the document in work. False when they say what it holds already.
bool Prendi_Campi(ZFatture& zfatture, Voce_Fattura& voce, bool sempre) {
  const Testo riferimento = Senza_Separatori(zfatture.Text1[2].testo);
  const Testo& numero = zfatture.Text1[3].testo;
  if (!sempre && riferimento == voce.Riferimento && numero == voce.Numero) return false;
  voce.Riferimento = riferimento;
  voce.Numero = numero;
  return true;
}

void Scrivi_Modifica(Programma& programma, ZFatture& zfatture, TipoFattura tipo, const Voce_Fattura& voce) {
  Riempi_Lista(zfatture, tipo, Lista(zfatture, tipo).scelta);
  Modifica_Vet_Tabella(programma, tipo, voce);
}

template <class Cambia>
void Cambia_Riferimenti(const Programma& programma, ZFatture& zfatture, Cambia cambia) {
  if (!zfatture.attiva) return;
  for (Voce_Fattura& voce : zfatture.TabellaFatture)
    voce.Riferimento = cambia(Testo(Sinistra(Pulito(voce.Riferimento), segni_riferimento)));
  Riempi_Lista(zfatture, TipoFattura::Fattura, zfatture.MList2.scelta);
  AggiornaComandi(programma, zfatture);
}

// ---- closing

// False when the settings file can't be written.
bool Salva_Scelte(Programma& programma, const ZFatture& zfatture) {
  Preferenze& preferenze = programma.preferenze;
  preferenze.CittaCV = Pulito(zfatture.Text2.testo);
  if (zfatture.variante->spedizione) return SalvaSpedizione(programma, zfatture);
  preferenze.FlagEE = zfatture.Check2.segnata;
  preferenze.FlagSoloRis = zfatture.Check3.segnata;
  preferenze.FlagPersonalizzata = zfatture.Personalizzata.segnata;
  preferenze.FlagPersonalizzataCompleta = zfatture.Completa.segnata;
  return Scrivi_Preferenze(
      programma, {"FlagPersonalizzata", "FlagPersonalizzatacompleta", "CittaVC", "FlagEE", "FlagSoloRis"});
}

void Chiudi_Schermo(Programma& programma, ZFatture& zfatture) {
  Ordina_Con_Bottone(programma, zfatture, ColonnaFatture::Numero);
  // without invoices, or while the last one has no number, the count begins anew
  const TabellaDocumenti& fatture = zfatture.TabellaFatture;
  programma.Ultima_Fattura =
      fatture.empty() ? 0 : ValoreNumero(fatture.back().Numero, programma.Separatore_Decimale);
  Salva_Ultimi_Numeri(programma);  // a failure is told, and the number kept in mind
  Ordina_Colonna(programma, CampoRiga::CodCliente);
  Modifica_Vet_Tabella_Tutto(programma, zfatture.TabellaNote, fatture);
  Rinumera_Tabella(programma);
  programma.Tabella_Modificata = true;
  if (!Salva_Scelte(programma, zfatture))  // costs the operator some ticks, not the closing
    programma.piattaforma.Messaggio("Le opzioni delle fatture non sono state salvate: il file\n" +
                                    Testo_Percorso(programma.File_Ini) + "\nnon si può scrivere."_t);
  programma.piattaforma.Messaggio(
      "Per salvare i numeri di fattura \nsalvare i dati prima di chiudere il programma.");
  zfatture.chiusa = true;
}

}  // namespace

void AggiornaComandi(const Programma& /*programma*/, ZFatture& zfatture) {
  const bool nota = zfatture.ListaAttiva == TipoFattura::Nota;
  zfatture.Caption[3].testo = nota ? "num.Nota acc." : "numero fattura";
  zfatture.Annulla_Numerazione.testo = nota ? "AnnullaNum_NA" : "AnnullaNum_FAT";
  zfatture.Tutte.didascalia = nota ? "Stampa Tutte le N.di Acc." : "Tutte";
  for (const Didascalia& didascalia : didascalie)
    if (didascalia.bottone) (zfatture.*didascalia.bottone).attivo = zfatture.attiva;
  zfatture.Annulla_Numerazione.attivo = zfatture.attiva;
  // each takes the fields into its own list
  zfatture.ModificaFAT.attivo = zfatture.attiva && !nota && zfatture.MList2.scelta >= 0;
  zfatture.ModificaNA.attivo = zfatture.attiva && nota && zfatture.ListNA.scelta >= 0;
  for (const Casella& casella : caselle) (zfatture.*casella.spunta).attivo = zfatture.attiva;
  AttivaSpedizione(zfatture);
  if (zfatture.attiva) Mostra_Documento(zfatture);
}

bool CiSonoVendite(Programma& programma) {
  const Tabella& tabella = programma.Vet_Tabella;
  if (tabella.Righe() > 1 || tabella(CampoRiga::Fornitore, 1) != Riga_Vuota) return true;
  programma.piattaforma.Messaggio("nulla da fare...");
  return false;
}

void ApriFatture(Programma& programma, ZFatture& zfatture) {
  Preferenze& preferenze = programma.preferenze;
  if (!zfatture.variante->spedizione)
    preferenze.FlagSoloRis = preferenze.FlagSoloRis && preferenze.FlagRistoranti;
  zfatture.titolo = zfatture.variante->titolo;
  const auto fermo = Ferma(programma, zfatture);
  Prepara_Controlli(programma, zfatture);
  zfatture.titolo = Titolo(programma, zfatture, TipoFattura::Fattura);

  Ordina_Colonna(programma, CampoRiga::Cliente);  // a customer's rows stand together
  zfatture.TabellaFatture = CaricaDocumenti(programma.Vet_Tabella, TipoFattura::Fattura);
  zfatture.TabellaNote = CaricaDocumenti(programma.Vet_Tabella, TipoFattura::Nota);
  Riempi_Liste(programma, zfatture);
  if (zfatture.TabellaFatture.empty() && zfatture.TabellaNote.empty()) {
    programma.piattaforma.Messaggio(" nulla da fare....");
    return Chiudi_Schermo(programma, zfatture);
  }
  if (!Filtra_Esclusi(programma, zfatture)) return Chiudi_Schermo(programma, zfatture);
  Filtra_Ristoranti(programma, zfatture);
  Riempi_Liste(programma, zfatture);
  Scegli(programma, zfatture,
         zfatture.TabellaFatture.empty() && !zfatture.TabellaNote.empty() ? TipoFattura::Nota
                                                                          : TipoFattura::Fattura,
         zfatture.TabellaFatture.empty() && zfatture.TabellaNote.empty() ? -1 : 0);
  Cancella_Trasmissione(programma);
  Ordina_Liste(programma, zfatture, ColonnaFatture::Riferimento);
  Ordina_Liste(programma, zfatture, ColonnaFatture::Numero);
}

void TogliFatture(const Programma& programma, ZFatture& zfatture,
                  const std::function<bool(const Voce_Fattura&)>& via) {
  std::erase_if(zfatture.TabellaFatture, via);
  Riempi_Lista(zfatture, TipoFattura::Fattura, 0);
  AggiornaComandi(programma, zfatture);
}

void ChiudiFatture(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva || zfatture.chiusa) return;
  const auto fermo = Ferma(programma, zfatture);
  Chiudi_Schermo(programma, zfatture);
}

void SceltaDocumento(Programma& programma, ZFatture& zfatture, TipoFattura tipo, int riga) {
  if (!zfatture.attiva || riga < 0 || riga >= static_cast<int>(Documenti(zfatture, tipo).size())) return;
  Scegli(programma, zfatture, tipo, riga);
}

void CambiaFiltro(Programma& programma, ZFatture& zfatture, bool ristoranti) {
  if (!zfatture.attiva) return;
  const auto fermo = Ferma(programma, zfatture);
  programma.piattaforma.Messaggio(ristoranti ? "Solo Ristoranti: Riavviare la Procedura..."
                                             : "Riavviare la Procedura...");
  Chiudi_Schermo(programma, zfatture);
}

void Ordina(Programma& programma, ZFatture& zfatture, ColonnaFatture colonna) {
  if (zfatture.attiva) Ordina_Con_Bottone(programma, zfatture, colonna);
}

void NumeraFat(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  const auto fermo = Ferma(programma, zfatture);
  Numera_Fatture(programma, zfatture);
}

void NumeraNA(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  const auto fermo = Ferma(programma, zfatture);
  Numera_Note(programma, zfatture);
}

void NumeraTutto(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva) return;
  const auto fermo = Ferma(programma, zfatture);
  Ordina_Con_Bottone(programma, zfatture, ColonnaFatture::Codice);
  Numera_Fatture(programma, zfatture);
  Numera_Note(programma, zfatture);
}

void AnnullaNumerazione(Programma& programma, ZFatture& zfatture) {
  if (!zfatture.attiva || zfatture.TabellaFatture.empty()) return;
  const auto fermo = Ferma(programma, zfatture);
  // a day without notes keeps its numbers in the ledger until the closing
  if (!zfatture.TabellaNote.empty() && !Azzera_FAT(programma)) return;
  for (Voce_Fattura& voce : zfatture.TabellaFatture) voce.Numero.clear();
  for (Voce_Fattura& voce : zfatture.TabellaNote) voce.Numero.clear();
  Riempi_Liste(programma, zfatture);
}

void ModificaFAT(Programma& programma, ZFatture& zfatture) {
  Voce_Fattura* voce = Scelto(zfatture, TipoFattura::Fattura);
  if (!zfatture.attiva || !voce || zfatture.ListaAttiva != TipoFattura::Fattura) return;
  Testo& numero = zfatture.Text1[3].testo;
  const bool con_barra = numero.find('/') != Testo::npos;
  numero = CorreggiNumeroFattura(Senza_Separatori(numero), programma.Separatore_Decimale);
  if (Prendi_Campi(zfatture, *voce, con_barra))
    Scrivi_Modifica(programma, zfatture, TipoFattura::Fattura, *voce);
  programma.Tabella_Modificata = true;
  AggiornaComandi(programma, zfatture);
}

void ModificaNA(Programma& programma, ZFatture& zfatture) {
  Voce_Fattura* voce = Scelto(zfatture, TipoFattura::Nota);
  if (!zfatture.attiva || !voce || zfatture.ListaAttiva != TipoFattura::Nota) return;
  Testo& numero = zfatture.Text1[3].testo;
  numero = CorreggiNumeroNota(Senza_Separatori(numero), programma.Separatore_Decimale);
  if (Prendi_Campi(zfatture, *voce, false)) {
    Scrivi_Modifica(programma, zfatture, TipoFattura::Nota, *voce);
    Emetti_Note(programma, zfatture);
  }
  programma.Tabella_Modificata = true;
  AggiornaComandi(programma, zfatture);
}

void AggiungiData(Programma& programma, ZFatture& zfatture) {
  Cambia_Riferimenti(programma, zfatture,
                     [&](const Testo& riferimento) { return riferimento + " " + programma.Data_Giorno; });
}

void TogliData(Programma& programma, ZFatture& zfatture) {
  Cambia_Riferimenti(programma, zfatture, [](const Testo& riferimento) { return riferimento; });
}
