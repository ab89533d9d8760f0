#include "entry/aiuto.h"

#include "lists/aiuto_esportazione.h"

namespace {

// Some of these sentences stand in the firms' own instructions word for word, slips of the pen included, so
// they are left as they are.

Testo Aiuto_Generale() {
  return "L'ordine del lavoro di una giornata:\n"
         "  1 - immettere tutte le righe\n"
         "  2 - documenti di trasporto e sanitari\n"
         "  3 - Prima Nota (F6)\n"
         "  4 - Conti Vendita (F2)\n"
         "  5 - fatture e note di accredito, per ultime\n"
         "\n"
         "Invio: campo successivo, freccia su: precedente.\n"
         "Scrivendo si apre la lista del campo:\n"
         "Invio prende la voce, Esc chiude la lista.\n"
         "Frecce destra e sinistra: la lista intera.\n"
         "Alt Gr (o la casella accanto) tiene fermo il campo.\n"
         "PGSu e PGGiù scambiano Cliente e Codice Cliente.\n"_t
         "Tasto destro del mouse: la lista da modificare.\n"
         "\n"
         "F1 mappa del Mediterraneo   F11 mappa del mondo\n"
         "F3 elimina   F4 modifica   F5 aggiunge   F7 salva\n"
         "F8 riga precedente   F9 riga successiva\n"
         "F12 riduce la finestra";
}

Testo Aiuto_Lotti() {
  return "L'uso dei lotti è abbligatorio e il programma li scrive regolarmente nei decomenti.\n"_t
         "\n"
         "Il lotto si scrive nel campo, oppure si prende dalla lista predefinita (bottone \"lotti\").\n"
         "Con i lotti automatici (Preferenze Operative) il lotto è il codice del fornitore\n"_t
         "seguito dalla data del giorno prima.\n"
         "Il bottone \"Lotti\" scrive in tutte le righe il codice del fornitore e la data\n"
         "del giorno precedente questa Prima Nota.\n"
         "\n"
         "Doppio click sul lotto: inverte la data (aammgg - ggmmaa).\n"
         "Bottone accanto al lotto: tasto sinistro un giorno avanti, tasto destro un giorno indietro.";
}

Testo Aiuto_Fatture_1() {
  return "Le fatture sono l'ultimo lavoro della giornata.\n"
         "\n"
         "Utilizzare le numerazioni automatiche (NumeraFat e NumeraNA).\n"
         "che possono essere fatte e rifatte più volte.\n"_t
         "\n"
         "Una fattura per ogni cliente con le righe di prezzo positivo,\n"
         "una nota di accredito per ogni cliente con le righe di prezzo negativo.\n"
         "Per una riga di accredito scrivere il segno meno nel campo Prezzo.\n"
         "I numeri vengono riportati nelle righe: alla fine salvare i dati.";
}

Testo Aiuto_Fatture_2() {
  return "Ogni pagina di fattura viene scritta anche in un file di testo,\n"
         "nella cartella del giorno. Il nome del file è composto da:\n"_t
         "\n"
         "cliente_numero_data_commissionario_importo_tipo\n"
         "\n"
         "copiando tutte le fatture (di più commissionari) nella stessa cartella\n"_t
         "queste di ordinano automaticamente per \n"
         "cliente, numero e data.";
}

Testo Aiuto_Transazioni() {
  return "Formato del file .txt con la lista delle transazioni.\n"
         "\n"
         "campo  :  contenuto\n"
         "1 : numero fattura\n"
         "2 : data=data Fattura\n"
         "3 : IBAN Cliente\n"
         "4 : importo da accreditare moltiplicato per 100 (senza separatore decimale)\n"
         "5 : IBAN commmissionario beneficiario\n"
         "\n"
         "il file si trova temporaneamente nella cartella .\\xbanca32\n"
         "nome del file: Transazioni_aaaammgg_FAT.txt\n"
         "Il file viene ricreato ogni volta che si stampano TUTTE le \n"
         "fatture e Note di Acredito";
}

Testo Aiuto_Numerazione() {
  return "La procedura Consolida colli e quantità per Zona/provenienza e Specie.\n"_t
         "Il programma raggruppa le voci in modo che ad un cliente corrisponda un unico documento.\n"
         "\n"
         "Con \"#DDT automatico\" segnato la riga aggiunta prende il numero di documento del suo cliente,\n"
         "o il numero successivo se il cliente non ne ha ancora uno.\n"
         "Se viene aggiunta una voce per un cliente che aveva già un numoro di documento la nuova voce viene "_t
         "aggiunta automaticamente al documento preesistente.\n"
         "\n"
         "Per attribuire manulamente un numero di DDT è necessario disabilitare la numerazione automatica.\n"_t
         "I bottoni \"DDT\" e \"N.Fat\" aprono il campo; premuti di nuovo scrivono il numero nella riga.";
}

Testo Aiuto_Predefiniti() {
  return "Una combinazione che si ripete si memorizza con un numero (01-99)\n"
         "o con un codice (da 2 a 8 caratteri, senza spazi).\n"
         "\n"
         "\"Memorizza Fornitore Predefinito\": fornitore, specie, zona, provenienza, lotto e codici.\n"
         "\"Memorizza Specie Predefinita\": specie, zona, provenienza e codici.\n"
         "\n"
         "Per richiamarla scrivere le due cifre (07, non 7) nel campo Fornitore o nel campo Specie,\n"
         "oppure il segno meno: si apre la lista, dove si sceglie con Invio o con il doppio click.\n"
         "\n"
         "Le liste si aprono anche dai menu PrefFornitori e PrefSpecie, dove si copia,\n"
         "si elimina e si rinomina.";
}

Testo Aiuto_Prezzo_Cassa() {
  return "Il prezzo per cassa finisce con la lettera c.\n"
         "Nel campo Peso scrivere i kg di una cassa, in N colli il numero delle casse.\n"
         "\n"
         "Quando si aggiunge la riga il programma calcola il peso totale e il prezzo al kg.\n"
         "\n"
         "Esempio:  Peso 10   Prezzo 12,5c   N colli 5\n"
         "diventa:  Peso 50,00   Prezzo 1,25";
}

Testo Aiuto_Export() {
  return Aiuto_Esportazione() +
         "\n\n"
         "Formato esteso con:\n"
         "Attrezzo Pesca, Pezzatura, Stato Fisico, Lavorazione e Preparazione.";
}

Testo Aiuto_Etichette() {
  return "L'etichetta prende il prezzo di vendita e il trattamento dal campo Commento:\n"
         "inserire prezzo - trattamento\n"
         "\n"
         "Esempio:  10.00 - solfiti\n"
         "\n"
         "se non si mette il segno meno stampa solo il prezzo e scrive -nessun trattamento-\n"
         "se si mette il segno meno ma non si scrive il trattamento non scrive nulla";
}

}  // namespace

std::span<const Voce_Aiuto> Aiuti() {
  static const std::vector<Voce_Aiuto> aiuti = {
      {"Aiuto", "Aiuto", Aiuto_Generale()},
      {"Aiuto_Lotti", "Lotti", Aiuto_Lotti()},
      {"Aiuto_Fatture_1", "Fatture 1", Aiuto_Fatture_1()},
      {"Aiuto_Fatture_2", "Fatture 2", Aiuto_Fatture_2()},
      {"Aiuto_Transazioni", "Transazioni", Aiuto_Transazioni()},
      {"Aiuto_Numerazione", "Numerazione DDT e DS", Aiuto_Numerazione()},
      {"Aiuto_Predefiniti", "Specie e Fornitori Predefiniti", Aiuto_Predefiniti()},
      {"Aiuto_Prezzo_Cassa", "Prezzo per cassa", Aiuto_Prezzo_Cassa()},
      {"Aiuto_Export", "Export Prima Nota Esteso", Aiuto_Export()},
      {"Aiuto_Etichette", "Etichette", Aiuto_Etichette()},
  };
  return aiuti;
}

void MostraAiuto(Programma& programma, Vista nome) {
  for (const Voce_Aiuto& aiuto : Aiuti())
    if (aiuto.nome == nome)
      return programma.piattaforma.Messaggio(aiuto.testo, Icona::Informazione, aiuto.voce);
}

std::optional<Percorso> CercaManuale(const Programma& programma, Vista installato) {
  for (const Percorso& cartella : {programma.Cartella_Dati, In_Percorso(installato)}) {
    const Percorso file = programma.disco.Trova(Unisci_Percorso(cartella, File_Manuale));
    if (programma.disco.Esiste_File(file)) return file;
  }
  return std::nullopt;
}

void ApriManuale(Programma& programma, Vista installato) {
  if (const auto file = CercaManuale(programma, installato))
    return programma.piattaforma.Apri_Con_Desktop(*file);
  Testo testo = "Il manuale non c'è su questo computer.\n"_t;
  testo.append("\nÈ il file "_t).append(File_Manuale);
  testo.append(
      " e arriva insieme al programma:\nchiederlo a chi lo ha installato e copiarlo nella cartella\n");
  testo.append(Testo_Percorso(programma.Cartella_Dati));
  programma.piattaforma.Messaggio(testo, Icona::Informazione, "Manuale");
}
