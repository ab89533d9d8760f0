#include <algorithm>

#include "tests/runner/passi.h"

namespace giornata {

namespace fs = std::filesystem;

namespace {

std::string In_Script(Vista byte) { return Citato(In_Utf8(byte)); }

Testo In_1252(const std::string& utf8) {
  const Testo testo = Da_Utf8(utf8);
  if (In_Utf8(testo) != utf8) throw Fallito("un testo nei caratteri Windows-1252", Citato(utf8));
  return testo;
}

// The first place where two texts differ, as the lines around it read.
void Esigi_Uguali(const std::string& nome, Vista voluto, Vista trovato) {
  if (voluto == trovato) return;
  const auto righe_volute = Righe(voluto), righe_trovate = Righe(trovato);
  const auto [v, t] =
      std::mismatch(righe_volute.begin(), righe_volute.end(), righe_trovate.begin(), righe_trovate.end());
  const auto numero = std::to_string(v - righe_volute.begin() + 1);
  if (v == righe_volute.end() && t == righe_trovate.end())
    throw Fallito(nome + ": " + std::to_string(voluto.size()) + " byte",
                  std::to_string(trovato.size()) + " byte: le righe sono uguali, le fini di riga no");
  throw Fallito(
      nome + ", riga " + numero + ": " + (v == righe_volute.end() ? "fine del file" : In_Script(*v)),
      t == righe_trovate.end() ? "fine del file" : In_Script(*t));
}

// Pages that were checked are gone with the next gesture; checks that follow one another see the same ones.
Registro_Pagine& Pagine(Scena& scena) {
  scena.pagine_viste = true;
  return scena.macchina.pagine;
}

Testo Tutte_Le_Pagine(const Registro_Pagine& pagine) {
  Testo esito;
  for (const Testo& riga : pagine.righe) esito.append(riga).append(FINE_RIGA);
  return esito;
}

std::string Lista(const std::vector<std::string>& nomi) {
  std::string esito;
  for (const std::string& nome : nomi) esito += (esito.empty() ? "" : " ") + Citato(nome);
  return esito.empty() ? "vuota" : esito;
}

}  // namespace

void Elenco_Nomi(Scena& scena, const Argomenti& argomenti) {
  const Percorso cartella = Nel_Disco(scena, argomenti[0].testo);
  if (!fs::is_directory(cartella)) throw Fallito("la cartella " + argomenti[0].testo, "non c'è");
  std::vector<std::string> voluti, trovati;
  for (std::size_t i = 1; i < argomenti.size(); ++i) voluti.push_back(argomenti[i].testo);
  for (const auto& voce : fs::directory_iterator(cartella))
    trovati.push_back(voce.path().filename().string());
  std::sort(voluti.begin(), voluti.end());
  std::sort(trovati.begin(), trovati.end());
  if (voluti != trovati) throw Fallito(Lista(voluti), Lista(trovati));
}

void File_Uguale(Scena& scena, const Argomenti& argomenti) {
  const std::string voluto = Leggi_Byte(Accanto(scena, argomenti[1].testo));
  Esigi_Uguali(argomenti[0].testo, voluto, Leggi_Byte(Nel_Disco(scena, argomenti[0].testo)));
}

void File_Contiene(Scena& scena, const Argomenti& argomenti) {
  const Testo parte = In_1252(argomenti[1].testo);
  const std::string trovato = Leggi_Byte(Nel_Disco(scena, argomenti[0].testo));
  if (trovato.find(parte) != std::string::npos) return;
  // Line ends of files are CR LF; a script writes \n for them.
  if (Sostituisci_Tutti(trovato, FINE_RIGA, "\n").find(parte) != std::string::npos) return;
  constexpr std::size_t mostrati = 2000;
  throw Fallito(Citato(argomenti[1].testo), In_Script(Sinistra(trovato, mostrati)));
}

void File_Manca(Scena& scena, const Argomenti& argomenti) {
  const Percorso file = Nel_Disco(scena, argomenti[0].testo);
  if (fs::exists(fs::symlink_status(file))) throw Fallito("nessun file " + argomenti[0].testo, "c'è");
}

void File_Righe(Scena& scena, const Argomenti& argomenti) {
  const std::string trovato = Leggi_Byte(Nel_Disco(scena, argomenti[0].testo));
  const std::size_t righe = Righe(trovato).size();
  if (righe != std::stoul(argomenti[1].testo))
    throw Fallito(argomenti[1].testo + " righe", std::to_string(righe));
}

void Copia(Scena& scena, const Argomenti& argomenti) {
  Copia_Tutto(Accanto(scena, argomenti[0].testo), Nel_Disco(scena, argomenti[1].testo));
}

void Cancella(Scena& scena, const Argomenti& argomenti) {
  const Percorso percorso = Nel_Disco(scena, argomenti[0].testo);
  if (percorso.lexically_relative(scena.ditta) == ".")
    throw Fallito("un percorso nella cartella", "la cartella stessa");
  std::error_code errore;
  if (fs::remove_all(percorso, errore) == 0 || errore)
    throw Fallito(argomenti[0].testo + " da cancellare", errore ? errore.message() : "non c'è");
}

void Pagine_Uguali(Scena& scena, const Argomenti& argomenti) {
  const std::string voluto = Leggi_Byte(Accanto(scena, argomenti[0].testo));
  std::string righe;
  for (const Vista riga : Righe(voluto)) righe.append(In_1252(std::string(riga))).append(FINE_RIGA);
  Esigi_Uguali("pagine", righe, Tutte_Le_Pagine(Pagine(scena)));
}

void Pagine_Contengono(Scena& scena, const Argomenti& argomenti) {
  const Testo parte = In_1252(argomenti[0].testo);
  const Registro_Pagine& pagine = Pagine(scena);
  const bool c_e = std::any_of(pagine.righe.begin(), pagine.righe.end(),
                               [&](const Testo& riga) { return riga.find(parte) != Testo::npos; });
  if (!c_e)
    throw Fallito("nelle pagine " + Citato(argomenti[0].testo),
                  std::to_string(pagine.pagine) + " pagine\n" + In_Utf8(Tutte_Le_Pagine(pagine)));
}

void Pagine_Numero(Scena& scena, const Argomenti& argomenti) {
  const int pagine = Pagine(scena).pagine;
  if (pagine != std::stoi(argomenti[0].testo))
    throw Fallito(argomenti[0].testo + " pagine", std::to_string(pagine));
}

}  // namespace giornata
