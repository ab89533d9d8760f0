#include "accounts/file_conto.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

#include "core/date.h"
#include "core/numeri.h"

namespace {

constexpr Vista Cartella_No = "CV_NO", Cartella_Si = "CV_SI";

// Month and day, four digits, of a date as the accounts carry it, or of any other way to write one.
std::optional<Testo> Mese_Giorno(Vista data) {
  data = Pulito(data);
  const Testo posti = Testo(Da(data, 4).substr(0, 2)).append(Sinistra(data, 2));
  if (Tutte_Cifre(posti, 4)) return posti;
  const auto letta = Leggi_Data(data);
  if (!letta) return std::nullopt;
  return Testo_Data(*letta, "yyyymmdd").substr(4);
}

}  // namespace

std::optional<Testo> NomeFileConto(Vista data, Vista ncv, char separatore) {
  auto nome = Mese_Giorno(data);
  if (nome)
    nome->append(Formato(static_cast<double>(Intero(ncv, separatore)), "0000", separatore)).append(".txt");
  return nome;
}

Testo ContenutoFileConto(Vista fornitore, const Importi_CV& importi, Forma_Importi forma, char separatore) {
  const auto numero = [&](double importo) {
    return forma == Forma_Importi::Piana ? Piano(importo, separatore) : Formato(importo, "#.00", separatore);
  };
  const Testo righe[] = {Testo(Pulito(fornitore)),
                         numero(importi.ImponibileTotale),
                         numero(importi.Commissioni),
                         numero(importi.Imponibile2),
                         numero(importi.Iva2),
                         numero(importi.Imponibile1),
                         numero(importi.Iva1),
                         numero(importi.TotaleCV),
                         numero(importi.SpeAnt),
                         numero(importi.TotaleEuro),
                         "no",
                         numero(importi.Imponibile3),
                         numero(importi.Iva3)};
  Testo contenuto;
  for (const Testo& riga : righe) contenuto.append(riga).append(FINE_RIGA);
  return contenuto;
}

// The twin goes once the new file is there: a full disk or a crash between the two must not leave the account
// without any.
int ScriviFileConto(const Disco& disco, const Percorso& cartella_anno, Vista nome, Vista contenuto) {
  const int errore =
      disco.Sostituisci(Unisci_Percorso(Unisci_Percorso(cartella_anno, Cartella_No), nome), contenuto);
  if (errore != 0) return errore;
  const Percorso gemello = Unisci_Percorso(Unisci_Percorso(cartella_anno, Cartella_Si), nome);
  const int rimasto = disco.Cancella(gemello);
  return rimasto == ENOENT || rimasto == ENOTDIR ? 0 : rimasto;
}

std::optional<Testa_Conto> Leggi_Testa_Conto(const Disco& disco, const Percorso& file) {
  const auto contenuto = disco.Leggi_Testo(file);
  if (!contenuto) return std::nullopt;
  Testa_Conto testa;
  Testo* const campi[] = {&testa.Fornitore, &testa.ImponibileTotale, &testa.Commissioni};
  const std::vector<Vista> righe = Righe(*contenuto);
  for (std::size_t i = 0; i < std::min(std::size(campi), righe.size()); ++i)
    *campi[i] = Testo(Pulito(righe[i]));
  return testa;
}

void ScriviConto(const Programma& programma, const Documento_CV& documento, Forma_Importi forma,
                 std::vector<Testo>& falliti) {
  const Conto_CV& conto = documento.conto;
  const char separatore = programma.Separatore_Decimale;
  const auto nome = NomeFileConto(conto.Data, conto.NCV, separatore);
  const bool scritto =
      nome && ScriviFileConto(programma.disco, programma.Cartella_Anno, *nome,
                              ContenutoFileConto(conto.Fornitore, documento.importi, forma, separatore)) == 0;
  if (!scritto) falliti.push_back(RigaListaCV(conto, separatore));
}

void DiFileFalliti(const Programma& programma, const std::vector<Testo>& falliti) {
  if (falliti.empty()) return;
  Testo testo = "Il file di questi conti vendita non è stato scritto nella cartella CV_NO:"_t;
  for (const Testo& riga : falliti) testo += "\n" + riga;
  programma.piattaforma.Messaggio(testo);
}
