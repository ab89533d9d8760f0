#include "lists/screens/clienti_finestra.h"

#include "lists/anagrafica_clienti.h"

AnagraficaFinestra* Apri_Clienti(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo&, const Testo&)> copia,
                                 const std::function<void()>& chiusa) {
  std::function<void(std::size_t)> riga;
  if (copia)
    riga = [&programma, copia = std::move(copia)](std::size_t r) {
      const auto [nome, codice] = Copia_Del_Cliente(programma, r);
      copia(nome, codice);
    };
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Clienti(), padre, std::move(riga), chiusa);
}
