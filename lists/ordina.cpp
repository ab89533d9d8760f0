#include "lists/ordina.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "core/numeri.h"
#include "lists/liste.h"

namespace {

Testo Numero_Riga(std::size_t numero, int cifre) {
  return Pad_Sinistra(std::to_string(numero), static_cast<std::size_t>(cifre), '0');
}

void Ordina_Per_Prezzo(Programma& programma) {
  auto& righe = programma.Vet_Tabella.righe;
  std::vector<Testo> chiavi;
  chiavi.reserve(righe.size());
  for (const LedgerRow& riga : righe)
    chiavi.push_back(Formato(Vista(riga[CampoRiga::Prezzo]), "00000.000", programma.Separatore_Decimale) +
                     " - ");
  Riordina(righe, Ordine_Chiavi(std::move(chiavi)));
}

}  // namespace

void Quick_Sort(std::vector<Testo>& chiavi, std::size_t basso, std::size_t alto) {
  if (alto >= chiavi.size()) alto = chiavi.empty() ? 0 : chiavi.size() - 1;
  if (basso >= alto) return;
  const auto inizio = chiavi.begin() + static_cast<std::ptrdiff_t>(basso);
  const auto fine = chiavi.begin() + static_cast<std::ptrdiff_t>(alto) + 1;
  std::stable_sort(inizio, fine, [](const Testo& a, const Testo& b) { return Confronta(a, b) < 0; });
}

std::vector<std::size_t> Ordine_Chiavi(std::vector<Testo> chiavi) {
  for (std::size_t i = 0; i < chiavi.size(); ++i) {
    for (char& c : chiavi[i]) c = Minuscola(c);
    chiavi[i] += Numero_Riga(i + 1, 6);
  }
  std::vector<std::size_t> ordine(chiavi.size());
  std::iota(ordine.begin(), ordine.end(), std::size_t{0});
  std::sort(ordine.begin(), ordine.end(),
            [&](std::size_t a, std::size_t b) { return chiavi[a] < chiavi[b]; });
  return ordine;
}

Vista Testo_Chiave(const LedgerRow& riga, CampoRiga campo) {
  const Vista testo = riga[campo];
  return campo == CampoRiga::CodiciConsolidare ? Pulito_Destra(testo) : testo;
}

Testo Davanti_Alla_Chiave(const LedgerRow& riga, CampoRiga campo) {
  if (campo != CampoRiga::Num) return {};
  constexpr std::size_t cifre = 4;
  constexpr char dopo_le_cifre = '9' + 1;
  const Vista numero = riga[campo];
  if (numero.size() <= cifre || !Tutte_Cifre(numero)) return {};
  return Testo(numero.size() - cifre, dopo_le_cifre);
}

void Ordina_Tabella(Programma& programma, std::span<const CampoRiga> campi) {
  if (campi.empty()) return;
  programma.Colonna_Ordine = static_cast<int>(campi.front());
  if (campi.size() == 1 && campi.front() == CampoRiga::Prezzo) return Ordina_Per_Prezzo(programma);
  Ordina_Righe(programma.Vet_Tabella.righe, campi);
}

void Ordina_Colonna(Programma& programma, CampoRiga campo) { Ordina_Tabella(programma, std::array{campo}); }

void OrdinaDue(Programma& programma, CampoRiga c1, CampoRiga c2) {
  Ordina_Tabella(programma, std::array{c1, c2});
}

void OrdinaTre(Programma& programma, CampoRiga c1, CampoRiga c2, CampoRiga c3) {
  Ordina_Tabella(programma, std::array{c1, c2, c3});
}

void OrdinaCinque(Programma& programma, CampoRiga c1, CampoRiga c2, CampoRiga c3, CampoRiga c4,
                  CampoRiga c5) {
  Ordina_Tabella(programma, std::array{c1, c2, c3, c4, c5});
}

bool Rinumera_Tabella(Programma& programma) {
  Ordina_Colonna(programma, CampoRiga::Num);
  bool cambiati = false;
  std::size_t posto = 0;
  for (LedgerRow& riga : programma.Vet_Tabella.righe) {
    Testo numero = Numero_Riga(++posto, 4);
    cambiati = cambiati || riga[CampoRiga::Num] != numero;
    riga[CampoRiga::Num] = std::move(numero);
  }
  return cambiati;
}

bool Ordina_Clienti(Programma& programma, int campo) {
  if (campo >= 1 && campo <= 3) Ordina_Righe(programma.Vet_Clienti, {static_cast<std::size_t>(campo - 1)});
  return Salva_Clienti(programma);
}

bool Ordina_Specie(Programma& programma, int colonna) {
  if (colonna >= specie::Iva && colonna <= specie::Alfa)
    Ordina_Righe(programma.Vet_Specie, {static_cast<std::size_t>(colonna)});
  return Salva_Specie(programma);
}
