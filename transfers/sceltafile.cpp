#include "transfers/sceltafile.h"

#include <algorithm>

#include "transfers/volumi.h"

namespace {

constexpr Vista sopra = "..";

void Mostra_Dischi(const Programma& programma, SceltaFile& schermo) {
  schermo.dischi = {programma.Cartella_Dati};
  std::vector<Testo> righe = {Testo_Percorso(programma.Cartella_Dati)};
  for (const Volume& volume : programma.piattaforma.Volumi()) {
    schermo.dischi.push_back(volume.radice);
    righe.push_back(Voce_Volume(volume));
  }
  schermo.Drive1.Riempi(std::move(righe));
}

// The disk of the folder in work is the selected one: the volume that it lies on, or the machine's own.
void Segna_Disco(const Programma& programma, SceltaFile& schermo) {
  const auto radice = Volume_Di(programma.piattaforma.Volumi(), schermo.cartella);
  const auto posto =
      radice ? std::find_if(schermo.dischi.begin() + 1, schermo.dischi.end(),
                            [&](const Percorso& disco) { return disco.lexically_normal() == *radice; })
             : schermo.dischi.begin();
  schermo.Drive1.scelta =
      posto == schermo.dischi.end() ? 0 : static_cast<int>(posto - schermo.dischi.begin());
}

void Mostra_Cartella(const Programma& programma, SceltaFile& schermo) {
  schermo.cartelle.clear();
  std::vector<Testo> nomi, file;
  if (schermo.cartella.has_relative_path()) {
    schermo.cartelle.push_back(schermo.cartella.parent_path());
    nomi.emplace_back(sopra);
  }
  int errore = 0;
  const auto cartelle = programma.disco.Elenca_Cartelle(schermo.cartella, &errore);
  const auto presenti = programma.disco.Elenca(schermo.cartella, "*", errore == 0 ? &errore : nullptr);
  for (const Percorso& nome : cartelle.value_or(std::vector<Percorso>())) {
    schermo.cartelle.push_back(schermo.cartella / nome);
    nomi.push_back(Testo_Percorso(nome));
  }
  for (const Percorso& nome : presenti.value_or(std::vector<Percorso>()))
    file.push_back(Testo_Percorso(nome));
  schermo.Dir1.Riempi(std::move(nomi));
  schermo.Dir1.scelta = -1;
  schermo.File1.Riempi(std::move(file));
  schermo.File1.scelta = -1;
  schermo.Cartella.testo = Testo_Percorso(schermo.cartella);
  if (errore != 0) schermo.Cartella.testo += " - non si legge: " + Testo_Errore(errore);
}

void Vai(const Programma& programma, SceltaFile& schermo, const Percorso& cartella) {
  schermo.cartella = cartella.lexically_normal();
  if (!schermo.cartella.has_filename() && schermo.cartella.has_relative_path())
    schermo.cartella = schermo.cartella.parent_path();
  Mostra_Cartella(programma, schermo);
}

bool Finisce(Vista testo, Vista fine) { return Uguali(Destra(testo, fine.size()), fine); }

}  // namespace

std::optional<Testo> Nome_Con_Estensione(Vista nome) {
  nome = Pulito(nome);
  if (nome.empty()) return std::nullopt;
  if (Finisce(nome, ".txt") || Finisce(nome, ".xls")) return Testo(nome);
  return Testo(nome) + ".xls";
}

void Apri_SceltaFile(const Programma& programma, SceltaFile& schermo, Vista nome) {
  schermo = SceltaFile();
  schermo.Caption_Text1.testo = "Nome del file";
  schermo.Text1.testo = nome;
  schermo.Command1.testo = "&Conferma";
  schermo.Command2.testo = "&Annulla";
  schermo.MenuAggiorna.testo = "AggiornaDischi";
  schermo.cartella = programma.Cartella_Dati;
  Aggiorna_SceltaFile(programma, schermo);
}

void Aggiorna_SceltaFile(const Programma& programma, SceltaFile& schermo) {
  Mostra_Dischi(programma, schermo);
  // the stick that was looked at is gone: back to the firm's own folder
  Vai(programma, schermo,
      programma.disco.Esiste_Cartella(schermo.cartella) ? schermo.cartella : programma.Cartella_Dati);
  Segna_Disco(programma, schermo);
}

void Cambia_Disco(const Programma& programma, SceltaFile& schermo) {
  const int scelta = schermo.Drive1.scelta;
  if (scelta < 0 || scelta >= static_cast<int>(schermo.dischi.size())) return;
  Vai(programma, schermo, schermo.dischi[static_cast<std::size_t>(scelta)]);
}

void Entra_Cartella(const Programma& programma, SceltaFile& schermo) {
  const int scelta = schermo.Dir1.scelta;
  if (scelta < 0 || scelta >= static_cast<int>(schermo.cartelle.size())) return;
  Vai(programma, schermo, Percorso(schermo.cartelle[static_cast<std::size_t>(scelta)]));
  Segna_Disco(programma, schermo);
}

void Prendi_Nome(SceltaFile& schermo) {
  if (schermo.File1.scelta >= 0) schermo.Text1.testo = schermo.File1.Scelta();
}

void Conferma_File(Programma& programma, SceltaFile& schermo) {
  const auto nome = Nome_Con_Estensione(Senza_Separatori(schermo.Text1.testo));
  if (!nome) return;
  if (nome->find_first_of("/\\") != Testo::npos) {
    programma.piattaforma.Messaggio("il nome di un file non può contenere / o \\"_t);
    return;
  }
  schermo.FileScelto = Unisci_Percorso(schermo.cartella, *nome);
  schermo.chiusa = true;
}

void Annulla_File(SceltaFile& schermo) {
  schermo.FileScelto.reset();
  schermo.chiusa = true;
}
