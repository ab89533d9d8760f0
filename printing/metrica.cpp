#include "printing/metrica.h"

#include <algorithm>

namespace {

// Advance widths of Liberation Sans 1.07.4 (table hmtx of LiberationSans-Regular.ttf and -Bold.ttf, 2048
// units to the em), by the bytes of Windows-1252. They are those of Arial, so that pages laid out for it come
// out the same.
constexpr Larghezze sans = {
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    569,  569,  727,  1139, 1139, 1821, 1366, 391,  682,  682,  797,  1196, 569,  682,  569,  569,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 569,  569,  1196, 1196, 1196, 1139,
    2079, 1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479, 569,  1024, 1366, 1139, 1706, 1479, 1593,
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251, 569,  569,  569,  961,  1139,
    682,  1139, 1139, 1024, 1139, 1139, 569,  1139, 1139, 455,  455,  1024, 455,  1706, 1139, 1139,
    1139, 1139, 682,  1024, 569,  1139, 1024, 1479, 1024, 1024, 1024, 684,  532,  684,  1196, 0,
    1139, 0,    455,  1139, 682,  2048, 1139, 1139, 682,  2048, 1366, 682,  2048, 0,    1251, 0,
    0,    455,  455,  682,  682,  717,  1139, 2048, 682,  2048, 1024, 682,  1933, 0,    1024, 1366,
    569,  682,  1139, 1139, 1139, 1139, 532,  1139, 682,  1509, 758,  1139, 1196, 682,  1509, 1131,
    819,  1124, 682,  682,  682,  1180, 1100, 569,  682,  682,  748,  1139, 1708, 1708, 1708, 1251,
    1366, 1366, 1366, 1366, 1366, 1366, 2048, 1479, 1366, 1366, 1366, 1366, 569,  569,  569,  569,
    1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366, 1366, 1251,
    1139, 1139, 1139, 1139, 1139, 1139, 1821, 1024, 1139, 1139, 1139, 1139, 569,  569,  569,  569,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1124, 1251, 1139, 1139, 1139, 1139, 1024, 1139, 1024,
};

constexpr Larghezze sans_grassetto = {
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    569,  682,  971,  1139, 1139, 1821, 1479, 487,  682,  682,  797,  1196, 569,  682,  569,  569,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 682,  682,  1196, 1196, 1196, 1251,
    1997, 1479, 1479, 1479, 1479, 1366, 1251, 1593, 1479, 569,  1139, 1479, 1251, 1706, 1479, 1593,
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251, 682,  569,  682,  1196, 1139,
    682,  1139, 1251, 1139, 1251, 1139, 682,  1251, 1251, 569,  569,  1139, 569,  1821, 1251, 1251,
    1251, 1251, 797,  1139, 682,  1251, 1139, 1593, 1139, 1139, 1024, 797,  573,  797,  1196, 0,
    1139, 0,    569,  1139, 1024, 2048, 1139, 1139, 682,  2048, 1366, 682,  2048, 0,    1251, 0,
    0,    569,  569,  1024, 1024, 717,  1139, 2048, 682,  2048, 1139, 682,  1933, 0,    1024, 1366,
    569,  682,  1139, 1139, 1139, 1139, 573,  1139, 682,  1509, 758,  1139, 1196, 682,  1509, 1131,
    819,  1124, 682,  682,  682,  1180, 1139, 569,  682,  682,  748,  1139, 1708, 1708, 1708, 1251,
    1479, 1479, 1479, 1479, 1479, 1479, 2048, 1479, 1366, 1366, 1366, 1366, 569,  569,  569,  569,
    1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366, 1366, 1251,
    1139, 1139, 1139, 1139, 1139, 1139, 1821, 1139, 1139, 1139, 1139, 1139, 569,  569,  569,  569,
    1251, 1251, 1251, 1251, 1251, 1251, 1251, 1124, 1251, 1251, 1251, 1251, 1251, 1139, 1251, 1139,
};

// The same of Liberation Mono, whose letters have all one width, that of Courier New.
constexpr std::uint16_t larghezza_mono = 1229;

constexpr Larghezze Tutte_Uguali(const Larghezze& quali, std::uint16_t larghezza) {
  Larghezze esito{};
  for (std::size_t i = 0; i < esito.size(); ++i) esito[i] = quali[i] == 0 ? std::uint16_t{0} : larghezza;
  return esito;
}

constexpr Metrica metrica_sans{sans, 2048, 1854, 434};
constexpr Metrica metrica_sans_grassetto{sans_grassetto, 2048, 1854, 434};
constexpr Metrica metrica_mono{Tutte_Uguali(sans, larghezza_mono), 2048, 1705, 615};

struct Nome {
  Vista nome;
  Faccia faccia;
};
constexpr Nome nomi[] = {{"Arial", Faccia::Sans},     {"Liberation Sans", Faccia::Sans},
                         {"Helvetica", Faccia::Sans}, {"Courier New", Faccia::Mono},
                         {"Courier", Faccia::Mono},   {"Liberation Mono", Faccia::Mono}};

const Nome* Trova(Vista carattere) {
  const auto* trovato = std::find_if(std::begin(nomi), std::end(nomi),
                                     [&](const Nome& nome) { return Uguali(nome.nome, carattere); });
  return trovato == std::end(nomi) ? nullptr : trovato;
}

}  // namespace

Faccia Faccia_Di(Vista carattere) {
  const Nome* nome = Trova(carattere);
  return nome ? nome->faccia : Faccia::Sans;
}

bool Faccia_Propria(Vista carattere) { return Trova(carattere) != nullptr; }

Vista Nome_Faccia(Faccia faccia) { return faccia == Faccia::Mono ? "Liberation Mono" : "Liberation Sans"; }

const Metrica& Metrica_Della_Faccia(Faccia faccia, bool grassetto) {
  if (faccia == Faccia::Mono) return metrica_mono;
  return grassetto ? metrica_sans_grassetto : metrica_sans;
}

std::int64_t Unita(const Metrica& metrica, Vista testo) {
  std::int64_t esito = 0;
  for (const char c : testo) esito += metrica.larghezze[static_cast<unsigned char>(c)];
  return esito;
}
