#include "core/date.h"
#include "entry/elenco_macro.h"
#include "fuzz/ingresso.h"

// Macro files and macro codes. A code never names a file outside the macros' folder.

namespace {

void Prova_Codice(const Programma& programma, Tipo_Macro tipo, Vista codice) {
  if (!Codice_Macro_Lecito(codice)) return;
  const Percorso file = File_Macro(programma, tipo, codice);
  Esigi(file.lexically_normal().parent_path() == Cartella_Macro(programma, tipo).lexically_normal(),
        "una macro resta nella sua cartella");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ingresso.Separatore());
  const Tipo_Macro tipo = ingresso.Scelta(2) == 0 ? Tipo_Macro::Fornitore : Tipo_Macro::Specie;
  const Testo codice = ingresso.Pezzo();
  const Vista contenuto = ingresso.Resto();
  Prova_Codice(programma, tipo, codice);
  Prova_Codice(programma, tipo, Codice_Scritto(codice, programma.Separatore_Decimale));

  for (const Voce_Macro& voce : Leggi_Macro(tipo, contenuto))
    Esigi(voce.testo.find_first_of("\t\r\n") == Testo::npos, "un campo non ha separatori");

  Edita edita;
  EseguiMacro(programma, edita, tipo, codice);
  const char* nome = tipo == Tipo_Macro::Fornitore ? "PREDEF_FOR/07.txt" : "PREDEF/07.txt";
  ditta.Metti(nome, contenuto);
  Esigi(EseguiMacro(programma, edita, tipo, "07") == 0, "la macro si esegue");
  Elenco_Macro elenco;
  Apri_ElencoMacro(programma, elenco, tipo, false);
  Esigi(elenco.List1.Numero() == 1, "la macro e' in elenco");
  elenco.List1.Riga(0);
  Esigi(ditta.Contenuto(nome) == contenuto, "leggere non tocca il file");

  if (Pulito(Campo(edita, tipo == Tipo_Macro::Fornitore ? CampoRiga::Fornitore : CampoRiga::Specie).testo)
          .empty())
    return 0;
  macchina.risposta = "7";
  tipo == Tipo_Macro::Fornitore ? MemorizzaFornitore(programma, edita) : MemorizzaSpecie(programma, edita);
  if (Comincia_Con_La_Marca(ditta.Contenuto(nome))) return 0;  // is taken for the file's mark
  std::array<Testo, Num_Campi> prima;
  for (std::size_t i = 0; i < prima.size(); ++i) prima[i] = edita.Text1[i].testo;
  Esigi(EseguiMacro(programma, edita, tipo, "07") == 0, "la macro memorizzata si esegue");
  for (std::size_t i = 0; i < prima.size(); ++i)
    Esigi(edita.Text1[i].testo == prima[i], "la macro memorizzata rimette gli stessi campi");
  return 0;
}
