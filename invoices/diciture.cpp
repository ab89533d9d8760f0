#include "invoices/diciture.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace {

struct Tracciato_Serie {
  Testo (Preferenze::*righe)[Righe_Dicitura];
  Vista didascalia, bottone;
};

// In the order of Serie_Diciture.
constexpr Tracciato_Serie tracciati[] = {
    {&Preferenze::Testo_Fattura, "Fattura Grafica (generica)", "generica"},
    {&Preferenze::Testo_Fattura_Completa, "Fattura Completa", "Default Completa"},
    {&Preferenze::Testo_Fattura_Gra, "Fattura Personalizzata 1", "Default Personalizzata &1"},
    {&Preferenze::Testo_Fattura_Gra2, "Fattura Personalizzata 2", "Default Personalizzata 2"},
};

const std::initializer_list<Vista> chiavi = {
    "Testo_Fattura_1",          "Testo_Fattura_2",          "Testo_Fattura_3",
    "Testo_Fattura_4",          "Testo_Fattura_5",          "Testo_Fattura_6",
    "Testo_Fattura_Completa_1", "Testo_Fattura_Completa_2", "Testo_Fattura_Completa_3",
    "Testo_Fattura_Completa_4", "Testo_Fattura_Completa_5", "Testo_Fattura_Completa_6",
    "Testo_Fattura_Gra_1",      "Testo_Fattura_Gra_2",      "Testo_Fattura_Gra_3",
    "Testo_Fattura_Gra_4",      "Testo_Fattura_Gra_5",      "Testo_Fattura_Gra_6",
    "Testo_Fattura_Gra2_1",     "Testo_Fattura_Gra2_2",     "Testo_Fattura_Gra2_3",
    "Testo_Fattura_Gra2_4",     "Testo_Fattura_Gra2_5",     "Testo_Fattura_Gra2_6"};

std::size_t Indice_Di(Serie_Dicitura serie) { return static_cast<std::size_t>(serie); }

Testo (&Righe_Di(Preferenze& preferenze, Serie_Dicitura serie))[Righe_Dicitura] {
  return preferenze.*tracciati[Indice_Di(serie)].righe;
}

void Mostra_Serie(const Preferenze& preferenze, Personalizza_Fattura& schermo, Serie_Dicitura quale) {
  const auto righe = Righe_Di(preferenze, quale);
  auto& campi = schermo.serie[Indice_Di(quale)].campi;
  for (std::size_t i = 0; i < righe.size(); ++i) campi[i].testo = righe[i];
}

// The lines that a set's default button gives. Lines 2 to 4 of the long wording end in a blank only in the
// first personal set.
Dicitura Dicitura_Predefinita(Serie_Dicitura serie) {
  if (serie == Serie_Dicitura::Personalizzata2)
    return {"Assolve gli obblighi di cui all'Art. 62,", "Comma 1 del Decreto Legge 24 Gennaio 2012 n. 1.",
            "convertito con modificazioni, della Legge 24 Marzo 2012. n. 27."};
  Dicitura dicitura;
  std::ranges::copy(Righe_Piede_Fattura(), dicitura.begin());
  if (serie != Serie_Dicitura::Personalizzata1)
    for (Testo& riga : dicitura) riga = Pulito_Destra(Testo(riga));
  return dicitura;
}

}  // namespace

std::span<const Testo, Righe_Dicitura> Righe_Di(const Preferenze& preferenze, Serie_Dicitura serie) {
  return preferenze.*tracciati[Indice_Di(serie)].righe;
}

void Apri_Personalizza(const Programma& programma, Personalizza_Fattura& schermo) {
  for (const Serie_Dicitura quale : Serie_Diciture) {
    Serie_Campi& serie = schermo.serie[Indice_Di(quale)];
    serie.didascalia.testo = tracciati[Indice_Di(quale)].didascalia;
    serie.predefinita.testo = tracciati[Indice_Di(quale)].bottone;
    Mostra_Serie(programma.preferenze, schermo, quale);
  }
  schermo.Command2.testo = "&Applica";
  schermo.Command3.testo = "&Chiudi";
  schermo.chiusa = false;
  Tocca_Personalizza(schermo);
}

void Tocca_Personalizza(Personalizza_Fattura& schermo) { schermo.Esito.testo.clear(); }

void Predefinita_Personalizza(Programma& programma, Personalizza_Fattura& schermo, Serie_Dicitura quale) {
  std::ranges::copy(Dicitura_Predefinita(quale), Righe_Di(programma.preferenze, quale));
  Mostra_Serie(programma.preferenze, schermo, quale);
  Tocca_Personalizza(schermo);
}

bool Applica_Personalizza(Programma& programma, Personalizza_Fattura& schermo) {
  Tocca_Personalizza(schermo);
  const Preferenze vecchie = programma.preferenze;
  for (const Serie_Dicitura quale : Serie_Diciture) {
    auto& righe = Righe_Di(programma.preferenze, quale);
    const auto& campi = schermo.serie[Indice_Di(quale)].campi;
    for (std::size_t i = 0; i < campi.size(); ++i) righe[i] = Senza_Separatori(campi[i].testo);
  }
  if (Scrivi_Preferenze(programma, chiavi)) {
    schermo.Esito.testo = "Diciture salvate.";
    return true;
  }
  programma.preferenze = vecchie;
  programma.piattaforma.Messaggio(
      "Le diciture non sono state salvate: il file\n" + Testo_Percorso(programma.File_Ini) +
      "\nnon si può scrivere. Controllare il disco e premere di nuovo Applica."_t);
  return false;
}

void Chiudi_Personalizza(Personalizza_Fattura& schermo) { schermo.chiusa = true; }
