#include "lists/screens/liste_finestre.h"

#include "lists/anagrafica_codificate.h"
#include "lists/anagrafica_specie.h"
#include "lists/anagrafica_zone.h"
#include "lists/liste.h"
#include "lists/screens/ufficiali_finestra.h"

namespace {

// `prendi(r)` is what row r gives.
template <class Prendi>
std::function<void(std::size_t)> Della_Riga(std::function<void(const Testo&)> copia, Prendi prendi) {
  if (!copia) return {};
  return [copia = std::move(copia), prendi](std::size_t r) { copia(Testo(prendi(r))); };
}

}  // namespace

AnagraficaFinestra* Apri_Specie(Programma& programma, QWidget* padre,
                                std::function<void(const std::array<Testo, 8>&)> copia,
                                const std::function<void()>& chiusa) {
  std::function<void(std::size_t)> riga;
  if (copia)
    riga = [&programma, copia = std::move(copia)](std::size_t r) {
      if (const auto scelta = Specie_Da_Copiare(programma, r)) copia(*scelta);
    };
  auto* finestra = Apri_Finestra_Anagrafica(programma, Anagrafica_Specie(), padre, std::move(riga), chiusa);
  QObject::connect(finestra, &AnagraficaFinestra::comando, finestra,
                   [finestra, &programma](Vista nome, ModuloFinestra* modulo) {
                     if (nome != comando_ufficiali) return;
                     auto* ufficiali = new UfficialiFinestra(programma, finestra->schermo(), modulo);
                     ufficiali->setAttribute(Qt::WA_DeleteOnClose);
                     ufficiali->apri();
                   });
  return finestra;
}

AnagraficaFinestra* Apri_Lista_Codificata(Programma& programma, int tipo, QWidget* padre,
                                          std::function<void(const Testo&)> copia,
                                          const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia),
                         [&programma, tipo](std::size_t r) { return Voce_Codificata(programma, tipo, r); });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Codificata(tipo), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Zone(Programma& programma, QWidget* padre, std::function<void(const Testo&)> copia,
                              const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia),
                         [&programma](std::size_t r) { return programma.Vet_Zone[r][zona::Etichetta]; });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Zone(), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Provenienze(Programma& programma, QWidget* padre,
                                     std::function<void(const Testo&)> copia,
                                     const std::function<void()>& chiusa) {
  auto riga =
      Della_Riga(std::move(copia), [&programma](std::size_t r) { return programma.Vet_Provenienze[r]; });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Provenienze(), padre, std::move(riga), chiusa);
}
