#include "stats/scansione.h"

#include <algorithm>
#include <cerrno>

#include "core/giorno.h"
#include "core/numeri.h"
#include "lists/ordina.h"

namespace {

constexpr std::size_t cifre_giorno = 8;
constexpr Vista estensione = ".txt", segnaposto = "Modificare";
constexpr std::size_t blocco_provvisorio = 4U << 20U;  // bytes gathered for one writing

bool Fra(Vista due_cifre, Vista minimo, Vista massimo) { return minimo <= due_cifre && due_cifre <= massimo; }

Testo In_Chiave(const Totale& totale) { return totale.Fornitore + " - " + totale.Specie + " - "; }

template <class Chiave>
void Ordina(std::vector<Totale>& totali, const Chiave& chiave) {
  std::vector<Testo> chiavi;
  chiavi.reserve(totali.size());
  for (const Totale& totale : totali) chiavi.push_back(chiave(totale));
  Riordina(totali, Ordine_Chiavi(std::move(chiavi)));
}

}  // namespace

std::optional<std::vector<Percorso>> File_Dell_Anno(const Programma& programma) {
  int errore = 0;
  auto nomi = programma.disco.Elenca(programma.Cartella_Anno, programma.Anno_Lavoro + "????.txt", &errore);
  if (!nomi) {
    Di_Errore_File(programma, errore, "la lettura", programma.Cartella_Anno);
    return std::nullopt;
  }
  std::erase_if(*nomi, [](const Percorso& nome) {
    return Nome_File(nome).size() != cifre_giorno + estensione.size() ||
           !In_Forma_AAAAMMGG(Giorno_Del_File(nome));
  });
  return nomi;
}

Testo Giorno_Del_File(const Percorso& nome) { return Testo(Sinistra(Nome_File(nome), cifre_giorno)); }

bool In_Forma_AAAAMMGG(Vista testo) {
  return Tutte_Cifre(testo, cifre_giorno) && Fra(testo.substr(4, 2), "01", "12") &&
         Fra(testo.substr(6, 2), "01", "31");
}

// ---- totals

Testo Totale::Testo_Kg(char separatore) const {
  return righe == 1 ? primo_peso : Piano(kg.Valore(), separatore);
}

Testo Totale::Testo_Importo(char separatore) const { return Piano(importo.Valore(), separatore); }

std::optional<double> Totale::Prezzo_Medio() const {
  const double peso = kg.Valore();
  if (peso == 0) return std::nullopt;
  return importo.Valore() / peso;
}

void Ordina_Totali(std::vector<Totale>& totali) { Ordina(totali, In_Chiave); }

void Consolida_Vettore_1x1a(std::vector<Totale>& totali) {
  Ordina(totali, [](const Totale& totale) { return totale.Fornitore + " - "; });
  std::vector<Totale> uniti;
  for (Totale& totale : totali) {
    if (uniti.empty() || !Uguali(uniti.back().Fornitore, totale.Fornitore)) {
      uniti.push_back(std::move(totale));
      continue;
    }
    uniti.back().kg.Aggiungi(totale.kg);
    uniti.back().importo.Aggiungi(totale.importo);
    uniti.back().righe += totale.righe;
  }
  totali = std::move(uniti);
}

// ---- reading

// A row of a day file, its fields where they lie.
struct Scansione::Vendita {
  Vista fornitore, specie, peso, prezzo, primo_sbarco;
};

// Goes through the bytes of a day file once. Fields are taken as the day's own loader takes them: trimmed but
// for the last of a line; a line may end early.
class Scansione::Lettore {
 public:
  Lettore(Vista contenuto, bool primo_sbarco)
      : contenuto_(contenuto),
        ultimo_campo_(static_cast<int>(primo_sbarco ? CampoRiga::PrimoImb : CampoRiga::Prezzo)),
        cr_(contenuto.find('\r')),
        lf_(contenuto.find('\n')) {}

  // False at the end.
  bool Leggi(Vendita& vendita) {
    if (qui_ >= contenuto_.size()) return false;
    const std::size_t fine = std::min({Prossimo('\r', cr_), Prossimo('\n', lf_), contenuto_.size()});
    vendita = {};
    Dividi(contenuto_.substr(qui_, fine - qui_), vendita);
    const bool due = fine == cr_ && lf_ == cr_ + 1;
    qui_ = fine + (due ? 2 : 1);
    return true;
  }

 private:
  // Each line end is looked for once, also in a file that has none of that kind.
  std::size_t Prossimo(char c, std::size_t& dove) const {
    if (dove < qui_) dove = contenuto_.find(c, qui_);
    return dove;
  }

  void Dividi(Vista riga, Vendita& vendita) const {
    for (int campo = 1; campo <= ultimo_campo_; ++campo) {
      const std::size_t tab = riga.find(TAB);
      const bool ultimo = tab == Vista::npos;
      const Vista letto = riga.substr(0, tab);
      if (Vista* posto = Posto(campo, vendita)) *posto = ultimo ? letto : Pulito(letto);
      if (ultimo) return;
      riga.remove_prefix(tab + 1);
    }
  }

  static Vista* Posto(int campo, Vendita& vendita) {
    switch (static_cast<CampoRiga>(campo)) {
      case CampoRiga::Fornitore:
        return &vendita.fornitore;
      case CampoRiga::Specie:
        return &vendita.specie;
      case CampoRiga::Peso:
        return &vendita.peso;
      case CampoRiga::Prezzo:
        return &vendita.prezzo;
      case CampoRiga::PrimoImb:
        return &vendita.primo_sbarco;
      default:
        return nullptr;
    }
  }

  Vista contenuto_;
  int ultimo_campo_;
  std::size_t qui_ = 0, cr_, lf_;
};

Scansione::Scansione(Programma& programma, Scopo_Scansione scopo)
    : programma_(programma), scopo_(std::move(scopo)) {}

std::uint32_t Scansione::Numeri_Nomi::Di(Vista nome) {
  if (const auto gia = come_scritti_.find(nome); gia != come_scritti_.end()) return gia->second;
  const auto nuovo = static_cast<std::uint32_t>(piegati_.size());
  const auto posto = piegati_.try_emplace(Minuscolo(nome), nuovo).first;
  return come_scritti_.emplace(nome, posto->second).first->second;
}

bool Scansione::Leggi_Giorno(const Percorso& file) {
  int errore = 0;
  const auto contenuto = programma_.disco.Leggi_Testo(file, &errore);
  if (!contenuto) {
    if (errore != ENOENT) illeggibili_.push_back(Nome_File(file));
    return false;
  }
  if (contenuto->empty() && !scopo_.provvisorio.empty()) Conta({"Nessuno", "nulla", "0", "0", {}});
  Lettore lettore(*contenuto, scopo_.primo_sbarco);
  Vendita vendita;
  while (lettore.Leggi(vendita)) {
    if (vendita.fornitore.empty() && vendita.specie.empty() && vendita.peso.empty() && vendita.prezzo.empty())
      continue;
    if (Inizia(vendita.fornitore, segnaposto)) continue;
    if (scopo_.primo_sbarco) vendita.fornitore = vendita.primo_sbarco;
    Conta(vendita);
  }
  return true;
}

Totale& Scansione::Trova(Vista fornitore, Vista specie) {
  const std::uint64_t numeri = std::uint64_t{fornitori_.Di(fornitore)} << 32U | specie_.Di(specie);
  const auto [posto, nuovo] = totali_.try_emplace(numeri);
  Totale& totale = posto->second;
  if (nuovo) {
    totale.Fornitore = fornitore;
    totale.Specie = specie;
    in_ordine_.push_back(&totale);
  }
  return totale;
}

void Scansione::Conta(const Vendita& vendita) {
  const char separatore = programma_.Separatore_Decimale;
  const auto kg = Numero(vendita.peso, separatore);
  const auto prezzo = Numero(vendita.prezzo, separatore);
  Totale& totale = Trova(vendita.fornitore, scopo_.per_specie ? vendita.specie : Vista());
  if (totale.righe++ == 0) totale.primo_peso = Normalizza_Numero(vendita.peso, separatore);
  if (kg) totale.kg.Aggiungi(*kg);
  if (kg && prezzo) totale.importo.Aggiungi_Prodotto(*kg, *prezzo);
  if (!kg || !prezzo) ++senza_numero_;
  ++righe_;
  if (!scopo_.provvisorio.empty()) Annota(vendita);
}

std::vector<Totale> Scansione::Prendi_Totali() {
  std::vector<Totale> presi;
  presi.reserve(in_ordine_.size());
  for (Totale* totale : in_ordine_) presi.push_back(std::move(*totale));
  in_ordine_.clear();
  totali_.clear();
  return presi;
}

// ---- the temporary file

void Scansione::Annota(const Vendita& vendita) {
  const char altro = Altro_Separatore(programma_.Separatore_Decimale);
  const auto numero = [&](Vista testo) {
    if (testo.find(altro) == Vista::npos)
      in_sospeso_ += testo;
    else
      in_sospeso_ += Normalizza_Numero(testo, programma_.Separatore_Decimale);
  };
  (in_sospeso_ += vendita.fornitore) += TAB;
  (in_sospeso_ += vendita.specie) += TAB;
  numero(vendita.peso);
  in_sospeso_ += TAB;
  numero(vendita.prezzo);
  in_sospeso_ += FINE_RIGA;
  if (in_sospeso_.size() >= blocco_provvisorio) Svuota_Provvisorio();
}

void Scansione::Svuota_Provvisorio() {
  if (errore_ == 0 && !in_sospeso_.empty()) {
    errore_ = programma_.disco.Accoda_Provvisorio(scopo_.provvisorio, in_sospeso_);
    // A part would be taken for the whole, and a full disk wants the room.
    if (errore_ != 0) programma_.disco.Cancella(scopo_.provvisorio);
  }
  in_sospeso_.clear();
}

int Scansione::Chiudi() {
  Svuota_Provvisorio();
  return errore_;
}

bool Leggi_Periodo(Programma& programma, Scansione& scansione, std::span<const Percorso> nomi,
                   Scritta& avanzamento) {
  for (const Percorso& nome : nomi) {
    if (scansione.Leggi_Giorno(programma.Cartella_Anno / nome))
      avanzamento.testo = Nome_File(nome) + " letto";
    if (programma.piattaforma.Vuole_Fermare()) return false;
  }
  return true;
}

Testo Mancanze(const Scansione& scansione) {
  Testo testo = Righe_Illeggibili(scansione.Righe_Senza_Numero());
  if (scansione.Illeggibili().empty()) return testo;
  testo += testo.empty() ? "file non letti:" : "   file non letti:";
  for (const Testo& nome : scansione.Illeggibili()) testo += " " + nome;
  return testo;
}
