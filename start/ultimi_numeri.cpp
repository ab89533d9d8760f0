#include <algorithm>

#include "core/numeri.h"
#include "core/riga.h"
#include "start/inizio.h"

namespace {

// Lines of the two generations before this one, told by the TABs of the first line.
constexpr int TAB_Con_Fattura = 20, TAB_Con_DDT = 19;
constexpr int Senza_Numero = 9999;  // NCV of rows without an account number

struct Massimi {
  int conto = 0, fattura = 0, nota = 0, ddt = 0;
};

void Compete(int& massimo, Vista campo, char separatore) {
  massimo = std::max(massimo, Intero(campo, separatore));
}

// Field `numero` of the line, from 1; empty on a shorter line.
Vista Campo(Vista riga, int numero) {
  for (int i = 1; i < numero; ++i) {
    const auto fine = riga.find(TAB);
    if (fine == Vista::npos) return {};
    riga.remove_prefix(fine + 1);
  }
  return riga.substr(0, riga.find(TAB));
}

void Conta_Fattura(Massimi& massimi, Vista fattura, char separatore) {
  if (Inizia(fattura, "NA"))
    Compete(massimi.nota, Da(fattura, 3), separatore);
  else
    Compete(massimi.fattura, fattura, separatore);
}

Massimi Massimi_Del_Giorno(Vista contenuto, char separatore) {
  Massimi massimi;
  const std::vector<Vista> righe = Righe(contenuto);
  if (righe.empty()) return massimi;
  const auto tabulazioni = std::count(righe[0].begin(), righe[0].end(), TAB);
  for (const Vista riga : righe) {
    Vista resto = riga;
    if (tabulazioni == TAB_Con_Fattura) Conta_Fattura(massimi, Ultimo_Campo(resto), separatore);
    if (tabulazioni == TAB_Con_Fattura || tabulazioni == TAB_Con_DDT)
      Compete(massimi.ddt, Ultimo_Campo(resto), separatore);
    Compete(massimi.conto, Campo(riga, static_cast<int>(CampoRiga::NCV)), separatore);
  }
  return massimi;
}

// The latest day of the folder that holds anything; empty days behind it are deleted. Nothing without one.
std::optional<Testo> Ultimo_Giorno(const Disco& disco, const Percorso& cartella) {
  const auto giorni = disco.Elenca(cartella, "*.txt");
  if (!giorni) return Testo();  // there may be days, but they tell nothing
  for (auto giorno = giorni->rbegin(); giorno != giorni->rend(); ++giorno) {
    const Percorso file = cartella / *giorno;
    auto contenuto = disco.Leggi(file);
    if (!contenuto) return Testo();  // unreadable: it is there, and tells nothing
    if (!contenuto->empty()) return contenuto;
    disco.Cancella(file);
  }
  return std::nullopt;
}

}  // namespace

Testo Trova_Ultimi_Numeri(Programma& programma, Vista anno) {
  const Percorso cartella = Unisci_Percorso(programma.Cartella_Dati, anno);
  const auto giorno = Ultimo_Giorno(programma.disco, cartella);
  if (!giorno) return "0";

  const Massimi massimi = Massimi_Del_Giorno(*giorno, programma.Separatore_Decimale);
  programma.Ultima_Fattura = std::max(programma.Ultima_Fattura, massimi.fattura);
  // The highest credit note goes into the invoice number: so the firms' numbers have always been counted on.
  if (massimi.nota > programma.Ultima_NA) programma.Ultima_Fattura = massimi.nota;
  programma.Ultimo_DDT = std::max(programma.Ultimo_DDT, massimi.ddt);

  const bool vale = massimi.conto > programma.Ultimo_CV && massimi.conto < Senza_Numero;
  return std::to_string(vale ? massimi.conto : programma.Ultimo_CV);
}
