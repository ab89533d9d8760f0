#include "lists/liste.h"

#include <span>

#include "core/numeri.h"
#include "fuzz/ingresso.h"
#include "lists/semi.h"

// The list files: any bytes as the file of any list; the table that was read, saved and read again is the
// same.

namespace {

template <std::size_t N>
TabellaLista<N> Attesa(const TabellaLista<N>& tabella, std::size_t colonna_libera) {
  TabellaLista<N> attesa;
  for (const auto& riga : tabella) {
    if (Pulito(riga[0]).empty()) continue;  // a deleted row
    auto& nuova = attesa.emplace_back(riga);
    for (std::size_t i = 0; i < N; ++i)
      if (i != colonna_libera) nuova[i] = Riletto(riga[i], i + 1 == N);
  }
  return attesa;
}

// Of the columns only the last one of a customer keeps its TABs.
constexpr std::size_t nessuna = 99;

template <auto tabella, auto leggi, auto salva>
void Prova(Programma& programma, std::size_t colonna_libera = nessuna) {
  leggi(programma);
  auto attesa = Attesa(programma.*tabella, colonna_libera);
  Esigi(salva(programma), "la lista si salva");
  if (!attesa.empty() && Comincia_Con_La_Marca(attesa.front()[0])) return;
  leggi(programma);
  if constexpr (static_cast<bool (*)(Programma&)>(salva) == Salva_Fornitori)
    for (auto& riga : attesa)
      riga[fornitore::Provvigione] =
          Correggi_Separatore(riga[fornitore::Provvigione], programma.Separatore_Decimale);
  Esigi(programma.*tabella == attesa, "salvata e riletta e' la stessa lista");
}

void Clienti(Programma& p) { Prova<&Programma::Vet_Clienti, Leggi_Clienti, Salva_Clienti>(p, cliente::Iban); }
void Fornitori(Programma& p) { Prova<&Programma::Vet_Fornitori, Leggi_Fornitori, Salva_Fornitori>(p); }
void Specie(Programma& p) { Prova<&Programma::Vet_Specie, Leggi_Specie, Salva_Specie>(p); }
void Zone(Programma& p) { Prova<&Programma::Vet_Zone, Leggi_Zone, Salva_Zone>(p); }
void Vettori(Programma& p) { Prova<&Programma::Vet_Vettori, Leggi_Vettori, Salva_Vettori>(p); }
void Pelmoro(Programma& p) { Leggi_Pelmoro(p); }

void Esclusi(Programma& p) {
  Leggi_Esclusi(p);
  Esigi(p.Vet_Esclusi.size() == p.Vet_Esclusi_Puliti.size(), "un codice pulito per ogni escluso");
  const auto letti = p.Vet_Esclusi;
  if (Comincia_Con_La_Marca(Senza_Separatori(letti.front()))) return;
  Esigi(Salva_Esclusi(p), "la lista si salva");
  Leggi_Esclusi(p);
  Esigi(p.Vet_Esclusi.size() == letti.size(), "salvata e riletta e' la stessa lista");
}

// The two older customer files and the bank's register.
void Clienti_Vecchi(Programma& p) {
  Leggi_Clienti(p);
  Esigi(Salva_Clienti(p), "la lista si salva");
}

struct Lista {
  Vista nome;
  void (*prova)(Programma&);
};
constexpr Lista liste[] = {{nomi_file::Clienti, Clienti},
                           {nomi_file::Fornitori, Fornitori},
                           {nomi_file::Specie, Specie},
                           {nomi_file::Zone, Zone},
                           {nomi_file::Vettori, Vettori},
                           {nomi_file::Pelmoro, Pelmoro},
                           {nomi_file::Esclusi, Esclusi},
                           {nomi_file::Clienti_16, Clienti_Vecchi},
                           {nomi_file::Clienti_Banca, Clienti_Vecchi}};

void Codificata(Programma& programma, const Ditta_Muta& ditta, const Lista_Codificata& lista,
                Vista contenuto) {
  // The eight coded lists are read together; one is given, the others are seeded once.
  ditta.Metti(Testo(lista.nome).c_str(), contenuto);
  constexpr void (*lettori[])(Programma&) = {Leggi_Provenienze, Leggi_Metodi,      Leggi_Pezzature,
                                             Leggi_Stati,       Leggi_Lavorazioni, Leggi_Presentazioni,
                                             Leggi_Barche,      Leggi_Allergeni};
  for (const auto leggi : lettori) leggi(programma);
  Esigi((programma.*lista.tabella).size() == Righe(Senza_Marca(contenuto)).size(), "una voce per riga");
  Esigi(ditta.Contenuto(Testo(lista.nome).c_str()) == contenuto, "leggere non tocca il file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ingresso.Separatore());
  const auto codificate = Liste_Codificate();
  const auto n = ingresso.Scelta(static_cast<unsigned>(std::size(liste) + codificate.size()));
  const Vista contenuto = ingresso.Resto();
  // A NUL goes with the first save, and with it what it stood for.
  if (contenuto.find('\0') != Vista::npos && n < 6) return 0;
  if (n >= std::size(liste)) {
    Codificata(programma, ditta, codificate[n - std::size(liste)], contenuto);
    return 0;
  }
  for (const Lista& lista : liste) ditta.Togli(Testo(lista.nome).c_str());
  ditta.Metti(Testo(liste[n].nome).c_str(), contenuto);
  liste[n].prova(programma);
  Provvigione_Fornitore(programma, "a");
  Codice_Lotto(programma, "a");
  Codice_Escluso(programma, "00001");
  Cerca_Cliente_Per_Codice(programma, "00001");
  return 0;
}
