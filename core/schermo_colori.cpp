#include "core/schermo_colori.h"

#include "core/programma.h"

namespace {

int Inchiostro_Scelto(const SchermoColori& schermo) {
  for (int i = 0; i < 4; ++i)
    if (schermo.ColoreTesto[i].segnata) return i + 1;
  return 2;
}

}  // namespace

Colore Colore_Inchiostro(int colore_testo) {
  switch (colore_testo) {
    case 1:
      return {255, 255, 255};
    case 3:
      return {0, 0, 255};
    case 4:
      return {255, 255, 0};
    default:
      return {0, 0, 0};
  }
}

void Rinfresca_Campioni(SchermoColori& schermo) {
  const Colore inchiostro = Colore_Inchiostro(Inchiostro_Scelto(schermo));
  const Colore fondo{schermo.Colore1.valore, schermo.Colore2.valore, schermo.Colore3.valore};
  schermo.Normale.inchiostro = schermo.Selezionato.fondo = inchiostro;
  schermo.Normale.fondo = schermo.Selezionato.inchiostro = fondo;
}

void Scegli_Inchiostro(SchermoColori& schermo, int colore_testo) {
  const int scelto = colore_testo < 1 || colore_testo > 4 ? 2 : colore_testo;
  for (int i = 0; i < 4; ++i) schermo.ColoreTesto[i].segnata = i + 1 == scelto;
  Rinfresca_Campioni(schermo);
}

void Apri_Colori(const Programma& programma, SchermoColori& schermo) {
  constexpr Vista nomi[4] = {"Bianco", "Nero", "Blu", "Giallo"};
  for (int i = 0; i < 4; ++i) schermo.ColoreTesto[i].didascalia = nomi[i];
  for (Cursore* cursore : {&schermo.Colore1, &schermo.Colore2, &schermo.Colore3}) {
    cursore->minimo = 0;
    cursore->massimo = 255;
  }
  const Preferenze& preferenze = programma.preferenze;
  schermo.Colore1.valore = preferenze.Colore1;
  schermo.Colore2.valore = preferenze.Colore2;
  schermo.Colore3.valore = preferenze.Colore3;
  schermo.Normale.testo = "testo normale";
  schermo.Selezionato.testo = "testo selezionato";
  schermo.Applica.testo = "&Applica";
  schermo.Chiudi.testo = "&Chiudi";
  Scegli_Inchiostro(schermo, preferenze.ColoreTesto);
}

bool Applica_Colori(Programma& programma, SchermoColori& schermo) {
  Preferenze& preferenze = programma.preferenze;
  const Preferenze vecchie = preferenze;
  preferenze.ColoreTesto = Inchiostro_Scelto(schermo);
  preferenze.Colore1 = schermo.Colore1.valore;
  preferenze.Colore2 = schermo.Colore2.valore;
  preferenze.Colore3 = schermo.Colore3.valore;
  if (Scrivi_Preferenze(programma, {"ColoreTesto", "Colore1", "Colore2", "Colore3"})) return true;
  preferenze = vecchie;
  programma.piattaforma.Messaggio(
      "I colori non sono stati salvati: il file\n"_t + Testo_Percorso(programma.File_Ini) +
      "\nnon si può scrivere. Controllare il disco e premere di nuovo Applica."_t);
  return false;
}
