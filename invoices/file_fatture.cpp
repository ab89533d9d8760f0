#include "invoices/file_fatture.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

#include "core/numeri.h"

namespace {

constexpr std::size_t lunghezza_codice = 5;
constexpr std::size_t lunghezza_marca = 7;  // "_11.txt"
constexpr Vista estensione = ".txt";
constexpr Vista vietati = "/\\:*?\"<>|";

// Positions in a name, from 1.
constexpr std::size_t posto_codice = 1, posto_numero = 11, posto_data = 17, posto_ditta = 26,
                      posto_importo = 32;
constexpr std::size_t lunghezza_data = 8;

Testo Campo(Vista nome, std::size_t posto, std::size_t lunghezza) {
  return Testo(Sinistra(Da(nome, posto), lunghezza));
}

Testo Numero_Nel_Nome(const Documento_Fattura& documento, char separatore) {
  if (documento.tipo == TipoFattura::Nota) return documento.Numero;
  return Formato(Valore(documento.Numero, separatore), "00000", separatore);
}

bool E_Documento(Vista nome) {
  constexpr std::size_t posto_sigla = 6;
  const Vista sigla = Sinistra(Da(nome, posto_sigla), 4);
  return Uguali(sigla, "_FAT") || Uguali(sigla, "_NAC");
}

// A file that was in the folder, and what it held.
struct Vecchio {
  Testo nome;
  std::optional<Testo> contenuto;
};

// The texts of the day's files before a run, to be put back when it fails.
class Copia_Di_Prima {
 public:
  // `nostro` tells which of them are the program's own.
  Copia_Di_Prima(const Disco& disco, const Percorso& cartella, Vista modello, bool (*nostro)(Vista))
      : disco_(disco), cartella_(cartella) {
    const auto nomi = disco_.Elenca(cartella_, modello, &errore_);
    for (const Percorso& file : nomi.value_or(std::vector<Percorso>())) {
      Testo nome = Testo_Percorso(file);
      // Letters outside the code page: none of ours, and its name leads nowhere.
      if (Unisci_Percorso(cartella_, nome).filename() != file) continue;
      if (!nostro(nome)) {
        estranei_.push_back(std::move(nome));
        continue;
      }
      auto contenuto = disco_.Leggi(cartella_ / file);
      documenti_.push_back({std::move(nome), std::move(contenuto)});
    }
  }

  // Of the folder: what isn't known of can't be put back.
  int Errore() const { return errore_; }
  const std::vector<Vecchio>& Documenti() const { return documenti_; }
  const std::vector<Testo>& Estranei() const { return estranei_; }

  // False when something of before couldn't be put back.
  bool Rimetti(const std::vector<File_Documento>& scritti) const {
    bool tutto = true;
    for (const File_Documento& nuovo : scritti)
      if (!Era_Presente(nuovo.nome) && disco_.Esiste_File(Unisci_Percorso(cartella_, nuovo.nome)))
        tutto = disco_.Cancella(Unisci_Percorso(cartella_, nuovo.nome)) == 0 && tutto;
    for (const Vecchio& vecchio : documenti_) {
      const Percorso file = Unisci_Percorso(cartella_, vecchio.nome);
      if (!vecchio.contenuto) {  // it couldn't be read, so that it must still stand there itself
        tutto = tutto && disco_.Esiste_File(file) && !Nominato(scritti, vecchio.nome);
        continue;
      }
      if (disco_.Leggi(file) == vecchio.contenuto) continue;
      tutto = disco_.Sostituisci(file, *vecchio.contenuto) == 0 && tutto;
    }
    return tutto;
  }

 private:
  bool Era_Presente(Vista nome) const {
    return std::ranges::any_of(documenti_,
                               [&](const Vecchio& vecchio) { return Uguali(vecchio.nome, nome); });
  }

  static bool Nominato(const std::vector<File_Documento>& file, Vista nome) {
    return std::ranges::any_of(file, [&](const File_Documento& uno) { return Uguali(uno.nome, nome); });
  }

  const Disco& disco_;
  const Percorso& cartella_;
  int errore_ = 0;
  std::vector<Vecchio> documenti_;
  std::vector<Testo> estranei_;
};

// <data>/<yyyy>_fat
Percorso CartellaAnnoFatture(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, programma.Anno_Lavoro + "_fat");
}

// "FAT" or "NAC".
Vista SiglaDocumento(TipoFattura tipo) { return tipo == TipoFattura::Fattura ? "FAT" : "NAC"; }

}  // namespace

Vista ModelloDocumenti(TipoFattura tipo) {
  return tipo == TipoFattura::Fattura ? "?????_FAT*.txt" : "?????_NAC*.txt";
}

Testo CinqueCaratteri(Vista codice) {
  return Pad_Sinistra(Sinistra(Pulito(codice), lunghezza_codice), lunghezza_codice, '0');
}

Testo In_Nome_File(Testo testo) {
  std::ranges::replace_if(
      testo, [](char c) { return vietati.find(c) != Vista::npos || static_cast<unsigned char>(c) < ' '; },
      '-');
  return testo;
}

Testo NomeDocumento(const Programma& programma, const Documento_Fattura& documento) {
  const char separatore = programma.Separatore_Decimale;
  Testo nome = CinqueCaratteri(documento.cliente.Codice);
  const Testo campi[] = {Testo(SiglaDocumento(documento.tipo)),
                         Numero_Nel_Nome(documento, separatore),
                         documento.Data_AAAAMMGG,
                         CinqueCaratteri(programma.preferenze.Codice_Commissionario),
                         Formato(100 * documento.importi.TotaleDocumento, "#0", separatore),
                         "11"};
  for (const Testo& campo : campi) nome.append("_").append(campo);
  return In_Nome_File(std::move(nome)).append(estensione);
}

Testo NomePagina(Vista nome, int pagine, int pagina) {
  if (nome.size() < lunghezza_marca) return {};
  return Testo(Sinistra(nome, nome.size() - lunghezza_marca))
      .append("_")
      .append(std::to_string(pagine))
      .append(std::to_string(pagina))
      .append(estensione);
}

Dati_Nome LeggiNome(Vista nome) {
  const Vista senza_marca = Sinistra(nome, nome.size() - std::min(nome.size(), lunghezza_marca));
  return {
      Campo(nome, posto_codice, lunghezza_codice), Campo(nome, posto_numero, lunghezza_codice),
      Campo(nome, posto_data, lunghezza_data),     Campo(nome, posto_ditta, lunghezza_codice),
      Testo(Da(senza_marca, posto_importo)),       Testo(Sinistra(Destra(nome, 1 + estensione.size()), 1))};
}

int PagineDelNome(Vista nome) {
  if (nome.size() < lunghezza_marca || !Uguali(Destra(nome, estensione.size()), estensione)) return 0;
  nome.remove_suffix(estensione.size() + 1);  // with the digit of the first page
  const std::size_t trattino = nome.rfind('_');
  return trattino == Vista::npos ? 0 : Intero(nome.substr(trattino + 1), ',');
}

Percorso CartellaGiornoFatture(const Programma& programma) {
  return Unisci_Percorso(CartellaAnnoFatture(programma), programma.Data_AAAAMMGG);
}

Percorso CartellaReport(const Programma& programma) {
  return Unisci_Percorso(CartellaAnnoFatture(programma), "Report");
}

Percorso CartellaTransazioni(const Programma& programma) {
  return Unisci_Percorso(programma.Cartella_Dati, "XBanca");
}

namespace {

Esito_File Metti_Tutti(const Disco& disco, const Percorso& cartella, const Copia_Di_Prima& prima,
                       const std::vector<File_Documento>& file) {
  if (disco.E_Collegamento(cartella)) return {ELOOP, cartella, true};
  if (prima.Errore() != 0) return {prima.Errore(), cartella, true};
  std::vector<Testo> nuovi;
  nuovi.reserve(file.size());
  for (const File_Documento& nuovo : file) {
    const Percorso percorso = Unisci_Percorso(cartella, nuovo.nome);
    if (const int errore = disco.Sostituisci(percorso, nuovo.contenuto))
      return {errore, percorso, prima.Rimetti(file)};
    nuovi.push_back(Minuscolo(nuovo.nome));
  }
  std::ranges::sort(nuovi);
  const auto superato = [&](const Testo& nome) {
    return !std::ranges::binary_search(nuovi, Minuscolo(nome));
  };
  for (const Vecchio& vecchio : prima.Documenti()) {
    if (!superato(vecchio.nome)) continue;
    const Percorso percorso = Unisci_Percorso(cartella, vecchio.nome);
    if (const int errore = disco.Cancella(percorso)) return {errore, percorso, prima.Rimetti(file)};
  }
  for (const Testo& estraneo : prima.Estranei())
    if (superato(estraneo)) disco.Cancella(Unisci_Percorso(cartella, estraneo));
  return {};
}

}  // namespace

Esito_File SostituisciDocumenti(const Disco& disco, const Percorso& cartella,
                                const std::vector<File_Documento>& file) {
  return Metti_Tutti(disco, cartella, {disco, cartella, ModelloTutti, E_Documento}, file);
}

Esito_File SostituisciFile(const Disco& disco, const Percorso& cartella, Vista modello,
                           const std::vector<File_Documento>& file) {
  const auto tutti = [](Vista) { return true; };
  return Metti_Tutti(disco, cartella, {disco, cartella, modello, tutti}, file);
}

Esito_File CancellaFile(const Disco& disco, const Percorso& cartella, Vista modello) {
  if (disco.E_Collegamento(cartella)) return {ELOOP, cartella, true};
  Esito_File esito;
  int illeggibile = 0;
  const auto nomi = disco.Elenca(cartella, modello, &illeggibile);
  if (!nomi) return {illeggibile, cartella, true};
  for (const Percorso& nome : *nomi) {
    const int errore = disco.Cancella(cartella / nome);
    if (errore != 0 && esito.errore == 0) esito = {errore, cartella / nome, true};
  }
  return esito;
}
