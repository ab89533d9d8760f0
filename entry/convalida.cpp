#include "core/date.h"
#include "core/numeri.h"
#include "entry/edita.h"
#include "lists/liste.h"

// The checks on the row being keyed, in their fixed order. They work on the entry fields themselves: a check
// that fails empties the field, so that the operator sees at once what to key again.

namespace {

constexpr int buona = 0, errata = 1, rifiutata = 999;

struct Esame {
  Programma& programma;
  Edita& edita;
  bool modifica;  // an existing row is changed

  Testo& operator[](CampoRiga campo) const { return Campo(edita, campo).testo; }
  Vista Pulita(CampoRiga campo) const { return Pulito(Campo(edita, campo).testo); }
  char Separatore() const { return programma.Separatore_Decimale; }
};

// A check answers `buona` to go on with the next one.
using Verifica = int (*)(const Esame&);

// What the look-up list offers when nothing matched; taken by the operator it stands in the field as a text.
constexpr Vista non_trovato = "non trovato...";

int Svuota(const Esame& esame, CampoRiga campo) {
  esame[campo].clear();
  return errata;
}

template <CampoRiga campo, std::size_t minimo>
int Lungo_O_Svuotato(const Esame& esame) {
  const Vista testo = esame.Pulita(campo);
  return testo.size() < minimo || Uguali(testo, non_trovato) ? Svuota(esame, campo) : buona;
}

template <CampoRiga campo, std::size_t minimo>
int Lungo(const Esame& esame) {
  return esame.Pulita(campo).size() < minimo ? errata : buona;
}

template <CampoRiga campo>
int Scelto(const Esame& esame) {
  if (Uguali(esame.Pulita(campo), non_trovato)) return Svuota(esame, campo);
  return esame.Pulita(campo).empty() ? errata : buona;
}

template <CampoRiga campo>
int Neutro_O_Scelto(const Esame& esame) {
  if (Contiene(esame[campo], Non_Specificato)) esame[campo] = Non_Specificato;
  return Scelto<campo>(esame);
}

int Cliente_Escluso(const Esame& esame) {
  if (Codice_Escluso(esame.programma, esame.Pulita(CampoRiga::CodCliente)) != rifiutata) return buona;
  esame.programma.piattaforma.Messaggio(esame[CampoRiga::Cliente] + "\n" + "è escluso..."_t);
  return rifiutata;
}

int Non_Riga_Vuota(const Esame& esame) {
  return Uguali(esame.Pulita(CampoRiga::Fornitore), Riga_Vuota) ? Svuota(esame, CampoRiga::Fornitore) : buona;
}

// Always the supplier list's, also over a commission changed by hand: the accounts rely on it.
int Commissione(const Esame& esame) {
  esame[CampoRiga::Provvigione] =
      Provvigione_Fornitore(esame.programma, esame.Pulita(CampoRiga::Fornitore)).value_or("0");
  return buona;
}

// A text that is no number at all passes here and meets the check that follows.
int Peso_Positivo(const Esame& esame) {
  const auto peso = LeggiNumero(esame.programma, esame.edita, CampoRiga::Peso);
  return peso && *peso <= 0 ? errata : buona;
}

int Prezzo_Presente(const Esame& esame) {
  const bool cassa = PrezzoPerCassa(esame.edita);
  if (!cassa && !esame.Pulita(CampoRiga::Prezzo).empty())
    if (const auto prezzo = LeggiPrezzo(esame.programma, esame.edita))
      esame[CampoRiga::Prezzo] = Formato(*prezzo, "#0.00", esame.Separatore());
  const auto prezzo = LeggiPrezzo(esame.programma, esame.edita);
  if (!prezzo || *prezzo != 0) return buona;
  esame.programma.piattaforma.Messaggio("manca il prezzo...");
  return errata;
}

int Iva_Valida(const Esame& esame) {
  const auto iva = LeggiNumero(esame.programma, esame.edita, CampoRiga::Iva);
  if (!iva) return buona;
  esame[CampoRiga::Iva] = Piano(*iva, esame.Separatore());
  return *iva >= 0 && *iva <= 100 ? buona : errata;
}

int Colli_Validi(const Esame& esame) {
  const auto scritti = LeggiNumero(esame.programma, esame.edita, CampoRiga::Colli);
  if (!scritti) return buona;
  Testo& campo = esame[CampoRiga::Colli];
  campo = Formato(*scritti, "#", esame.Separatore());
  const double colli = LeggiNumero(esame.programma, esame.edita, CampoRiga::Colli).value_or(0);
  if (colli < 0) {
    campo = "1";
    return errata;
  }
  if (colli > 0) return buona;
  if (!esame.programma.piattaforma.Domanda("il numero di colli è pari a 0...ok per continuare"_t))
    return rifiutata;
  campo = "0";
  return buona;
}

// What is no account number, no date, no expense gets the word that stands for none.
int Conto_Vendita(const Esame& esame) {
  if (Valore(esame[CampoRiga::NCV], esame.Separatore()) <= 0) esame[CampoRiga::NCV] = "9999";
  if (!E_Data(esame[CampoRiga::DataCV])) esame[CampoRiga::DataCV] = "-";
  if (!esame.Pulita(CampoRiga::SAnt).empty()) {
    const auto spese = LeggiNumero(esame.programma, esame.edita, CampoRiga::SAnt);
    if (spese && *spese <= 0) esame[CampoRiga::SAnt] = "0";
  }
  return buona;
}

int Codice_Alfa(const Esame& esame) {
  if (esame.Pulita(CampoRiga::Alfa).size() >= 3) return buona;
  esame.programma.piattaforma.Messaggio("codice Alfa non valido...");
  return errata;
}

// The comment of a new row is made up from the firm's own name of the species, presentation and working, over
// whatever was keyed.
int Componi_Commento(const Esame& esame) {
  if (esame.modifica || !esame.programma.preferenze.FlagCopiaNPinCommento) return buona;
  const Vista preparazione = esame.Pulita(CampoRiga::Preparazione);
  Testo commento;
  if (!Uguali(esame.Pulita(CampoRiga::Specie), esame.Pulita(CampoRiga::NomeComune)))
    commento.append(esame[CampoRiga::Specie]).append(", ");
  if (Inizia(preparazione, "OTH") && !Contiene(preparazione, "Altro"))
    commento.append(Da(preparazione, 5)).append(", ");
  commento.append(Da(esame.Pulita(CampoRiga::Lavorazione), 5));
  esame[CampoRiga::Commento] = std::move(commento);
  return buona;
}

int Commento_Corto(const Esame& esame) {
  if (esame[CampoRiga::Commento].size() <= 250) return buona;
  esame.programma.piattaforma.Messaggio("Il campo commento supera i 250 caratteri...");
  return errata;
}

constexpr Verifica verifiche[] = {
    Cliente_Escluso,
    Non_Riga_Vuota,
    Lungo_O_Svuotato<CampoRiga::Fornitore, 5>,
    Commissione,
    Lungo_O_Svuotato<CampoRiga::Cliente, 5>,
    Lungo_O_Svuotato<CampoRiga::CodCliente, 5>,
    Lungo_O_Svuotato<CampoRiga::Specie, 3>,
    Lungo_O_Svuotato<CampoRiga::ZonaP, 5>,
    Peso_Positivo,
    Prezzo_Presente,
    Iva_Valida,
    Colli_Validi,
    Conto_Vendita,
    Codice_Alfa,
    Lungo_O_Svuotato<CampoRiga::Prov, 5>,
    Lungo<CampoRiga::Lotti, 1>,
    Lungo<CampoRiga::NomeLatino, 3>,
    Lungo<CampoRiga::Famiglia, 1>,
    Lungo<CampoRiga::NomeComune, 1>,
    Neutro_O_Scelto<CampoRiga::MetodoPesca>,
    Neutro_O_Scelto<CampoRiga::Pezzatura>,
    Scelto<CampoRiga::StatoFisico>,
    Scelto<CampoRiga::Lavorazione>,
    Scelto<CampoRiga::Preparazione>,
    Componi_Commento,
    Commento_Corto,
    Scelto<CampoRiga::PrimoImb>,
};

}  // namespace

int ValidaRiga(Programma& programma, Edita& edita, Vista modo) {
  const Esame esame{programma, edita, Uguali(modo, "MOD")};
  for (const Verifica verifica : verifiche)
    if (const int esito = verifica(esame); esito != buona) return esito;
  return buona;
}

void ComponiCodici(Edita& edita) {
  const auto testo = [&](CampoRiga campo) { return Vista(Campo(edita, campo).testo); };
  Testo codici;
  const auto aggiungi = [&](Vista parte) { codici.append(parte).append(" "); };
  aggiungi(Sinistra(testo(CampoRiga::MetodoPesca), 3));
  aggiungi(testo(CampoRiga::Alfa));
  for (const CampoRiga campo : {CampoRiga::Pezzatura, CampoRiga::StatoFisico, CampoRiga::Lavorazione,
                                CampoRiga::Preparazione, CampoRiga::PrimoImb})
    aggiungi(Sinistra(testo(campo), 3));
  aggiungi(testo(CampoRiga::Allergeni));
  aggiungi(Pulito(testo(CampoRiga::ZonaP).substr(0, testo(CampoRiga::ZonaP).find('-'))));
  aggiungi(Pulito(testo(CampoRiga::Prov).substr(0, testo(CampoRiga::Prov).find(' '))));
  if (!Pulito(testo(CampoRiga::Commento)).empty()) codici.append("*").append(testo(CampoRiga::Commento));
  Campo(edita, CampoRiga::CodiciConsolidare).testo = std::move(codici);
}

void ConvertiCassa(const Programma& programma, Edita& edita) {
  if (!PrezzoPerCassa(edita)) return;
  // After a cancelled question about the boxes the field is empty, and what was keyed stays as it was.
  if (Pulito(Campo(edita, CampoRiga::Colli).testo).empty()) return;
  const auto prezzo = LeggiPrezzo(programma, edita);
  const auto chili = LeggiNumero(programma, edita, CampoRiga::Peso);
  const auto casse = LeggiNumero(programma, edita, CampoRiga::Colli);
  if (!prezzo || !chili || !casse || *chili == 0) return;
  const char separatore = programma.Separatore_Decimale;
  Campo(edita, CampoRiga::Peso).testo = Formato(*casse * *chili, "#0.00", separatore);
  Campo(edita, CampoRiga::Prezzo).testo = Formato(*prezzo / *chili, "#0.00", separatore);
}

void NumeroDocumento(const Programma& programma, Edita& edita, Vista codice) {
  const char separatore = programma.Separatore_Decimale;
  const auto& righe = programma.Vet_Tabella.righe;
  Testo& ddt = Campo(edita, CampoRiga::DDT).testo;
  const auto prima = std::ranges::find_if(righe, [cercato = Pulito(codice)](const LedgerRow& riga) {
    return Uguali(Pulito(riga[CampoRiga::CodCliente]), cercato);
  });
  if (prima != righe.end() && Valore((*prima)[CampoRiga::DDT], separatore) != 0) {
    ddt = (*prima)[CampoRiga::DDT];
    return;
  }
  int massimo = 0;
  for (const LedgerRow& riga : righe) massimo = std::max(massimo, Intero(riga[CampoRiga::DDT], separatore));
  ddt = Formato(static_cast<double>(massimo) + 1, "000", separatore);
}

void CercaNCV(const Programma& programma, Edita& edita) {
  const Vista nome = Pulito(Campo(edita, CampoRiga::Fornitore).testo);
  for (const LedgerRow& riga : programma.Vet_Tabella.righe) {
    if (Pulito(riga[CampoRiga::NCV]) == "-" || !Uguali(Pulito(riga[CampoRiga::Fornitore]), nome)) continue;
    Campo(edita, CampoRiga::NCV).testo = riga[CampoRiga::NCV];
    return;
  }
}
