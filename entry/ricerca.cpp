#include "core/numeri.h"
#include "entry/edita.h"
#include "entry/macro.h"
#include "lists/liste.h"

// The look-up list under a field, and the amount line.

namespace {

constexpr Vista non_trovato = "non trovato...";

// Where the comparison with the typed text stands in an entry.
enum class Confronto {
  Inizio,      // at its front
  Contiene,    // anywhere
  DopoCodice,  // at the front of the description, behind the code of three letters and the gap
};

Vista Descrizione(Vista voce) {
  Vista testo = Da(voce, 5);
  while (!testo.empty() && testo.front() == ' ') testo.remove_prefix(1);
  return testo;
}

bool Corrisponde(Vista voce, Vista cercato, Confronto confronto) {
  switch (confronto) {
    case Confronto::Inizio:
      return Inizia(voce, cercato);
    case Confronto::Contiene:
      return Contiene(voce, cercato);
    case Confronto::DopoCodice:
      return Inizia(Descrizione(voce), cercato);
  }
  return false;
}

// Fills List1 with the entries that go with the text of the field, in list order; `voce(i)` is entry i.
template <class Voce>
void Filtra(Edita& edita, int indice, Confronto confronto, std::size_t numero, Voce voce) {
  if (edita.filtro_in_corso) return;
  edita.filtro_in_corso = true;
  const Vista cercato =
      edita.ListaChiusa ? Vista() : Pulito(edita.Text1[static_cast<std::size_t>(indice)].testo);
  std::vector<Testo> trovate;
  for (std::size_t i = 0; i < numero; ++i) {
    const Vista testo = voce(i);
    if (cercato.empty() || Corrisponde(testo, cercato, confronto)) trovate.emplace_back(testo);
  }
  if (trovate.empty() && !cercato.empty()) trovate.emplace_back(non_trovato);
  if (!trovate.empty()) edita.Label2.testo = trovate.front();
  edita.List1.scelta = -1;
  edita.List1.Riempi(std::move(trovate));
  edita.List1.scelta = edita.List1.Numero() > 0 ? 0 : -1;
  edita.List1.visibile = true;
  edita.filtro_in_corso = false;
}

template <std::size_t N>
void Filtra(Edita& edita, int indice, const TabellaLista<N>& tabella, std::size_t colonna,
            Confronto confronto = Confronto::Inizio) {
  Filtra(edita, indice, confronto, tabella.size(), [&](std::size_t i) { return Vista(tabella[i][colonna]); });
}

void Filtra(Edita& edita, int indice, const std::vector<Testo>& voci, Confronto confronto) {
  Filtra(edita, indice, confronto, voci.size(), [&](std::size_t i) { return Vista(voci[i]); });
}

// A zone is looked for anywhere in its label by the number of its FAO area. 6 isn't among the digits:
// operators know that a zone beginning with 6 is looked for from its start.
Confronto ConfrontoZona(Vista testo) {
  const Vista pulito = Pulito(testo);
  return !pulito.empty() && Vista("123457890").find(pulito.front()) != Vista::npos ? Confronto::Contiene
                                                                                   : Confronto::Inizio;
}

struct ListaCodificata {
  CampoRiga campo;
  std::vector<Testo> Programma::*voci;
  Confronto confronto;
};
constexpr ListaCodificata liste_codificate[] = {
    {CampoRiga::Prov, &Programma::Vet_Provenienze, Confronto::Inizio},
    {CampoRiga::MetodoPesca, &Programma::Vet_Metodi, Confronto::DopoCodice},
    {CampoRiga::Pezzatura, &Programma::Vet_Pezzature, Confronto::DopoCodice},
    {CampoRiga::StatoFisico, &Programma::Vet_Stati, Confronto::DopoCodice},
    {CampoRiga::Lavorazione, &Programma::Vet_Lavorazioni, Confronto::DopoCodice},
    {CampoRiga::Preparazione, &Programma::Vet_Presentazioni, Confronto::DopoCodice},
    {CampoRiga::PrimoImb, &Programma::Vet_Barche, Confronto::Inizio},
};

void MostraListaCodificata(const Programma& programma, Edita& edita, int indice) {
  for (const ListaCodificata& lista : liste_codificate)
    if (Indice(lista.campo) == indice) return Filtra(edita, indice, programma.*lista.voci, lista.confronto);
}

Vista SenzaLettera(Vista prezzo) {
  const Vista pulito = Pulito(prezzo);
  return !pulito.empty() && (pulito.back() == 'c' || pulito.back() == 'C')
             ? Pulito(pulito.substr(0, pulito.size() - 1))
             : pulito;
}

std::optional<double> NumeroOZero(Vista testo, char separatore) {
  const Vista pulito = Pulito(testo);
  if (pulito.empty()) return 0.0;
  return Numero(pulito, separatore);
}

Testo OZero(Vista testo) { return Testo(Pulito(testo).empty() ? Vista("0") : Pulito(testo)); }

void MostraCampo(Edita& edita, CampoRiga campo, bool visibile) {
  Campo(edita, campo).visibile = visibile;
  edita.Caption[static_cast<std::size_t>(Indice(campo))].visibile = visibile;
}

}  // namespace

int LarghezzaLista(int indice) {
  return indice == Indice(CampoRiga::ZonaP) || indice == Indice(CampoRiga::Prov) ||
                 indice == Indice(CampoRiga::MetodoPesca)
             ? 2
             : 1;
}

void MostraListaCampo(Programma& programma, Edita& edita, int indice) {
  if (indice < 0 || indice >= Num_Campi) return;
  switch (static_cast<CampoRiga>(indice + 1)) {
    case CampoRiga::Fornitore:
      return Filtra(edita, indice, programma.Vet_Fornitori, fornitore::RagioneSociale1);
    case CampoRiga::Cliente:
      return Filtra(edita, indice, programma.Vet_Clienti, cliente::RagioneSociale1);
    case CampoRiga::CodCliente:
      return Filtra(edita, indice, programma.Vet_Clienti, cliente::Codice);
    case CampoRiga::Specie:
      Campo(edita, CampoRiga::CodSpecie).testo.clear();
      return Filtra(edita, indice, programma.Vet_Specie, specie::Descrizione);
    case CampoRiga::ZonaP:
      return Filtra(edita, indice, programma.Vet_Zone, zona::Etichetta,
                    ConfrontoZona(Campo(edita, CampoRiga::ZonaP).testo));
    case CampoRiga::Peso:
    case CampoRiga::Prezzo:
    case CampoRiga::Colli:
      return RigaImporti(programma, edita);
    default:
      return MostraListaCodificata(programma, edita, indice);
  }
}

void SegnaCambiamento(Edita& edita, int indice) {
  if (indice == Indice(CampoRiga::Iva) || indice == Indice(CampoRiga::Controllato) ||
      indice == Indice(CampoRiga::CodSpecie))
    return;
  Campo(edita, CampoRiga::Iva).attivo = false;
  Campo(edita, CampoRiga::CodSpecie).attivo = false;
  edita.Modifica.attivo = edita.Aggiungi.attivo = edita.Elimina.attivo = true;
  Semaforo(edita, StatoSemaforo::NORMALE);
  edita.CampoLista = indice;
}

void CambiaCampo(Programma& programma, Edita& edita, int indice) {
  if (indice < 0 || indice >= Num_Campi) return;
  CampoTesto& campo = edita.Text1[static_cast<std::size_t>(indice)];
  campo.testo = Senza_Separatori(campo.testo);
  if (!edita.pronta || Occupata(edita) || !campo.attivo || !campo.visibile) return;
  if (indice == Indice(CampoRiga::Commento)) return;
  if (MacroDalCampo(programma, edita, indice)) return;
  if (indice == Indice(CampoRiga::Iva) || indice == Indice(CampoRiga::Controllato) ||
      indice == Indice(CampoRiga::CodSpecie))
    return;
  SegnaCambiamento(edita, indice);
  MostraListaCampo(programma, edita, indice);
}

bool PrezzoPerCassa(const Edita& edita) {
  const Vista prezzo = Pulito(Campo(edita, CampoRiga::Prezzo).testo);
  return SenzaLettera(prezzo).size() != prezzo.size();
}

std::optional<double> LeggiPrezzo(const Programma& programma, const Edita& edita) {
  return NumeroOZero(SenzaLettera(Campo(edita, CampoRiga::Prezzo).testo), programma.Separatore_Decimale);
}

std::optional<double> LeggiNumero(const Programma& programma, const Edita& edita, CampoRiga campo) {
  return NumeroOZero(Campo(edita, campo).testo, programma.Separatore_Decimale);
}

void SegnoPrezzo(Programma& programma, Edita& edita) {
  const bool credito = Pulito(Campo(edita, CampoRiga::Prezzo).testo).starts_with('-');
  edita.Caption[static_cast<std::size_t>(Indice(CampoRiga::DDT_CV))].testo =
      credito ? "Rif. Fattura" : "Rif. DDT";
  if (!credito && Inizia(Campo(edita, CampoRiga::FAT).testo, "NA")) {
    Campo(edita, CampoRiga::FAT).testo.clear();
    Campo(edita, CampoRiga::DDT).testo.clear();
  }
  const bool a_mano = programma.preferenze.FlagModificaCV;
  const bool mostra = a_mano || programma.preferenze.FlagCaselleCV;
  for (const CampoRiga campo : {CampoRiga::NCV, CampoRiga::DataCV, CampoRiga::SAnt, CampoRiga::Provvigione}) {
    Campo(edita, campo).attivo = a_mano;
    MostraCampo(edita, campo, mostra);
  }
  Campo(edita, CampoRiga::Controllato).attivo = a_mano;
  MostraCampo(edita, CampoRiga::Controllato, mostra);
  Campo(edita, CampoRiga::DDT_CV).attivo = a_mano || credito;
  MostraCampo(edita, CampoRiga::DDT_CV, mostra || credito);
}

void RigaImporti(Programma& programma, Edita& edita) {
  SegnoPrezzo(programma, edita);
  const auto prezzo = LeggiPrezzo(programma, edita);
  const auto peso = LeggiNumero(programma, edita, CampoRiga::Peso);
  const auto iva = LeggiNumero(programma, edita, CampoRiga::Iva);
  const auto colli = LeggiNumero(programma, edita, CampoRiga::Colli);
  const bool cassa = PrezzoPerCassa(edita);
  if (!prezzo || !peso || !iva || (cassa && !colli)) return;  // no number yet: the line stays as it was

  const auto importo = [&](double valore) { return Formato(valore, "#0.00", programma.Separatore_Decimale); };
  const double imponibile = *prezzo * (cassa ? *colli : *peso);
  const double imposta = imponibile * *iva / 100;
  Testo linea = OZero(SenzaLettera(Campo(edita, CampoRiga::Prezzo).testo));
  linea.append("x").append(OZero(Campo(edita, cassa ? CampoRiga::Colli : CampoRiga::Peso).testo));
  linea.append("=").append(importo(imponibile)).append(" + IVA ").append(importo(imposta));
  linea.append(" = ").append(importo(imponibile + imposta));
  if (cassa) {
    const double chili = *peso * *colli;
    linea.append(" (").append(importo(chili == 0 ? 0 : imponibile / chili)).append(" €/kg)"_t);
  } else {
    linea.append(" €/kg"_t);
  }
  edita.Label2.testo = std::move(linea);
}
