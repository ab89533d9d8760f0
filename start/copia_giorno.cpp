#include "start/copia_giorno.h"

#include <cerrno>

#include "transfers/volumi.h"

namespace {

// Copied, and read again on both sides: 0, or the errno of what failed.
int Copia_E_Confronta(const Programma& programma, const Percorso& radice, const Percorso& da,
                      const Percorso& a) {
  const Disco& disco = programma.disco;
  if (const int errore = Copia_Sul_Volume(programma, radice, da, a); errore != 0) return errore;
  int errore = 0;
  const auto copiato = disco.Leggi(a, &errore);
  if (!copiato) return errore != 0 ? errore : EIO;
  const auto origine = disco.Leggi(da, &errore);
  if (!origine) return errore != 0 ? errore : EIO;
  return *origine == *copiato ? 0 : EIO;
}

}  // namespace

void CopiaGiorno(Programma& programma, const B_Inizio& inizio, bool dalla_chiavetta,
                 const Scelta_Drive& scelta_drive) {
  Piattaforma& piattaforma = programma.piattaforma;
  const Disco& disco = programma.disco;
  const GiornoScelto giorno = Giorno_In_Cifre(programma, inizio);
  const Testo domanda =
      "OK per copiare i dati del giorno " + giorno.giorno + "/" + giorno.mese + "/" + giorno.anno +
      (dalla_chiavetta ? "\ndalla chiavetta...(importazione)" : "\nsu chiavetta...(esportazione)");
  if (!piattaforma.Domanda(domanda, Icona::Domanda, dalla_chiavetta ? "copia da.." : "copia in..")) return;
  const auto drive = scelta_drive(dalla_chiavetta ? ModoCopia::COPIA_DA : ModoCopia::COPIA_IN, {});
  if (!drive) return;

  const Testo nome = giorno.anno + giorno.mese + giorno.giorno + ".txt";
  const Percorso qui = Unisci_Percorso(Unisci_Percorso(programma.Cartella_Dati, giorno.anno), nome);
  const Percorso la = Unisci_Percorso(Unisci_Percorso(drive->radice, giorno.anno), nome);
  const Percorso& da = dalla_chiavetta ? la : qui;
  const Percorso& a = dalla_chiavetta ? qui : la;
  if (!disco.Esiste_File(da))
    return piattaforma.Messaggio("il file\n" + Testo_Percorso(da) + "\nnon è stato trovato"_t);
  if (disco.Esiste_File(a) &&
      !piattaforma.Domanda("il file:\n" + Testo_Percorso(a) + "\nesiste...ok per sovrascrivere"))
    return;

  piattaforma.Occupato(true);
  const int errore = Copia_E_Confronta(programma, drive->radice, da, a);
  piattaforma.Occupato(false);
  if (errore != 0) return piattaforma.Messaggio(Testo_Guasto(errore, "la copia", a));
  piattaforma.Messaggio("il file\n" + Testo_Percorso(da) + "\nè stato copiato in \n"_t + Testo_Percorso(a),
                        Icona::Informazione);
  if (!dalla_chiavetta) piattaforma.Apri_Con_Desktop(a.parent_path());
}
