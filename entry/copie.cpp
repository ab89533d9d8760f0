#include "core/numeri.h"
#include "entry/edita.h"
#include "lists/liste.h"

// Entries of the firm's lists copied into the row being keyed.

namespace {

struct Copia {
  CampoRiga campo;
  specie::Colonna colonna;
};
constexpr Copia della_specie[] = {{CampoRiga::CodSpecie, specie::CodiceMercato},
                                  {CampoRiga::NomeLatino, specie::NomeLatino},
                                  {CampoRiga::Famiglia, specie::Famiglia},
                                  {CampoRiga::NomeComune, specie::NomeFattura},
                                  {CampoRiga::CodNumVeritas, specie::CodiceNumerico},
                                  {CampoRiga::Alfa, specie::Alfa}};

void CompilaDaRiga(const Programma& programma, Edita& edita, const std::array<Testo, 8>& riga) {
  for (const Copia& copia : della_specie) Campo(edita, copia.campo).testo = riga[copia.colonna];
  Campo(edita, CampoRiga::Iva).testo = Correggi_Separatore(riga[specie::Iva], programma.Separatore_Decimale);
}

// The row of a table, nothing when there is no such row (a list read anew meanwhile).
template <std::size_t N>
const std::array<Testo, N>* RigaLista(const TabellaLista<N>& tabella, int r) {
  return r >= 0 && static_cast<std::size_t>(r) < tabella.size() ? &tabella[static_cast<std::size_t>(r)]
                                                                : nullptr;
}

}  // namespace

Testo NomeSpecie(Vista descrizione) {
  Vista nome = Pulito(descrizione);
  nome = Pulito(nome.substr(0, nome.find('(')));
  for (int i = 0; i < 3 && nome.ends_with(')'); ++i) nome.remove_suffix(1);
  return Testo(nome);
}

void CompilaSpecie(Programma& programma, Edita& edita, Vista nome) {
  for (const Copia& copia : della_specie) Campo(edita, copia.campo).testo.clear();
  const Vista cercato = Pulito(nome);
  for (const auto& riga : programma.Vet_Specie)
    if (Uguali(Pulito(riga[specie::Descrizione]), cercato)) return CompilaDaRiga(programma, edita, riga);
}

void CopiaSpecie(Programma& programma, Edita& edita, int r) {
  const auto* riga = RigaLista(programma.Vet_Specie, r);
  if (riga == nullptr || Occupata(edita)) return;
  CompilaDaRiga(programma, edita, *riga);
  CopiaVoce(edita, CampoRiga::Specie, NomeSpecie((*riga)[specie::Descrizione]));
}

void CopiaFornitore(Programma& programma, Edita& edita, int r) {
  const auto* riga = RigaLista(programma.Vet_Fornitori, r);
  if (riga == nullptr || Occupata(edita)) return;
  Campo(edita, CampoRiga::Provvigione).testo =
      Correggi_Separatore((*riga)[fornitore::Provvigione], programma.Separatore_Decimale);
  CopiaVoce(edita, CampoRiga::Fornitore, (*riga)[fornitore::RagioneSociale1]);
  LottoAutomatico(programma, edita);
}

void CopiaCliente(Programma& programma, Edita& edita, int r) {
  const auto* riga = RigaLista(programma.Vet_Clienti, r);
  if (riga == nullptr || Occupata(edita)) return;
  Campo(edita, CampoRiga::CodCliente).testo = (*riga)[cliente::Codice];
  CopiaVoce(edita, CampoRiga::Cliente, (*riga)[cliente::RagioneSociale1]);
}

void CopiaVoce(Edita& edita, CampoRiga campo, Vista voce) {
  if (Occupata(edita)) return;
  Campo(edita, campo).testo = voce;
  SegnaCambiamento(edita, Indice(campo));
}
