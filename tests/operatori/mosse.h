#pragma once

#include <functional>
#include <string>

#include "tests/operatori/caso.h"

namespace operatori {

// Something that a person does at the screen: told before it is done, so that the story ends with what the
// program fell over.
struct Mossa {
  std::string detta;
  std::function<void()> fai;  // throws giornata::Fallito where the screen doesn't let it
};

// Anything at all, in what stands in front; now and then in another window that can be reached.
Mossa Mossa_A_Caso(Caso& caso);
// A step of the way to a screen, as schermi.h writes them.
Mossa Mossa_Scritta(const std::string& passo);

}  // namespace operatori
