#pragma once

#include "accounts/pagine.h"

// Accounts whose numbers were given by hand on the ledger's rows: one for each number, whoever supplied the
// goods. Their arithmetic is their own and differs from that of the numbered accounts: the third rate bears
// no commission and stands outside the taxable total.

// What two rows of one account have in common: the number without blanks and zeros in front, so that "7" and
// "007", which are one number on paper, are one account. A text that is no number is itself, in small
// letters.
Testo ChiaveNCV(Vista ncv);

// One account for each number, from a table sorted by NCV, each filled from the last row of its number and
// ordered by number. A row without a date gives the day's. An account whose reference is that of a credit
// ("Rif. ...") takes the reference of another of its rows that has one.
Tabella_Conti ContiManuali(const Tabella& tabella, Vista giorno, char separatore);

// The rows of the account with that number, credits and rows of price 0 too, merged by species and price; of
// the rows merged the kilos are summed, the boxes are those of the first.
std::vector<LedgerRow> RigheContoManuale(const Tabella& tabella, Vista ncv, char separatore);

// The suppliers of that number, each once in the order of the table: an account should have one.
std::vector<Testo> FornitoriConto(const Tabella& tabella, Vista ncv);

// The rates of the settings; here VAT is always charged and expenses are always an amount in euro.
Regole_Importi RegoleManuali(const Preferenze& preferenze);

// Imponibile1 and 2 come out net of commission, Imponibile3 whole. What can't be read as a number is 0; a
// line at a rate that is none of the three counts with its kilos only.
Importi_CV ImportiManuali(const std::vector<LedgerRow>& righe, const Preferenze& preferenze, Vista speAnt,
                          Vista prov, char separatore);

// By the setting FlagStampaFrame: of the layouts only four are printed here.
Scelta_Tracciato TracciatoManuale(int FlagStampaFrame);
Diciture_CV DicitureManuali();
Testo TitoloAnteprimaManuale();
