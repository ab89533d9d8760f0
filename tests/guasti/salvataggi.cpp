#include "tests/guasti/salvataggi.h"

#include "accounts/file_conto.h"
#include "accounts/gemmit.h"
#include "accounts/zvendita.h"
#include "core/posti_finestre.h"
#include "core/schermo_colori.h"
#include "core/schermo_preferenze.h"
#include "documents/zsani.h"
#include "entry/comandi_file.h"
#include "entry/elenco_macro.h"
#include "entry/lotti.h"
#include "invoices/diciture.h"
#include "invoices/rapporto.h"
#include "invoices/zfatture.h"
#include "lists/anagrafica_clienti.h"
#include "lists/anagrafica_codificate.h"
#include "lists/anagrafica_fornitori.h"
#include "lists/anagrafica_specie.h"
#include "lists/anagrafica_vettori.h"
#include "lists/anagrafica_zone.h"
#include "lists/ordina.h"
#include "lists/schermo_esclusi.h"
#include "primanota/esporta.h"
#include "printing/nomi_stampe.h"
#include "start/avvio.h"
#include "start/copia_giorno.h"
#include "start/ditte.h"
#include "start/strumenti.h"
#include "stats/rxcli.h"
#include "stats/rxfor.h"
#include "stats/salva_elenco.h"
#include "stats/statistica.h"
#include "transfers/volumi.h"

namespace {

using Esecuzione = std::function<bool()>;

// Nothing was told.
template <class Lavoro>
bool Senza_Messaggi(Scena& scena, const Lavoro& lavoro) {
  const std::size_t prima = scena.macchina.messaggi.size();
  lavoro();
  return scena.macchina.messaggi.size() == prima;
}

// One message more, which says that all was done. Whatever stopped it must have been told.
template <class Lavoro>
bool Con_Il_Messaggio(Scena& scena, const Testo& fine, const Lavoro& lavoro) {
  const std::size_t prima = scena.macchina.messaggi.size();
  lavoro();
  EXPECT_GT(scena.macchina.messaggi.size(), prima) << "finito senza una parola";
  return scena.macchina.messaggi.size() == prima + 1 && scena.macchina.messaggi.back() == fine;
}

// ---- the day, numbers, settings

Esecuzione Giorno(Scena& scena) {
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Tabella_Modificata = true;
  return [&scena] {
    bool errore = false;
    return Senza_Messaggi(scena, [&] { Salva_Giorno(scena.programma, errore); }) && !errore;
  };
}

Esecuzione Giorno_Nuovo(Scena& scena) {
  std::filesystem::remove(scena.programma.File_Giorno);
  return Giorno(scena);
}

Esecuzione Numeri(Scena& scena) {
  scena.programma.Ultimo_CV = 41;
  return [&scena] { return Salva_Ultimi_Numeri(scena.programma); };
}

Esecuzione Copia_Di_Prova(Scena& scena) {
  scena.programma.Modo_Dat = true;
  return [&scena] { return Senza_Messaggi(scena, [&] { Scegli_File_Giorno(scena.programma); }); };
}

Esecuzione Chiave(Scena& scena) {
  return [&scena] { return Scrivi_Chiave(scena.programma, "fonte", "Mia"); };
}

Esecuzione Tutte_Le_Impostazioni(Scena& scena) {
  scena.programma.preferenze.maxrighesalvate = 9;
  return [&scena] { return Scrivi_Preferenze(scena.programma); };
}

Esecuzione Schermo_Preferenze(Scena& scena) {
  auto schermo = std::make_shared<SchermoPreferenze>();
  Apri_Preferenze(scena.programma, *schermo, {"Arial"});
  schermo->campi.find("DASU3")->second.testo = "5";
  return [&scena, schermo] { return Applica_Preferenze(scena.programma, *schermo); };
}

Esecuzione Colori(Scena& scena) {
  auto schermo = std::make_shared<SchermoColori>();
  Apri_Colori(scena.programma, *schermo);
  schermo->Colore1.valore = 9;
  return [&scena, schermo] { return Applica_Colori(scena.programma, *schermo); };
}

Esecuzione Diciture(Scena& scena) {
  auto schermo = std::make_shared<Personalizza_Fattura>();
  Apri_Personalizza(scena.programma, *schermo);
  schermo->serie.front().campi.front().testo = "altra";
  return [&scena, schermo] { return Applica_Personalizza(scena.programma, *schermo); };
}

Esecuzione Posto_Finestra_Nuovo(Scena& scena) {
  scena.cartella.Metti("_Finestre.txt", "Edita\t1\t2\t3\t4\t0\r\n");
  return [&scena] {
    Posti_Finestre posti(scena.programma.disco, scena.programma.Cartella_Dati);
    return posti.Ricorda("Zsani", {10, 20, 800, 600, false}) == 0;
  };
}

Esecuzione Convertiti_I_Vecchi(Scena& scena) {
  std::filesystem::rename(scena.cartella / "_2020_RAGIONE.txt", scena.cartella / "RAGIONE.txt");
  return [&scena] {
    const std::size_t prima = scena.macchina.messaggi.size();
    Converti_File(scena.programma, "RAGIONE.txt", "_2020_RAGIONE.txt");
    const auto& detti = scena.macchina.messaggi;
    const bool gia_fatto = detti.size() == prima;
    return gia_fatto || Inizia(detti.back(), "Generato il file");
  };
}

Esecuzione Programma_Dei_Dati(Scena& scena) {
  scena.cartella.Metti("ConvertiDati.exe", "programma");
  return [&scena] { return Senza_Messaggi(scena, [&] { ConvertiDati(scena.programma); }); };
}

// ---- lists

template <bool (*salva)(Programma&), auto tabella>
Esecuzione Lista(Scena& scena) {
  std::swap((scena.programma.*tabella).front(), (scena.programma.*tabella).back());
  (scena.programma.*tabella).push_back((scena.programma.*tabella).front());
  return [&scena] { return salva(scena.programma); };
}

// A list's window with the row in work.
template <class Passo>
Esecuzione Anagrafica_Con(Scena& scena, const Anagrafica& anagrafica, const Passo& passo) {
  auto schermo = std::make_shared<SchermoAnagrafica>();
  Apri_Anagrafica(scena.programma, *schermo, anagrafica);
  Apri_Modulo(scena.programma, *schermo);
  return [&scena, schermo, passo] { return passo(scena, *schermo); };
}

bool Tolta(Scena& scena, SchermoAnagrafica& schermo) { return Elimina_Voce(scena.programma, schermo); }

bool Aggiunta_Uguale(Scena& scena, SchermoAnagrafica& schermo) {
  return Aggiungi_Voce(scena.programma, schermo);
}

bool Cambiata(Scena& scena, SchermoAnagrafica& schermo) {
  schermo.Text1[1].testo = "Altro nome";
  return Modifica_Voce(scena.programma, schermo);
}

template <const Anagrafica& (*lista)(), bool (*passo)(Scena&, SchermoAnagrafica&)>
Esecuzione Voce(Scena& scena) {
  return Anagrafica_Con(scena, lista(), passo);
}

const Anagrafica& Anagrafica_Metodi() { return Anagrafica_Codificata(1); }

Esecuzione Ordine_Clienti(Scena& scena) {
  auto schermo = std::make_shared<SchermoAnagrafica>();
  std::swap(scena.programma.Vet_Clienti[0], scena.programma.Vet_Clienti[1]);
  Salva_Clienti(scena.programma);
  Apri_Anagrafica(scena.programma, *schermo, Anagrafica_Clienti());
  return [&scena, schermo] {
    return Senza_Messaggi(scena, [&] { Ordina_Anagrafica(scena.programma, *schermo, 0); });
  };
}

Esecuzione Esclusi(Scena& scena) {
  auto schermo = std::make_shared<SchermoEsclusi>();
  Prepara_Esclusi(scena.programma, *schermo);
  Escludi_Codice(scena.programma, *schermo, "7");
  return [&scena, schermo] { return Salva_Elenco_Esclusi(scena.programma, *schermo); };
}

Esecuzione Specie_Esportate(Scena& scena) {
  return [&scena] { return Esporta_Specie(scena.programma); };
}

Esecuzione Liste_Generate(Scena& scena) {
  for (const auto nome : {nomi_file::Metodi, nomi_file::Zone})
    std::filesystem::remove(scena.cartella.percorso / Testo(nome));
  return [&scena] { return !Con_Errori(Genera_Liste(scena.programma)); };
}

// ---- entry

std::shared_ptr<Edita> Apri(Scena& scena) {
  auto edita = std::make_shared<Edita>();
  Apri_Edita(scena.programma, *edita);
  return edita;
}

Esecuzione Comando_Salva(Scena& scena) {
  auto edita = Apri(scena);
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Tabella_Modificata = true;
  return [&scena, edita] { return SalvaConDomanda(scena.programma, *edita) == EsitoSalvataggio::Salvato; };
}

Esecuzione Chiusura(Scena& scena) {
  auto edita = Apri(scena);
  scena.programma.Edita_Aperta = true;
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Tabella_Modificata = true;
  return [&scena, edita] {
    Chiudi_Edita(scena.programma, *edita);
    return !scena.programma.Edita_Aperta;
  };
}

Esecuzione Liste_Rinnovate(Scena& scena) {
  auto edita = Apri(scena);
  scena.programma.Edita_Aperta = true;
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Tabella_Modificata = true;
  return [&scena, edita] {
    scena.macchina.terminata = false;
    return Con_Il_Messaggio(scena, "Il programma deve essere chiuso e riavviato...",
                            [&] { RinnovaListe(scena.programma, *edita); }) &&
           scena.macchina.terminata;
  };
}

Esecuzione Macro_Memorizzata(Scena& scena) {
  auto edita = Apri(scena);
  scena.cartella.Metti("PREDEF_FOR/07.txt", "vecchia\r\n");
  Campo(*edita, CampoRiga::Fornitore).testo = "Mare Blu";
  return
      [&scena, edita] { return Senza_Messaggi(scena, [&] { MemorizzaFornitore(scena.programma, *edita); }); };
}

std::shared_ptr<Elenco_Macro> Macro_In_Elenco(Scena& scena) {
  scena.cartella.Metti("PREDEF/08.txt", "Orata\r\n");
  auto elenco = std::make_shared<Elenco_Macro>();
  Apri_ElencoMacro(scena.programma, *elenco, Tipo_Macro::Specie, false);
  elenco->List1.scelta = 0;
  return elenco;
}

Esecuzione Macro_Tolta(Scena& scena) {
  auto elenco = Macro_In_Elenco(scena);
  return [&scena, elenco] { return Senza_Messaggi(scena, [&] { EliminaMacro(scena.programma, *elenco); }); };
}

Esecuzione Macro_Rinominata(Scena& scena) {
  auto elenco = Macro_In_Elenco(scena);
  scena.macchina.risposta = "09";
  return [&scena, elenco] { return Senza_Messaggi(scena, [&] { RinominaMacro(scena.programma, *elenco); }); };
}

Esecuzione Lotti(Scena& scena) {
  auto lista = std::make_shared<Lotti_Predefiniti>();
  Apri_LottiPredefiniti(scena.programma, *lista);
  lista->Text1.testo = "L3";
  AggiungiLotto(*lista);
  return [&scena, lista] { return Senza_Messaggi(scena, [&] { SalvaLotti(scena.programma, *lista); }); };
}

Esecuzione Campi(Scena& scena) {
  return [&scena] { return Senza_Messaggi(scena, [&] { ListaCampi(scena.programma); }); };
}

// ---- documents, accounts, invoices

Esecuzione Documenti_Numerati(Scena& scena) {
  auto zsani = std::make_shared<Zsani>();
  ApriDocumenti(scena.programma, *zsani);
  NumeraAutomatica(scena.programma, *zsani);
  return [&scena, zsani] {
    zsani->chiusa = false;
    return Senza_Messaggi(scena, [&] { ChiudiDocumenti(scena.programma, *zsani); });
  };
}

Esecuzione Conti_Numerati(Scena& scena) {
  auto zvendita = std::make_shared<Zvendita>();
  ApriConti(scena.programma, *zvendita);
  zvendita->Tabella_CV.front().NCV = "77";
  return [&scena, zvendita] {
    SalvaNumerazione(scena.programma, *zvendita);
    return !scena.macchina.messaggi.empty() && scena.macchina.messaggi.back() == "fatto...";
  };
}

Esecuzione Conto(Scena& scena) {
  scena.cartella.Metti("2025/CV_SI/03140007.txt", "vecchio\r\n");
  return [&scena] {
    return ScriviFileConto(scena.programma.disco, scena.programma.Cartella_Anno, "03140007.txt",
                           "nuovo\r\n") == 0;
  };
}

// The day's rows with an account's number keyed by hand.
std::shared_ptr<Zgemmit> Conti_A_Mano(Scena& scena) {
  for (LedgerRow& riga : scena.programma.Vet_Tabella.righe) {
    riga[CampoRiga::NCV] = riga[CampoRiga::Fornitore] == "Mare Blu" ? "12" : "11";
    riga[CampoRiga::DataCV] = "14/03/2025";
  }
  bool errore = false;
  Salva_Giorno(scena.programma, errore);
  auto zgemmit = std::make_shared<Zgemmit>();
  ApriContiManuali(scena.programma, *zgemmit);
  return zgemmit;
}

Esecuzione Conto_A_Mano_Cambiato(Scena& scena) {
  auto zgemmit = Conti_A_Mano(scena);
  return [&scena, zgemmit] {
    zgemmit->Text1[Campo_Spese].testo = "5";
    return Senza_Messaggi(scena, [&] { ModificaDati(scena.programma, *zgemmit); });
  };
}

Esecuzione Conti_A_Mano_Stampati(Scena& scena) {
  auto zgemmit = Conti_A_Mano(scena);
  zgemmit->Check1.segnata = true;
  return [&scena, zgemmit] {
    return Con_Il_Messaggio(scena, "fatto...", [&] { StampaCV(scena.programma, *zgemmit); });
  };
}

Esecuzione Conti_Stampati(Scena& scena) {
  auto zvendita = std::make_shared<Zvendita>();
  ApriConti(scena.programma, *zvendita);
  SalvaNumerazione(scena.programma, *zvendita);
  scena.programma.preferenze.PercentualeAggioBanca =
      "0";  // as the screen shows it, which each print takes over
  zvendita->Check1.segnata = true;
  return [&scena, zvendita] {
    return Con_Il_Messaggio(scena, "fatto...", [&] { StampaCV(scena.programma, *zvendita); });
  };
}

// The screen of the invoices, all numbered.
std::shared_ptr<ZFatture> Fatture_Numerate(Scena& scena, const Variante_Fatture& variante) {
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Vet_Tabella.righe.back()[CampoRiga::Prezzo] = "-2,00";
  auto zfatture = std::make_shared<ZFatture>();
  zfatture->variante = &variante;
  ApriFatture(scena.programma, *zfatture);
  NumeraTutto(scena.programma, *zfatture);
  zfatture->Tutte.segnata = true;
  zfatture->Stampale.segnata = false;
  return zfatture;
}

Esecuzione Corsa_Di(Scena& scena, const Variante_Fatture& variante) {
  auto zfatture = Fatture_Numerate(scena, variante);
  return [&scena, zfatture] {
    return Con_Il_Messaggio(scena, "quanto richiesto è stato fatto...."_t,
                            [&] { StampaFatNa(scena.programma, *zfatture); });
  };
}

Esecuzione Fatture_Stampate(Scena& scena) { return Corsa_Di(scena, Fatture_Senza_Vettore); }

Esecuzione Fatture_Del_Vettore(Scena& scena) {
  scena.programma.preferenze.Flag_Lear = true;
  return Corsa_Di(scena, Fatture_Con_Vettore);
}

Esecuzione Fattura_Sola(Scena& scena) {
  auto zfatture = Fatture_Numerate(scena, Fatture_Senza_Vettore);
  return [&scena, zfatture] {
    zfatture->Stampale.segnata = true;
    return Con_Il_Messaggio(scena, "Pronto per nuova operazione....",
                            [&] { DoppioClic(scena.programma, *zfatture, TipoFattura::Fattura, 0); });
  };
}

Esecuzione Fatture_Chiuse(Scena& scena) {
  auto zfatture = Fatture_Numerate(scena, Fatture_Senza_Vettore);
  zfatture->Text2.testo = "Chioggia";
  return [&scena, zfatture] {
    zfatture->chiusa = false;
    return Con_Il_Messaggio(
        scena, "Per salvare i numeri di fattura \nsalvare i dati prima di chiudere il programma.",
        [&] { ChiudiFatture(scena.programma, *zfatture); });
  };
}

Esecuzione Stampa_PDF(Scena& scena) {
  scena.cartella.Metti("Stampe/20250314 Fattura 12.pdf", "consegnata");
  auto nomi = std::make_shared<Nomi_Stampe>();
  return [&scena, nomi] {
    Percorso file;
    return nomi->Scrivi(scena.programma.disco, scena.cartella / "Stampe", {"20250314", "Fattura", "12", ""},
                        "%PDF", file) == 0;
  };
}

Esecuzione Fatture_Annullate(Scena& scena) {
  for (LedgerRow& riga : scena.programma.Vet_Tabella.righe) riga[CampoRiga::FAT] = "00012";
  scena.programma.Vet_Tabella.righe.push_back(Scena::Riga(4));
  scena.programma.Vet_Tabella.righe.back()[CampoRiga::Prezzo] = "-2,00";
  scena.programma.Vet_Tabella.righe.back()[CampoRiga::FAT] = "NA005";
  bool errore = false;
  Salva_Giorno(scena.programma, errore);
  auto zfatture = std::make_shared<ZFatture>();
  ApriFatture(scena.programma, *zfatture);
  return [&scena, zfatture] {
    return Senza_Messaggi(scena, [&] { AnnullaNumerazione(scena.programma, *zfatture); });
  };
}

constexpr const char* giorno_fatture = "2025_fat/20250314/";

Esecuzione File_Delle_Fatture(Scena& scena) {
  const std::string cartella = giorno_fatture;
  scena.cartella.Metti(cartella + "00101_FAT_00001_20250314_00042_100_11.txt", "vecchia uno\r\n");
  scena.cartella.Metti(cartella + "00102_FAT_00002_20250314_00042_200_11.txt", "vecchia due\r\n");
  return [&scena] {
    const Percorso dove = CartellaGiornoFatture(scena.programma);
    return SostituisciDocumenti(scena.programma.disco, dove,
                                {{"00101_FAT_00001_20250314_00042_100_11.txt", "nuova uno\r\n"},
                                 {"00103_FAT_00003_20250314_00042_300_11.txt", "nuova tre\r\n"}})
               .errore == 0;
  };
}

Esecuzione Rapporto_Fatture(Scena& scena) {
  return [&scena] { return ScriviReport(scena.programma, TipoFattura::Fattura).errore == 0; };
}

Esecuzione Rapporto_Note(Scena& scena) {
  ScriviReport(scena.programma, TipoFattura::Fattura);
  return [&scena] { return ScriviReport(scena.programma, TipoFattura::Nota).errore == 0; };
}

// ---- the market's file, sticks, statistics, start

Esecuzione Prima_Nota(Scena& scena) {
  return [&scena] { return EsportaPrimaNota(scena.programma, false, {}); };
}

Esecuzione Prima_Nota_Su_Chiavetta(Scena& scena) {
  const Percorso chiavetta = scena.cartella / "chiavetta";
  std::filesystem::create_directories(chiavetta);
  scena.macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
  return [&scena, chiavetta] {
    return EsportaPrimaNota(scena.programma, false, [chiavetta](ModoCopia, const Percorso&) {
      return std::optional(DriveScelto{"E:[CHIAVETTA]", chiavetta, false});
    });
  };
}

Esecuzione Su_Chiavetta(Scena& scena) {
  const Percorso chiavetta = scena.cartella / "chiavetta";
  std::filesystem::create_directories(chiavetta);
  scena.macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
  auto inizio = std::make_shared<B_Inizio>();
  Carica_Inizio(scena.programma, *inizio);
  return [&scena, inizio, chiavetta] {
    const std::size_t aperti = scena.macchina.aperti.size();
    CopiaGiorno(scena.programma, *inizio, false, [chiavetta](ModoCopia, const Percorso&) {
      return std::optional(DriveScelto{"E:[CHIAVETTA]", chiavetta, false});
    });
    return scena.macchina.aperti.size() > aperti;  // opened when all went well
  };
}

Esecuzione Da_Chiavetta(Scena& scena) {
  const Percorso chiavetta = scena.cartella / "chiavetta";
  scena.cartella.Metti("chiavetta/2025/20250314.txt", "0001\tAltra\r\n");
  scena.macchina.volumi = {{chiavetta, "E:", "CHIAVETTA"}};
  auto inizio = std::make_shared<B_Inizio>();
  Carica_Inizio(scena.programma, *inizio);
  return [&scena, inizio, chiavetta] {
    CopiaGiorno(scena.programma, *inizio, true, [chiavetta](ModoCopia, const Percorso&) {
      return std::optional(DriveScelto{"E:[CHIAVETTA]", chiavetta, false});
    });
    return Contiene(scena.macchina.messaggi.back(), "copiato");
  };
}

Esecuzione Saldo_Salvato(Scena& scena) {
  auto schermo = std::make_shared<RXFor>();
  Apri_RXFor(scena.programma, *schermo);
  schermo->Check1.segnata = true;
  Calcola_Saldo(scena.programma, *schermo);
  return [&scena, schermo] {
    return Con_Il_Messaggio(scena, "fatto...", [&] { Salva_Saldo(scena.programma, *schermo); });
  };
}

template <class Schermo>
Esecuzione In_Un_File(Scena& scena, void (*apri)(Scena&, Schermo&), void (*salva)(Programma&, Schermo&)) {
  auto schermo = std::make_shared<Schermo>();
  schermo->scegli_file = [&scena] { return std::optional(Percorso(scena.cartella / "scelto.xls")); };
  apri(scena, *schermo);
  return [&scena, schermo, salva] {
    return Con_Il_Messaggio(scena, "fatto...", [&] { salva(scena.programma, *schermo); });
  };
}

Esecuzione Totali_Clienti(Scena& scena) {
  return In_Un_File<RXcli>(
      scena, [](Scena& dove, RXcli& schermo) { Apri_RXcli(dove.programma, schermo); }, Salva_Totali);
}

Esecuzione Elenco_Salvato(Scena& scena) {
  return [&scena] {
    const Testo righe[] = {"uno", "due"};
    return Salva_Righe(scena.programma, scena.cartella / "elenco.txt", righe);
  };
}

Esecuzione Primo_Avvio(Scena& scena) {
  return [&scena] {
    PrimoAvvio dati;
    dati.righe = {"Ditta", "", "", "", "", "", ""};
    dati.codice = "42";
    dati.posteggio = "9";
    return Scrivi_Primo_Avvio(scena.programma, dati);
  };
}

Esecuzione Programmi(Scena& scena) {
  for (const Vista nome : Programmi_Ditta) scena.cartella.Metti("da/" + Testo(nome), "programma");
  return [&scena] {
    return Metti_Programmi(scena.programma.disco, scena.cartella / "da", scena.cartella / "a") == 0;
  };
}

Esecuzione Cancellati_I_Dat(Scena& scena) {
  scena.cartella.Metti("2025/20250313.dat", "segreto\r\n");
  scena.cartella.Metti("2025/20250314.dat", "segreto\r\n");
  return [&scena] {
    Cancella_File_Dat(scena.programma, "2025");
    return scena.macchina.messaggi.back() == "Tutto OK...";
  };
}

}  // namespace

std::span<const Salvataggio> Salvataggi() {
  static const Salvataggio tutti[] = {
      {"Giorno", Giorno},
      {"GiornoNuovo", Giorno_Nuovo},
      {"UltimiNumeri", Numeri},
      {"CopiaDiProva", Copia_Di_Prova},
      {"UnaChiave", Chiave},
      {"TutteLeImpostazioni", Tutte_Le_Impostazioni},
      {"SchermoPreferenze", Schermo_Preferenze},
      {"Colori", Colori},
      {"PostoDellaFinestra", Posto_Finestra_Nuovo, true},
      {"VecchiNomi", Convertiti_I_Vecchi},
      {"ProgrammaDeiDati", Programma_Dei_Dati},
      {"Diciture", Diciture},
      {"Clienti", Lista<Salva_Clienti, &Programma::Vet_Clienti>},
      {"Fornitori", Lista<Salva_Fornitori, &Programma::Vet_Fornitori>},
      {"Specie", Lista<Salva_Specie, &Programma::Vet_Specie>},
      {"Zone", Lista<Salva_Zone, &Programma::Vet_Zone>},
      {"Vettori", Lista<Salva_Vettori, &Programma::Vet_Vettori>},
      {"Esclusi", Lista<Salva_Esclusi, &Programma::Vet_Esclusi>},
      {"ClienteAggiunto", Voce<Anagrafica_Clienti, Aggiunta_Uguale>},
      {"ClienteCambiato", Voce<Anagrafica_Clienti, Cambiata>},
      {"ClienteTolto", Voce<Anagrafica_Clienti, Tolta>},
      {"FornitoreAggiunto", Voce<Anagrafica_Fornitori, Aggiunta_Uguale>},
      {"FornitoreCambiato", Voce<Anagrafica_Fornitori, Cambiata>},
      {"SpecieTolta", Voce<Anagrafica_Specie, Tolta>},
      {"VettoreCambiato", Voce<Anagrafica_Vettori, Cambiata>},
      {"ZonaTolta", Voce<Anagrafica_Zone, Tolta>},
      {"MetodoTolto", Voce<Anagrafica_Metodi, Tolta>},
      {"ProvenienzaTolta", Voce<Anagrafica_Provenienze, Tolta>},
      {"ClientiOrdinati", Ordine_Clienti},
      {"ElencoEsclusi", Esclusi},
      {"SpecieEsportate", Specie_Esportate},
      {"ListeGenerate", Liste_Generate},
      {"ComandoSalva", Comando_Salva},
      {"Chiusura", Chiusura, true},
      {"ListeRinnovate", Liste_Rinnovate},
      {"MacroMemorizzata", Macro_Memorizzata},
      {"MacroTolta", Macro_Tolta},
      {"MacroRinominata", Macro_Rinominata},
      {"Lotti", Lotti},
      {"ListaCampi", Campi},
      {"DocumentiNumerati", Documenti_Numerati, true},
      {"ContiNumerati", Conti_Numerati},
      {"FileDelConto", Conto},
      {"ContoAManoCambiato", Conto_A_Mano_Cambiato},
      {"ContiAManoStampati", Conti_A_Mano_Stampati},
      {"ContiStampati", Conti_Stampati},
      {"FattureStampate", Fatture_Stampate, false, false, true},
      {"FattureDelVettore", Fatture_Del_Vettore, false, false, true},
      {"FatturaSola", Fattura_Sola, false, false, true},
      {"FattureChiuse", Fatture_Chiuse, false, false, true},
      {"StampaPDF", Stampa_PDF},
      {"FattureAnnullate", Fatture_Annullate},
      {"FileDelleFatture", File_Delle_Fatture},
      {"RapportoFatture", Rapporto_Fatture},
      {"RapportoNote", Rapporto_Note},
      {"PrimaNota", Prima_Nota},
      {"PrimaNotaSuChiavetta", Prima_Nota_Su_Chiavetta},
      {"SuChiavetta", Su_Chiavetta},
      {"DaChiavetta", Da_Chiavetta},
      {"SaldoSalvato", Saldo_Salvato},
      {"TotaliClienti", Totali_Clienti},
      {"ElencoSalvato", Elenco_Salvato},
      {"PrimoAvvio", Primo_Avvio},
      {"Programmi", Programmi},
      {"DatCancellati", Cancellati_I_Dat, false, true},
  };
  return tutti;
}
