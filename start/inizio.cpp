#include "start/inizio.h"

#include <algorithm>
#include <iterator>

#include "core/giorno.h"
#include "core/impegno.h"
#include "core/numeri.h"
#include "core/profili.h"
#include "lists/liste.h"
#include "start/giorni_recenti.h"
#include "start/strumenti.h"

namespace {

constexpr Colore Grigio{128, 128, 128};
constexpr Colore Bianco{255, 255, 255};
constexpr std::size_t giorni_mostrati = 7;
// Days before the ALFA3 codes belong to the previous version of the program.
constexpr int Primo_Giorno_ALFA3 = 20200302;
constexpr Vista Versione_Precedente = "Velmara_32.exe", Generatore = "Velmara_2020_Descri.exe";

Testo Due_Cifre(int numero) { return Pad_Sinistra(std::to_string(numero), 2, '0'); }

int Numero_Data(const Data& data) { return data.anno * 10000 + data.mese * 100 + data.giorno; }

int Leggi_Intero(const Programma& programma, const CampoTesto& campo) {
  return Intero(campo.testo, programma.Separatore_Decimale);
}

Testo Giorno_Scelto(const Programma& programma, const B_Inizio& inizio) {
  return Due_Cifre(Leggi_Intero(programma, inizio.Text1));
}
Testo Mese_Scelto(const B_Inizio& inizio) { return Due_Cifre(inizio.Combo1.scelta + 1); }
Testo Anno_Scelto(const B_Inizio& inizio) { return Testo(Pulito(inizio.Text3.testo)); }

Testo Data_Scelta(const Programma& programma, const B_Inizio& inizio) {
  return Giorno_Scelto(programma, inizio) + "/" + Mese_Scelto(inizio) + "/" + Anno_Scelto(inizio);
}

// An installation in a folder DOC_SANI makes sanitary documents only, no accounts.
bool Solo_Documenti_Sanitari(const Programma& programma) {
  const Testo cartella = Testo_Percorso(programma.Cartella_Dati);
  return Contiene(cartella, "\\DOC_SANI") || Contiene(cartella, "/DOC_SANI");
}

void Sfondo_Del_Modo(const Programma& programma, B_Inizio& inizio) {
  inizio.sfondo = programma.Modo_Dat ? Grigio : Bianco;
}

void Scrivi_Testi(const Programma& programma, B_Inizio& inizio) {
  inizio.titolo = "PrimaNota " + Testo_Data(programma.Oggi, "dd/mm/yyyy") + " - " + programma.Nome_Programma +
                  " (" + Testo_Percorso(programma.Cartella_Dati) + ")";
  inizio.Prompt.testo = "Scegliere Anno, Mese e il Giorno desiderato ... ";
  inizio.Ditta.testo = "Codice :" + programma.preferenze.Codice_Commissionario +
                       " posteggio = " + programma.preferenze.Numero_Posteggio;
  inizio.RagioneSociale.testo = programma.Ragione[0];
  inizio.Moduli.testo =
      "Prima Nota, Conto Vendita, DDT, Documento di trasporto Sanitario, Privacy. \nFatturazione "
      "(opzionale) ";
  inizio.Nota.testo = " Utilizza la modalità con codici ALFA3 dal  1 marzo 2020"_t;

  const auto stampante = programma.piattaforma.Stampante_Corrente();
  const bool orizzontale = stampante && stampante->orizzontale;
  inizio.Stato.testo = Testo(orizzontale ? " - Orizzontale" : " - Verticale") + " -  Separatore decimali = " +
                       (programma.Separatore_Decimale == '.' ? "PUNTO" : "VIRGOLA");
}

void Scrivi_Didascalie(const Programma& programma, B_Inizio& inizio) {
  inizio.Command1.testo = "&Abbandona";
  inizio.Command2.testo = "&Continua ...";
  inizio.Command4.testo = "Wipe";
  inizio.Command5.testo = "Exp. Utente";
  inizio.Command6.testo = "Controllo CV";
  inizio.Command7.testo = "Copia in..";
  inizio.Command8.testo = "&Back Up";
  inizio.Command9.testo = Testo_Data(programma.Oggi, "yymmdd").substr(0, 4) + ".dat";
  inizio.Command10.testo = "Gestione Liste";
  inizio.Command11.testo = "+";
  inizio.Command12.testo = "-";
  inizio.Command14.testo = "Stampa Fatture";
  inizio.Command15.testo = "Prepara .dat";
  inizio.Command16.testo = "Servizio Stampa";

  inizio.Command4.suggerimento = "Cancellazione definitiva dei dati su disco";
  inizio.Command7.suggerimento = "Bottone Sx: copia in...Bottone Dx: copia da...";
  inizio.Command8.suggerimento = "Programma per il back up";
  inizio.Command14.suggerimento = "Statistiche per Decade";
  inizio.Command11.suggerimento = "Giorno dopo";
  inizio.Command12.suggerimento = "Giorno prima";
  inizio.Command15.suggerimento = "Prepara il file .dat";
  inizio.Command16.suggerimento = "Copia fatture e documenti nella chiavetta per servizio esterno di stampa";
}

// The one place that says which commands can be given. The two tools of the invoices are off for good. Where
// only sanitary documents are made there are no accounts to control and no invoices to convert.
void Regola_Comandi(const Programma& programma, B_Inizio& inizio) {
  constexpr Profilo con_dat[] = {Profilo::Zenival, Profilo::Marvesi, Profilo::Sarvena, Profilo::Dolvena};
  const Profilo profilo = Profilo_Ditta(programma.preferenze.Codice_Commissionario);
  const bool conti = !Solo_Documenti_Sanitari(programma);
  inizio.Command6.attivo = conti;
  inizio.Command9.attivo = conti && std::ranges::find(con_dat, profilo) != std::end(con_dat);
  inizio.Command15.attivo = inizio.Command16.attivo = false;
  inizio.Command6.visibile = profilo != Profilo::Lagomar;
  inizio.Command14.visibile = false;
  inizio.File1.visibile = false;
  inizio.Text2.attivo = !Solo_Documenti_Sanitari(programma);
}

// False when the year lies ahead: then this year's stands in the field, and nothing else happens.
bool Componi_Data(Programma& programma, B_Inizio& inizio) {
  if (Leggi_Intero(programma, inizio.Text3) > programma.Oggi.anno) {
    inizio.Text3.testo = std::to_string(programma.Oggi.anno);
    Cambia_Data(programma, inizio);
    return false;
  }
  const Testo giorno = Giorno_Scelto(programma, inizio), mese = Mese_Scelto(inizio);
  programma.Anno_Lavoro = Anno_Scelto(inizio);
  programma.Data_GGMMAAAA = giorno + mese + programma.Anno_Lavoro;
  programma.Data_AAAAMMGG = programma.Anno_Lavoro + mese + giorno;
  return true;
}

// A date is eight digits; a shorter year ("25", none) is a slip of the keys, not a day of the year 25.
bool Otto_Cifre(Vista data) { return Tutte_Cifre(data, 8); }

bool Della_Versione_Precedente(const Programma& programma) {
  return Numero_Data(programma.piattaforma.Oggi()) >= Primo_Giorno_ALFA3 &&
         Otto_Cifre(programma.Data_AAAAMMGG) &&
         Intero(programma.Data_AAAAMMGG, programma.Separatore_Decimale) < Primo_Giorno_ALFA3;
}

void Passa_Alla_Versione_Precedente(Programma& programma) {
  const auto precedente = Trova_Programma(programma, Versione_Precedente);
  if (precedente && programma.piattaforma.Avvia_Programma(*precedente)) {
    programma.piattaforma.Termina();
    return;
  }
  programma.piattaforma.Messaggio(
      "I giorni prima del 2 marzo 2020 si aprono con la versione precedente del programma:\n" +
      Testo_Percorso(Unisci_Percorso(programma.Cartella_Dati, Versione_Precedente)) + "\nnon trovato...");
}

bool Nel_Futuro(Programma& programma) {
  const Data oggi = programma.piattaforma.Oggi();
  if (Numero_Data(oggi) >= Intero(programma.Data_AAAAMMGG, programma.Separatore_Decimale)) return false;
  programma.piattaforma.Messaggio("Secondo questo PC oggi è "_t + Testo_Data(oggi, "dd/mm/yyyy"));
  programma.piattaforma.Messaggio("Non si possono inserire dati per il futuro");
  return true;
}

bool Data_Sbagliata(Programma& programma, B_Inizio& inizio) {
  programma.Data_Giorno = Data_Scelta(programma, inizio);
  if (Otto_Cifre(programma.Data_AAAAMMGG) && E_Data(programma.Data_Giorno)) return false;
  inizio.Text1.testo = Due_Cifre(programma.piattaforma.Oggi().giorno);
  Cambia_Data(programma, inizio);
  programma.piattaforma.Messaggio(programma.Data_Giorno + "\nimmettere una data valida...");
  return true;
}

std::array<std::int32_t, 4> Numeri(const Programma& programma) {
  return {programma.Ultimo_CV, programma.Ultima_NA, programma.Ultima_Fattura, programma.Ultimo_DDT};
}

// Numbers corrected by hand take effect here. A file that can't be written is told, the day opens
// all the same, and the next opening writes them.
void Prendi_Numeri(Programma& programma, const B_Inizio& inizio) {
  const int conto = Leggi_Intero(programma, inizio.Text2), nota = Leggi_Intero(programma, inizio.Text4);
  const int fattura = Leggi_Intero(programma, inizio.Text5), ddt = Leggi_Intero(programma, inizio.Text6);
  if (!programma.Numeri_Da_Salvare && conto == programma.Ultimo_CV && nota == programma.Ultima_NA &&
      fattura == programma.Ultima_Fattura && ddt == programma.Ultimo_DDT)
    return;
  programma.Ultimo_CV = conto;
  programma.Ultima_NA = nota;
  programma.Ultima_Fattura = fattura;
  programma.Ultimo_DDT = ddt;
  Salva_Ultimi_Numeri(programma);
}

bool Apri(Programma& programma, B_Inizio& inizio) {
  if (!Componi_Data(programma, inizio)) return false;
  if (Della_Versione_Precedente(programma)) {
    Passa_Alla_Versione_Precedente(programma);
    return false;
  }
  Leggi_Liste(programma);
  // The screen was repainted between the lists: what it shows now counts.
  if (!Componi_Data(programma, inizio)) return false;
  if (Nel_Futuro(programma) || Data_Sbagliata(programma, inizio)) return false;

  programma.Cartella_Anno = Unisci_Percorso(programma.Cartella_Dati, programma.Anno_Lavoro);
  Crea_Cartella(programma, programma.Cartella_Anno);  // a failure is told; the day then counts as absent
  Scegli_File_Giorno(programma);
  Prendi_Numeri(programma, inizio);
  if (!Carica_Giorno(programma)) return false;
  programma.Edita_Aperta = true;
  return true;
}

}  // namespace

namespace {

Percorso Cartella_Dell_Anno(const Programma& programma, const B_Inizio& inizio) {
  return Unisci_Percorso(programma.Cartella_Dati, std::to_string(Leggi_Intero(programma, inizio.Text3)));
}

void Riempi_File1(const Programma& programma, B_Inizio& inizio) {
  std::vector<Testo> nomi;
  const auto file = programma.disco.Elenca(Cartella_Dell_Anno(programma, inizio), "*.txt");
  for (const Percorso& nome : file.value_or(std::vector<Percorso>())) nomi.push_back(Testo_Percorso(nome));
  inizio.File1.Riempi(std::move(nomi));
}

const Testo& Nome_Giorno(const Data& data) {
  static const std::array<Testo, 7> giorni = {"(Domenica)"_t, "(Lunedì)"_t,  "(Martedì)"_t, "(Mercoledì)"_t,
                                              "(Giovedì)"_t,  "(Venerdì)"_t, "(Sabato)"_t};
  return giorni[static_cast<std::size_t>(Giorno_Settimana(data))];
}

void Segna_Recente(B_Inizio& inizio, const std::optional<Data>& data) {
  const auto& giorni = inizio.giorni_recenti;
  const auto trovato = data ? std::ranges::find(giorni, *data) : giorni.end();
  inizio.Recenti.scelta = trovato == giorni.end() ? -1 : static_cast<int>(trovato - giorni.begin());
}

}  // namespace

void Carica_Inizio(Programma& programma, B_Inizio& inizio) {
  inizio.Text1.testo = Due_Cifre(programma.Oggi.giorno);
  inizio.Combo1.Riempi({"Gennaio", "Febbraio", "Marzo", "Aprile", "Maggio", "Giugno", "Luglio", "Agosto",
                        "Settembre", "Ottobre", "Novembre", "Dicembre"});
  inizio.Combo1.scelta = programma.Oggi.mese - 1;
  inizio.Text3.testo = Testo_Data(programma.Oggi, "yyyymmdd").substr(0, 4);
  Scrivi_Testi(programma, inizio);
  Scrivi_Didascalie(programma, inizio);
  Regola_Comandi(programma, inizio);
  Sfondo_Del_Modo(programma, inizio);
  Cambia_Data(programma, inizio);
  inizio.Text2.testo = Trova_Ultimi_Numeri(programma, Anno_Scelto(inizio));
  inizio.Text4.testo = std::to_string(programma.Ultima_NA);
  inizio.Text5.testo = std::to_string(programma.Ultima_Fattura);
  inizio.Text6.testo = std::to_string(programma.Ultimo_DDT);
  inizio.numeri_mostrati = Numeri(programma);
  Riempi_File1(programma, inizio);
  Aggiorna_Recenti(programma, inizio);
  Leggi_Esclusi(programma);
}

void Ritorna_Inizio(Programma& programma, B_Inizio& inizio) {
  const auto adesso = Numeri(programma);
  CampoTesto* const campi[] = {&inizio.Text2, &inizio.Text4, &inizio.Text5, &inizio.Text6};
  for (std::size_t i = 0; i < adesso.size(); ++i)
    if (adesso[i] != inizio.numeri_mostrati[i]) campi[i]->testo = std::to_string(adesso[i]);
  inizio.numeri_mostrati = adesso;
  Riempi_File1(programma, inizio);
  Aggiorna_Recenti(programma, inizio);
}

void MostraFile1(Programma& programma, const B_Inizio& inizio) {
  const Testo nome = inizio.File1.Scelta();
  if (!nome.empty()) ApriFoglioDati(programma, Unisci_Percorso(Cartella_Dell_Anno(programma, inizio), nome));
}

void Cambia_Data(Programma& programma, B_Inizio& inizio) {
  const auto data = Leggi_Data(Data_Scelta(programma, inizio));
  inizio.Label13.testo = data ? Nome_Giorno(*data) : "(errore)";
  Segna_Recente(inizio, data);
}

void Metti_Giorno(Programma& programma, B_Inizio& inizio, const Data& giorno) {
  inizio.Text1.testo = Due_Cifre(giorno.giorno);
  inizio.Combo1.scelta = giorno.mese - 1;
  inizio.Text3.testo = std::to_string(giorno.anno);
  Cambia_Data(programma, inizio);
}

void Aggiorna_Recenti(Programma& programma, B_Inizio& inizio) {
  bool tutti = true;
  inizio.giorni_recenti = Giorni_Recenti(programma, giorni_mostrati, &tutti);
  std::vector<Testo> righe;
  for (const Data& giorno : inizio.giorni_recenti)
    righe.push_back(Testo_Data(giorno, "dd/mm/yyyy") + "  " + Nome_Giorno(giorno));
  if (!tutti) righe.emplace_back("(una cartella non si legge)");
  inizio.Recenti.Riempi(std::move(righe));
  Cambia_Data(programma, inizio);
}

void Scelto_Recente(Programma& programma, B_Inizio& inizio) {
  if (inizio.Recenti.scelta < 0) return;
  const auto riga = static_cast<std::size_t>(inizio.Recenti.scelta);
  if (riga >= inizio.giorni_recenti.size()) return Cambia_Data(programma, inizio);  // no day: as it was
  Metti_Giorno(programma, inizio, inizio.giorni_recenti[riga]);
}

bool Vai_Ai_Recenti(Programma& programma, B_Inizio& inizio) {
  if (inizio.giorni_recenti.empty()) return false;
  if (inizio.Recenti.scelta < 0) inizio.Recenti.scelta = 0;
  Scelto_Recente(programma, inizio);
  return true;
}

void Giorno_Su(Programma& programma, B_Inizio& inizio) {
  const int giorno = Leggi_Intero(programma, inizio.Text1);
  const int ultimo = Giorni_Del_Mese(inizio.Combo1.scelta + 1, Leggi_Intero(programma, inizio.Text3));
  if (giorno >= ultimo) return;
  inizio.Text1.testo = Due_Cifre(giorno + 1);
  Cambia_Data(programma, inizio);
}

void Giorno_Giu(Programma& programma, B_Inizio& inizio) {
  const int giorno = Leggi_Intero(programma, inizio.Text1);
  if (giorno <= 1) return;
  inizio.Text1.testo = Due_Cifre(giorno - 1);
  Cambia_Data(programma, inizio);
}

bool Apri_Giorno(Programma& programma, B_Inizio& inizio) {
  const Schermo_Fermo fermo(inizio);
  const Clessidra clessidra(programma.piattaforma);
  return Apri(programma, inizio);
}

bool TastoInizio(Programma& programma, B_Inizio& inizio, const Pressione& pressione) {
  if (!pressione.maiuscole || pressione.ctrl || pressione.alt) return false;
  if (pressione.tasto == Tasto::F1) {
    programma.Modo_Dat = !programma.Modo_Dat;
  } else if (pressione.tasto == Tasto::F2) {
    Cancella_File_Dat(programma, Anno_Scelto(inizio));
  } else {
    return false;
  }
  Sfondo_Del_Modo(programma, inizio);
  return true;
}

GiornoScelto Giorno_In_Cifre(const Programma& programma, const B_Inizio& inizio) {
  // The year as a number: whatever was typed, it names a folder of ours and no other.
  return {Giorno_Scelto(programma, inizio), Mese_Scelto(inizio),
          std::to_string(Leggi_Intero(programma, inizio.Text3))};
}

void GestioneListe(Programma& programma) {
  programma.piattaforma.Messaggio(Testo_Percorso(Unisci_Percorso(programma.Cartella_Dati, Generatore)) +
                                      "\nQuesto programma viene chiuso e viene lanciato",
                                  Icona::Informazione);
  LanciaProgramma(programma, Generatore);
}

void Abbandona(Programma& programma) { programma.piattaforma.Termina(); }
