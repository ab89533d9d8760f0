#pragma once

#include "lists/anagrafica.h"
#include "tests/lists/cartella_ditta.h"

// A list of the firm with its two windows, without the toolkit.
class Anagrafica_Aperta : public Cartella_Ditta {
 protected:
  void Apri(const Anagrafica& anagrafica) { Apri_Anagrafica(programma, schermo, anagrafica); }
  std::vector<Testo> Voci() const {
    std::vector<Testo> voci;
    for (std::size_t i = 0; i < schermo.List1.Numero(); ++i) voci.push_back(schermo.List1.Riga(i));
    return voci;
  }
  std::vector<Testo> Campi() const {
    std::vector<Testo> campi;
    for (const CampoTesto& campo : schermo.Text1) campi.push_back(campo.testo);
    return campi;
  }
  void Compila(const std::vector<Testo>& valori) {
    for (std::size_t i = 0; i < schermo.Text1.size(); ++i) {
      schermo.Text1[i].testo = i < valori.size() ? valori[i] : Testo();
      Cambia_Campo(programma, schermo, i);
    }
  }
  void Scegli_Riga(int r) {
    schermo.List1.scelta = r;
    Scegli_Voce(programma, schermo);
  }
  // The editor's scroller and the list always name the same row.
  void In_Passo(int riga, int righe) const {
    EXPECT_EQ(schermo.List1.scelta, riga);
    EXPECT_EQ(schermo.Scorri.valore, std::max(1, riga + 1));
    EXPECT_EQ(schermo.Scorri.massimo, std::max(1, righe));
    EXPECT_EQ(schermo.List1.Numero(), static_cast<std::size_t>(righe));
  }

  SchermoAnagrafica schermo;
};
