#include "lists/screens/fornitori_finestra.h"

#include "lists/anagrafica_fornitori.h"

AnagraficaFinestra* Apri_Fornitori(Programma& programma, QWidget* padre,
                                   std::function<void(const Testo&, const Testo&, const Testo&)> copia,
                                   const std::function<void()>& chiusa) {
  std::function<void(std::size_t)> riga;
  if (copia)
    riga = [&programma, copia = std::move(copia)](std::size_t r) {
      const auto [nome, provvigione, lotto] = Copia_Del_Fornitore(programma, r);
      copia(nome, provvigione, lotto);
    };
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Fornitori(), padre, std::move(riga), chiusa);
}
