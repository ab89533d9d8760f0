#include <algorithm>
#include <utility>

#include "accounts/file_conto.h"
#include "accounts/numerazione.h"
#include "accounts/zvendita_interno.h"
#include "core/corsa.h"
#include "core/numeri.h"

namespace {

// Rows, amounts and ticks of the selected account, for preview and paper. The rows come into Righe_CV.
Documento_CV ComponiConto(Programma& programma, Zvendita& zvendita) {
  const char separatore = programma.Separatore_Decimale;
  const Conto_CV& conto = ContoScelto(zvendita);
  const bool azzera = zvendita.Check6.segnata;
  zvendita.Righe_CV =
      CaricaRigheCV(programma.Vet_Tabella, conto.Fornitore, zvendita.Check4.segnata, separatore);
  const Regole_Importi regole = RegoleImporti(programma.preferenze, azzera);
  Documento_CV documento = DocumentoCV(programma, regole);
  documento.conto = conto;
  documento.fornitore = zvendita.testata;
  documento.importi =
      CalcolaImporti(zvendita.Righe_CV, regole, conto.SpeAnt, conto.Prov, zvendita.IvaCV, separatore);
  if (azzera)
    for (LedgerRow& riga : zvendita.Righe_CV) riga[CampoRiga::Iva] = "0";
  documento.KgTotali = zvendita.Check5.segnata;
  documento.NotaDDLL = zvendita.Check7.segnata;
  return documento;
}

void MostraAnteprima(const Programma& programma, Zvendita& zvendita, const Documento_CV& documento) {
  zvendita.Anteprima.Riempi(RigheAnteprima(documento, TitoloAnteprima(), programma.Separatore_Decimale));
  zvendita.Anteprima.visibile = true;
  zvendita.titolo = Didascalia_Anteprima;
}

void Copie(Programma& programma, Zvendita& zvendita, const Documento_CV& documento, Scelta_Tracciato scelta) {
  const int copie = std::max(1, zvendita.Combo1.scelta + 1);
  for (int copia = 0; copia < copie; ++copia)
    StampaConto(programma, documento, scelta, [&](const Testo& titolo) {
      zvendita.titolo = titolo;
      programma.piattaforma.Ridipingi();
    });
}

// Finds the supplier; without him the account is left out, and nothing of it is printed or written.
bool Trova_Fornitore(const Programma& programma, Zvendita& zvendita) {
  const Testo nome(Pulito(ContoScelto(zvendita).Fornitore));
  auto testata = CercaFornitoreCV(programma, nome);
  if (!testata) {
    programma.piattaforma.Messaggio("Attenzione:\n" + nome +
                                    "\nnon trovato\ncorreggere l'anagrafica dei fornitori.");
    return false;
  }
  zvendita.testata = std::move(*testata);
  return true;
}

// False where the account is left out, which has been told.
bool ElaboraCV(Programma& programma, Zvendita& zvendita) {
  if (zvendita.ListaCV.scelta < 0) {
    if (zvendita.Tabella_CV.size() > 1)
      programma.piattaforma.Messaggio("Scegliere il Conto Vendita da stampare...");
    if (zvendita.Tabella_CV.size() != 1) return false;
    SceltaConto(zvendita, 0);
  }
  if (!Trova_Fornitore(programma, zvendita)) return false;
  zvendita.titolo = "Eleborazione in corso ... ";
  programma.piattaforma.Ridipingi();
  Documento_CV documento = ComponiConto(programma, zvendita);
  if (!zvendita.Check3.segnata) {
    const Scelta_Tracciato scelta = TracciatoCV(programma.preferenze.FlagStampaFrame);
    if (scelta.tracciato == Tracciato_CV::Tipo1) CompletaPerTipo1(documento.importi, documento.regole);
    Copie(programma, zvendita, documento, scelta);
  }
  ScriviConto(programma, documento, Forma_Importi::Centesimi, zvendita.file_falliti);
  return true;
}

// Before the first sheet comes out the file of last numbers holds at least what it will hold in the end:
// whatever happens meanwhile, no number on paper is given out again.
bool Alza_Ultimo_CV(Programma& programma, const Zvendita& zvendita) {
  int massimo = programma.Ultimo_CV;
  for (const Conto_CV& conto : zvendita.Tabella_CV)
    if (Numerato(conto.NCV, programma.Separatore_Decimale))
      massimo = std::max(massimo, NumeroCV(conto.NCV, programma.Separatore_Decimale));
  return massimo == programma.Ultimo_CV || MettiUltimoCV(programma, massimo);
}

// What a run came to before its last steps.
enum class Esito_Stampa { Finita, Interrotta, Fallita };

Parole_Corsa Parole(const Zvendita& zvendita) {
  return {zvendita.Check3.segnata ? "Salvataggio interrotto" : "Stampa interrotta", "conto vendita",
          "conti vendita"};
}

Esito_Stampa Stampa_Tutti(Programma& programma, Zvendita& zvendita, Corsa& corsa) {
  const Testo domanda = zvendita.Check3.segnata ? "OK per salvare tutti i Conti Vendita  (senza stampare)..."
                                                : "OK per stampare tutti i Conti Vendita...";
  if (!programma.piattaforma.Domanda(domanda + "\n(i dati devono essere stati aggiornati)"))
    return Esito_Stampa::Finita;
  if (!Alza_Ultimo_CV(programma, zvendita)) return Esito_Stampa::Fallita;
  for (std::size_t i = 0; i < zvendita.Tabella_CV.size() && corsa.Avanti(); ++i) {
    SceltaConto(zvendita, static_cast<int>(i));
    if (ElaboraCV(programma, zvendita)) corsa.Fatta();
  }
  return corsa.Fermata() ? Esito_Stampa::Interrotta : Esito_Stampa::Finita;
}

Esito_Stampa Stampa_Uno(Programma& programma, Zvendita& zvendita) {
  if (zvendita.ListaCV.scelta >= 0 && CampiCambiati(zvendita)) {
    if (!programma.piattaforma.Domanda("OK per aggiornare i dati....")) return Esito_Stampa::Finita;
    if (EseguiModifica(programma, zvendita) == Esito_Modifica::Fallita) return Esito_Stampa::Fallita;
  }
  if (!Alza_Ultimo_CV(programma, zvendita)) return Esito_Stampa::Fallita;
  ElaboraCV(programma, zvendita);
  return Esito_Stampa::Finita;
}

void PrendiOpzioni(Programma& programma, const Zvendita& zvendita) {
  PrendiCitta(programma, zvendita);
  programma.preferenze.PercentualeAggioBanca = Pulito(zvendita.Text1[Campo_Aggio].testo);
  // a settings file that can't be written is told at closing, when all of it is written
  Scrivi_Preferenze(programma, {"PercentualeAggioBanca"});
}

}  // namespace

void ConfermaDati(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermi = Ferma(zvendita);
  if (zvendita.Tabella_CV.empty()) return programma.piattaforma.Messaggio("nulla da fare...");
  if (zvendita.ListaCV.scelta < 0) {
    SceltaConto(zvendita, 0);
    return programma.piattaforma.Messaggio("ripetere il comando...");
  }
  if (EseguiModifica(programma, zvendita) == Esito_Modifica::Fallita) return;
  // an unknown supplier leaves the heading of the one before
  if (auto testata = CercaFornitoreCV(programma, ContoScelto(zvendita).Fornitore))
    zvendita.testata = std::move(*testata);
  MostraAnteprima(programma, zvendita, ComponiConto(programma, zvendita));
}

void StampaCV(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermi = Ferma(zvendita);
  zvendita.file_falliti.clear();
  Esito_Stampa esito = Esito_Stampa::Finita;
  Corsa corsa(programma.piattaforma, zvendita.Tabella_CV.size());
  {
    const Clessidra clessidra(programma.piattaforma);
    PrendiOpzioni(programma, zvendita);
    esito =
        zvendita.Check1.segnata ? Stampa_Tutti(programma, zvendita, corsa) : Stampa_Uno(programma, zvendita);
    // After a stop it stays above all numbers of the list, also those that are on paper already.
    if (esito == Esito_Stampa::Finita) Aggiorna_Ultimo_CV(programma, zvendita);
  }
  zvendita.titolo = zvendita.titolo_normale = "Conti Vendita";
  DiFileFalliti(programma, zvendita.file_falliti);
  if (esito == Esito_Stampa::Finita) programma.piattaforma.Messaggio("fatto...");
  if (esito == Esito_Stampa::Interrotta)
    programma.piattaforma.Messaggio(corsa.Testo_Fermata(Parole(zvendita)), Icona::Informazione);
}
