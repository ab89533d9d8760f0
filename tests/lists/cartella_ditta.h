#pragma once

#include <cerrno>
#include <gmock/gmock.h>
#include <set>
#include <tuple>

#include "core/programma.h"
#include "lists/file_lista.h"
#include "lists/liste.h"
#include "tests/core/cartella_temporanea.h"
#include "tests/piattaforma_finta.h"

// A firm's empty folder, which goes when the test ends, with its program and machine.
class Cartella_Ditta : public testing::Test {
 protected:
  Cartella_Ditta() { programma.Cartella_Dati = temporanea.percorso; }

  Percorso File(Vista nome) const { return Unisci_Percorso(programma.Cartella_Dati, nome); }
  void Scrivi(Vista nome, Vista contenuto) const {
    ASSERT_EQ(programma.disco.Sostituisci(File(nome), contenuto), 0);
  }
  Testo Contenuto(Vista nome) const { return programma.disco.Leggi(File(nome)).value_or("(manca)"); }
  bool Esiste(Vista nome) const { return programma.disco.Esiste_File(File(nome)); }
  // Every write to that file fails as on a full disk.
  void Disco_Pieno(Vista nome) {
    programma.disco.guasto = [file = File(nome)](const Percorso& p) { return p == file ? ENOSPC : 0; };
  }
  Testo Errore_Su(Vista nome) const {
    return "Errore =" + std::to_string(ENOSPC) + "  aprendo il file " + Testo_Percorso(File(nome));
  }

  Cartella_Temporanea temporanea;
  Piattaforma_Finta macchina;
  Programma programma{macchina};
};
