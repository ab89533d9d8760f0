#include "transfers/volumi.h"

#include <algorithm>
#include <cerrno>

namespace {

bool Dischetto(const Volume& volume) { return Uguali(volume.lettera, "a:") || Uguali(volume.lettera, "b:"); }

// Without a separator at the end.
Percorso Normale(const Percorso& percorso) {
  Percorso esito = percorso.lexically_normal();
  if (!esito.has_filename() && esito.has_relative_path()) esito = esito.parent_path();
  return esito;
}

bool Dentro(const Percorso& percorso, const Percorso& radice) {
  const auto [fine, resto] = std::mismatch(radice.begin(), radice.end(), percorso.begin(), percorso.end());
  return fine == radice.end();
}

bool Montato(const Programma& programma, const Percorso& radice) {
  if (radice.empty()) return true;
  const std::vector<Volume> volumi = programma.piattaforma.Volumi();
  return std::any_of(volumi.begin(), volumi.end(), [voluta = Normale(radice)](const Volume& volume) {
    return Normale(volume.radice) == voluta;
  });
}

template <class Lavoro>
int Col_Volume(const Programma& programma, const Percorso& radice, const Lavoro& lavoro) {
  if (!Montato(programma, radice)) return ENODEV;
  // a list of volumes may lag behind
  if (!radice.empty() && !programma.disco.Esiste_Cartella(radice)) return ENOENT;
  if (const int errore = lavoro()) return errore;
  return Montato(programma, radice) ? 0 : ENODEV;
}

struct Spiegazione {
  int errore;
  Testo testo;
};

std::vector<Spiegazione> Componi_Spiegazioni() {
  const Testo pieno = "il disco è pieno"_t;
  const Testo protetto = "il disco è protetto da scrittura"_t;
  const Testo chiuso = "non è permesso scrivere qui"_t;
  const Testo sparito = "il disco non c'è più: il file potrebbe mancare"_t;
  const Testo mancante = "il disco o la cartella non c'è più"_t;
  const Testo guasto = "il disco è guasto, o è stato tolto"_t;
  return std::vector<Spiegazione>{{ENOSPC, pieno},    {EDQUOT, pieno}, {EFBIG, pieno},    {EROFS, protetto},
                                  {EACCES, chiuso},   {EPERM, chiuso}, {ENODEV, sparito}, {ENXIO, sparito},
                                  {ENOENT, mancante}, {EIO, guasto}};
}

const std::vector<Spiegazione>& Spiegazioni() {
  static const std::vector<Spiegazione> tutte = Componi_Spiegazioni();
  return tutte;
}

}  // namespace

Testo Voce_Volume(const Volume& volume) {
  if (Dischetto(volume)) return Minuscolo(volume.lettera) + "[Dischetto Floppy]";
  return volume.lettera + "[" + Senza_Separatori(volume.etichetta) + "]";
}

std::optional<Percorso> Volume_Di(const std::vector<Volume>& volumi, const Percorso& percorso) {
  const Percorso cercato = Normale(percorso);
  std::optional<Percorso> esito;
  for (const Volume& volume : volumi) {
    const Percorso radice = Normale(volume.radice);
    if (Dentro(cercato, radice) && (!esito || Dentro(radice, *esito))) esito = radice;
  }
  return esito;
}

bool Sul_Volume(const std::vector<Volume>& volumi, const Percorso& percorso, const Percorso& radice) {
  return Volume_Di(volumi, percorso) == Normale(radice);
}

int Scrivi_Sul_Volume(const Programma& programma, const Percorso& radice, const Percorso& file,
                      Vista contenuto) {
  return Col_Volume(programma, radice, [&] {
    // Only a stick is pulled out at once.
    return radice.empty() ? programma.disco.Sostituisci(file, contenuto)
                          : programma.disco.Sostituisci_E_Rileggi(file, contenuto);
  });
}

int Copia_Sul_Volume(const Programma& programma, const Percorso& radice, const Percorso& da,
                     const Percorso& a) {
  return Col_Volume(programma, radice, [&] {
    const int errore = programma.disco.Crea_Cartella(a.parent_path());
    return errore != 0 ? errore : programma.disco.Copia(da, a);
  });
}

Testo Testo_Guasto(int errore, Vista che_cosa, const Percorso& file) {
  const auto& tutte = Spiegazioni();
  const auto trovata =
      std::find_if(tutte.begin(), tutte.end(), [errore](const Spiegazione& s) { return s.errore == errore; });
  return Testo("Errore ").append(std::to_string(errore)).append(" durante ").append(che_cosa) + "\n" +
         Testo_Percorso(file) + "\n" + (trovata == tutte.end() ? Testo_Errore(errore) : trovata->testo);
}
