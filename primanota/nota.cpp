#include "primanota/nota.h"

#include <algorithm>
#include <utility>

#include "core/numeri.h"

namespace {

constexpr int righe_normali = 25, righe_tante_na = 15, righe_in_piu = 10;
constexpr int passo_largo = 7, passo_stretto = 6;
constexpr std::size_t lunghezza_descrizione = 30, lunghezza_cliente = 30, cliente_tagliato = 27;
constexpr double fondo_massimo = 280, fondo_usato = 279;

// A number in the form of an amount; what is no number as it was keyed, so that whoever reads the note sees
// it.
Testo Quantita(Vista testo, char separatore) {
  const auto numero = Numero(testo, separatore);
  return numero ? Euro2_Migliaia(*numero, separatore) : Testo(Pulito(testo));
}

Testo Unite(Vista prima, Vista dopo) {
  Testo testo(Pulito(prima));
  if (!testo.empty() && !Pulito(dopo).empty()) testo += ' ';
  return testo.append(Pulito(dopo));
}

// How many lines find room between head and foot.
int Capienza(const Modo_Nota& modo, const Foglio_Nota& foglio) {
  const double passo = PassoRighe(modo);
  const double spazio = foglio.fondo - Piede_Totale - (foglio.alto + Alto_Tabella) - passo + 1;
  return std::max(RighePerPagina(modo), static_cast<int>(spazio / passo));
}

}  // namespace

int RighePerPagina(const Modo_Nota& modo) {
  return (modo.tante_na ? righe_tante_na : righe_normali) + (modo.tutto ? righe_in_piu : 0);
}

int PassoRighe(const Modo_Nota& modo) { return modo.tante_na || modo.tutto ? passo_stretto : passo_largo; }

double FondoUtile(double altezza_stampabile) {
  return altezza_stampabile >= fondo_massimo ? fondo_usato : altezza_stampabile;
}

double AltezzaLinea(const Foglio_Nota& foglio, const Modo_Nota& modo, int k) {
  return foglio.alto + Alto_Tabella + PassoRighe(modo) * k;
}

std::pair<Testo, Testo> ZonaMostrata(Vista zona_p, Vista prov) {
  prov = Pulito(prov);
  Testo paese(prov.substr(0, prov.find(' ')));
  if (Inizia(zona_p, "C") || Inizia(zona_p, "B")) return {paese.append("_").append(Sinistra(zona_p, 1)), " "};
  const std::size_t tratto = zona_p.find('-');
  return {Testo(tratto == Vista::npos ? zona_p : Pulito(zona_p.substr(0, tratto))), std::move(paese)};
}

Testo ClienteMostrato(Vista codice, Vista nome) {
  Testo testo = Testo(codice) + "  ";
  if (nome.size() <= lunghezza_cliente) return testo.append(nome);
  return testo.append(Sinistra(nome, cliente_tagliato)).append("...");
}

Riga_Nota ComponiRigaNota(const Programma& programma, const LedgerRow& riga, int numero) {
  const char separatore = programma.Separatore_Decimale;
  const auto valore = [&](CampoRiga campo) { return Numero(riga[campo], separatore).value_or(0); };
  Riga_Nota esito;
  esito.riga = riga;
  esito.numero = numero;
  esito.Descrizione = Sinistra(riga[CampoRiga::Specie], lunghezza_descrizione);
  esito.Peso = Quantita(riga[CampoRiga::Peso], separatore);
  esito.Prezzo = Quantita(riga[CampoRiga::Prezzo], separatore);
  esito.accredito = valore(CampoRiga::Prezzo) < 0;
  if (esito.accredito) esito.Credito = riga[CampoRiga::DDT_CV];
  esito.Codice = riga[CampoRiga::CodCliente];
  esito.Cliente = riga[CampoRiga::Cliente];
  std::tie(esito.Zona, esito.Provenienza) = ZonaMostrata(riga[CampoRiga::ZonaP], riga[CampoRiga::Prov]);
  esito.Lotto = riga[CampoRiga::Lotti];
  esito.Importo = valore(CampoRiga::Peso) * valore(CampoRiga::Prezzo);
  esito.Iva = 0.01 * valore(CampoRiga::Iva) * esito.Importo;
  return esito;
}

std::vector<Pagina_Nota> ImpaginaNota(std::vector<Riga_Nota> righe, const Modo_Nota& modo,
                                      const Foglio_Nota& foglio) {
  const int capienza = Capienza(modo, foglio);
  const auto per_pagina = static_cast<std::size_t>(RighePerPagina(modo));
  std::vector<Pagina_Nota> pagine;
  for (Riga_Nota& riga : righe) {
    const bool piena = pagine.empty() || pagine.back().righe.size() == per_pagina ||
                       pagine.back().linee + riga.Linee() > capienza;
    if (piena) pagine.emplace_back();
    pagine.back().linee += riga.Linee();
    pagine.back().Importo += riga.Importo;
    pagine.back().righe.push_back(std::move(riga));
  }
  return pagine;
}

Nota_Stampata ComponiNota(const Programma& programma, const std::vector<LedgerRow>& righe, const Nota* nota,
                          const Modo_Nota& modo, const Foglio_Nota& foglio) {
  const Preferenze& preferenze = programma.preferenze;
  const auto& ragione = programma.Ragione;
  Nota_Stampata esito;
  esito.modo = modo;
  esito.Giorno = programma.Data_Giorno;
  esito.Ditta = {Unite(ragione[0], ragione[1]), Unite(ragione[3], ragione[4]), ragione[6]};
  esito.Venditore = preferenze.Codice_Commissionario + " " + ragione[0];
  if (nota != nullptr) {
    esito.Fornitore = nota->Fornitore;
    if (!modo.tutto && !preferenze.FlagC3pn) esito.Provenienza = nota->Prov;
  }
  std::vector<Riga_Nota> stampate;
  stampate.reserve(righe.size());
  for (const LedgerRow& riga : righe) {
    stampate.push_back(ComponiRigaNota(programma, riga, static_cast<int>(stampate.size()) + 1));
    esito.Importo += stampate.back().Importo;
    esito.Iva += stampate.back().Iva;
  }
  esito.pagine = ImpaginaNota(std::move(stampate), modo, foglio);
  esito.cornici = preferenze.FlagStampaFramePN != 0;
  if (preferenze.FlagFirmaPN == 1 && !modo.tutto)
    esito.Firma = "Venezia " + Sostituisci_Tutti(programma.Data_Giorno, "/", "-");
  return esito;
}
