#include "core/date.h"

#include <gtest/gtest.h>

namespace {

TEST(Date, OgniForma) {
  const Data giorno{2025, 3, 4};
  const struct {
    Vista forma, testo;
  } casi[] = {{"yyyymmdd", "20250304"},
              {"yymmdd", "250304"},
              {"dd/mm/yyyy", "04/03/2025"},
              {"dd/mm/yy", "04/03/25"},
              {"ddmmyyyy", "04032025"},
              {"ddmmyy", "040325"},
              {"YYYYMMDD", "20250304"},
              {"Dd/Mm/Yy", "04/03/25"},
              {"mm/dd", ""},
              {"", ""}};
  for (const auto& caso : casi) EXPECT_EQ(Testo_Data(giorno, caso.forma), caso.testo) << caso.forma;
  EXPECT_EQ(Testo_Data({7, 1, 2}, "yyyymmdd"), "00070102");
  EXPECT_EQ(Testo_Data({2009, 1, 2}, "ddmmyy"), "020109");
}

// Lots and file names of the firms count a leap year every four years, 2100 too.
TEST(Date, GiornoDopoEPrima) {
  const struct {
    Vista prima, dopo;
  } casi[] = {{"20250314", "20250315"}, {"20250131", "20250201"}, {"20251231", "20260101"},
              {"20240228", "20240229"}, {"20240229", "20240301"}, {"20250228", "20250301"},
              {"21000228", "21000229"}, {"21000229", "21000301"}, {"19000228", "19000229"},
              {"20250430", "20250501"}, {"19991231", "20000101"}};
  for (const auto& caso : casi) {
    EXPECT_EQ(Giorno_Dopo(caso.prima, "yyyymmdd"), caso.dopo);
    EXPECT_EQ(Giorno_Prima(caso.dopo, "yyyymmdd"), caso.prima);
  }
}

TEST(Date, PassaNelleSueForme) {
  const struct {
    Vista forma, prima, dopo;
  } casi[] = {{"yymmdd", "241231", "250101"},
              {"yymmdd", "240228", "240229"},
              {"dd/mm/yyyy", "31/12/2024", "01/01/2025"},
              {"DD/MM/YYYY", "28/02/2025", "01/03/2025"},
              {"dd/mm/yy", "30/06/25", "01/07/25"},
              {"dd/mm/yy", "09/06/25", "10/06/25"},
              {"yymmdd", "991231", "000101"}};  // two digits stay two
  for (const auto& caso : casi) {
    EXPECT_EQ(Giorno_Dopo(caso.prima, caso.forma), caso.dopo);
    EXPECT_EQ(Giorno_Prima(caso.dopo, caso.forma), caso.prima);
  }
}

TEST(Date, PassaSoloDaUnaData) {
  for (const Vista testo :
       {"", "2025", "2025031", "202503xx", "20251301", "20250001", "abcdefgh", "2025-3-1"})
    EXPECT_EQ(Giorno_Dopo(testo, "yyyymmdd"), "") << testo;
  EXPECT_EQ(Giorno_Dopo("14032025", "ddmmyyyy"), "");
  EXPECT_EQ(Giorno_Prima("20250314", "nessuna"), "");
}

TEST(Date, OgniGiornoTornaIndietro) {
  Data giorno{2019, 12, 31};
  int giorni = 0;
  for (; giorno < Data{2025, 1, 1}; ++giorni) {
    const Data dopo = Giorno_Dopo(giorno);
    EXPECT_EQ(Giorno_Prima(dopo), giorno);
    EXPECT_EQ(Giorno_Settimana(dopo), (Giorno_Settimana(giorno) + 1) % 7);
    giorno = dopo;
  }
  EXPECT_EQ(giorni, 1 + 5 * 365 + 2);
}

TEST(Date, DaAAAAMMGG) {
  EXPECT_EQ(Data_Da_AAAAMMGG("20250314"), "14/03/2025");
  EXPECT_EQ(Data_Da_AAAAMMGG("20250314.txt"), "14/03/2025");
}

TEST(Date, LeggiData) {
  const struct {
    Vista testo;
    Data data;
  } buone[] = {{"14/03/2025", {2025, 3, 14}}, {"1/2/25", {2025, 2, 1}},      {"1-2-2025", {2025, 2, 1}},
               {"01.02.25", {2025, 2, 1}},    {"29/02/2024", {2024, 2, 29}}, {"31/12/99", {2099, 12, 31}},
               {" 1/1/00 ", {2000, 1, 1}},    {"29/2/2000", {2000, 2, 29}},  {"5/6/1987", {1987, 6, 5}}};
  for (const auto& caso : buone) {
    ASSERT_TRUE(E_Data(caso.testo)) << caso.testo;
    EXPECT_EQ(*Leggi_Data(caso.testo), caso.data);
  }
  for (const Vista testo : {"",           "14032025",  "31/04/2025", "29/02/2025", "30/02/2024", "29/02/1900",
                            "0/1/2025",   "1/0/2025",  "1/13/2025",  "32/1/2025",  "1/1/5",      "1/1/025",
                            "1/1/20255",  "1/1-2025",  "1/1",        "a/1/2025",   "1//2025",    "/1/2025",
                            "001/1/2025", "1/1/2025/", "-1/1/2025",  "1 /1/2025",  "1/1/0000",   "///"})
    EXPECT_FALSE(E_Data(testo)) << testo;
}

TEST(Date, GiorniDelMese) {
  const int giorni[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int mese = 1; mese <= 12; ++mese) EXPECT_EQ(Giorni_Del_Mese(mese, 2025), giorni[mese - 1]);
  EXPECT_EQ(Giorni_Del_Mese(2, 2024), 29);
  EXPECT_EQ(Giorni_Del_Mese(2, 2100), 29);
  EXPECT_EQ(Giorni_Del_Mese(0, 2025), 0);
  EXPECT_EQ(Giorni_Del_Mese(13, 2025), 0);
  EXPECT_EQ(Giorni_Del_Mese(-1, 2025), 0);
}

TEST(Date, GiornoSettimana) {
  EXPECT_EQ(Giorno_Settimana({2025, 3, 14}), 5);  // a Friday
  EXPECT_EQ(Giorno_Settimana({2025, 3, 16}), 0);
  EXPECT_EQ(Giorno_Settimana({2000, 1, 1}), 6);
  EXPECT_EQ(Giorno_Settimana({1900, 3, 1}), 4);
}

}  // namespace
