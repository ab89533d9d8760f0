#include "documents/documento.h"

#include <algorithm>
#include <utility>

#include "core/numeri.h"
#include "core/profili.h"
#include "documents/dimddt.h"
#include "lists/consolida.h"
#include "lists/liste.h"

namespace {

constexpr int altezza_testata = 60;  // millimetres above the first item
constexpr int altezza_piede = 10;    // of the two foot lines
constexpr int altezza_riga = 4;

constexpr Vista titolo_ddt = "DOCUMENTO di TRASPORTO";
constexpr Vista senza_numero = "______________";  // the number is written by hand

// To the nearest whole number, a half to the even one.
int Righe_In(int altezza) {
  if (altezza <= 0) return 0;
  const int intere = altezza / altezza_riga;
  const int doppio_resto = 2 * (altezza % altezza_riga);
  if (doppio_resto == altezza_riga) return intere + intere % 2;
  return doppio_resto > altezza_riga ? intere + 1 : intere;
}

double Prezzo_Di(const LedgerRow& riga, char separatore) {
  return Numero(riga[CampoRiga::Prezzo], separatore).value_or(0);
}

bool Segnaposto(const LedgerRow& riga) { return Uguali(riga[CampoRiga::Fornitore], Riga_Vuota); }

bool Stesso_Cliente(Vista a, Vista b) { return Uguali(Pulito(a), Pulito(b)); }

Vista Codice_Zona(Vista etichetta) { return Pulito(etichetta.substr(0, etichetta.find('-'))); }

// What the zone list says of the label's code, the label itself when the code isn't there.
Testo Descrizione_Zona(const Programma& programma, Vista etichetta) {
  const Vista codice = Codice_Zona(etichetta);
  for (const auto& riga : programma.Vet_Zone)
    if (Uguali(Codice_Zona(riga[zona::Etichetta]), codice)) return riga[zona::Codice];
  return Testo(etichetta);
}

Testo Testo_Zona(const Programma& programma, Vista zona_p) {
  if (!programma.preferenze.FlagFAO || !Zona_Di_Cattura(zona_p)) return Testo(zona_p);
  return "ZonaP=" + Descrizione_Zona(programma, zona_p);
}

Testo Testo_Origine(Vista zona_p, Vista zona, Vista prov) {
  const Vista paese = Da(prov, 4);
  Testo origine(zona);
  if (Zona_Di_Cattura(zona_p)) return origine.append(", provenienza ").append(Pulito(paese));
  return origine.append(Contiene(zona_p, "Acquicoltura") ? " Allevato in " : " Prov. ").append(paese);
}

Testo Testo_Allergene(Vista allergeni) {
  if (Inizia(allergeni, "XXX")) return {};
  return Testo("Allergeni:").append(Da(allergeni, 4));
}

// State, working and presentation come from coded lists: their text stands behind the code.
Testo Testo_Dati(const LedgerRow& riga) {
  const Testo& alfa = riga[CampoRiga::Alfa];
  Testo dati = alfa.size() >= 3 ? alfa + " " : Testo("000 ");
  dati.append("(").append(riga[CampoRiga::NomeComune]).append("):");
  dati.append(Da(riga[CampoRiga::StatoFisico], 4)).append(", ");
  dati.append(Da(riga[CampoRiga::Lavorazione], 4)).append(", ");
  dati.append(Da(riga[CampoRiga::Preparazione], 5)).append(", ");
  return dati.append("Attr.pesca=").append(Da(riga[CampoRiga::MetodoPesca], 5));
}

Destinatario_Documento Destinatario_Da(const std::array<Testo, 9>& riga) {
  return {.Codice = riga[cliente::Codice],
          .Nome = riga[cliente::RagioneSociale1],
          .Indirizzo = riga[cliente::Via] + " - " + riga[cliente::Citta],
          .PIva = "p. iva " + riga[cliente::PIva]};
}

// Heading, title and number line.
void Componi_Testata(const Programma& programma, Documento_Cliente& documento) {
  const Preferenze& preferenze = programma.preferenze;
  const Testo senza_marchi = SenzaMarchi(documento.Numero);
  const Testo numero = senza_marchi.empty() ? Testo(senza_numero) : senza_marchi;
  documento.Bollo = preferenze.StringaCEE;
  if (documento.testata_propria) {
    documento.Intestazione =
        IntestazioneProfilo(programma, Profilo::Sarvena).value_or(documento.Intestazione);
    documento.Titolo = titolo_ddt;
    documento.Riga_Numero = "M./I. " + documento.Bollo + " no." + numero + " del " + documento.Data;
    return;
  }
  std::copy(std::begin(preferenze.DS_intesta), std::end(preferenze.DS_intesta),
            documento.Intestazione.begin());
  documento.Titolo =
      documento.tipo == TipoDoc::DDT ? Testo(titolo_ddt) + " - " + documento.Bollo : preferenze.TitoloBolla;
  documento.Riga_Numero = "(" + documento.Bollo + ") no. " + numero + " del " + documento.Data;
}

void Componi_Righe(const Programma& programma, std::vector<LedgerRow> righe, Documento_Cliente& documento) {
  ConsolidaRighe(righe, programma.Separatore_Decimale);
  documento.righe.reserve(righe.size());
  for (const LedgerRow& riga : righe) {
    documento.righe.push_back(ComponiRiga(programma, riga));
    documento.Peso_Totale += documento.righe.back().Peso;
    documento.Colli_Totali += documento.righe.back().Colli;
  }
}

}  // namespace

Tracciato ScegliTracciato(const Preferenze& preferenze) {
  if (!preferenze.FlagComponiDDTNuovo) return Tracciato::Vecchio;
  return preferenze.FlagAllergeni ? Tracciato::Allergeni : Tracciato::Semplice;
}

int RighePerVoce(Tracciato tracciato) { return tracciato == Tracciato::Allergeni ? 4 : 3; }

Impaginazione Impagina(int altezza_pagina, int altezza_dest, TipoDoc tipo, Tracciato tracciato,
                       std::size_t voci) {
  const int piede = tipo == TipoDoc::Sanitario ? altezza_piede : 0;
  const int per_voce = RighePerVoce(tracciato);
  const int righe = Righe_In(altezza_pagina - (altezza_testata + altezza_dest) - piede);
  Impaginazione esito;
  esito.voci_per_pagina = std::max(1, righe / per_voce);
  esito.righe = esito.voci_per_pagina * per_voce;
  const auto per_pagina = static_cast<std::size_t>(esito.voci_per_pagina);
  esito.pagine = static_cast<int>((voci + per_pagina - 1) / per_pagina);
  return esito;
}

bool PrendeNumero(const LedgerRow& riga, char separatore) {
  return Prezzo_Di(riga, separatore) > 0 && !Segnaposto(riga);
}

std::vector<LedgerRow> RigheDeiDocumenti(const Tabella& tabella, char separatore) {
  std::vector<LedgerRow> righe;
  righe.reserve(tabella.righe.size());
  for (const LedgerRow& riga : tabella.righe)
    if (Prezzo_Di(riga, separatore) >= 0 && !Segnaposto(riga)) righe.push_back(riga);
  Ordina_Righe(righe, {CampoRiga::Cliente});
  return righe;
}

ListaDocumenti VociDeiDocumenti(const std::vector<LedgerRow>& righe, char separatore) {
  ListaDocumenti lista;
  const LedgerRow* sotto = nullptr;
  for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) {
    const bool altro =
        sotto == nullptr || !Stesso_Cliente((*riga)[CampoRiga::Cliente], (*sotto)[CampoRiga::Cliente]);
    if (altro && Prezzo_Di(*riga, separatore) > 0)
      lista.push_back({(*riga)[CampoRiga::Cliente], Testo(Pulito((*riga)[CampoRiga::DDT]))});
    sotto = &*riga;
  }
  return lista;
}

void ConsolidaRighe(std::vector<LedgerRow>& righe, char separatore) {
  Consolida(righe, {CampoRiga::Specie, CampoRiga::Prezzo, CampoRiga::Lotti, CampoRiga::CodiciConsolidare},
            {CampoRiga::Peso, CampoRiga::Colli}, separatore);
}

Riga_Documento ComponiRiga(const Programma& programma, const LedgerRow& riga) {
  const char separatore = programma.Separatore_Decimale;
  const auto numero = [&](CampoRiga campo) { return Numero(riga[campo], separatore).value_or(0); };
  Riga_Documento voce;
  voce.riga = riga;
  voce.Descrizione = Minuscolo(riga[CampoRiga::Specie]) + " - " + riga[CampoRiga::Lotti];
  voce.Latino = Pulito(riga[CampoRiga::NomeLatino]);
  voce.Dati = Testo_Dati(riga);
  voce.Zona = Testo_Zona(programma, riga[CampoRiga::ZonaP]);
  voce.Origine = Testo_Origine(riga[CampoRiga::ZonaP], voce.Zona, riga[CampoRiga::Prov]);
  voce.Allergene = Testo_Allergene(riga[CampoRiga::Allergeni]);
  voce.PrimoImb = riga[CampoRiga::PrimoImb];
  voce.Peso = numero(CampoRiga::Peso);
  voce.Prezzo = numero(CampoRiga::Prezzo);
  voce.Colli = numero(CampoRiga::Colli);
  return voce;
}

std::optional<Documento_Cliente> ComponiDocumento(const Programma& programma, Vista cliente, Vista numero,
                                                  TipoDoc tipo, bool con_prezzi,
                                                  std::vector<LedgerRow> righe) {
  const int posto = Cerca_Cliente_Per_Nome(programma, cliente);
  if (posto < 0) return std::nullopt;
  const Preferenze& preferenze = programma.preferenze;
  Documento_Cliente documento;
  documento.tipo = tipo;
  documento.tracciato = ScegliTracciato(preferenze);
  documento.con_prezzi = con_prezzi;
  documento.con_destinazione = documento.tracciato != Tracciato::Vecchio;
  documento.testata_propria = documento.tracciato == Tracciato::Vecchio ||
                              Profilo_Ditta(preferenze.Codice_Commissionario) == Profilo::Sarvena;
  documento.Numero = Pulito(numero);
  documento.Data = programma.Data_Giorno;
  documento.destinatario = Destinatario_Da(programma.Vet_Clienti[static_cast<std::size_t>(posto)]);
  Componi_Testata(programma, documento);
  if (tipo == TipoDoc::Sanitario)
    documento.Piede = {preferenze.PiedePaginaBolla1, preferenze.PiedePaginaBolla2};
  Componi_Righe(programma, std::move(righe), documento);
  documento.pagine = Impagina(preferenze.DocSani_AltezzaPagina, preferenze.DocSani_AltezzaDest, tipo,
                              documento.tracciato, documento.righe.size());
  return documento;
}
