#include "accounts/zvendita.h"

#include <algorithm>
#include <utility>

#include "accounts/file_conto.h"
#include "accounts/numerazione.h"
#include "accounts/zvendita_interno.h"
#include "core/numeri.h"
#include "printing/pagina.h"

namespace {

constexpr Colore iva_azzerata{200, 200, 255}, bianco{255, 255, 255};

constexpr Vista aiuto[] = {
    "Selezionare il conto vendita (F8 e F9 per scorrere la lista), ",
    " Modificare e Accettare i Dati (F6) quindi ",
    " stampare con F2. E' possibile stampare ",
    "tutti i conti vendita con un unico comando ",
    "(prima F4 e poi F2).",
    "E' possibile cambiare anche il nome del Fornitore:",
    "Servono due operazioni:",
    "1 - attribuire il numero di contovendita (ACCETTA DATI)",
    "2 - cambiare il nome del Fornitore (e ancora ACCETTA DATI)",
    "Per cambiare nome al fornitore usare il bottone >>",
    "Il nome del fornitore viene cambiato su tutte le registrazioni con lo stesso numero di conto vendita."};

void Prepara_Didascalie(const Programma& programma, Zvendita& zvendita) {
  const bool sarvena = programma.preferenze.FlagSarvena;
  const Testo didascalie[] = {"NCV",
                              "data CV",
                              "Fornitore",
                              "Riferimento DDT (num + data)",
                              sarvena ? "Spese acc. % imponibile" : "Spese anticipate in Euro",
                              sarvena ? "Provvigione % imponibile" : "Provvigione %",
                              "Luogo",
                              "Aggio Banca %"};
  for (std::size_t i = 0; i < std::size(didascalie); ++i) zvendita.Caption[i].testo = didascalie[i];
  zvendita.Command1.testo = "Conferma dati  F6";
  zvendita.Command2.testo = "Stampa CV F2";
  zvendita.Command3.testo = "Modifica Dati F5";
  zvendita.Command4.testo = ">>";
  zvendita.Command4.suggerimento = "Lista dei fornitori";
  zvendita.Command5.testo = "Altre Opzioni....";
  zvendita.Chiudi.testo = "&Chiudi";
  zvendita.Canc_Numerazione.testo = "Canc_Numerazione";
  zvendita.Rinumera.testo = "Rinumera";
  zvendita.Salva_Numerazione.testo = "Salva_Numerazione";
  zvendita.Aiuto.testo = "Help";
}

void Prepara_Opzioni(const Preferenze& preferenze, Zvendita& zvendita) {
  struct Opzione {
    Spunta& spunta;
    Vista didascalia;
    bool segnata;
  };
  const Opzione opzioni[] = {
      {zvendita.Check1, "Stampa Tutti i CV F4", preferenze.FlagC1},
      {zvendita.Check2, "Stampa Statistica", preferenze.FlagC2},
      {zvendita.Check3, "Solo Controllo", preferenze.FlagC3},
      {zvendita.Check4, "Senza Note Acc.", false},
      {zvendita.Check5, "Kg. Totali", preferenze.FlagKT},
      {zvendita.Check6, "Azzera IVA", preferenze.FlagIVA},
      {zvendita.Check7, "Nota DDLL 331/93", preferenze.FlagNOTA},
      {zvendita.Check8, "Aggio Banca", false},
  };
  for (const auto& [spunta, didascalia, segnata] : opzioni) {
    spunta.didascalia = didascalia;
    spunta.segnata = segnata;
  }
  zvendita.Combo1.Riempi(Voci_Copie());
  zvendita.Combo1.scelta = 0;
}

// A screen on which VAT is set to zero can't be taken for another one.
void Dipingi(Zvendita& zvendita, Colore colore) {
  zvendita.Schermo.sfondo = colore;
  for (Spunta* spunta : {&zvendita.Check1, &zvendita.Check2, &zvendita.Check3, &zvendita.Check4,
                         &zvendita.Check5, &zvendita.Check6, &zvendita.Check7, &zvendita.Check8})
    spunta->sfondo = colore;
}

void Prepara_Controlli(const Programma& programma, Zvendita& zvendita) {
  Prepara_Didascalie(programma, zvendita);
  Prepara_Opzioni(programma.preferenze, zvendita);
  zvendita.Titolo_Lista.testo = TitoloListaCV();
  zvendita.Anteprima.visibile = false;
  zvendita.Text1[Campo_Spese].testo = programma.preferenze.AggioBanca;
  zvendita.Text1[Campo_Citta].testo = programma.preferenze.CittaCV;
  zvendita.Schermo.sfondo.reset();
  if (zvendita.Check6.segnata) Dipingi(zvendita, iva_azzerata);
  CambiaAggioBanca(zvendita);
}

void Muovi(Zvendita& zvendita, int passo) {
  const int numero = static_cast<int>(zvendita.Tabella_CV.size());
  if (numero == 0) return;
  const int qui = zvendita.ListaCV.scelta < 0 ? (passo > 0 ? -1 : 0) : zvendita.ListaCV.scelta;
  SceltaConto(zvendita, (qui + passo + numero) % numero);
}

void Nascondi_Anteprima(Zvendita& zvendita) {
  zvendita.Anteprima.visibile = false;
  zvendita.titolo = zvendita.titolo_normale;
  zvendita.fuoco = Zvendita::fuoco_Lista;
  AggiornaComandi(zvendita);
}

}  // namespace

bool StampantePerConti(Programma& programma) {
  Printer& printer = Dispositivo(programma);
  if (!printer.DeviceName() || printer.Orientation() == Verticale) return true;
  programma.piattaforma.Messaggio("Orientare la stampate in verticale....");
  return false;
}

void ApriConti(Programma& programma, Zvendita& zvendita) {
  const Clessidra clessidra(programma.piattaforma);
  zvendita.chiusa = false;
  zvendita.attiva = true;
  Prepara_Controlli(programma, zvendita);
  TitoloConti(programma, zvendita);
  PreparaLibro(programma);
  zvendita.Tabella_CV =
      ContiDelGiorno(programma.Vet_Tabella, CampoRiga::Fornitore, programma.Separatore_Decimale);
  zvendita.Text1[Campo_NCV].testo = std::to_string(ProssimoCV(programma));
  // on failure (told) the accounts that it didn't come to stand without a number
  if (programma.preferenze.FlagNumCVAutomatica)
    NumeraConti(programma, zvendita.Tabella_CV, [&] { TitoloConti(programma, zvendita); });
  Ordina_Tabella_CV(zvendita.Tabella_CV, programma.Separatore_Decimale);
  RiempiListaCV(programma, zvendita, 0);
}

void AggiornaComandi(Zvendita& zvendita) {
  for (Bottone* comando : {&zvendita.Command1, &zvendita.Command2, &zvendita.Command3, &zvendita.Command4,
                           &zvendita.Command5, &zvendita.Chiudi, &zvendita.Canc_Numerazione,
                           &zvendita.Rinumera, &zvendita.Salva_Numerazione, &zvendita.Aiuto})
    comando->attivo = zvendita.attiva;
  zvendita.Pannello.visibile = !zvendita.Anteprima.visibile;
  zvendita.Text1[Campo_Aggio].attivo = zvendita.Check8.segnata;
  zvendita.Stato_IVA.testo = zvendita.Check6.segnata ? "(Iva Azzerata)" : "(Calcola Iva)";
}

void SceltaConto(Zvendita& zvendita, int riga) {
  if (riga < 0 || riga >= static_cast<int>(zvendita.Tabella_CV.size())) return;
  // else F2 would print another account than the one in view
  if (zvendita.Anteprima.visibile && riga != zvendita.ListaCV.scelta) Nascondi_Anteprima(zvendita);
  zvendita.ListaCV.scelta = riga;
  const Conto_CV& conto = zvendita.Tabella_CV[static_cast<std::size_t>(riga)];
  const Testo* valori[] = {&conto.NCV,    &conto.Data,   &conto.Fornitore,
                           &conto.DDT_CV, &conto.SpeAnt, &conto.Prov};
  for (std::size_t i = 0; i < std::size(valori); ++i) zvendita.Text1[i].testo = *valori[i];
  AggiornaComandi(zvendita);
}

void ContoSuccessivo(Zvendita& zvendita) { Muovi(zvendita, 1); }

void ContoPrecedente(Zvendita& zvendita) { Muovi(zvendita, -1); }

bool TastoConti(Programma& programma, Zvendita& zvendita, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  switch (pressione.tasto) {
    case Tasto::Esc:
      if (!zvendita.attiva) return true;
      if (zvendita.Anteprima.visibile)
        Nascondi_Anteprima(zvendita);
      else
        ChiudiConti(programma, zvendita);
      return true;
    case Tasto::F2:
      StampaCV(programma, zvendita);
      return true;
    case Tasto::F4:
      if (zvendita.attiva) zvendita.Check1.segnata = !zvendita.Check1.segnata;
      return true;
    case Tasto::F6:
      ConfermaDati(programma, zvendita);
      return true;
    case Tasto::F8:
      if (zvendita.attiva) ContoPrecedente(zvendita);
      return true;
    case Tasto::F9:
      if (zvendita.attiva) ContoSuccessivo(zvendita);
      return true;
    default:
      return false;
  }
}

bool TastoCampoConto(Zvendita& zvendita, int campo, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  const bool avanti = pressione.tasto == Tasto::Invio || pressione.tasto == Tasto::Giu;
  if (!avanti && pressione.tasto != Tasto::Su) return false;
  const int numero = static_cast<int>(zvendita.Text1.size());
  int verso = campo;
  do {
    verso = (verso + (avanti ? 1 : numero - 1)) % numero;
  } while (!zvendita.Text1[static_cast<std::size_t>(verso)].attivo && verso != campo);
  zvendita.fuoco = verso;
  return true;
}

std::optional<char> CarattereCampoConto(int campo, char carattere, Vista testo, char separatore) {
  if (campo != Campo_Spese && campo != Campo_Prov) return carattere;
  if (E_Cifra(carattere)) return carattere;
  if (testo.find(separatore) == Vista::npos) return separatore;
  return std::nullopt;
}

// A double click in the supplier's field puts the date there: operators know it so.
void DoppioClicCampo(const Programma& programma, Zvendita& zvendita, int campo) {
  if (campo == Campo_DDT) zvendita.Text1[Campo_DDT].testo += " del " + programma.Data_Giorno;
  if (campo == Campo_Fornitore) zvendita.Text1[Campo_Fornitore].testo = programma.Data_Giorno;
}

void ScegliFornitore(Zvendita& zvendita, const Testo& nome) {
  if (!zvendita.attiva) return;
  zvendita.Text1[Campo_Fornitore].testo = nome;
  zvendita.fuoco = Campo_Fornitore;
}

void CambiaAzzeraIva(Zvendita& zvendita) {
  const bool azzera = zvendita.Check6.segnata;
  if (!azzera) zvendita.Check7.segnata = false;
  Dipingi(zvendita, azzera ? iva_azzerata : bianco);
  AggiornaComandi(zvendita);
}

void CambiaAggioBanca(Zvendita& zvendita) {
  zvendita.Text1[Campo_Aggio].testo = zvendita.Check8.segnata ? "1" : "0";
  AggiornaComandi(zvendita);
}

void CambiaAltreOpzioni(Zvendita& zvendita) {
  zvendita.Riquadro_Opzioni.visibile = !zvendita.Riquadro_Opzioni.visibile;
}

void MostraAiutoConti(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermo = Ferma(zvendita);
  Testo testo;
  for (const Vista riga : aiuto) testo.append(testo.empty() ? "" : "\n").append(riga);
  programma.piattaforma.Messaggio(testo, Icona::Informazione);
}

void ChiudiConti(Programma& programma, Zvendita& zvendita) {
  if (!zvendita.attiva) return;
  const auto fermo = Ferma(zvendita);
  Preferenze& preferenze = programma.preferenze;
  preferenze.FlagC1 = zvendita.Check1.segnata;
  preferenze.FlagC2 = zvendita.Check2.segnata;
  preferenze.FlagC3 = zvendita.Check3.segnata;
  preferenze.FlagKT = zvendita.Check5.segnata;
  preferenze.FlagIVA = zvendita.Check6.segnata;
  preferenze.FlagNOTA = zvendita.Check7.segnata;
  preferenze.AggioBanca = Pulito(zvendita.Text1[Campo_Spese].testo);
  PrendiCitta(programma, zvendita);
  if (!Scrivi_Preferenze(programma, {"FlagC1", "FlagC2", "FlagC3", "FlagKT", "FlagIVA", "FlagNOTA",
                                     "AggioBanca", "PercentualeAggioBanca", "CittaVC"}))
    programma.piattaforma.Messaggio("Le opzioni del Conto Vendita non sono state salvate: il file\n" +
                                    Testo_Percorso(programma.File_Ini) + "\nnon si può scrivere."_t);
  zvendita.chiusa = true;
}
