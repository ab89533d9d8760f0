#include "core/date.h"

#include <algorithm>
#include <chrono>

namespace {

// The forms of a date text: where day, month and year stand in it, counted from 0.
struct Forma_Data {
  Vista nome;
  std::size_t giorno, mese, anno;
  std::size_t cifre_anno;
  bool barre;     // "/" between the parts
  bool si_passa;  // a form whose texts can be stepped by a day
};

constexpr Forma_Data forme[] = {
    {"yyyymmdd", 6, 4, 0, 4, false, true},  {"yymmdd", 4, 2, 0, 2, false, true},
    {"dd/mm/yyyy", 0, 3, 6, 4, true, true}, {"dd/mm/yy", 0, 3, 6, 2, true, true},
    {"ddmmyyyy", 0, 2, 4, 4, false, false}, {"ddmmyy", 0, 2, 4, 2, false, false},
};

const Forma_Data* Cerca_Forma(Vista nome) {
  const auto* trovata = std::find_if(std::begin(forme), std::end(forme),
                                     [nome](const Forma_Data& forma) { return Uguali(forma.nome, nome); });
  return trovata == std::end(forme) ? nullptr : trovata;
}

// So many digits, or nothing.
std::optional<int> Cifre(Vista testo) {
  if (testo.empty() || testo.size() > 4) return std::nullopt;
  int numero = 0;
  for (const char c : testo) {
    if (c < '0' || c > '9') return std::nullopt;
    numero = numero * 10 + (c - '0');
  }
  return numero;
}

void Scrivi_Cifre(Testo& testo, std::size_t dove, std::size_t quante, int numero) {
  for (std::size_t i = quante; i-- > 0; numero /= 10) testo[dove + i] = static_cast<char>('0' + numero % 10);
}

Testo Componi(const Data& data, const Forma_Data& forma) {
  Testo testo(forma.nome.size(), '/');
  Scrivi_Cifre(testo, forma.giorno, 2, std::max(data.giorno, 0));
  Scrivi_Cifre(testo, forma.mese, 2, std::max(data.mese, 0));
  Scrivi_Cifre(testo, forma.anno, forma.cifre_anno, std::max(data.anno, 0));
  return testo;
}

// A date text cut by position; nothing when a part isn't made of digits or the month is none.
std::optional<Data> Taglia(Vista testo, const Forma_Data& forma) {
  if (testo.size() < forma.nome.size()) return std::nullopt;
  const auto giorno = Cifre(testo.substr(forma.giorno, 2));
  const auto mese = Cifre(testo.substr(forma.mese, 2));
  const auto anno = Cifre(testo.substr(forma.anno, forma.cifre_anno));
  if (!giorno || !mese || !anno || *mese < 1 || *mese > 12) return std::nullopt;
  return Data{forma.cifre_anno == 2 ? 2000 + *anno : *anno, *mese, *giorno};
}

Testo Passa(Vista testo, Vista nome_forma, Data (*passo)(const Data&)) {
  const Forma_Data* forma = Cerca_Forma(nome_forma);
  if (forma == nullptr || !forma->si_passa) return {};
  const auto data = Taglia(testo, *forma);
  return data ? Componi(passo(*data), *forma) : Testo();
}

std::chrono::year_month_day Calendario(const Data& data) {
  return {std::chrono::year(data.anno), std::chrono::month(static_cast<unsigned>(data.mese)),
          std::chrono::day(static_cast<unsigned>(data.giorno))};
}

}  // namespace

Testo Testo_Data(const Data& data, Vista forma) {
  const Forma_Data* trovata = Cerca_Forma(forma);
  return trovata == nullptr ? Testo() : Componi(data, *trovata);
}

Testo Giorno_Dopo(Vista testo, Vista forma) { return Passa(testo, forma, Giorno_Dopo); }
Testo Giorno_Prima(Vista testo, Vista forma) { return Passa(testo, forma, Giorno_Prima); }

Data Giorno_Dopo(const Data& data) {
  if (data.giorno < Giorni_Del_Mese(data.mese, data.anno)) return {data.anno, data.mese, data.giorno + 1};
  if (data.mese < 12) return {data.anno, data.mese + 1, 1};
  return {data.anno + 1, 1, 1};
}

Data Giorno_Prima(const Data& data) {
  if (data.giorno > 1) return {data.anno, data.mese, data.giorno - 1};
  if (data.mese > 1) return {data.anno, data.mese - 1, Giorni_Del_Mese(data.mese - 1, data.anno)};
  return {data.anno - 1, 12, 31};
}

Testo Data_Da_AAAAMMGG(Vista testo) {
  Testo data(Da(testo, 7).substr(0, 2));
  return data.append("/").append(Da(testo, 5).substr(0, 2)).append("/").append(Sinistra(testo, 4));
}

std::optional<Data> Leggi_Data(Vista testo) {
  testo = Pulito(testo);
  const std::size_t primo = testo.find_first_of("/-.");
  if (primo == Vista::npos) return std::nullopt;
  const std::size_t secondo = testo.find(testo[primo], primo + 1);
  if (secondo == Vista::npos) return std::nullopt;
  const Vista parti[] = {testo.substr(0, primo), testo.substr(primo + 1, secondo - primo - 1),
                         testo.substr(secondo + 1)};
  if (parti[0].size() > 2 || parti[1].size() > 2 || (parti[2].size() != 2 && parti[2].size() != 4))
    return std::nullopt;
  const auto giorno = Cifre(parti[0]), mese = Cifre(parti[1]), anno = Cifre(parti[2]);
  if (!giorno || !mese || !anno) return std::nullopt;
  const Data data{parti[2].size() == 2 ? 2000 + *anno : *anno, *mese, *giorno};
  if (data.anno < 1 || !Calendario(data).ok()) return std::nullopt;
  return data;
}

bool E_Data(Vista testo) { return Leggi_Data(testo).has_value(); }

int Giorni_Del_Mese(int mese, int anno) {
  constexpr int giorni[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (mese < 1 || mese > 12) return 0;
  return mese == 2 && anno % 4 == 0 ? 29 : giorni[mese - 1];
}

int Giorno_Settimana(const Data& data) {
  const std::chrono::weekday giorno{std::chrono::sys_days(Calendario(data))};
  return static_cast<int>(giorno.c_encoding());
}
