#include "primanota/esporta.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <set>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/liste.h"
#include "lists/ordina.h"
#include "primanota/righe.h"
#include "transfers/volumi.h"

namespace {

constexpr char separatore_campi = ';';
constexpr Vista vendita = "2", accredito = "4";  // record types
constexpr Vista genere = "ITTIVE";
constexpr std::size_t cifre_codice = 8, lunghezza_codice_lista = 3, commento_minimo = 4,
                      commento_massimo = 250;

// What would split a line or a field for who reads the file.
Testo Campo_Intero(Vista testo) {
  Testo esito(testo);
  for (char& c : esito) {
    if (c == separatore_campi) c = ',';
    if (c == '\r' || c == '\n' || c == '\t' || c == '\0') c = ' ';
  }
  return esito;
}

Testo Fino_Al_Blank(Vista testo) {
  testo = Pulito(testo);
  return Testo(testo.substr(0, testo.find(' ')));
}

Testo Importo(double valore) { return Formato(std::fabs(valore), "#0.00", ','); }

Testo Codice_Lista(Vista voce) { return Testo(Sinistra(voce, lunghezza_codice_lista)); }
Testo Codice_Se_Detto(Vista voce) {
  Testo codice = Codice_Lista(voce);
  return codice == "XXX" ? Testo() : codice;
}

Vista Senza_Fine(Vista testo, char segno) {
  if (!testo.empty() && testo.back() == segno) testo.remove_suffix(1);
  return Pulito(testo);
}

bool Accredito(const LedgerRow& riga) { return Pulito(riga[CampoRiga::Prezzo]).starts_with('-'); }

// Names in small letters of the customers marked as excluded.
std::set<Testo> Nomi_Esclusi(const Programma& programma) {
  std::set<Testo> nomi;
  for (const auto& riga : programma.Vet_Clienti)
    if (Uguali(Pulito(riga[cliente::Escluso]), "ESCLUSO"))
      nomi.insert(Minuscolo(Pulito(riga[cliente::RagioneSociale1])));
  return nomi;
}

bool Coi_Numeri(const LedgerRow& riga, char separatore) {
  return Numerico(riga[CampoRiga::Peso], separatore) && Numerico(riga[CampoRiga::Prezzo], separatore);
}

// 0, or the errno of a file that can't be deleted or of the folder, with its path.
int Vuota_Cartella(const Programma& programma, const Percorso& cartella, Percorso& rimasto) {
  rimasto = cartella;
  if (programma.disco.E_Collegamento(cartella)) return ELOOP;
  int illeggibile = 0;
  const auto nomi = programma.disco.Elenca(cartella, "*", &illeggibile);
  if (!nomi) return illeggibile;
  for (const Percorso& nome : *nomi) {
    rimasto = cartella / nome;
    if (const int errore = programma.disco.Cancella(rimasto)) return errore;
  }
  return 0;
}

struct Destinazione {
  Percorso radice;  // of the volume in play; empty for the program's own
  Percorso cartella;
};

Destinazione Scegli_Cartella(const Programma& programma, const DriveScelto& drive) {
  const bool sul_proprio = drive.cartella_propria ||
                           Sul_Volume(programma.piattaforma.Volumi(), programma.Cartella_Dati, drive.radice);
  if (sul_proprio) return {{}, CartellaEsportazione(programma)};
  return {drive.radice, drive.radice};
}

Testo Nome_Esportato(const Programma& programma) {
  return Testo_Percorso(programma.File_Giorno.stem()) + ".txt";
}

Testo Testo_Esito(const Esportazione& esito, const Percorso& file) {
  Testo testo = "Salvati " + std::to_string(esito.scritte) + " su " + std::to_string(esito.totale);
  if (esito.immaginari > 0) testo += "\n" + std::to_string(esito.immaginari) + " clienti immaginari";
  return testo + "\nin:\n" + Testo_Percorso(file) +
         "\n\nFormato esteso con:\n"
         "Attrezzo Pesca, Pezzatura, Stato Fisico, Lavorazione e Preparazione.";
}

// The rows are in the file all the same: whoever keyed them has to look.
void Di_Senza_Numero(const Programma& programma, const std::vector<Testo>& numeri) {
  constexpr std::size_t mostrati = 20;
  if (numeri.empty()) return;
  Testo testo = "Peso o prezzo non numerico, nel file vale 0,00 alla riga:\n";
  for (std::size_t i = 0; i < std::min(mostrati, numeri.size()); ++i)
    testo.append(i == 0 ? "" : ", ").append(numeri[i]);
  if (numeri.size() > mostrati) testo += " ...";
  programma.piattaforma.Messaggio(testo);
}

// The viewer, where the installation has one.
void Mostra_File(const Programma& programma, const Percorso& file) {
  for (const Vista nome : {"notepad1.exe", "notepad1"}) {
    const Percorso visore = Unisci_Percorso(programma.Cartella_Dati, nome);
    if (!programma.disco.Esiste_File(visore)) continue;
    programma.piattaforma.Avvia_Programma(programma.disco.Trova(visore), {Testo_Percorso(file)});
    return;
  }
}

}  // namespace

Testo ZonaEsportata(Vista zona_p, bool taglia) {
  constexpr std::size_t cifre = 5, cifre_mediterraneo = 6;
  Testo zona = Fino_Al_Blank(zona_p);
  if (!taglia || !zona.starts_with('A')) return zona;
  return Testo(Sinistra(zona, zona.starts_with("A0837") ? cifre_mediterraneo : cifre));
}

Testo CommentoPulito(Vista commento) {
  const Testo intero = Campo_Intero(commento);
  const Vista pulito = Senza_Fine(Senza_Fine(Pulito(intero), '.'), ',');
  if (pulito.size() < commento_minimo) return {};
  return Testo(Sinistra(pulito, commento_massimo));
}

bool ClienteImmaginario(Vista codice_a_otto) { return codice_a_otto.find("0000000") != Vista::npos; }

RigaEsportata ComponiCampi(const Programma& programma, const LedgerRow& riga, bool taglia_zona) {
  const auto numero = [&](CampoRiga campo) {
    return Numero(riga[campo], programma.Separatore_Decimale).value_or(0);
  };
  const bool credito = Accredito(riga);
  const Testo segno = credito ? "-" : "";
  const double peso = numero(CampoRiga::Peso), prezzo = numero(CampoRiga::Prezzo);
  RigaEsportata campi = {
      Testo(credito ? accredito : vendita),
      programma.Data_GGMMAAAA,
      Testo(genere),
      Pad_Sinistra(Pulito(programma.preferenze.Codice_Commissionario), cifre_codice, '0'),
      Pad_Sinistra(Pulito(riga[CampoRiga::CodCliente]), cifre_codice, '0'),
      riga[CampoRiga::Alfa],
      ZonaEsportata(riga[CampoRiga::ZonaP], taglia_zona),
      Fino_Al_Blank(riga[CampoRiga::Prov]),
      Importo(prezzo),
      segno + Importo(peso),
      segno + Importo(peso * prezzo),
      credito ? riga[CampoRiga::DDT_CV] : Testo(" "),
      Testo(Pulito(riga[CampoRiga::Lotti])),
      Codice_Se_Detto(riga[CampoRiga::MetodoPesca]),
      Codice_Se_Detto(riga[CampoRiga::Pezzatura]),
      Codice_Lista(riga[CampoRiga::StatoFisico]),
      Codice_Lista(riga[CampoRiga::Preparazione]),
      CommentoPulito(riga[CampoRiga::Commento]),
  };
  for (Testo& campo : campi) campo = Campo_Intero(campo);
  return campi;
}

Testo ComponiLinea(const RigaEsportata& campi) {
  Testo linea;
  for (std::size_t i = 0; i < campi.size(); ++i) {
    if (i > 0) linea += separatore_campi;
    linea += campi[i];
  }
  return linea;
}

Esportazione ComponiEsportazione(const Programma& programma, bool taglia_zona) {
  constexpr std::size_t compratore = 4;  // place of the buyer's code
  std::vector<LedgerRow> righe =
      SenzaEsclusi(RigheDelGiorno(programma.Vet_Tabella), ClientiEsclusi(programma));
  Ordina_Righe(righe, {CampoRiga::Fornitore});
  const std::set<Testo> esclusi = Nomi_Esclusi(programma);
  Esportazione esito;
  esito.totale = static_cast<int>(righe.size());
  for (const LedgerRow& riga : righe) {
    if (esclusi.contains(Minuscolo(Pulito(riga[CampoRiga::Cliente])))) continue;
    const RigaEsportata campi = ComponiCampi(programma, riga, taglia_zona);
    if (ClienteImmaginario(campi[compratore])) {
      ++esito.immaginari;
      continue;
    }
    esito.contenuto.append(ComponiLinea(campi)).append(FINE_RIGA);
    ++esito.scritte;
    if (!Coi_Numeri(riga, programma.Separatore_Decimale)) esito.senza_numero.push_back(riga[CampoRiga::Num]);
  }
  return esito;
}

Percorso CartellaEsportazione(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, "XBanca");
}

bool EsportaPrimaNota(Programma& programma, bool taglia_zona, const Scelta_Drive& scegli) {
  const Percorso propria = CartellaEsportazione(programma);
  Percorso rimasto;
  if (const int errore = Vuota_Cartella(programma, propria, rimasto)) {
    programma.piattaforma.Messaggio(Testo_Guasto(errore, "la cancellazione", rimasto));
    return false;
  }
  const Esportazione esito = ComponiEsportazione(programma, taglia_zona);
  const auto drive = scegli ? scegli(ModoCopia::NOTA, propria)
                            : std::optional<DriveScelto>({Testo_Percorso(propria), propria, true});
  if (!drive) {
    programma.piattaforma.Messaggio("Operazione Annullata dall'Utente...");
    return false;
  }
  const Destinazione dove = Scegli_Cartella(programma, *drive);
  if (dove.radice.empty() && !Crea_Cartella(programma, dove.cartella)) return false;
  const Percorso file = Unisci_Percorso(dove.cartella, Nome_Esportato(programma));
  if (const int errore = Scrivi_Sul_Volume(programma, dove.radice, file, esito.contenuto)) {
    programma.piattaforma.Messaggio(Testo_Guasto(errore, "il salvataggio", file));
    return false;
  }
  programma.piattaforma.Messaggio(Testo_Esito(esito, file), Icona::Informazione);
  Di_Senza_Numero(programma, esito.senza_numero);
  Mostra_File(programma, file);
  return true;
}
