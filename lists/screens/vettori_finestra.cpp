#include "lists/screens/vettori_finestra.h"

#include "lists/anagrafica_vettori.h"

AnagraficaFinestra* Apri_Vettori(Programma& programma, QWidget* padre,
                                 std::function<void(const Testo&, const std::array<Testo, 3>&)> copia,
                                 const std::function<void()>& chiusa) {
  std::function<void(std::size_t)> riga;
  if (copia)
    riga = [&programma, copia = std::move(copia)](std::size_t r) {
      const auto [mezzo, vettore] = Copia_Del_Vettore(programma, r);
      copia(mezzo, vettore);
    };
  return Apri_Finestra_Anagrafica(programma, Anagrafica_Vettori(), padre, std::move(riga), chiusa);
}
