#pragma once

#include <optional>

#include "core/testo.h"

struct Data {
  int anno = 0, mese = 0, giorno = 0;
  auto operator<=>(const Data&) const = default;
};

// The forms of a date text: "yyyymmdd", "yymmdd", "dd/mm/yyyy", "dd/mm/yy", "ddmmyyyy", "ddmmyy" (ignoring
// case). Parts are zero-filled; an unknown form gives an empty text.
Testo Testo_Data(const Data& data, Vista forma);

// Next and previous day of a date text in one of the first four forms, cut by position and rebuilt in the
// same form. February has 29 days in every year divisible by 4, 2100 included: the firm's lots and files
// count so.
Testo Giorno_Dopo(Vista testo, Vista forma);
Testo Giorno_Prima(Vista testo, Vista forma);
Data Giorno_Dopo(const Data& data);
Data Giorno_Prima(const Data& data);

Testo Data_Da_AAAAMMGG(Vista testo);  // "20250314" is "14/03/2025"

// A real calendar day written d/m/y, d-m-y or d.m.y with one or two digits for day and month and two (2000
// plus that number) or four for the year.
std::optional<Data> Leggi_Data(Vista testo);
bool E_Data(Vista testo);

int Giorni_Del_Mese(int mese, int anno);  // by the rule above; 0 for a month outside 1 to 12
int Giorno_Settimana(const Data& data);   // 0 Sunday to 6 Saturday, Gregorian calendar
