#include "entry/liste_campi.h"

namespace {

using enum CampoRiga;

// The lists of the coded fields go on from the field behind theirs, which leaves it out.
constexpr std::optional<CampoRiga> resta = std::nullopt;

// Whether the right button opens it too; the allergens are changed there by a double click instead.
bool ApertaColDestro(const Finestra_Campo& finestra) { return finestra.campo != Allergeni; }

}  // namespace

std::span<const Finestra_Campo> Finestre_Campi() {
  static const std::vector<Finestra_Campo> finestre = {
      {"Lista_Fornitori", "Lista dei fornitori", Fornitore, Lista_Campo::Fornitori, 0, Fornitore},
      {"Lista_Clienti", "Lista dei clienti", Cliente, Lista_Campo::Clienti, 0, Cliente},
      {"Lista_Specie", "Lista delle specie", Specie, Lista_Campo::Specie, 0, Specie},
      {"Lista_Zone", "Lista delle zone di pesca", ZonaP, Lista_Campo::Zone, 0, ZonaP},
      {"Lista_Provenienze", "Lista delle provenienze", Prov, Lista_Campo::Provenienze, 0, Prov},
      {"Lista_Metodi", "Lista degli attrezzi di pesca", MetodoPesca, Lista_Campo::Codificata, 1, Pezzatura},
      {"Lista_Pezzature", "Lista delle pezzature", Pezzatura, Lista_Campo::Codificata, 2, StatoFisico},
      {"Lista_Stati", "Lista degli stati fisici", StatoFisico, Lista_Campo::Codificata, 3, Lavorazione},
      {"Lista_Lavorazioni", "Lista delle lavorazioni", Lavorazione, Lista_Campo::Codificata, 4, Preparazione},
      {"Lista_Presentazioni", "Lista delle presentazioni", Preparazione, Lista_Campo::Codificata, 5, resta},
      {"Lista_Barche", "Lista dei primi sbarchi", PrimoImb, Lista_Campo::Codificata, 6, Peso},
      {"Lista_Allergeni", "Lista degli allergeni", Allergeni, Lista_Campo::Codificata, 7, resta},
  };
  return finestre;
}

const Finestra_Campo* FinestraDelCampo(int indice) {
  if (indice == Indice(CodCliente)) indice = Indice(Cliente);
  for (const Finestra_Campo& finestra : Finestre_Campi())
    if (Indice(finestra.campo) == indice) return &finestra;
  return nullptr;
}

bool ApriListaCampo(Edita& edita, int indice) {
  if (Occupata(edita) || FinestraDelCampo(indice) == nullptr) return false;
  CampoTesto& campo = edita.Text1[static_cast<std::size_t>(indice)];
  edita.List1.visibile = false;
  edita.Frame1.visibile = false;
  edita.campo_era_attivo = campo.attivo;
  edita.campo_lista_aperta = indice;
  campo.attivo = false;
  edita.attiva = false;
  edita.richiesta = Richiesta::Lista_Campo;
  return true;
}

bool DestroCampo(Edita& edita, int indice) {
  const Finestra_Campo* finestra = FinestraDelCampo(indice);
  if (finestra == nullptr || !ApertaColDestro(*finestra)) return false;
  return edita.Text1[static_cast<std::size_t>(indice)].attivo && ApriListaCampo(edita, indice);
}

void ChiudiListaCampo(Edita& edita) {
  const int indice = edita.campo_lista_aperta;
  if (indice < 0) return;
  edita.campo_lista_aperta = -1;
  edita.Text1[static_cast<std::size_t>(indice)].attivo = edita.campo_era_attivo;
  edita.attiva = true;
  ChiediFuoco(edita, edita.CampoCorrente);  // where the flow goes no further
  const Finestra_Campo* finestra = FinestraDelCampo(indice);
  if (!finestra->continua) return;
  const bool dal_campo = *finestra->continua == finestra->campo;
  CampoSuccessivo(edita, dal_campo ? indice : Indice(*finestra->continua));
}

void MostraNascondeBottoni(Edita& edita) {
  if (!Occupata(edita)) edita.bottoni_liste = !edita.bottoni_liste;
}

void ApriMappa(Edita& edita, Richiesta mappa) {
  if (Occupata(edita)) return;
  edita.List1.visibile = false;
  edita.richiesta = mappa;
}

void ScegliZona(Edita& edita, Vista zona) {
  if (Occupata(edita)) return;
  CopiaVoce(edita, ZonaP, zona);
  CampoSuccessivo(edita, Indice(ZonaP));
}
