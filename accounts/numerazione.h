#pragma once

#include <functional>
#include <vector>

#include "accounts/conti.h"

// Numbers of accounts between the screen's table, the ledger and the file of last numbers. The order of the
// writes keeps them together: what a command writes goes to the disk before the screen or the paper shows it,
// and what can't be written is put back as it was.

// The account fields of the ledger's rows as they were, to be put back when the day can't be saved.
class Ricordo_CV {
 public:
  // Of the rows of one supplier, or of all.
  Ricordo_CV(const Tabella& tabella, Vista fornitore);
  explicit Ricordo_CV(const Tabella& tabella);
  void Rimetti(Tabella& tabella);

 private:
  struct Riga {
    std::size_t posto;
    Testo NCV, DataCV, DDT_CV, SAnt, Provvigione, Fornitore;
  };
  void Ricorda(std::size_t posto, const LedgerRow& riga);
  std::vector<Riga> righe_;
};

// Saves the day; on failure (told) the rows go back to what `ricordo` holds, and false.
bool SalvaConti(Programma& programma, Ricordo_CV& ricordo);

// Sorts the ledger by supplier and gives every row the day's date as the date of its account, whatever it had
// before: an account carries the date of the day that it is opened on.
void PreparaLibro(Programma& programma);

// Gives each account without a number the next one of all, in the order of `conti`. The number stands in
// `conti` and in the file of last numbers; the supplier's rows get the number that the account had before,
// and the new one only with a command that saves it. An account that isn't saved gets another number the next
// time; the one it had stays used. `numerato` is called after each. False when a file couldn't be written
// (told): the account in work and those behind it stay without a number.
bool NumeraConti(Programma& programma, Tabella_Conti& conti, const std::function<void()>& numerato);

enum class Riferimento_DDT { Resta, Scrivi };  // a credit row keeps its own in any case
// The account's values on all rows of `fornitore` (ignoring case).
void ScriviSuRighe(Tabella& tabella, Vista fornitore, const Conto_CV& conto, Riferimento_DDT ddt);

// The rows with that account number (as text, ignoring case) go to another supplier.
void CambiaFornitoreRighe(Tabella& tabella, Vista ncv, const Testo& fornitore);

// The number that the next account would get.
int ProssimoCV(const Programma& programma);

// Makes `numero` the last account number, also when that lowers it. False when it couldn't be written (told):
// then it stays what it was.
bool MettiUltimoCV(Programma& programma, int numero);
