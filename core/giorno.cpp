#include "core/giorno.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <string>

#include "core/memoria.h"
#include "core/numeri.h"

namespace {

constexpr int righe_massime = std::numeric_limits<std::int16_t>::max();  // row numbers are 16-bit integers

// Place for what is keyed after the loading: moving a whole day elsewhere would hold up the key that adds a
// row.
constexpr std::size_t righe_in_piu = 1000;

constexpr Vista numeri_precedenti = "ncv.txt";  // of the firms' older program
constexpr Vista intestazione_ncv = "Ultimo numero Conto Vendita,DDT, Nota Accredito, Fattura";
// A new file's heading leaves the DDT out, though its number stands there: so the firms' files begin.
constexpr Vista intestazione_ncv_nuova = "Ultimo numero Conto Vendita, Nota Accredito, Fattura";

// Written by machines with either separator.
constexpr CampoRiga campi_decimali[] = {CampoRiga::Peso, CampoRiga::Prezzo, CampoRiga::Provvigione};

Testo Errore_Durante(int errore, Vista che_cosa) {
  return Testo("Errore ").append(std::to_string(errore)).append(" durante ").append(che_cosa);
}

void Di_Errore_Salvataggio(Programma& programma, int errore) {
  programma.piattaforma.Messaggio(Errore_Durante(errore, "il salvataggio"));
}

Percorso File_Numeri(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, "_2020_ncv.txt");
}

int Scrivi_Numeri(const Programma& programma, Vista intestazione) {
  Testo contenuto(intestazione);
  contenuto += FINE_RIGA;
  for (const std::int32_t numero :
       {programma.Ultimo_CV, programma.Ultimo_DDT, programma.Ultima_NA, programma.Ultima_Fattura})
    contenuto.append(std::to_string(numero)).append(FINE_RIGA);
  return programma.disco.Sostituisci(File_Numeri(programma), contenuto);
}

// The .dat copy on which a trial day works.
int Prepara_Copia(const Programma& programma, const Percorso& giorno, const Percorso& copia) {
  if (!programma.disco.Manca_File(giorno)) return programma.disco.Copia(giorno, copia);
  return programma.disco.Sostituisci(copia, "0001\tFornitore\t\r\n");
}

void Apri_Tabella(Programma& programma, Tabella tabella) {
  programma.Vet_Tabella = std::move(tabella);
  programma.Tabella_Modificata = false;
  programma.Colonna_Ordine = 1;
}

// Reads a day's bytes once from front to back.
class Lettore_Righe {
 public:
  Lettore_Righe(Vista contenuto, char separatore)
      : qui_(contenuto.data()), fine_(contenuto.data() + contenuto.size()), separatore_(separatore) {}

  bool Finito() const { return qui_ == fine_; }

  void Leggi(LedgerRow& riga) {
    for (Testo& campo : riga.campi)
      if (!Leggi_Campo(campo)) break;
    while (qui_ != fine_ && *qui_ != '\r' && *qui_ != '\n') ++qui_;
    Salta_Fine_Riga();
    for (const CampoRiga campo : campi_decimali) Correggi(riga[campo]);
  }

 private:
  // False when it was the last of its line, which isn't trimmed.
  bool Leggi_Campo(Testo& campo) {
    const char* inizio = qui_;
    qui_ = Trova_Fine_Campo(qui_, fine_);
    const Vista letto(inizio, static_cast<std::size_t>(qui_ - inizio));
    if (qui_ == fine_ || *qui_ != TAB) {
      campo.assign(letto);
      return false;
    }
    ++qui_;
    if (letto.empty()) return true;
    // hardly any has blanks around it
    campo.assign(letto.front() == ' ' || letto.back() == ' ' ? Pulito(letto) : letto);
    return true;
  }

  void Salta_Fine_Riga() {
    if (qui_ == fine_) return;
    const bool cr = *qui_ == '\r';
    ++qui_;
    if (cr && qui_ != fine_ && *qui_ == '\n') ++qui_;
  }

  void Correggi(Testo& numero) const {
    const std::size_t dove = numero.find(Altro_Separatore(separatore_));
    if (dove != Testo::npos) numero[dove] = separatore_;
  }

  const char* qui_;
  const char* fine_;
  char separatore_;
};

std::size_t Conta(Vista contenuto, char c) {
  std::size_t quanti = 0;
  for (std::size_t dove = contenuto.find(c); dove != Vista::npos; dove = contenuto.find(c, dove + 1))
    ++quanti;
  return quanti;
}

// As many as Lettore_Righe finds: CR LF is one end, the last line may have none.
std::size_t Conta_Righe(Vista contenuto) {
  std::size_t righe = Conta(contenuto, '\n') + Conta(contenuto, '\r');
  for (std::size_t dove = contenuto.find(FINE_RIGA); dove != Vista::npos;
       dove = contenuto.find(FINE_RIGA, dove + 2))
    --righe;
  const bool senza_fine = !contenuto.empty() && contenuto.back() != '\n' && contenuto.back() != '\r';
  return righe + (senza_fine ? 1 : 0);
}

// Overwrites and deletes the .dat files of a folder; the error of the last one that stays or lies there
// still, or of the folder, 0 without one.
int Cancella_Dat_In(const Programma& programma, const Percorso& cartella, Percorso& rimasto) {
  rimasto = cartella;
  if (programma.disco.E_Collegamento(cartella)) return ELOOP;
  const Disco& disco = programma.disco;
  int errore = 0;
  const auto annota = [&](int esito, const Percorso& nome) {
    if (esito == 0) return;
    errore = esito;
    rimasto = cartella / nome;
  };
  const auto prima = disco.Elenca(cartella, "*.dat", &errore);
  if (!prima) return errore;
  for (const Percorso& nome : *prima) {
    // A file that goes without having been overwritten may still be read from the disk.
    annota(disco.Sovrascrivi(cartella / nome, "file temporaneo da cancellare\r\n"), nome);
    disco.Cancella(cartella / nome);
  }
  int ignoto = 0;
  const auto rimasti = disco.Elenca(cartella, "*.dat", &ignoto);
  if (!rimasti) return ignoto;
  for (const Percorso& nome : *rimasti) annota(disco.Cancella(cartella / nome), nome);
  return errore;
}

}  // namespace

void Di_Errore_File(const Programma& programma, int errore, Vista che_cosa, const Percorso& percorso) {
  programma.piattaforma.Messaggio(Errore_Durante(errore, che_cosa) + "\n" + Testo_Percorso(percorso) + "\n" +
                                  Testo_Errore(errore));
}

void Scegli_File_Giorno(Programma& programma) {
  const Percorso giorno = Unisci_Percorso(programma.Cartella_Anno, programma.Data_AAAAMMGG + ".txt");
  programma.File_Giorno = giorno;
  if (!programma.Modo_Dat) return;
  programma.File_Giorno = Unisci_Percorso(programma.Cartella_Anno, programma.Data_AAAAMMGG + ".dat");
  int ignoto = 0;
  const bool manca = programma.disco.Manca_File(programma.File_Giorno, &ignoto);
  const int errore = manca ? Prepara_Copia(programma, giorno, programma.File_Giorno) : ignoto;
  if (errore != 0) Di_Errore_File(programma, errore, "la copia", programma.File_Giorno);
}

bool Carica_Giorno(Programma& programma) {
  int errore = 0;
  const auto contenuto = programma.disco.Leggi(programma.File_Giorno, &errore);
  if (!contenuto && errore != ENOENT && errore != ENOTDIR) {
    Di_Errore_File(programma, errore, "la lettura", programma.File_Giorno);
    return false;
  }
  // One more than fits tells that there are too many: all rows of a file of line ends alone would take a
  // thousand times its size.
  const Vista testo = contenuto ? Vista(*contenuto) : Vista();
  Tabella tabella = Leggi_Tabella(testo, programma.Separatore_Decimale, righe_massime + 1);
  if (tabella.Righe() > righe_massime) {
    programma.piattaforma.Messaggio(
        "Il giorno ha " + std::to_string(Conta_Righe(testo)) + " righe, se ne possono aprire al massimo " +
        std::to_string(righe_massime) + "\n" + Testo_Percorso(programma.File_Giorno));
    return false;
  }
  Apri_Tabella(programma, std::move(tabella));
  return true;
}

void Salva_Giorno(Programma& programma, bool& errore) {
  errore = false;
  const int esito = programma.disco.Sostituisci(programma.File_Giorno, Scrivi_Tabella(programma.Vet_Tabella));
  if (esito != 0) {
    Di_Errore_Salvataggio(programma, esito);
    errore = true;
    return;
  }
  programma.Tabella_Modificata = false;
}

void Leggi_Ultimi_Numeri(Programma& programma) {
  const std::array<std::int32_t*, 4> numeri = {&programma.Ultimo_CV, &programma.Ultimo_DDT,
                                               &programma.Ultima_NA, &programma.Ultima_Fattura};
  for (std::int32_t* numero : numeri) *numero = 0;
  programma.Numeri_Ignoti = false;
  int errore = 0;
  const auto contenuto = programma.disco.Leggi_Testo(File_Numeri(programma), &errore);
  if (errore == ENOENT) {
    // The copy of an older firm's numbers has failed, which has been told. Begun anew, all would be given
    // twice.
    if (programma.disco.Esiste_File(Unisci_Percorso(programma.Cartella_Dati, numeri_precedenti))) {
      programma.Numeri_Ignoti = true;
      return;
    }
    if (const int scritto = Scrivi_Numeri(programma, intestazione_ncv_nuova))
      Di_Errore_Salvataggio(programma, scritto);
    return;
  }
  if (!contenuto) {
    programma.Numeri_Ignoti = true;
    Di_Errore_File(programma, errore, "la lettura", File_Numeri(programma));
    return;
  }
  const std::vector<Vista> righe = Righe(*contenuto);
  for (std::size_t i = 0; i < numeri.size() && i + 1 < righe.size(); ++i)
    *numeri[i] = Intero(righe[i + 1], programma.Separatore_Decimale);
}

bool Salva_Ultimi_Numeri(Programma& programma) {
  if (programma.Numeri_Ignoti) {
    programma.piattaforma.Messaggio(
        "Gli ultimi numeri emessi non si sono potuti leggere all'avvio:\n"
        "il loro file non viene riscritto, o gli stessi numeri uscirebbero due volte.\n"
        "Chiudere il programma, controllare il file e riavviare.\n" +
        Testo_Percorso(File_Numeri(programma)));
    return false;
  }
  const int errore = Scrivi_Numeri(programma, intestazione_ncv);
  programma.Numeri_Da_Salvare = errore != 0;
  if (errore != 0) Di_Errore_Salvataggio(programma, errore);
  return errore == 0;
}

Percorso Percorso_Fatture(const Programma& programma) {
  const Vista giorno = programma.Data_Giorno;  // dd/mm/yyyy
  const Testo nome = Testo(Da(giorno, 7)).append(Da(giorno, 4).substr(0, 2)).append(Sinistra(giorno, 2));
  const Percorso anno = Unisci_Percorso(programma.Cartella_Dati, programma.Anno_Lavoro + "_fat");
  return Unisci_Percorso(anno, nome);
}

Percorso Cartella_Fatture(Programma& programma) {
  const Percorso cartella = Percorso_Fatture(programma);
  Crea_Cartella(programma, cartella);
  return cartella;
}

void Cancella_File_Dat(Programma& programma, Vista anno) {
  const bool si = programma.piattaforma.Domanda(Testo("Ok per cancellare tutti i .DAT del ").append(anno));
  programma.Modo_Dat = false;
  if (!si) return;
  int errore = 0;
  Percorso rimasto;
  anno = Pulito(anno);
  // Anything but a year would lead to another folder, an empty one to the firm's own with its other .dat
  // files.
  if (Tutte_Cifre(anno))
    errore = Cancella_Dat_In(programma, Unisci_Percorso(programma.Cartella_Dati, anno), rimasto);
  if (errore == 0)
    programma.piattaforma.Messaggio("Tutto OK...");
  else
    Di_Errore_File(programma, errore, "la cancellazione", rimasto);
}

bool Crea_Cartella(Programma& programma, const Percorso& cartella) {
  const int errore = programma.disco.Crea_Cartella(cartella);
  if (errore != 0) Di_Errore_File(programma, errore, "la creazione della cartella", cartella);
  return errore == 0;
}

Testo Scrivi_Tabella(const Tabella& tabella) {
  std::size_t lunghezza = 0;
  for (const LedgerRow& riga : tabella.righe) {
    for (const Testo& campo : riga.campi) lunghezza += campo.size() + 1;
    lunghezza += 1;  // 34 TABs, CR and LF
  }
  Testo contenuto;
  contenuto.reserve(lunghezza);
  for (const LedgerRow& riga : tabella.righe) {
    for (const Testo& campo : riga.campi) contenuto.append(campo).push_back(TAB);
    contenuto.pop_back();
    contenuto.append(FINE_RIGA);
  }
  return contenuto;
}

Tabella Leggi_Tabella(Vista contenuto, char separatore, std::size_t massime) {
  contenuto = Senza_Marca(contenuto);
  Tabella tabella;
  tabella.righe.clear();
  tabella.righe.reserve(std::min(Conta(contenuto, '\n'), massime) + righe_in_piu);
  Chiedi_Pagine_Grandi(tabella.righe.data(), tabella.righe.capacity() * sizeof(LedgerRow));
  for (Lettore_Righe lettore(contenuto, separatore); !lettore.Finito() && tabella.righe.size() < massime;)
    lettore.Leggi(tabella.righe.emplace_back());
  if (tabella.righe.empty()) tabella.righe.push_back(Riga_Segnaposto());
  return tabella;
}
