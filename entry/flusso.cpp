#include "core/date.h"
#include "core/numeri.h"
#include "entry/edita.h"

// How the focus walks through the fields, which of them are held, and what the mouse does in a field.

namespace {

constexpr int casella_assente = 0;

struct Passo {
  CampoRiga campo;
  int casella;  // its hold box
};

// The order in which the fields of a row are keyed. Colli has no box, so that the search ends there at the
// latest.
constexpr Passo flusso[] = {
    {CampoRiga::Fornitore, 5},     {CampoRiga::Cliente, 6},
    {CampoRiga::CodCliente, 7},    {CampoRiga::Specie, 1},
    {CampoRiga::ZonaP, 2},         {CampoRiga::Prov, 3},
    {CampoRiga::MetodoPesca, 10},  {CampoRiga::Pezzatura, 11},
    {CampoRiga::StatoFisico, 13},  {CampoRiga::Lavorazione, 14},
    {CampoRiga::Preparazione, 15}, {CampoRiga::PrimoImb, 16},
    {CampoRiga::Peso, 8},          {CampoRiga::Prezzo, 9},
    {CampoRiga::Lotti, 4},         {CampoRiga::Colli, casella_assente},
};
constexpr int passi = static_cast<int>(std::size(flusso));

// The steps looked at from a field: [da, a) of the flow.
struct Tratto {
  int da = 0, a = 0;
};

constexpr Tratto TrattoDopo(int indice) {
  if (indice == Indice(CampoRiga::Fornitore)) return {1, 3};  // the two fields of the customer only
  if (indice == Indice(CampoRiga::Lotti)) return {passi - 1, passi};
  if (indice == Indice(CampoRiga::Colli)) return {0, 3};  // round to the front, and no further
  for (int i = 0; i < passi; ++i)
    if (Indice(flusso[i].campo) == indice) return {i + 1, passi};
  return {};
}

struct Ritorno {
  CampoRiga campo, precedente;
};

constexpr Ritorno ritorni[] = {
    {CampoRiga::Fornitore, CampoRiga::Colli},
    {CampoRiga::Cliente, CampoRiga::Fornitore},
    {CampoRiga::CodCliente, CampoRiga::Fornitore},
    {CampoRiga::Specie, CampoRiga::CodCliente},  // or Cliente, whichever of the two is keyed
    {CampoRiga::ZonaP, CampoRiga::Specie},
    {CampoRiga::Peso, CampoRiga::PrimoImb},
    {CampoRiga::Prezzo, CampoRiga::Peso},
    {CampoRiga::Colli, CampoRiga::Lotti},
    {CampoRiga::Prov, CampoRiga::ZonaP},
    {CampoRiga::Lotti, CampoRiga::Prezzo},
    {CampoRiga::MetodoPesca, CampoRiga::Prov},
    {CampoRiga::Pezzatura, CampoRiga::MetodoPesca},
    {CampoRiga::StatoFisico, CampoRiga::Pezzatura},
    {CampoRiga::Lavorazione, CampoRiga::StatoFisico},
    {CampoRiga::Preparazione, CampoRiga::Lavorazione},
    {CampoRiga::PrimoImb, CampoRiga::Preparazione},
};

// Boxes that also disable their field while they are marked.
struct CasellaCheBlocca {
  int casella;
  CampoRiga campo;
};
constexpr CasellaCheBlocca bloccano[] = {
    {5, CampoRiga::Fornitore}, {8, CampoRiga::Peso}, {9, CampoRiga::Prezzo}};

// The boxes that the menu "Marca" sets: zone, provenance, lot, gear, size, state, working, presentation,
// landing.
constexpr std::size_t caselle_marca[] = {2, 3, 4, 10, 11, 13, 14, 15, 16};

bool Segnata(const Edita& edita, int casella) {
  return edita.Check[static_cast<std::size_t>(casella)].segnata;
}

// Marking one box of the customer's pair frees the other field, so that one of the two is always keyed.
void CambiaCoppia(Edita& edita, int casella) {
  const int altra = casella == 6 ? 7 : 6;
  const auto campo = [&](int c) -> CampoTesto& {
    return Campo(edita, c == 6 ? CampoRiga::Cliente : CampoRiga::CodCliente);
  };
  campo(casella).attivo = !Segnata(edita, casella);
  if (!Segnata(edita, casella)) return;
  edita.Check[static_cast<std::size_t>(altra)].segnata = false;
  campo(altra).attivo = true;
}

// The date of a lot stands in its last six characters.
Testo ConPrefisso(const Programma& programma, Vista data) {
  Testo lotto = programma.preferenze.FlagLottiAutomatici ? programma.PrefissoLotto : Testo();
  return lotto.append(data);
}

Testo LottoInvertito(const Programma& programma, Vista lotto) {
  const Testo oggi = Testo_Data(programma.Oggi, "yymmdd");
  const bool e_oggi = Destra(Pulito(lotto), 6) == oggi;
  return ConPrefisso(programma, e_oggi ? Testo_Data(programma.Oggi, "ddmmyy") : oggi);
}

Testo AllergeniSuccessivo(Vista testo) {
  constexpr Vista giro[] = {"-", "Assenti", "Presenti", "PESCE - MOLLUSCHI - CROSTACEI", "Assenti"};
  for (std::size_t i = 0; i + 1 < std::size(giro); ++i)
    if (testo == giro[i]) return Testo(giro[i + 1]);
  return Testo(testo);
}

bool DataDiLotto(Vista testo) {
  if (!Tutte_Cifre(testo, 6)) return false;
  const auto due = [&](std::size_t i) { return (testo[i] - '0') * 10 + (testo[i + 1] - '0'); };
  const int giorno = due(4);
  return giorno >= 1 && giorno <= Giorni_Del_Mese(due(2), 2000 + due(0));
}

void Cambia(Edita& edita, CampoRiga campo, Testo testo) {
  Campo(edita, campo).testo = std::move(testo);
  SegnaCambiamento(edita, Indice(campo));
}

}  // namespace

int CasellaCampo(int indice) {
  for (const Passo& passo : flusso)
    if (Indice(passo.campo) == indice) return passo.casella;
  return casella_assente;
}

void CampoSuccessivo(Edita& edita, int indice) {
  const Tratto tratto = TrattoDopo(indice);
  for (int i = tratto.da; i < tratto.a; ++i) {
    const bool sempre = indice == Indice(CampoRiga::Lotti) || flusso[i].casella == casella_assente;
    if (sempre || !Segnata(edita, flusso[i].casella)) return ChiediFuoco(edita, Indice(flusso[i].campo));
  }
}

void CampoPrecedente(Edita& edita, int indice) {
  if (indice == Indice(CampoRiga::Specie) && !Campo(edita, CampoRiga::CodCliente).attivo)
    return ChiediFuoco(edita, Indice(CampoRiga::Cliente));
  for (const Ritorno& ritorno : ritorni)
    if (Indice(ritorno.campo) == indice) return ChiediFuoco(edita, Indice(ritorno.precedente));
}

void CambiaSpunta(Programma&, Edita& edita, int numero) {
  if (numero == 6 || numero == 7) return CambiaCoppia(edita, numero);
  for (const CasellaCheBlocca& blocco : bloccano)
    if (blocco.casella == numero) Campo(edita, blocco.campo).attivo = !Segnata(edita, numero);
}

bool InvertiSpuntaCampo(Programma& programma, Edita& edita, int indice) {
  const int casella = CasellaCampo(indice);
  if (casella == casella_assente) return false;
  if (Occupata(edita)) return true;
  edita.Check[static_cast<std::size_t>(casella)].segnata = !Segnata(edita, casella);
  CambiaSpunta(programma, edita, casella);
  if (edita.Text1[static_cast<std::size_t>(indice)].attivo) return true;
  // the field was held from inside: the focus has to go on
  if (casella == 7)
    ChiediFuoco(edita, Indice(CampoRiga::Cliente));
  else
    CampoSuccessivo(edita, indice);
  return true;
}

void LiberaCampi(Edita& edita) {
  if (Occupata(edita)) return;
  for (const CasellaCheBlocca& blocco : bloccano) {
    edita.Check[static_cast<std::size_t>(blocco.casella)].segnata = false;
    Campo(edita, blocco.campo).attivo = true;
  }
}

void Marca(Edita& edita) {
  edita.caselle_marcate = !edita.caselle_marcate;
  for (const std::size_t casella : caselle_marca) edita.Check[casella].segnata = edita.caselle_marcate;
}

Vista VoceMarca(const Edita& edita) { return edita.caselle_marcate ? "SMarca" : "Marca"; }

void FuocoCampo(Programma& programma, Edita& edita, int indice) {
  edita.CampoCorrente = indice;
  edita.List1.visibile = false;
  constexpr CampoRiga con_tastierino[] = {CampoRiga::Peso, CampoRiga::Prezzo, CampoRiga::Iva,
                                          CampoRiga::Colli};
  const bool numerico = std::ranges::any_of(con_tastierino, [&](CampoRiga c) { return Indice(c) == indice; });
  edita.Frame1.visibile = numerico && programma.preferenze.FlagTastierino && programma.preferenze.FlagMouse;
}

void DoppioClicCampo(Programma& programma, Edita& edita, int indice) {
  if (Occupata(edita) || indice < 0 || indice >= Num_Campi) return;
  const CampoTesto& campo = edita.Text1[static_cast<std::size_t>(indice)];
  if (!campo.attivo || !campo.visibile) return;
  switch (static_cast<CampoRiga>(indice + 1)) {
    case CampoRiga::DataCV:
      return Cambia(edita, CampoRiga::DataCV, programma.Data_Giorno);
    case CampoRiga::DDT_CV:
      return Cambia(edita, CampoRiga::DDT_CV, "R.Fat NNNNN  - " + programma.Data_Giorno);
    case CampoRiga::Lotti:
      return Cambia(edita, CampoRiga::Lotti, LottoInvertito(programma, campo.testo));
    case CampoRiga::Allergeni:
      return Cambia(edita, CampoRiga::Allergeni, AllergeniSuccessivo(campo.testo));
    default:
      return;
  }
}

void SopraCampo(Programma& programma, Edita& edita, int indice) {
  if (Occupata(edita) || indice < 0 || indice >= Num_Campi) return;
  CampoTesto& campo = edita.Text1[static_cast<std::size_t>(indice)];
  switch (static_cast<CampoRiga>(indice + 1)) {
    case CampoRiga::Peso:
    case CampoRiga::Prezzo:
    case CampoRiga::Colli:
      RigaImporti(programma, edita);
      break;
    case CampoRiga::Commento:  // keeps its own tooltip, which tells the form of the text
      edita.Label2.testo = "per etichetta: 10.00 - solfiti";
      return;
    case CampoRiga::PrimoImb:
      edita.Label2.testo = "Primo Sbarco: " + campo.testo;
      break;
    case CampoRiga::Lotti:
      edita.Label2.testo = campo.testo + " -> doppio click per invertire la data";
      break;
    default:
      edita.Label2.testo = campo.testo;
  }
  campo.suggerimento = edita.Label2.testo;
}

void PassoLotto(Programma& programma, Edita& edita, bool avanti) {
  if (Occupata(edita)) return;
  const Vista data = Destra(Pulito(Campo(edita, CampoRiga::Lotti).testo), 6);
  if (!DataDiLotto(data)) return;
  Cambia(edita, CampoRiga::Lotti,
         ConPrefisso(programma, avanti ? Giorno_Dopo(data, "yymmdd") : Giorno_Prima(data, "yymmdd")));
}

void Pulisci(Programma&, Edita& edita) {
  if (Occupata(edita)) return;
  for (int campo = 2; campo <= 33; ++campo) Campo(edita, static_cast<CampoRiga>(campo)).testo.clear();
  edita.List1.visibile = false;
  edita.Aggiungi.attivo = true;
}
