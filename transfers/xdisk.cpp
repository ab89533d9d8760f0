#include "transfers/xdisk.h"

#include <algorithm>

#include "transfers/volumi.h"

namespace {

// The titles of the two copies stand crosswise to what they do; the operators know them so.
constexpr Vista Titolo_Per(ModoCopia modo) {
  switch (modo) {
    case ModoCopia::NOTA:
      return "Scegli nella lista dove vuoi salvare il file da inviare per fatturazione...";
    case ModoCopia::COPIA_DA:
      return "Scegli la Chiavetta dove salvare il file dati...";
    case ModoCopia::COPIA_IN:
      return "Scegli la Chiavetta da dove copiare il file dati...";
    case ModoCopia::Altro:
      break;
  }
  return "Scegli la Chiavetta dove operare...";
}

}  // namespace

void Apri_Xdisk(const Programma& programma, Xdisk& xdisk, ModoCopia modo, const Percorso& cartella_propria) {
  xdisk = Xdisk();
  xdisk.modo = modo;
  xdisk.cartella_propria = cartella_propria;
  xdisk.Titolo.testo = Titolo_Per(modo);
  xdisk.Command1.testo = "&Conferma";
  xdisk.Command2.testo = "&Annulla";
  xdisk.MenuAggiorna.testo = "AggiornaDischi";
  Aggiorna_Dischi(programma, xdisk);
}

void Aggiorna_Dischi(const Programma& programma, Xdisk& xdisk) {
  const Testo prima = xdisk.List1.Scelta();
  xdisk.voci.clear();
  if (xdisk.modo == ModoCopia::NOTA)
    xdisk.voci.push_back({Testo_Percorso(xdisk.cartella_propria), xdisk.cartella_propria, true});
  for (const Volume& volume : programma.piattaforma.Volumi())
    xdisk.voci.push_back({Voce_Volume(volume), volume.radice, false});
  std::vector<Testo> righe;
  righe.reserve(xdisk.voci.size());
  for (const DriveScelto& voce : xdisk.voci) righe.push_back(voce.voce);
  const auto posto = std::find(righe.begin(), righe.end(), prima);
  const int scelta = posto == righe.end() ? -1 : static_cast<int>(posto - righe.begin());
  xdisk.List1.Riempi(std::move(righe));
  xdisk.List1.scelta = scelta;
  Cambia_Drive(xdisk);
}

void Cambia_Drive(Xdisk& xdisk) { xdisk.Command1.attivo = xdisk.List1.scelta >= 0; }

void Conferma_Drive(Xdisk& xdisk) {
  const int scelta = xdisk.List1.scelta;
  if (scelta < 0 || scelta >= static_cast<int>(xdisk.voci.size())) return;
  xdisk.scelto = xdisk.voci[static_cast<std::size_t>(scelta)];
  xdisk.chiusa = true;
}

void Annulla_Drive(Xdisk& xdisk) {
  xdisk.scelto.reset();
  xdisk.chiusa = true;
}
