#include "core/profili.h"

#include <algorithm>

namespace {

struct Voce_Profilo {
  Profilo profilo;
  Vista nome;
  Vista codice;  // what the firm writes into CodiceCOM
};

constexpr Voce_Profilo profili[] = {
    {Profilo::Altinel, "Altinel", "101"}, {Profilo::Brenval, "Brenval", "102"},
    {Profilo::Burvano, "Burvano", "103"}, {Profilo::Caspero, "Caspero", "104"},
    {Profilo::Cavarzo, "Cavarzo", "105"}, {Profilo::Dolvena, "Dolvena", "106"},
    {Profilo::Fusinal, "Fusinal", "107"}, {Profilo::Lagomar, "Lagomar", "108"},
    {Profilo::Marvesi, "Marvesi", "109"}, {Profilo::Ombrano, "Ombrano", "110"},
    {Profilo::Rovigal, "Rovigal", "111"}, {Profilo::Sarvena, "Sarvena", "112"},
    {Profilo::Tolvera, "Tolvera", "113"}, {Profilo::Zenival, "Zenival", "114"},
};

}  // namespace

Profilo Profilo_Ditta(Vista codice) {
  codice = Pulito(codice);
  const auto* voce = std::find_if(std::begin(profili), std::end(profili), [codice](const Voce_Profilo& v) {
    return v.codice == codice || Uguali(v.nome, codice);
  });
  return voce == std::end(profili) ? Profilo::Nessuno : voce->profilo;
}

Vista Nome_Profilo(Profilo profilo) {
  const auto* voce = std::find_if(std::begin(profili), std::end(profili),
                                  [profilo](const Voce_Profilo& v) { return v.profilo == profilo; });
  return voce == std::end(profili) ? Vista() : voce->nome;
}
