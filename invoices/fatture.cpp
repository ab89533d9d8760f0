#include "invoices/fatture.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "core/numeri.h"
#include "lists/liste.h"
#include "lists/ordina.h"

namespace {

using enum CampoRiga;

constexpr std::size_t cifre_codice = 5;

// The sign of a sale, by which its row goes to an invoice or to a credit note. A price of zero goes to
// neither.
int Segno(const LedgerRow& riga, char separatore) {
  const double prezzo = Numero(riga[Prezzo], separatore).value_or(0);
  return prezzo > 0 ? 1 : prezzo < 0 ? -1 : 0;
}

int Segno(TipoFattura tipo) { return tipo == TipoFattura::Fattura ? 1 : -1; }

bool Del_Documento(const Programma& programma, const LedgerRow& riga, TipoFattura tipo, Vista codice) {
  return riga[CodCliente] == codice && Segno(riga, programma.Separatore_Decimale) == Segno(tipo);
}

const std::array<Testo, 9>* Scheda(const Programma& programma, Vista codice) {
  const int r = Cerca_Cliente_Per_Codice(programma, Sinistra(Pulito(codice), cifre_codice));
  return r < 0 ? nullptr : &programma.Vet_Clienti[static_cast<std::size_t>(r)];
}

const Testo& Colonna(const Voce_Fattura& voce, ColonnaFatture colonna) {
  switch (colonna) {
    case ColonnaFatture::Codice:
      return voce.Codice;
    case ColonnaFatture::Cliente:
      return voce.Cliente;
    case ColonnaFatture::Riferimento:
      return voce.Riferimento;
    case ColonnaFatture::Numero:
      break;
  }
  return voce.Numero;
}

bool E_Nota(Vista numero) { return Inizia(numero, "NA"); }

bool Tutte_Numerate(const TabellaDocumenti& tabella) {
  return std::ranges::none_of(tabella, [](const Voce_Fattura& voce) { return voce.Numero.empty(); });
}

std::vector<LedgerRow> Righe_Del_Documento(const Programma& programma, TipoFattura tipo, Vista codice) {
  std::vector<LedgerRow> righe;
  for (const LedgerRow& riga : programma.Vet_Tabella.righe)
    if (Del_Documento(programma, riga, tipo, codice)) righe.push_back(riga);
  if (tipo == TipoFattura::Nota) Ordina_Righe(righe, {FAT});
  return righe;
}

bool Dici(Programma& programma, const Testo& messaggio) {
  programma.piattaforma.Messaggio(messaggio);
  return false;
}

Testo Manca_Numero_Nota(const Voce_Fattura& voce) {
  return "Manca il numero di nota di accredito a " + voce.Codice + "...";
}

bool Scrivi(Testo& campo, const Testo& valore) {
  if (campo == valore) return false;
  campo = valore;
  return true;
}

}  // namespace

// ---- what a document is drawn by

namespace {

Tracciato_Fattura Tracciato_Nota(const Scelte_Stampa& scelte, Profilo profilo) {
  if (!scelte.Personalizzata && !scelte.Check1) return Tracciato_Fattura::Pagine_Testo;
  switch (profilo) {
    case Profilo::Altinel:
    case Profilo::Cavarzo:
      return Tracciato_Fattura::Grafica2;
    case Profilo::Brenval:
    case Profilo::Burvano:
      return Tracciato_Fattura::Grafica3;
    default:
      return scelte.Completa ? Tracciato_Fattura::Grafica4 : Tracciato_Fattura::Nota_Grafica;
  }
}

}  // namespace

Tracciato_Fattura ScegliTracciato(TipoFattura tipo, const Scelte_Stampa& scelte, Profilo profilo) {
  if (tipo == TipoFattura::Nota) return Tracciato_Nota(scelte, profilo);
  if (scelte.Completa) return Tracciato_Fattura::Grafica4;
  if (scelte.Check1) return Tracciato_Fattura::Grafica2;
  return scelte.Personalizzata ? Tracciato_Fattura::Grafica1 : Tracciato_Fattura::Pagine_Testo;
}

// ---- the lists

TabellaDocumenti CaricaDocumenti(const Tabella& tabella, TipoFattura tipo) {
  TabellaDocumenti documenti;
  Vista precedente;
  for (int r = tabella.Righe(); r >= 1; --r) {
    const LedgerRow& riga = tabella.Riga(r);
    if (Uguali(riga[Fornitore], Riga_Vuota)) continue;
    const bool negativa = riga[Prezzo].starts_with('-');
    if (negativa != (tipo == TipoFattura::Nota) || riga[CodCliente] == precedente) continue;
    precedente = riga[CodCliente];
    documenti.push_back({riga[CodCliente], riga[Cliente], riga[DDT], riga[FAT]});
  }
  return documenti;
}

void OrdinaDocumenti(TabellaDocumenti& tabella, ColonnaFatture colonna) {
  if (tabella.size() < 2) return;
  std::vector<Testo> chiavi;
  chiavi.reserve(tabella.size());
  for (const Voce_Fattura& voce : tabella) chiavi.push_back(Colonna(voce, colonna) + " - ");
  Riordina(tabella, Ordine_Chiavi(std::move(chiavi)));
}

bool E_Escluso(const Programma& programma, Vista codice) {
  const auto* scheda = Scheda(programma, codice);
  return scheda && Uguali(Pulito((*scheda)[cliente::Escluso]), "ESCLUSO");
}

bool E_Ristorante(const Programma& programma, Vista codice) {
  const auto* scheda = Scheda(programma, codice);
  return scheda && Uguali(Pulito((*scheda)[cliente::Ristorante]), "RISTORANTE");
}

Testo NumeroFattura(std::int64_t numero) { return Pad_Sinistra(std::to_string(numero), 5, '0'); }

Testo NumeroNota(std::int64_t numero) { return "NA" + Pad_Sinistra(std::to_string(numero), 3, '0'); }

Testo CorreggiNumeroFattura(Vista testo, char separatore) {
  const Vista pulito = Pulito(testo);
  const std::size_t barra = pulito.find('/');
  if (barra == Vista::npos) return Formato(pulito, "00000", separatore);
  return Testo(pulito.substr(0, barra + 1)).append(Formato(pulito.substr(barra + 1), "000", separatore));
}

Testo CorreggiNumeroNota(Vista testo, char separatore) {
  Vista pulito = Pulito(testo);
  if (E_Nota(pulito)) pulito.remove_prefix(2);
  return "NA" + Formato(Pulito(pulito), "000", separatore);
}

int ValoreNumero(Vista numero, char separatore) {
  const Vista pulito = Pulito(numero);
  return Intero(E_Nota(pulito) ? pulito.substr(2) : pulito, separatore);
}

// ---- checks

bool ControllaFatture(Programma& programma, const TabellaDocumenti& fatture) {
  return Tutte_Numerate(fatture) ||
         Dici(programma, "Non tutti le fatture sono numerate... numerare tutte le fatture");
}

bool ControllaNote(Programma& programma, const TabellaDocumenti& note) {
  return Tutte_Numerate(note) ||
         Dici(programma, "Non tutti le note di credito sono numerate... numerare tutte le fatture");
}

bool NoteStampabili(Programma& programma, const TabellaDocumenti& note) {
  const char separatore = programma.Separatore_Decimale;
  for (const Voce_Fattura& voce : note) {
    if (voce.Numero.empty()) return Dici(programma, Manca_Numero_Nota(voce));
    if (!E_Nota(voce.Numero) || ValoreNumero(voce.Numero, separatore) == 0)
      return Dici(programma,
                  "Non tutte le note di accredito sono numerate correttamente... numerare tutte le note di "
                  "accredito");
  }
  return true;
}

bool FatturaStampabile(Programma& programma, const Voce_Fattura& voce) {
  return !voce.Numero.empty() || Dici(programma, "Mancano numeri di fattura...del cliente " + voce.Codice);
}

bool NotaStampabile(Programma& programma, const Voce_Fattura& voce) {
  constexpr std::size_t numero_piu_corto = 3;  // "NA" and a digit
  return voce.Numero.size() >= numero_piu_corto || Dici(programma, Manca_Numero_Nota(voce));
}

// ---- the ledger

void Modifica_Vet_Tabella(Programma& programma, TipoFattura tipo, const Voce_Fattura& voce) {
  // the reference of a note, read from DDT, goes to the field that the note's rows show
  const CampoRiga riferimento = tipo == TipoFattura::Fattura ? DDT : DDT_CV;
  for (LedgerRow& riga : programma.Vet_Tabella.righe) {
    if (!Del_Documento(programma, riga, tipo, voce.Codice)) continue;
    const bool cambiata = Scrivi(riga[riferimento], voce.Riferimento);
    if (Scrivi(riga[FAT], voce.Numero) || cambiata) programma.Tabella_Modificata = true;
  }
}

void Modifica_Vet_Tabella_Tutto(Programma& programma, const TabellaDocumenti& note,
                                const TabellaDocumenti& fatture) {
  for (const Voce_Fattura& voce : note) Modifica_Vet_Tabella(programma, TipoFattura::Nota, voce);
  for (const Voce_Fattura& voce : fatture) Modifica_Vet_Tabella(programma, TipoFattura::Fattura, voce);
}

Cliente_Fattura TrovaCliente(Programma& programma, Vista codice) {
  Cliente_Fattura trovato;
  const int r = Cerca_Cliente_Per_Codice(programma, codice);
  if (r < 0) {
    if (!programma.Vet_Clienti.empty()) trovato.Codice = programma.Vet_Clienti.back()[cliente::Codice];
    Dici(programma, "cliente non trovato " + Testo(codice));
    return trovato;
  }
  const auto& scheda = programma.Vet_Clienti[static_cast<std::size_t>(r)];
  return {.Codice = scheda[cliente::Codice],
          .Nome = scheda[cliente::RagioneSociale1],
          .Soprannome = scheda[cliente::Soprannome],
          .Indirizzo = scheda[cliente::Via],
          .Citta = scheda[cliente::Citta],
          .PIva = scheda[cliente::PIva],
          .Iban = scheda[cliente::Iban],
          .trovato = true};
}

Documento_Fattura PreparaDocumento(Programma& programma, TipoFattura tipo, const Voce_Fattura& voce) {
  const char separatore = programma.Separatore_Decimale;
  const Preferenze& preferenze = programma.preferenze;
  Documento_Fattura documento;
  documento.tipo = tipo;
  documento.Numero = voce.Numero;
  documento.RifDocumento = voce.Riferimento;
  documento.Data = programma.Data_Giorno;
  documento.Data_AAAAMMGG = programma.Data_AAAAMMGG;
  documento.CittaVC = preferenze.CittaCV;
  documento.codice = voce.Codice;
  documento.cliente = TrovaCliente(programma, voce.Codice);
  if (tipo == TipoFattura::Fattura) Modifica_Vet_Tabella(programma, tipo, voce);

  std::vector<LedgerRow> righe = Righe_Del_Documento(programma, tipo, voce.Codice);
  UnisciRighe(righe, preferenze.Flag_fatture_Esteso, separatore);
  documento.voci.reserve(righe.size());
  for (const LedgerRow& riga : righe) documento.voci.push_back(ComponiVoce(riga, separatore));
  documento.importi =
      CalcolaImporti(documento.voci, {preferenze.Aliquota1, preferenze.Aliquota2, preferenze.Aliquota3});
  return documento;
}

int TrovaNumoroFattura(const Programma& /*programma*/, Vista /*codice*/) { return 0; }
