#include "start/copia_giorno.h"

#include "start/giorni_recenti.h"
#include "transfers/volumi.h"

namespace {

bool Chiedi_Di_Copiare(Programma& programma, const Testo& giorno, bool dalla_chiavetta) {
  const Testo domanda =
      "OK per copiare i dati del giorno " + giorno +
      (dalla_chiavetta ? "\ndalla chiavetta...(importazione)" : "\nsu chiavetta...(esportazione)");
  return programma.piattaforma.Domanda(domanda, Icona::Domanda,
                                       dalla_chiavetta ? "copia da.." : "copia in..");
}

// From file to file, with the questions and what is told. `radice`: of the volume in play, empty for none.
bool Copia_File(Programma& programma, const Percorso& radice, const Percorso& da, const Percorso& a) {
  Piattaforma& piattaforma = programma.piattaforma;
  const Disco& disco = programma.disco;
  if (disco.Manca_File(da)) {
    piattaforma.Messaggio("il file\n" + Testo_Percorso(da) + "\nnon è stato trovato"_t);
    return false;
  }
  if (!disco.Manca_File(a) &&
      !piattaforma.Domanda("il file:\n" + Testo_Percorso(a) + "\nesiste...ok per sovrascrivere"))
    return false;
  piattaforma.Occupato(true);
  const int errore = Copia_Sul_Volume(programma, radice, da, a);
  piattaforma.Occupato(false);
  if (errore != 0) {
    piattaforma.Messaggio(Testo_Guasto(errore, "la copia", a));
    return false;
  }
  piattaforma.Messaggio("il file\n" + Testo_Percorso(da) + "\nè stato copiato in \n"_t + Testo_Percorso(a),
                        Icona::Informazione);
  return true;
}

// Where that day's file stands under a root, the firm's folder or a stick.
Percorso File_Del_Giorno(const Percorso& radice, const Testo& anno, const Testo& mese, const Testo& giorno) {
  return Unisci_Percorso(Unisci_Percorso(radice, anno), anno + mese + giorno + ".txt");
}

}  // namespace

void CopiaGiorno(Programma& programma, const B_Inizio& inizio, bool dalla_chiavetta,
                 const Scelta_Drive& scelta_drive) {
  const GiornoScelto scelto = Giorno_In_Cifre(programma, inizio);
  if (!Chiedi_Di_Copiare(programma, scelto.giorno + "/" + scelto.mese + "/" + scelto.anno, dalla_chiavetta))
    return;
  const auto drive = scelta_drive(dalla_chiavetta ? ModoCopia::COPIA_DA : ModoCopia::COPIA_IN, {});
  if (!drive) return;
  const Percorso qui = File_Del_Giorno(programma.Cartella_Dati, scelto.anno, scelto.mese, scelto.giorno);
  const Percorso la = File_Del_Giorno(drive->radice, scelto.anno, scelto.mese, scelto.giorno);
  const Percorso& a = dalla_chiavetta ? qui : la;
  if (Copia_File(programma, drive->radice, dalla_chiavetta ? la : qui, a) && !dalla_chiavetta)
    programma.piattaforma.Apri_Con_Desktop(a.parent_path());
}

bool CopiaFileGiorno(Programma& programma, B_Inizio& inizio, const Percorso& file) {
  const auto giorno = Giorno_Nel_Nome(Nome_File(file));
  if (!giorno) {
    programma.piattaforma.Messaggio("il file\n" + Testo_Percorso(file) +
                                    "\nnon ha il nome di una giornata, per esempio 20250314.txt");
    return true;
  }
  const Testo cifre = Testo_Data(*giorno, "yyyymmdd");
  const Percorso qui =
      File_Del_Giorno(programma.Cartella_Dati, cifre.substr(0, 4), cifre.substr(4, 2), cifre.substr(6));
  if (programma.disco.Trova(qui).lexically_normal() == file.lexically_normal()) {
    Metti_Giorno(programma, inizio, *giorno);  // one of our own: nothing to copy
    return true;
  }
  if (!Chiedi_Di_Copiare(programma, Testo_Data(*giorno, "dd/mm/yyyy"), true)) return false;
  const auto radice = Volume_Di(programma.piattaforma.Volumi(), file);
  if (!Copia_File(programma, radice.value_or(Percorso()), file, qui)) return true;
  Metti_Giorno(programma, inizio, *giorno);
  Aggiorna_Recenti(programma, inizio);
  return true;
}
