#include "entry/nota_acc.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/date.h"
#include "core/numeri.h"

namespace {

constexpr int importo = 0, numero = 1, data = 2;  // of Text1
constexpr std::size_t lunghezza_riferimento = 25;
constexpr std::size_t cifre_numero = 5;

CampoTesto& Campo(NotaAcc& nota, int indice) { return nota.Text1[static_cast<std::size_t>(indice)]; }

// A reference already in the row: the number between its first blank and its first "-", the date behind.
void LeggiRiferimento(NotaAcc& nota, Vista riferimento) {
  const std::size_t blank = riferimento.find(' '), trattino = riferimento.find('-');
  if (blank == Vista::npos || trattino == Vista::npos || trattino < blank + 2) return;
  Campo(nota, numero).testo = Pulito(riferimento.substr(blank, trattino - blank));
  Campo(nota, data).testo = Pulito(riferimento.substr(trattino + 1));
}

char CifraOSeparatore(const Programma& programma, Vista resta, char carattere) {
  if (E_Cifra(carattere)) return carattere;
  const char separatore = programma.Separatore_Decimale;
  const bool marca = carattere == '.' || carattere == ',';
  return marca && resta.find(separatore) == Vista::npos ? separatore : '\0';
}

char CarattereData(const Programma& programma, NotaAcc& nota, char carattere) {
  if (E_Cifra(carattere) || carattere == '/') return carattere;
  const char lettera = Minuscola(carattere);
  if (lettera == 'i') Campo(nota, data).testo = Giorno_Prima(programma.Data_Giorno, "dd/mm/yyyy");
  if (lettera == 'o') Campo(nota, data).testo = programma.Data_Giorno;
  return 0;
}

bool Rifiuta(NotaAcc& nota, int indice) {
  Campo(nota, indice).testo.clear();
  nota.fuoco = indice;
  nota.data_rifiutata = indice == data;
  return false;
}

}  // namespace

Testo RiferimentoFattura(Vista numero_fattura, Vista data_fattura) {
  Testo coda(numero_fattura);
  coda.append(" - ").append(data_fattura);
  const Testo intero = "Rif.Fat. " + coda;
  return intero.size() > lunghezza_riferimento ? "R.Fat. " + coda : intero;
}

bool ChiediNotaAcc(Edita& edita, int indice, char carattere, std::size_t cursore) {
  if (indice != Indice(CampoRiga::Prezzo) || carattere != '-' || Occupata(edita)) return false;
  edita.List1.visibile = false;
  edita.posto_meno = cursore;
  edita.richiesta = Richiesta::Nota_Accredito;
  return true;
}

void Apri_NotaAcc(const Programma& programma, const Edita& edita, NotaAcc& nota) {
  nota.Caption[importo].testo = "Importo  da accreditare ";
  nota.Caption[numero].testo = "Numero Fattura di Riferimento";
  nota.Caption[data].testo = "del (data gg/mm/yy)";
  nota.Label1.testo = "data:\ni = ieri\no = oggi";
  nota.Command2.testo = "&Conferma";
  nota.Annulla.testo = "&Annulla";
  nota.Command11.testo = "<";
  nota.Command12.testo = ">";
  nota.Command11.suggerimento = "un giorno indietro";
  nota.Command12.suggerimento = "un giorno avanti";
  const double prezzo = LeggiPrezzo(programma, edita).value_or(0);
  Campo(nota, importo).testo = Formato(std::abs(prezzo), "#.00", programma.Separatore_Decimale);
  LeggiRiferimento(nota, Campo(edita, CampoRiga::DDT_CV).testo);
  nota.fuoco = importo;
}

char FiltraNotaAcc(const Programma& programma, NotaAcc& nota, int indice, Vista resta, char carattere) {
  if (indice == importo) return CifraOSeparatore(programma, resta, carattere);
  return indice == data ? CarattereData(programma, nota, carattere) : carattere;
}

void InvioNotaAcc(NotaAcc& nota, int indice) {
  nota.fuoco = indice < data ? indice + 1 : NotaAcc::fuoco_conferma;
}

void FuocoNotaAcc(const Programma& programma, NotaAcc& nota, int indice) {
  if (indice == data && std::exchange(nota.data_rifiutata, false)) return;
  if (indice == data && Pulito(Campo(nota, data).testo).empty())
    Campo(nota, data).testo = programma.Data_Giorno;
}

void PassoNotaAcc(NotaAcc& nota, bool avanti) {
  const auto giorno = Leggi_Data(Campo(nota, data).testo);
  if (!giorno) return;
  Campo(nota, data).testo = Testo_Data(avanti ? Giorno_Dopo(*giorno) : Giorno_Prima(*giorno), "dd/mm/yyyy");
}

bool Conferma_NotaAcc(Programma& programma, Edita& edita, NotaAcc& nota) {
  const char separatore = programma.Separatore_Decimale;
  const double da_accreditare = std::abs(Valore(Campo(nota, importo).testo, separatore));
  const Vista fattura = Pulito(Campo(nota, numero).testo);
  if (fattura.size() > cifre_numero) return Rifiuta(nota, numero);
  if (!E_Data(Campo(nota, data).testo)) return Rifiuta(nota, data);

  // all four before anything looks at the row: a price without its minus would empty FAT and DDT again
  const Testo riferimento = RiferimentoFattura(fattura, Pulito(Campo(nota, data).testo));
  Campo(edita, CampoRiga::Prezzo).testo = "-" + Formato(da_accreditare, "#.00", separatore);
  Campo(edita, CampoRiga::DDT_CV).testo = riferimento;
  Campo(edita, CampoRiga::DDT).testo = riferimento;
  Campo(edita, CampoRiga::FAT).testo = "NA";
  edita.cursore = 1;
  SegnaCambiamento(edita, Indice(CampoRiga::Prezzo));
  RigaImporti(programma, edita);
  ChiediFuoco(edita, Indice(CampoRiga::Prezzo));
  nota.chiusa = true;
  return true;
}

void Annulla_NotaAcc(Programma& programma, Edita& edita, NotaAcc& nota) {
  Testo& prezzo = Campo(edita, CampoRiga::Prezzo).testo;
  const std::size_t dove = std::min(edita.posto_meno, prezzo.size());
  prezzo.insert(dove, 1, '-');
  edita.cursore = dove + 1;
  CambiaCampo(programma, edita, Indice(CampoRiga::Prezzo));
  ChiediFuoco(edita, Indice(CampoRiga::Prezzo));
  nota.chiusa = true;
}
