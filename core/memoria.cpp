#include "core/memoria.h"

#include <cstdint>
#include <sys/mman.h>

void Chiedi_Pagine_Grandi(void* inizio, std::size_t byte) {
  constexpr std::size_t pagina_grande = std::size_t{2} << 20U;
  const std::size_t oltre = reinterpret_cast<std::uintptr_t>(inizio) % pagina_grande;
  const std::size_t salto = oltre == 0 ? 0 : pagina_grande - oltre;
  if (byte < salto + pagina_grande) return;
  const std::size_t intere = (byte - salto) / pagina_grande * pagina_grande;
  madvise(static_cast<char*>(inizio) + salto, intere, MADV_HUGEPAGE);
}
