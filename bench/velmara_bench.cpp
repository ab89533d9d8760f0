#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

#include "bench/ditta.h"
#include "core/giorno.h"
#include "core/numeri.h"
#include "entry/edita.h"
#include "lists/liste.h"
#include "printing/registratore.h"
#include "start/avvio.h"
#include "start/inizio.h"
#include "stats/controllo_cv.h"

// What the operator waits for, measured on a firm of size. Figures for people to read, not a test.

namespace {

using Orologio = std::chrono::steady_clock;

void Stampa(const char* cosa, std::vector<double> millisecondi) {
  std::sort(millisecondi.begin(), millisecondi.end());
  const auto a = [&](double parte) {
    return millisecondi[static_cast<std::size_t>(parte * static_cast<double>(millisecondi.size() - 1))];
  };
  std::printf("%-52s mediana %9.3f ms   p99 %9.3f ms   (%zu volte)\n", cosa, a(0.5), a(0.99),
              millisecondi.size());
}

void Misura(const char* cosa, int volte, const std::function<void(int)>& opera) {
  std::vector<double> tempi;
  for (int i = 0; i < volte; ++i) {
    const auto inizio = Orologio::now();
    opera(i);
    tempi.push_back(std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count());
  }
  Stampa(cosa, std::move(tempi));
}

// The program at the point where a day of so many rows has just been opened.
struct Giornata {
  Giornata(const Ditta& ditta, int righe) : programma(macchina) {
    ditta.Scrivi_Giorno(macchina, righe);
    Avvia(programma, ditta.Cartella(), blocco, [] { return std::optional<PrimoAvvio>(); });
    Carica_Inizio(programma, inizio);
    Apri_Giorno(programma, inizio);
    Apri_Edita(programma, edita);
    edita.pronta = true;
  }
  Piattaforma_Muta macchina;
  Programma programma;
  Blocco_Cartella blocco;
  B_Inizio inizio;
  Edita edita;
};

void Giorno_Intero(const Ditta& ditta, int righe) {
  Giornata giornata(ditta, righe);
  Programma& programma = giornata.programma;
  const Testo quante = std::to_string(righe) + " righe";
  Misura(("carica un giorno di " + quante).c_str(), 50, [&](int) { Carica_Giorno(programma); });
  Misura(("salva un giorno di " + quante).c_str(), 50, [&](int i) {
    programma.Vet_Tabella(CampoRiga::Commento, 1) = std::to_string(i);  // an unchanged file isn't written
    bool errore = false;
    Salva_Giorno(programma, errore);
  });
  Misura(("ultimi numeri da un giorno di " + quante).c_str(), 50,
         [&](int) { Trova_Ultimi_Numeri(programma, programma.Anno_Lavoro); });
  Misura(("apre un giorno di " + quante + ", liste comprese").c_str(), 20, [&](int) {
    Apri_Giorno(programma, giornata.inizio);
    Apri_Edita(programma, giornata.edita);
  });
}

void Ricerca_Cliente(const Ditta& ditta) {
  Giornata giornata(ditta, 100);
  constexpr int campo = Indice(CampoRiga::Cliente);
  Edita& edita = giornata.edita;
  const Testo nome = "Ristorante Cliente 01234";
  edita.CampoCorrente = campo;
  Misura("filtra 10000 clienti a ogni tasto", 20 * static_cast<int>(nome.size()), [&](int i) {
    edita.Text1[campo].testo = nome.substr(0, 1 + static_cast<std::size_t>(i) % nome.size());
    CambiaCampo(giornata.programma, edita, campo);
  });
  if (edita.List1.Numero() != 1)
    std::printf("  attenzione: il nome intero trova %zu voci\n", edita.List1.Numero());
}

void Aggiunta(const Ditta& ditta, bool salvataggio) {
  Giornata giornata(ditta, 10'000);
  Programma& programma = giornata.programma;
  Edita& edita = giornata.edita;
  programma.preferenze.FlagAutoSalvataggio = salvataggio;
  const int prima = programma.Vet_Tabella.Righe();
  constexpr int volte = 200;
  // Only the command is timed, not the filling of the fields.
  std::vector<double> tempi;
  for (int i = 0; i < volte; ++i) {
    const LedgerRow riga = Riga_Inventata(programma, i + 1);
    edita.attiva = false;
    for (int campo = 0; campo < Num_Campi; ++campo)
      edita.Text1[static_cast<std::size_t>(campo)].testo = riga.campi[static_cast<std::size_t>(campo)];
    edita.attiva = true;
    edita.Aggiungi.attivo = true;
    const auto inizio = Orologio::now();
    Aggiungi(programma, edita);
    tempi.push_back(std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count());
  }
  Stampa(salvataggio ? "F5 su 10000 righe, salvataggio ogni 5" : "F5 su 10000 righe", std::move(tempi));
  if (programma.Vet_Tabella.Righe() != prima + volte)
    std::printf(
        "  attenzione: aggiunte %d righe su %d, ultimo messaggio: %s\n",
        programma.Vet_Tabella.Righe() - prima, volte,
        giornata.macchina.messaggi.empty() ? "-" : In_Utf8(giornata.macchina.messaggi.back()).c_str());
}

// The account files of a whole year, one after the other.
void Controllo_Conti(const Ditta& ditta) {
  constexpr int conti = 5000;
  Giornata giornata(ditta, 100);
  Programma& programma = giornata.programma;
  Registro_Pagine registro;
  Registratore printer(giornata.macchina.stampante, registro);
  giornata.macchina.dispositivo = &printer;
  const Percorso cartella = programma.Cartella_Anno / "CV_NO";
  programma.disco.Crea_Cartella(cartella);
  for (int i = 1; i <= conti; ++i) {
    const Testo nome =
        Formato(1 + i % 12, "00", ',') + Formato(1 + i % 28, "00", ',') + Formato(i, "0000", ',');
    programma.disco.Aggiungi(cartella / (nome + ".txt"),
                             "Fornitore " + std::to_string(i % 60) + "\r\n100,10\r\n8,01\r\n");
  }
  ControlloCV controllo;
  Apri_Controllo(programma, controllo);
  controllo.Combo1.scelta = 12;
  Misura("controlla 5000 conti vendita di un anno", 20, [&](int) { Leggi_Controllo(programma, controllo); });
  if (controllo.Tabella_Controllo.size() != conti)
    std::printf("  attenzione: letti %zu conti\n", controllo.Tabella_Controllo.size());
  Misura("consolida 5000 conti vendita per fornitore", 1,
         [&](int) { Consolida_Controllo(programma, controllo); });
}

}  // namespace

int main() {
  const Ditta ditta;
  for (const int righe : {10'000, 30'000}) Giorno_Intero(ditta, righe);
  Ricerca_Cliente(ditta);
  Aggiunta(ditta, false);
  Aggiunta(ditta, true);
  Controllo_Conti(ditta);
}
