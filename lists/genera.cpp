#include "lists/genera.h"

#include <algorithm>

#include "core/giorno.h"
#include "lists/file_lista.h"
#include "lists/liste.h"
#include "lists/semi.h"

namespace {

constexpr Vista Ultimi_Numeri = "_2020_ncv.txt";

struct Da_Generare {
  Vista nome;
  Testo (*contenuto)();
  std::vector<Vista> precedenti;
};

Testo Specie() { return Contenuto_Tabella(Seme_Specie()); }

std::vector<Da_Generare> Elenco_File() {
  return {{nomi_file::Pelmoro, Specie, {}},
          {nomi_file::Specie, Specie, {"_Descri32.txt"}},
          {nomi_file::Zone, [] { return Contenuto_Tabella(Seme_Zone()); }, {}},
          {nomi_file::Fornitori, Riga_Fornitore_Predefinita, {"_Fornitori.txt"}},
          {nomi_file::Clienti,
           [] { return Contenuto_Tabella(Seme_Clienti()); },
           {nomi_file::Clienti_16, nomi_file::Clienti_Banca}},
          {nomi_file::Vettori, Riga_Vettore_Predefinita, {"_Vettori.txt"}}};
}

int Numero_Righe(Vista contenuto) {
  return static_cast<int>(std::count(contenuto.begin(), contenuto.end(), '\n'));
}

// What is known before anything is written: true when there is nothing to write, or nobody knows.
bool Gia_Provveduto(const Programma& programma, const std::vector<Vista>& precedenti, Lista_Generata& esito) {
  if (!Manca_Lista(programma, esito.nome, &esito.errore)) return true;
  for (const Vista precedente : precedenti) {
    if (Manca_Lista(programma, precedente, &esito.errore)) continue;
    if (esito.errore == 0) esito.precedente = precedente;
    return true;
  }
  return false;
}

template <class Contenuto>
Lista_Generata Genera(Programma& programma, Vista nome, const std::vector<Vista>& precedenti,
                      const Contenuto& contenuto) {
  Lista_Generata esito;
  esito.nome = nome;
  if (Gia_Provveduto(programma, precedenti, esito)) return esito;
  const Testo testo = contenuto();
  esito.errore = Scrivi_File_Lista(programma, nome, testo);
  esito.scritta = esito.errore == 0;
  if (esito.scritta) esito.righe = Numero_Righe(testo);
  return esito;
}

Lista_Generata Genera_Numeri(Programma& programma) {
  Lista_Generata esito;
  esito.nome = Ultimi_Numeri;
  if (Gia_Provveduto(programma, {"ncv.txt"}, esito)) return esito;
  Leggi_Ultimi_Numeri(programma);
  if (Manca_Lista(programma, Ultimi_Numeri))
    esito.errore = programma.disco.Aggiungi(Percorso_Lista(programma, Ultimi_Numeri), {});
  esito.scritta = esito.errore == 0;
  if (const auto testo = programma.disco.Leggi(Percorso_Lista(programma, Ultimi_Numeri));
      testo && esito.scritta)
    esito.righe = Numero_Righe(*testo);
  return esito;
}

}  // namespace

std::vector<Lista_Generata> Genera_Liste(Programma& programma) {
  std::vector<Lista_Generata> esiti;
  for (const Da_Generare& file : Elenco_File())
    esiti.push_back(Genera(programma, file.nome, file.precedenti, file.contenuto));
  for (const Lista_Codificata& lista : Liste_Codificate()) {
    std::vector<Vista> precedenti;
    if (lista.nome == nomi_file::Barche) precedenti.emplace_back("_Barca.txt");
    esiti.push_back(Genera(programma, lista.nome, precedenti, [&] { return Contenuto_Voci(lista.seme()); }));
  }
  esiti.push_back(Genera_Numeri(programma));
  return esiti;
}

Testo Esito_In_Parole(const Lista_Generata& lista) {
  if (lista.errore != 0) return "errore " + std::to_string(lista.errore) + ": " + Testo_Errore(lista.errore);
  if (lista.scritta)
    return "scritto, " + std::to_string(lista.righe) + (lista.righe == 1 ? " riga" : " righe");
  if (lista.precedente.empty()) return "già presente"_t;
  return "resta quello della versione precedente, " + lista.precedente;
}

Testo Riassunto(const std::vector<Lista_Generata>& liste) {
  const auto scritte = std::count_if(liste.begin(), liste.end(), [](const auto& l) { return l.scritta; });
  const auto errate = std::count_if(liste.begin(), liste.end(), [](const auto& l) { return l.errore != 0; });
  if (errate == 1) return "Un file non è stato scritto."_t;
  if (errate > 1) return std::to_string(errate) + " file non sono stati scritti.";
  if (scritte == 0) return "Le liste ci sono tutte, nessun file da scrivere.";
  return scritte == 1 ? "Scritto un file." : "Scritti " + std::to_string(scritte) + " file.";
}

bool Con_Errori(const std::vector<Lista_Generata>& liste) {
  return std::any_of(liste.begin(), liste.end(), [](const auto& lista) { return lista.errore != 0; });
}

Passo_Ripartenza Prossimo_Passo(const Ripartenza& ripartenza, bool cartella_libera) {
  constexpr double secondi_di_lettura = 2, attesa_massima = 5;
  const bool da_sola = !ripartenza.errori && ripartenza.secondi >= secondi_di_lettura;
  if (!ripartenza.chiesta && !da_sola) return Passo_Ripartenza::Resta;
  if (cartella_libera) return Passo_Ripartenza::Avvia;
  return ripartenza.secondi_di_attesa < attesa_massima ? Passo_Ripartenza::Aspetta
                                                       : Passo_Ripartenza::Occupata;
}

bool Cartella_Libera(const Percorso& cartella) {
  Blocco_Cartella blocco;
  return blocco.Prendi(cartella);
}
