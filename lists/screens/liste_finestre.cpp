#include "lists/screens/liste_finestre.h"

#include "lists/anagrafica_clienti.h"
#include "lists/anagrafica_codificate.h"
#include "lists/anagrafica_fornitori.h"
#include "lists/anagrafica_specie.h"
#include "lists/anagrafica_vettori.h"
#include "lists/anagrafica_zone.h"
#include "lists/liste.h"
#include "lists/screens/ufficiali_finestra.h"

namespace {

// `porta(copia, r)` hands over what row r gives.
template <class Copia, class Porta>
std::function<void(std::size_t)> Della_Riga(Copia copia, Porta porta) {
  if (!copia) return {};
  return [copia = std::move(copia), porta](std::size_t r) { porta(copia, r); };
}

}  // namespace

AnagraficaFinestra* Apri_Clienti(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo&, const Testo&)> copia,
                                 const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia), [&programma](const auto& a, std::size_t r) {
    const auto [nome, codice] = Copia_Del_Cliente(programma, r);
    a(nome, codice);
  });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Clienti(), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Fornitori(Programma& programma, QWidget* padre,
                                   std::function<void(const Testo&, const Testo&, const Testo&)> copia,
                                   const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia), [&programma](const auto& a, std::size_t r) {
    const auto [nome, provvigione, lotto] = Copia_Del_Fornitore(programma, r);
    a(nome, provvigione, lotto);
  });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Fornitori(), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Vettori(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo&, const std::array<Testo, 3>&)> copia,
                                 const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia), [&programma](const auto& a, std::size_t r) {
    const auto [mezzo, vettore] = Copia_Del_Vettore(programma, r);
    a(mezzo, vettore);
  });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Vettori(), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Specie(Programma& programma, QWidget* padre,
                                std::function<void(const std::array<Testo, 8>&)> copia,
                                const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia), [&programma](const auto& a, std::size_t r) {
    if (const auto scelta = Specie_Da_Copiare(programma, r)) a(*scelta);
  });
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
  auto riga = Della_Riga(std::move(copia), [&programma, tipo](const auto& a, std::size_t r) {
    a(Voce_Codificata(programma, tipo, r));
  });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Codificata(tipo), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Zone(Programma& programma, QWidget* padre, std::function<void(const Testo&)> copia,
                              const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia), [&programma](const auto& a, std::size_t r) {
    a(programma.Vet_Zone[r][zona::Etichetta]);
  });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Zone(), padre, std::move(riga), chiusa);
}

AnagraficaFinestra* Apri_Provenienze(Programma& programma, QWidget* padre,
                                     std::function<void(const Testo&)> copia,
                                     const std::function<void()>& chiusa) {
  auto riga = Della_Riga(std::move(copia),
                         [&programma](const auto& a, std::size_t r) { a(programma.Vet_Provenienze[r]); });
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Provenienze(), padre, std::move(riga), chiusa);
}
