#include "documents/zsani.h"

#include <algorithm>
#include <utility>

#include "core/corsa.h"
#include "core/giorno.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/liste.h"
#include "lists/ordina.h"
#include "printing/pagina.h"

namespace {

constexpr std::size_t larghezza_nome = 50;
constexpr int per_cliente = 0, per_numero = 1, per_numero_indietro = 2;  // flagSortOrder

constexpr Vista controlli[] = {
    "Controlla che la numerazione sia progressiva e completa",
    "controlla il formato del numero del documento e riduce il numero di (ds) a uno",
    "controlla i numeri doppi (cancella i numeri doppi)", "controlla la progressione",
    "controlla i senza numero"};

Testo Gia_Stampati(Vista domanda) {
  return "Alcuni documenti sono già stati stampati con la numerazione attuale...\n"_t.append(domanda);
}

// A command runs or asks.
auto Ferma(Zsani& zsani) {
  return Schermo_Fermo(zsani, [&zsani] { AggiornaComandi(zsani); });
}

// The list is out of sight while its numbers change.
class Lista_Nascosta {
 public:
  explicit Lista_Nascosta(Zsani& zsani) : zsani_(zsani) { zsani_.MList2.visibile = false; }
  ~Lista_Nascosta() { zsani_.MList2.visibile = true; }
  Lista_Nascosta(const Lista_Nascosta&) = delete;
  Lista_Nascosta& operator=(const Lista_Nascosta&) = delete;

 private:
  Zsani& zsani_;
};

Testo Nome_Piegato(Vista cliente) { return Minuscolo(Pulito(cliente)); }

TipoDoc Tipo(const Zsani& zsani) { return zsani.Check4.segnata ? TipoDoc::DDT : TipoDoc::Sanitario; }

// ---- the list

void Mostra_Voce(Zsani& zsani) {
  const bool scelta = zsani.MList2.scelta >= 0;
  const VoceDoc voce = scelta ? zsani.ListaDoc[static_cast<std::size_t>(zsani.MList2.scelta)] : VoceDoc();
  zsani.Text1[1].testo = voce.Cliente;
  zsani.Text1[2].testo = voce.Numero;
}

void Mostra_Lista(Zsani& zsani, int scelta) {
  std::vector<Testo> righe;
  righe.reserve(zsani.ListaDoc.size());
  for (const VoceDoc& voce : zsani.ListaDoc) righe.push_back(Pad(voce.Cliente, larghezza_nome) + voce.Numero);
  zsani.MList2.Riempi(std::move(righe));
  zsani.MList2.scelta = std::min(scelta, static_cast<int>(zsani.ListaDoc.size()) - 1);
  Mostra_Voce(zsani);
  AggiornaComandi(zsani);
}

void Ordina(ListaDocumenti& lista, int ordine) {
  if (ordine == per_cliente) return OrdinaPerCliente(lista);
  OrdinaPerNumero(lista, ordine == per_numero);
}

// ---- opening

void Prepara_Controlli(const Programma& programma, Zsani& zsani) {
  const Preferenze& preferenze = programma.preferenze;
  zsani.titolo = "Stampa Documento Sanitario del " + programma.Data_Giorno;
  zsani.Text1[0].testo = programma.Data_Giorno;
  zsani.Text1[0].attivo = zsani.Text1[1].attivo = false;
  zsani.Caption[0].testo = "del";
  zsani.Caption[1].testo = "Destinatario";
  zsani.Text2.testo = "1";
  zsani.Caption_Text2.testo = "Primo numero";
  zsani.Combo2.Riempi(Voci_Copie());
  zsani.Combo2.scelta = 0;
  zsani.Check1.didascalia = "Stampa Tutti i documenti F4";
  zsani.Check4.didascalia = "Stampa DDT";
  zsani.Check6.didascalia = "Stampa i Prezzi";
  zsani.Check1.segnata = preferenze.FlagC1ds;
  zsani.Check4.segnata = preferenze.FlagC4ds;
  zsani.Check6.segnata = preferenze.FlagC2ds;
  zsani.Command2.testo = "&Chiudi";
  zsani.Command3.testo = "Modifica";
  zsani.Command4.testo = "Controlla";
  zsani.Command5.testo = "Ordina per Cliente";
  zsani.Command6.testo = "Salva";
  zsani.Command7.testo = "Ordina per Numero +";
  zsani.Command8.testo = "Ordina per Numero -";
  zsani.Num_Automatica.testo = "Num_Automatica";
  zsani.Aggiorna_Num.testo = "Aggiorna_Num";
  zsani.Annulla_Num.testo = "Annulla_Num";
  zsani.Intestazione_Dimensioni.testo = "Intestazione e dimensioni";
  zsani.Preferenze_Operative.testo = "Preferenza Operative";
  zsani.Scelta_Stampante.testo = "Stampante";
}

void Apri(Programma& programma, Zsani& zsani, ModoDocumenti modo, std::vector<LedgerRow> righe,
          ListaDocumenti lista) {
  const Clessidra clessidra(programma.piattaforma);
  zsani.modo = modo;
  zsani.chiusa = false;
  zsani.attiva = true;
  zsani.TabellaDoc = std::move(righe);
  zsani.righe_cliente.clear();
  for (std::size_t i = 0; i < zsani.TabellaDoc.size(); ++i)
    zsani.righe_cliente[Nome_Piegato(zsani.TabellaDoc[i][CampoRiga::Cliente])].push_back(i);
  zsani.ListaDoc = std::move(lista);
  Ordina(zsani.ListaDoc, programma.preferenze.flagSortOrder);
  Prepara_Controlli(programma, zsani);
  MostraStampante(programma, zsani);
  Mostra_Lista(zsani, 0);
}

// A row of the list that isn't the mark of an empty day.
bool Riga_Vera(const Tabella& tabella, int n) {
  return n >= 1 && n <= tabella.Righe() &&
         !Uguali(tabella.righe[static_cast<std::size_t>(n - 1)][CampoRiga::Fornitore], Riga_Vuota);
}

// ---- saving

// The number of each customer that the list has, by folded name; of two entries of one name the later holds.
std::unordered_map<Testo, const Testo*> Numeri_Per_Nome(const ListaDocumenti& lista) {
  std::unordered_map<Testo, const Testo*> numeri;
  for (const VoceDoc& voce : lista) numeri[Nome_Piegato(voce.Cliente)] = &voce.Numero;
  return numeri;
}

void Scrivi_Numeri(Programma& programma, const Zsani& zsani) {
  const auto numeri = Numeri_Per_Nome(zsani.ListaDoc);
  const auto scrivi = [&](LedgerRow& riga) {
    if (!PrendeNumero(riga, programma.Separatore_Decimale)) return;
    const auto numero = numeri.find(Nome_Piegato(riga[CampoRiga::Cliente]));
    if (numero != numeri.end()) riga[CampoRiga::DDT] = *numero->second;
  };
  Tabella& tabella = programma.Vet_Tabella;
  if (zsani.modo != ModoDocumenti::Riga) {
    for (LedgerRow& riga : tabella.righe) scrivi(riga);
  } else if (zsani.riga <= tabella.Righe()) {
    scrivi(tabella.Riga(zsani.riga));
  }
}

std::vector<Testo> Colonna_DDT(const Tabella& tabella) {
  std::vector<Testo> colonna;
  colonna.reserve(tabella.righe.size());
  for (const LedgerRow& riga : tabella.righe) colonna.push_back(riga[CampoRiga::DDT]);
  return colonna;
}

void Rimetti_DDT(Tabella& tabella, std::vector<Testo> colonna) {
  for (std::size_t i = 0; i < colonna.size(); ++i) tabella.righe[i][CampoRiga::DDT] = std::move(colonna[i]);
}

EsitoNumeri Salva_Con_Domanda(Programma& programma, const Zsani& zsani) {
  if (zsani.ListaDoc.empty()) return EsitoNumeri::Annullato;  // no number to save
  if (!programma.piattaforma.Domanda("Ok per salvare la attuale numerazione dei documenti...."))
    return EsitoNumeri::Annullato;
  const Clessidra clessidra(programma.piattaforma);
  std::vector<Testo> prima = Colonna_DDT(programma.Vet_Tabella);
  Scrivi_Numeri(programma, zsani);
  bool errore = false;
  Salva_Giorno(programma, errore);
  if (errore) {
    Rimetti_DDT(programma.Vet_Tabella, std::move(prima));
    return EsitoNumeri::Fallito;
  }
  Carica_Giorno(programma);  // when it can't be read back (told) the table in memory is the same
  return EsitoNumeri::Salvato;
}

void Esci(Programma& programma, Zsani& zsani) {
  if (Rinumera_Tabella(programma)) programma.Tabella_Modificata = true;
  programma.preferenze.FlagC1ds = zsani.Check1.segnata;
  programma.preferenze.FlagC2ds = zsani.Check6.segnata;
  programma.preferenze.FlagC4ds = zsani.Check4.segnata;
  // a settings file that can't be written costs the operator three ticks, not the closing
  Scrivi_Preferenze(programma, {"FlagC1ds", "FlagC2ds", "FlagC4ds"});
  zsani.chiusa = true;
}

void Chiudi(Programma& programma, Zsani& zsani) {
  if (Salva_Con_Domanda(programma, zsani) == EsitoNumeri::Fallito) return;
  Esci(programma, zsani);
}

// ---- printing

// The customer's rows, which take the number that is printed.
std::vector<LedgerRow> Righe_Del_Cliente(Zsani& zsani, Vista cliente, Vista numero) {
  std::vector<LedgerRow> righe;
  const auto trovate = zsani.righe_cliente.find(Nome_Piegato(cliente));
  if (trovate == zsani.righe_cliente.end()) return righe;
  righe.reserve(trovate->second.size());
  for (const std::size_t i : trovate->second) {
    LedgerRow& riga = zsani.TabellaDoc[i];
    if (!numero.empty()) riga[CampoRiga::DDT] = numero;
    righe.push_back(riga);
  }
  return righe;
}

// False when the paper failed. A customer without an entry in the list is told, and the run goes on.
bool Stampa_Documento(Programma& programma, Zsani& zsani, Corsa& corsa, std::size_t i, const Testo& numero) {
  VoceDoc& voce = zsani.ListaDoc[i];
  if (Cerca_Cliente_Per_Nome(programma, voce.Cliente) < 0) {
    programma.piattaforma.Messaggio("Il cliente " + voce.Cliente + " non è stato trovato..."_t);
    programma.piattaforma.Messaggio("Cliente non trovato...");
    return true;
  }
  const TipoDoc tipo = Tipo(zsani);
  const auto documento = ComponiDocumento(programma, voce.Cliente, numero, tipo, zsani.Check6.segnata,
                                          Righe_Del_Cliente(zsani, voce.Cliente, numero));
  if (!documento || documento->righe.empty()) {
    programma.piattaforma.Messaggio("Nessuna voce da stampare per il cliente " + voce.Cliente);
    return true;
  }
  if (!zsani.stampa(*documento, [&](const Testo& titolo) { zsani.titolo = titolo; })) return false;
  voce.Numero = ConMarchio(voce.Numero, tipo);
  corsa.Fatta();
  return true;
}

bool Stampa_Tutti(Programma& programma, Zsani& zsani, Corsa& corsa) {
  for (std::size_t i = 0; i < zsani.ListaDoc.size() && corsa.Avanti(); ++i) {
    const Testo numero(Pulito(zsani.ListaDoc[i].Numero));
    if (numero.empty() &&
        !programma.piattaforma.Domanda("Non tutti i Documenti sono numerati... OK per continuare ugualmente"))
      return false;
    if (!Stampa_Documento(programma, zsani, corsa, i, numero)) return false;
  }
  return true;
}

bool Stampa_Scelto(Programma& programma, Zsani& zsani, Corsa& corsa) {
  return !corsa.Avanti() ||
         Stampa_Documento(programma, zsani, corsa, static_cast<std::size_t>(zsani.MList2.scelta),
                          Testo(Pulito(zsani.Text1[2].testo)));
}

int Copie(const Zsani& zsani) { return std::max(1, zsani.Combo2.scelta + 1); }

// All copies that were asked for, or those until Esc; false when a question or the paper ended it.
bool Stampa_Copie(Programma& programma, Zsani& zsani, Corsa& corsa) {
  for (int copia = 0; copia < Copie(zsani) && !corsa.Fermata(); ++copia) {
    const bool avanti =
        zsani.Check1.segnata ? Stampa_Tutti(programma, zsani, corsa) : Stampa_Scelto(programma, zsani, corsa);
    if (!avanti) return false;
  }
  return true;
}

void Muovi(Zsani& zsani, int passo, bool in_giro) {
  const int numero = static_cast<int>(zsani.ListaDoc.size());
  if (numero == 0) return;
  const int verso = zsani.MList2.scelta + passo;
  SceltaVoce(zsani, in_giro ? (verso + numero) % numero : std::clamp(verso, 0, numero - 1));
}

}  // namespace

void AggiornaComandi(Zsani& zsani) {
  const bool tutti = zsani.modo == ModoDocumenti::Tutti;
  const bool ddt = zsani.Check4.segnata;
  zsani.Command1.testo = ddt ? "Stampa DDT F2" : "Stampa Doc. F2";
  zsani.Caption[2].testo = ddt ? "numero DDT" : "DS numero";
  zsani.Command1.attivo = zsani.attiva && zsani.stampa;
  zsani.Command3.attivo = zsani.attiva && zsani.MList2.scelta >= 0;
  for (Bottone* comando :
       {&zsani.Command2, &zsani.Command6, &zsani.Intestazione_Dimensioni, &zsani.Preferenze_Operative})
    comando->attivo = zsani.attiva;
  for (Bottone* comando : {&zsani.Command4, &zsani.Command5, &zsani.Command7, &zsani.Command8,
                           &zsani.Num_Automatica, &zsani.Aggiorna_Num, &zsani.Annulla_Num})
    comando->attivo = zsani.attiva && tutti;
  zsani.Scelta_Stampante.attivo = zsani.attiva && zsani.stampa;
  zsani.Text2.visibile = zsani.Caption_Text2.visibile = tutti;
}

void ApriDocumenti(Programma& programma, Zsani& zsani) {
  auto righe = RigheDeiDocumenti(programma.Vet_Tabella, programma.Separatore_Decimale);
  auto lista = VociDeiDocumenti(righe, programma.Separatore_Decimale);
  Apri(programma, zsani, ModoDocumenti::Tutti, std::move(righe), std::move(lista));
}

void ApriDocumentoCliente(Programma& programma, Zsani& zsani, Vista cliente, Vista numero) {
  Apri(programma, zsani, ModoDocumenti::Cliente,
       RigheDeiDocumenti(programma.Vet_Tabella, programma.Separatore_Decimale),
       {{Testo(Pulito(cliente)), Testo(Pulito(numero))}});
}

bool ApriDocumentoRiga(Programma& programma, Zsani& zsani, int n) {
  if (n < 1 || n > programma.Vet_Tabella.Righe()) return false;
  zsani.riga = n;
  Tabella sola;
  sola.righe = {programma.Vet_Tabella.Riga(n)};
  const LedgerRow& riga = sola.righe.front();
  Apri(programma, zsani, ModoDocumenti::Riga, RigheDeiDocumenti(sola, programma.Separatore_Decimale),
       {{Testo(Pulito(riga[CampoRiga::Cliente])), Testo(Pulito(riga[CampoRiga::DDT]))}});
  return true;
}

bool ClienteDaStampare(Programma& programma, int n, Vista cliente) {
  if (Riga_Vera(programma.Vet_Tabella, n) && !Pulito(cliente).empty()) return true;
  programma.piattaforma.Messaggio("selezionare il cliente sulla lista...");
  return false;
}

bool RigaDaStampare(Programma& programma, int n) {
  if (Riga_Vera(programma.Vet_Tabella, n)) return true;
  programma.piattaforma.Messaggio("Selezionare il Cliente sulla lista..(Hai salvato?)");
  return false;
}

void MostraStampante(Programma& programma, Zsani& zsani) {
  TitoloStampante(Dispositivo(programma), zsani.TitoloStampante);
}

void SceltaVoce(Zsani& zsani, int riga) {
  if (!zsani.attiva || riga < 0 || riga >= static_cast<int>(zsani.ListaDoc.size())) return;
  zsani.MList2.scelta = riga;
  Mostra_Voce(zsani);
  AggiornaComandi(zsani);
}

void VoceSuccessiva(Zsani& zsani) { Muovi(zsani, 1, true); }

void VocePrecedente(Zsani& zsani) { Muovi(zsani, zsani.MList2.scelta < 0 ? 0 : -1, true); }

bool TastoDocumenti(Programma& programma, Zsani& zsani, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  switch (pressione.tasto) {
    case Tasto::Esc:
      ChiudiDocumenti(programma, zsani);
      return true;
    case Tasto::F2:
      StampaDocumenti(programma, zsani);
      return true;
    case Tasto::F4:
      if (zsani.attiva) zsani.Check1.segnata = !zsani.Check1.segnata;
      return true;
    case Tasto::F8:
      VocePrecedente(zsani);
      return true;
    case Tasto::F9:
      VoceSuccessiva(zsani);
      return true;
    case Tasto::Su:
      Muovi(zsani, -1, false);
      return true;
    case Tasto::Giu:
      Muovi(zsani, 1, false);
      return true;
    default:
      return false;
  }
}

void ModificaNumero(Zsani& zsani) {
  if (!zsani.attiva || zsani.MList2.scelta < 0) return;
  const Testo& scritto = zsani.Text1[2].testo;
  const int numero = NumeroDoc(scritto);
  zsani.ListaDoc[static_cast<std::size_t>(zsani.MList2.scelta)].Numero =
      numero == 0 ? Testo() : TestoNumero(numero, LeggiMarchi(scritto));
  Mostra_Lista(zsani, zsani.MList2.scelta);
}

void AggiornaNumeri(Zsani& zsani) {
  if (!zsani.attiva || zsani.modo != ModoDocumenti::Tutti || zsani.ListaDoc.empty()) return;
  NumeraMancanti(zsani.ListaDoc);
  Mostra_Lista(zsani, 0);
}

void NumeraAutomatica(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva || zsani.modo != ModoDocumenti::Tutti || zsani.ListaDoc.empty()) return;
  const auto fermo = Ferma(zsani);
  if (QualcunoStampato(zsani.ListaDoc) &&
      !programma.piattaforma.Domanda(Gia_Stampati("OK per rinumerare ugualmente")))
    return;
  const Lista_Nascosta nascosta(zsani);
  const auto risposta = programma.piattaforma.Chiedi("immettere il primo numero da utilizzare... ",
                                                     "Numerazione Documenti", zsani.Text2.testo);
  if (!risposta || Pulito(*risposta).empty()) return;
  const int primo = NumeroDoc(*risposta);
  zsani.Text2.testo = std::to_string(primo);
  if (primo == 0) return;  // no number to begin with
  NumeraDa(zsani.ListaDoc, primo);
  Mostra_Lista(zsani, 0);
}

void AnnullaNumeri(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva || zsani.modo != ModoDocumenti::Tutti || zsani.ListaDoc.empty()) return;
  const auto fermo = Ferma(zsani);
  if (!programma.piattaforma.Domanda(
          "OK per annullare la numerazione: la numerazione attuale sarà perduta..."_t
          "eventuali errori possono essere corretti manualmente..."_t))
    return;
  if (QualcunoStampato(zsani.ListaDoc) &&
      !programma.piattaforma.Domanda(Gia_Stampati("OK per annullare la numerazione ugualmente")))
    return;
  for (VoceDoc& voce : zsani.ListaDoc) voce.Numero.clear();
  for (LedgerRow& riga : programma.Vet_Tabella.righe)
    if (PrendeNumero(riga, programma.Separatore_Decimale)) riga[CampoRiga::DDT] = " ";
  programma.Tabella_Modificata = true;
  Mostra_Lista(zsani, 0);
}

void ControllaNumeri(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva || zsani.modo != ModoDocumenti::Tutti || zsani.ListaDoc.empty()) return;
  const auto fermo = Ferma(zsani);
  Testo spiegazione;
  for (const Vista riga : controlli) spiegazione.append(spiegazione.empty() ? "" : "\n").append(riga);
  if (!programma.piattaforma.Domanda(spiegazione)) return;
  const Lista_Nascosta nascosta(zsani);
  OrdinaPerNumero(zsani.ListaDoc);
  const int primo = NumeroDoc(zsani.Text2.testo);
  if (primo == 0) {
    programma.piattaforma.Messaggio("sistemare il Primo Numero...");
    zsani.Text2.testo = TestoNumero(1);
  } else if (RiparaNumeri(zsani.ListaDoc, primo)) {
    Mostra_Lista(zsani, 0);
    Salva_Con_Domanda(programma, zsani);
    return;
  } else {
    programma.piattaforma.Messaggio(
        "La numerazione non si può controllare: i documenti sono troppi, o i numeri superano il 999.\n"_t
        "I numeri sono rimasti com'erano."_t);
  }
  Mostra_Lista(zsani, 0);
}

void OrdinaDocumenti(Programma& programma, Zsani& zsani, int ordine) {
  if (!zsani.attiva || zsani.modo != ModoDocumenti::Tutti) return;
  if (ordine < per_cliente || ordine > per_numero_indietro) return;
  Ordina(zsani.ListaDoc, ordine);
  programma.preferenze.flagSortOrder = ordine;
  Scrivi_Chiave(programma, "flagSortOrder", std::to_string(ordine));  // else the next start sorts as before
  Mostra_Lista(zsani, 0);
}

EsitoNumeri SalvaNumeri(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva) return EsitoNumeri::Annullato;
  const auto fermo = Ferma(zsani);
  return Salva_Con_Domanda(programma, zsani);
}

void StampaDocumenti(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva || !zsani.stampa || zsani.ListaDoc.empty()) return;
  const auto fermo = Ferma(zsani);
  if (zsani.MList2.scelta < 0) {
    zsani.MList2.scelta = 0;
    Mostra_Voce(zsani);
  }
  bool finita = false;
  const Testo titolo = zsani.titolo;
  Corsa corsa(programma.piattaforma, zsani.Check1.segnata ? zsani.ListaDoc.size() : 1, Copie(zsani));
  {
    const Clessidra clessidra(programma.piattaforma);
    finita = Stampa_Copie(programma, zsani, corsa);
  }
  zsani.titolo = titolo;
  Mostra_Lista(zsani, zsani.MList2.scelta);
  if (corsa.Fermata())
    programma.piattaforma.Messaggio(corsa.Testo_Fermata({"Stampa interrotta", "documento", "documenti"}),
                                    Icona::Informazione);
  if (finita && zsani.modo != ModoDocumenti::Tutti) Chiudi(programma, zsani);
}

void ChiudiDocumenti(Programma& programma, Zsani& zsani) {
  if (!zsani.attiva) return;
  const auto fermo = Ferma(zsani);
  Chiudi(programma, zsani);
}
