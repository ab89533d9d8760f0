#include "core/memoria.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

// It is advice about memory that may be in use already: what stands there must stay, wherever it begins and
// ends.
TEST(Memoria, IlConsiglioNonCambiaCioCheContiene) {
  constexpr std::size_t grande = std::size_t{9} << 20U;
  std::vector<unsigned char> byte(grande);
  for (std::size_t i = 0; i < grande; ++i) byte[i] = static_cast<unsigned char>(i % 251);
  const auto prima = byte;
  for (const std::size_t salto : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, std::size_t{2} << 20U})
    for (const std::size_t lungo : {std::size_t{0}, std::size_t{1}, std::size_t{2} << 20U, grande - salto}) {
      Chiedi_Pagine_Grandi(byte.data() + salto, lungo);
      ASSERT_EQ(byte, prima);
    }
}

}  // namespace
