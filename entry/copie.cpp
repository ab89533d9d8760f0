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

// The list windows hold the screen while they are open, and it is they that copy.
bool Chiusa_Alle_Copie(const Edita& edita) { return Occupata(edita) && edita.campo_lista_aperta < 0; }

}  // namespace

Testo NomeSpecie(Vista descrizione) {
  Vista nome = Pulito(descrizione);
  nome = Pulito(nome.substr(0, nome.find('(')));
  for (int i = 0; i < 3 && nome.ends_with(')'); ++i) nome.remove_suffix(1);
  nome = Pulito_Destra(nome);
  return Testo(nome);
}

void CompilaSpecie(Programma& programma, Edita& edita, Vista nome) {
  for (const Copia& copia : della_specie) Campo(edita, copia.campo).testo.clear();
  const Vista cercato = Pulito(nome);
  for (const auto& riga : programma.Vet_Specie)
    if (Uguali(Pulito(riga[specie::Descrizione]), cercato)) return CompilaDaRiga(programma, edita, riga);
}

void CopiaSpecie(Programma& programma, Edita& edita, int r) {
  if (const auto* riga = RigaLista(programma.Vet_Specie, r)) CopiaSpecie(programma, edita, *riga);
}

void CopiaSpecie(Programma& programma, Edita& edita, const std::array<Testo, 8>& riga) {
  if (Chiusa_Alle_Copie(edita)) return;
  CompilaDaRiga(programma, edita, riga);
  CopiaVoce(edita, CampoRiga::Specie, NomeSpecie(riga[specie::Descrizione]));
}

void CopiaFornitore(Programma& programma, Edita& edita, int r) {
  if (const auto* riga = RigaLista(programma.Vet_Fornitori, r))
    CopiaFornitore(programma, edita, (*riga)[fornitore::RagioneSociale1], (*riga)[fornitore::Provvigione]);
}

void CopiaFornitore(Programma& programma, Edita& edita, Vista nome, Vista provvigione) {
  if (Chiusa_Alle_Copie(edita)) return;
  Campo(edita, CampoRiga::Provvigione).testo =
      Correggi_Separatore(provvigione, programma.Separatore_Decimale);
  CopiaVoce(edita, CampoRiga::Fornitore, nome);
  LottoAutomatico(programma, edita);
}

void CopiaCliente(Programma& programma, Edita& edita, int r) {
  if (const auto* riga = RigaLista(programma.Vet_Clienti, r))
    CopiaCliente(edita, (*riga)[cliente::RagioneSociale1], (*riga)[cliente::Codice]);
}

void CopiaCliente(Edita& edita, Vista nome, Vista codice) {
  if (Chiusa_Alle_Copie(edita)) return;
  Campo(edita, CampoRiga::CodCliente).testo = codice;
  CopiaVoce(edita, CampoRiga::Cliente, nome);
}

void CopiaVoce(Edita& edita, CampoRiga campo, Vista voce) {
  if (Chiusa_Alle_Copie(edita)) return;
  Campo(edita, campo).testo = voce;
  SegnaCambiamento(edita, Indice(campo));
}
