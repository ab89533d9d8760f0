#include "accounts/gemmit.h"

#include <algorithm>
#include <utility>

#include "accounts/file_conto.h"
#include "accounts/numerazione.h"
#include "core/corsa.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "lists/ordina.h"
#include "printing/pagina.h"

namespace {

constexpr std::size_t campi_conto = Campo_Citta;  // those that belong to the account
constexpr Vista fine_titolo = " (Manuale)", in_corso = "Eleborazione in corso ... ";

constexpr Vista aiuto[] = {"Questa procedura richiede che il numero di conto vendita sia stato attribuito ",
                           " Manualmente.   ", " E' possibile stampare ",
                           "tutti i conti vendita con un unico comando ", "(prima F4 e poi F2)."};

// A command runs or asks.
auto Ferma(const Programma& programma, Zgemmit& zgemmit) {
  return Schermo_Occupato(zgemmit, programma.piattaforma,
                          [&programma, &zgemmit] { AggiornaComandi(programma, zgemmit); });
}

Testo& Colonna(Conto_CV& conto, std::size_t campo) {
  Testo* const colonne[] = {&conto.NCV,    &conto.Data,   &conto.Fornitore,
                            &conto.DDT_CV, &conto.SpeAnt, &conto.Prov};
  return *colonne[campo];
}

bool Uno_Scelto(const Zgemmit& zgemmit) {
  return zgemmit.ListaCV.scelta >= 0 && zgemmit.ListaCV.scelta < static_cast<int>(zgemmit.Tabella_CV.size());
}

Conto_CV& Conto_Scelto(Zgemmit& zgemmit) {
  return zgemmit.Tabella_CV[static_cast<std::size_t>(zgemmit.ListaCV.scelta)];
}

// The fields as they would be stored.
Conto_CV Conto_Scritto(const Zgemmit& zgemmit) {
  Conto_CV conto;
  for (std::size_t i = 0; i < campi_conto; ++i)
    Colonna(conto, i) = Senza_Separatori(Pulito(zgemmit.Text1[i].testo));
  return conto;
}

bool Dati_Cambiati(Zgemmit& zgemmit) {
  Conto_CV scritto = Conto_Scritto(zgemmit);
  for (std::size_t i = 0; i < campi_conto; ++i)
    if (!Uguali(Colonna(scritto, i), Pulito(Colonna(Conto_Scelto(zgemmit), i)))) return true;
  return false;
}

Testo Avviso_Conto(const Programma& programma, const Conto_CV& conto) {
  const auto nomi = FornitoriConto(programma.Vet_Tabella, conto.NCV);
  if (nomi.size() < 2) return {};
  Testo avviso = "Il conto " + conto.NCV + " ha righe di più fornitori: "_t;
  for (std::size_t i = 0; i < nomi.size(); ++i) avviso.append(i == 0 ? "" : ", ").append(nomi[i]);
  return avviso;
}

void Mostra_Conto(const Programma& programma, Zgemmit& zgemmit) {
  Conto_CV conto = Uno_Scelto(zgemmit) ? Conto_Scelto(zgemmit) : Conto_CV();
  for (std::size_t i = 0; i < campi_conto; ++i) zgemmit.Text1[i].testo = Colonna(conto, i);
  zgemmit.Avviso.testo = Uno_Scelto(zgemmit) ? Avviso_Conto(programma, conto) : Testo();
}

void Riempi_Lista(const Programma& programma, Zgemmit& zgemmit, int scelta) {
  zgemmit.ListaCV.Riempi(RigheListaCV(zgemmit.Tabella_CV, programma.Separatore_Decimale));
  zgemmit.ListaCV.scelta = std::min(scelta, static_cast<int>(zgemmit.Tabella_CV.size()) - 1);
  Mostra_Conto(programma, zgemmit);
}

Testo Titolo_Apertura(const Programma& programma) {
  return "Conti Vendita del " + programma.Data_Giorno + " Ultimo ncv=" + std::to_string(programma.Ultimo_CV) +
         Testo(fine_titolo);
}

void Prepara_Controlli(const Programma& programma, Zgemmit& zgemmit) {
  const Testo didascalie[] = {
      "NCV",           "data CV", "Fornitore", "Riferimento DDT (num + data)", "Spese anticipate in Euro",
      "Provvigione %", "Luogo"};
  for (std::size_t i = 0; i < std::size(didascalie); ++i) zgemmit.Caption[i].testo = didascalie[i];
  zgemmit.Text1[Campo_Citta].testo = programma.preferenze.CittaCV;
  zgemmit.Titolo_Lista.testo = TitoloListaCV();
  zgemmit.Combo1.Riempi(Voci_Copie());
  zgemmit.Combo1.scelta = 0;
  zgemmit.Check1.didascalia = "Stampa Tutti i CV F4";
  zgemmit.Check2.didascalia = "Stampa Statistica";
  zgemmit.Check1.segnata = programma.preferenze.FlagC1;
  zgemmit.Check2.segnata = programma.preferenze.FlagC2;
  zgemmit.Anteprima.visibile = false;
  zgemmit.Command1.testo = "Anteprima F6";
  zgemmit.Command2.testo = "Stampa CV F2";
  zgemmit.Command3.testo = "Modifica Dati F5";
  zgemmit.Command4.testo = ">>";
  zgemmit.Command4.suggerimento = "Lista dei fornitori";
  zgemmit.Scelta_Stampante.testo = "Stampante";
  zgemmit.Aiuto.testo = "Help";
  zgemmit.Chiudi.testo = "&Chiudi";
}

// ---- one account

void Progresso(const Programma& programma, Zgemmit& zgemmit, Vista testo) {
  zgemmit.titolo = testo;
  programma.piattaforma.Ridipingi();
}

// Everything that preview, paper and file show of it; nothing for a supplier who isn't in the list (told).
std::optional<Documento_CV> Elabora(const Programma& programma, Zgemmit& zgemmit, const Conto_CV& conto) {
  const auto fornitore = CercaFornitoreCV(programma, conto.Fornitore);
  if (!fornitore) {
    programma.piattaforma.Messaggio(conto.Fornitore + "\ncodice non trovato tra i fornitori ... !");
    return std::nullopt;
  }
  const char separatore = programma.Separatore_Decimale;
  Documento_CV documento = DocumentoCV(programma, RegoleManuali(programma.preferenze));
  documento.conto = conto;
  documento.fornitore = *fornitore;
  documento.citta = zgemmit.Text1[Campo_Citta].testo;
  documento.diciture = DicitureManuali();
  Progresso(programma, zgemmit, "Calcoli per ContoVendita ...");
  const auto righe = RigheContoManuale(programma.Vet_Tabella, conto.NCV, separatore);
  Progresso(programma, zgemmit, "Calcolo Importi ...");
  documento.importi = ImportiManuali(righe, programma.preferenze, conto.SpeAnt, conto.Prov, separatore);
  return documento;
}

// False where the account is left out, which has been told.
bool Elabora_E_Stampa(const Programma& programma, Zgemmit& zgemmit, std::size_t quale) {
  const auto documento = Elabora(programma, zgemmit, zgemmit.Tabella_CV[quale]);
  if (!documento) return false;
  zgemmit.titolo = in_corso;
  const Scelta_Tracciato scelta = TracciatoManuale(programma.preferenze.FlagStampaFrame);
  const int copie = std::max(1, zgemmit.Combo1.scelta + 1);
  for (int copia = 0; copia < copie; ++copia)
    StampaConto(programma, *documento, scelta,
                [&](const Testo& pagina) { Progresso(programma, zgemmit, pagina); });
  ScriviConto(programma, *documento, Forma_Importi::Piana, zgemmit.file_falliti);
  return true;
}

void Nascondi_Anteprima(const Programma& programma, Zgemmit& zgemmit) {
  zgemmit.Anteprima.visibile = false;
  zgemmit.titolo = Titolo_Apertura(programma);
  zgemmit.fuoco = Zgemmit::fuoco_Lista;
  AggiornaComandi(programma, zgemmit);
}

// Nobody is left out, whatever the question says.
void Stampa_Tutti(const Programma& programma, Zgemmit& zgemmit, Corsa& corsa) {
  if (zgemmit.Tabella_CV.empty() ||
      !programma.piattaforma.Domanda(
          "OK per stampare tutti i Conti Vendita\n(salta quelli con provvigione=0)"))
    return;
  if (zgemmit.Anteprima.visibile) Nascondi_Anteprima(programma, zgemmit);
  for (std::size_t i = 0; i < zgemmit.Tabella_CV.size() && corsa.Avanti(); ++i) {
    zgemmit.ListaCV.scelta = static_cast<int>(i);
    Mostra_Conto(programma, zgemmit);
    if (Elabora_E_Stampa(programma, zgemmit, i)) corsa.Fatta();
  }
}

// Of a stopped run the last number goes to the highest on paper, and never down: no number on paper may be
// given again.
void Alza_Ultimo_CV(Programma& programma, const Zgemmit& zgemmit) {
  int massimo = programma.Ultimo_CV;
  for (int i = 0; i <= zgemmit.ListaCV.scelta; ++i) {
    const Testo& ncv = zgemmit.Tabella_CV[static_cast<std::size_t>(i)].NCV;
    if (Numerato(ncv, programma.Separatore_Decimale))
      massimo = std::max(massimo, NumeroCV(ncv, programma.Separatore_Decimale));
  }
  if (massimo != programma.Ultimo_CV) MettiUltimoCV(programma, massimo);
}

// ---- changes

// The account's values on the rows of its number. A credit keeps the reference of what it gives back.
void Scrivi_Conto(Tabella& tabella, Vista chiave, const Conto_CV& conto, bool con_fornitore) {
  for (LedgerRow& riga : tabella.righe) {
    if (riga[CampoRiga::Fornitore] == Riga_Vuota || ChiaveNCV(riga[CampoRiga::NCV]) != chiave) continue;
    riga[CampoRiga::NCV] = conto.NCV;
    riga[CampoRiga::DataCV] = conto.Data;
    if (!Inizia(Pulito(riga[CampoRiga::Prezzo]), "-")) riga[CampoRiga::DDT_CV] = conto.DDT_CV;
    riga[CampoRiga::SAnt] = conto.SpeAnt;
    riga[CampoRiga::Provvigione] = conto.Prov;
    if (con_fornitore) riga[CampoRiga::Fornitore] = conto.Fornitore;
  }
}

bool Conferma_Fornitore(const Programma& programma, const Conto_CV& prima, const Conto_CV& dopo) {
  return programma.piattaforma.Domanda(
      "Attenzione NCV = " + dopo.NCV + " : Il fornitore è stato cambiato da:\n"_t + prima.Fornitore +
          "\na:\n" + dopo.Fornitore + "\n...OK per aggiornare i dati al CV n. " + dopo.NCV,
      Icona::Esclamazione);
}

// The list anew from the ledger, with the account of `conto` selected, which may have gone to another line or
// into another account of its new number.
void Rifai_Lista(Programma& programma, Zgemmit& zgemmit, const Conto_CV& conto) {
  Ordina_Colonna(programma, CampoRiga::NCV);
  Tabella_Conti& conti = zgemmit.Tabella_CV;
  conti = ContiManuali(programma.Vet_Tabella, programma.Data_Giorno, programma.Separatore_Decimale);
  const Testo chiave = ChiaveNCV(conto.NCV);
  const auto dove = std::find_if(conti.begin(), conti.end(),
                                 [&](const Conto_CV& altro) { return ChiaveNCV(altro.NCV) == chiave; });
  if (dove != conti.end()) dove->DDT_CV = conto.DDT_CV;  // its last row may be a credit, which has its own
  Riempi_Lista(programma, zgemmit, static_cast<int>(dove - conti.begin()));
}

enum class Esito { Uguale, Fatta, Annullata, Fallita };

Esito Modifica(Programma& programma, Zgemmit& zgemmit) {
  if (!Dati_Cambiati(zgemmit)) return Esito::Uguale;
  if (!programma.piattaforma.Domanda("i dati sono stati cambiati... OK per continuare"))
    return Esito::Annullata;
  const Conto_CV prima = Conto_Scelto(zgemmit);
  const Conto_CV dopo = Conto_Scritto(zgemmit);
  const bool altro_fornitore =
      !Uguali(dopo.Fornitore, Pulito(prima.Fornitore)) && Conferma_Fornitore(programma, prima, dopo);
  Ricordo_CV ricordo(programma.Vet_Tabella);
  Scrivi_Conto(programma.Vet_Tabella, ChiaveNCV(prima.NCV), dopo, altro_fornitore);
  if (!SalvaConti(programma, ricordo)) return Esito::Fallita;
  Rifai_Lista(programma, zgemmit, dopo);
  return Esito::Fatta;
}

bool Scegli_Il_Primo(const Programma& programma, Zgemmit& zgemmit) {
  if (zgemmit.Tabella_CV.empty()) return false;
  if (!Uno_Scelto(zgemmit)) {
    zgemmit.ListaCV.scelta = 0;
    Mostra_Conto(programma, zgemmit);
  }
  return true;
}

Esito Stampa_Scelto(Programma& programma, Zgemmit& zgemmit) {
  if (zgemmit.Tabella_CV.empty()) return Esito::Uguale;
  if (!Uno_Scelto(zgemmit) && zgemmit.Tabella_CV.size() > 1) {
    programma.piattaforma.Messaggio("Scegliere il Conto Vendita da stampare...");
    return Esito::Annullata;
  }
  Scegli_Il_Primo(programma, zgemmit);
  if (Dati_Cambiati(zgemmit)) {
    if (!programma.piattaforma.Domanda("OK per aggiornare i dati....")) return Esito::Annullata;
    const Esito modifica = Modifica(programma, zgemmit);
    if (modifica != Esito::Fatta) return modifica;
  }
  Elabora_E_Stampa(programma, zgemmit, static_cast<std::size_t>(zgemmit.ListaCV.scelta));
  return Esito::Fatta;
}

void Muovi(const Programma& programma, Zgemmit& zgemmit, int passo) {
  const int quanti = static_cast<int>(zgemmit.Tabella_CV.size());
  if (!zgemmit.attiva || quanti == 0) return;
  // else F2 would print another account than the one in view
  if (zgemmit.Anteprima.visibile && quanti > 1) Nascondi_Anteprima(programma, zgemmit);
  const int da = Uno_Scelto(zgemmit) ? zgemmit.ListaCV.scelta : (passo > 0 ? -1 : 0);
  SceltaConto(programma, zgemmit, (da + passo + quanti) % quanti);
}

}  // namespace

void ApriContiManuali(Programma& programma, Zgemmit& zgemmit) {
  Prepara_Controlli(programma, zgemmit);
  Ordina_Colonna(programma, CampoRiga::NCV);
  zgemmit.titolo = Titolo_Apertura(programma);
  zgemmit.Tabella_CV =
      ContiManuali(programma.Vet_Tabella, programma.Data_Giorno, programma.Separatore_Decimale);
  Riempi_Lista(programma, zgemmit, 0);
  AggiornaComandi(programma, zgemmit);
}

void AggiornaComandi(const Programma& programma, Zgemmit& zgemmit) {
  const bool libera = zgemmit.attiva && !zgemmit.Anteprima.visibile;
  for (Bottone* comando : {&zgemmit.Command1, &zgemmit.Command2, &zgemmit.Command3, &zgemmit.Command4,
                           &zgemmit.Scelta_Stampante, &zgemmit.Aiuto, &zgemmit.Chiudi})
    comando->attivo = libera;
  zgemmit.Pannello.visibile = !zgemmit.Anteprima.visibile;
  TitoloStampante(Dispositivo(programma), zgemmit.Stampante);
}

void SceltaConto(const Programma& programma, Zgemmit& zgemmit, int riga) {
  if (!zgemmit.attiva || riga < 0 || riga >= static_cast<int>(zgemmit.Tabella_CV.size())) return;
  zgemmit.ListaCV.scelta = riga;
  Mostra_Conto(programma, zgemmit);
}

void ContoSuccessivo(const Programma& programma, Zgemmit& zgemmit) { Muovi(programma, zgemmit, 1); }

void ContoPrecedente(const Programma& programma, Zgemmit& zgemmit) { Muovi(programma, zgemmit, -1); }

bool TastoConti(Programma& programma, Zgemmit& zgemmit, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  switch (pressione.tasto) {
    case Tasto::Esc:
      if (zgemmit.attiva && zgemmit.Anteprima.visibile)
        Nascondi_Anteprima(programma, zgemmit);
      else
        ChiudiConti(programma, zgemmit);
      return true;
    case Tasto::F2:
      StampaCV(programma, zgemmit);
      return true;
    case Tasto::F4:
      if (zgemmit.attiva) zgemmit.Check1.segnata = !zgemmit.Check1.segnata;
      return true;
    case Tasto::F6:
      MostraAnteprima(programma, zgemmit);
      return true;
    case Tasto::F8:
      ContoPrecedente(programma, zgemmit);
      return true;
    case Tasto::F9:
      ContoSuccessivo(programma, zgemmit);
      return true;
    default:
      return false;
  }
}

bool TastoCampoConto(Zgemmit& zgemmit, int campo, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  const bool avanti = pressione.tasto == Tasto::Invio || pressione.tasto == Tasto::Giu;
  if (!avanti && pressione.tasto != Tasto::Su) return false;
  const int numero = static_cast<int>(zgemmit.Text1.size());
  zgemmit.fuoco = (campo + (avanti ? 1 : numero - 1)) % numero;
  return true;
}

// A double click in the supplier's field puts the date there: operators know it so.
void DoppioClicCampo(const Programma& programma, Zgemmit& zgemmit, int campo) {
  if (campo == Campo_DDT) zgemmit.Text1[Campo_DDT].testo += " del " + programma.Data_Giorno;
  if (campo == Campo_Fornitore) zgemmit.Text1[Campo_Fornitore].testo = programma.Data_Giorno;
}

void ScegliFornitore(Zgemmit& zgemmit, const Testo& nome) {
  if (!zgemmit.attiva) return;
  zgemmit.Text1[Campo_Fornitore].testo = nome;
  zgemmit.fuoco = Campo_Fornitore;
}

void MostraAnteprima(Programma& programma, Zgemmit& zgemmit) {
  if (!zgemmit.attiva || zgemmit.Anteprima.visibile) return;
  const auto fermo = Ferma(programma, zgemmit);
  if (zgemmit.Tabella_CV.empty()) return programma.piattaforma.Messaggio("nulla da fare...");
  if (!Uno_Scelto(zgemmit)) {
    Scegli_Il_Primo(programma, zgemmit);
    return programma.piattaforma.Messaggio("ripetere il comando...");
  }
  const auto documento = Elabora(programma, zgemmit, Conto_Scelto(zgemmit));
  zgemmit.titolo = Titolo_Apertura(programma);
  if (!documento) return;
  zgemmit.titolo = Testo(Didascalia_Anteprima) + Testo(fine_titolo);
  zgemmit.Anteprima.Riempi(
      RigheAnteprima(*documento, TitoloAnteprimaManuale(), programma.Separatore_Decimale));
  zgemmit.Anteprima.scelta = -1;
  zgemmit.Anteprima.visibile = true;
}

void StampaCV(Programma& programma, Zgemmit& zgemmit) {
  if (!zgemmit.attiva) return;
  const auto fermo = Ferma(programma, zgemmit);
  zgemmit.file_falliti.clear();
  Esito esito = Esito::Fatta;
  Corsa corsa(programma.piattaforma, zgemmit.Tabella_CV.size());
  if (zgemmit.Check1.segnata)
    Stampa_Tutti(programma, zgemmit, corsa);
  else
    esito = Stampa_Scelto(programma, zgemmit);
  zgemmit.titolo = "Conti Vendita" + Testo(fine_titolo);
  DiFileFalliti(programma, zgemmit.file_falliti);
  if (esito == Esito::Fallita) return;  // told
  if (corsa.Fermata()) {
    Alza_Ultimo_CV(programma, zgemmit);
    return programma.piattaforma.Messaggio(
        corsa.Testo_Fermata({"Stampa interrotta", "conto vendita", "conti vendita"}), Icona::Informazione);
  }
  if (!zgemmit.Tabella_CV.empty())
    MettiUltimoCV(programma, NumeroCV(zgemmit.Tabella_CV.back().NCV, programma.Separatore_Decimale));
  programma.piattaforma.Messaggio("fatto...");
}

void ModificaDati(Programma& programma, Zgemmit& zgemmit) {
  if (!zgemmit.attiva || zgemmit.Anteprima.visibile) return;
  const auto fermo = Ferma(programma, zgemmit);
  if (Scegli_Il_Primo(programma, zgemmit)) Modifica(programma, zgemmit);
}

void MostraAiutoConti(Programma& programma, Zgemmit& zgemmit) {
  if (!zgemmit.attiva) return;
  const auto fermo = Ferma(programma, zgemmit);
  Testo testo;
  for (const Vista riga : aiuto) testo.append(testo.empty() ? "" : "\n").append(riga);
  programma.piattaforma.Messaggio(testo, Icona::Informazione);
}

void ChiudiConti(Programma& programma, Zgemmit& zgemmit) {
  if (!zgemmit.attiva) return;
  Preferenze& preferenze = programma.preferenze;
  preferenze.FlagC1 = zgemmit.Check1.segnata;
  preferenze.FlagC2 = zgemmit.Check2.segnata;
  if (const Testo citta = Senza_Separatori(Pulito(zgemmit.Text1[Campo_Citta].testo)); !citta.empty())
    preferenze.CittaCV = citta;
  // a settings file that can't be written costs the operator ticks and town, not the closing
  Scrivi_Preferenze(programma, {"FlagC1", "FlagC2", "CittaVC"});
  zgemmit.chiusa = true;
}
