#include "tests/runner/scena.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

namespace giornata {

namespace fs = std::filesystem;

namespace {

bool Dentro(const Percorso& percorso, const Percorso& cartella) {
  const auto [fine, resto] =
      std::mismatch(cartella.begin(), cartella.end(), percorso.begin(), percorso.end());
  return fine == cartella.end();
}

void Esigi(const std::error_code& errore, const std::string& cosa) {
  if (errore) throw Fallito(cosa, errore.message());
}

}  // namespace

std::string Citato(const std::string& testo) {
  std::string esito = "\"";
  for (const char c : testo) {
    if (c == '\n')
      esito += "\\n";
    else if (c == '\t')
      esito += "\\t";
    else if (c == '\r')
      esito += "<CR>";
    else
      esito.append(c == '"' || c == '\\' ? "\\" : "").append(1, c);
  }
  return esito + "\"";
}

std::string Leggi_Byte(const Percorso& file) {
  std::ifstream flusso(file, std::ios::binary);
  if (!flusso || !fs::is_regular_file(file)) throw Fallito("il file " + file.filename().string(), "non c'è");
  return {std::istreambuf_iterator<char>(flusso), {}};
}

Percorso Nel_Disco(const Scena& scena, const std::string& percorso) {
  const auto barra = percorso.find('/');
  const std::string primo = percorso.substr(0, barra);
  const std::string resto = barra == std::string::npos ? std::string() : percorso.substr(barra + 1);
  for (const Volume& volume : scena.macchina.volumi)
    if (primo == In_Utf8(volume.lettera) || primo == volume.radice.filename())
      return (volume.radice / resto).lexically_normal();
  if (primo == "..") {
    const Percorso voluto = (scena.radice / resto).lexically_normal();
    for (const Volume& volume : scena.macchina.volumi)
      if (Dentro(voluto, volume.radice)) return voluto;
    throw Fallito("un percorso dentro la cartella della ditta o di un volume", percorso);
  }
  return (scena.ditta / percorso).lexically_normal();
}

Percorso Accanto(const Scena& scena, const std::string& percorso) {
  return (scena.accanto / percorso).lexically_normal();
}

void Copia_Tutto(const Percorso& da, const Percorso& a) {
  std::error_code errore;
  if (!fs::exists(da, errore)) throw Fallito("accanto al copione: " + da.filename().string(), "non c'è");
  fs::create_directories(a.parent_path(), errore);
  Esigi(errore, "una cartella per " + a.filename().string());
  fs::copy(da, a, fs::copy_options::recursive | fs::copy_options::overwrite_existing, errore);
  Esigi(errore, "una copia di " + da.filename().string());
  // The originals may be read-only; the program must be able to write its own copy.
  fs::permissions(a, fs::perms::owner_write, fs::perm_options::add, errore);
  if (!fs::is_directory(a)) return;
  for (const auto& voce : fs::recursive_directory_iterator(a))
    fs::permissions(voce.path(), fs::perms::owner_write, fs::perm_options::add, errore);
}

void Prepara_Ditta(Scena& scena, const Percorso* origine) {
  if (scena.ditta_scelta)
    throw Fallito("una sola cartella della ditta, prima dei passi che la usano", "un'altra");
  scena.ditta_scelta = true;
  if (!origine) {
    scena.ditta = scena.radice / "ditta";
    fs::create_directories(scena.ditta);
    return;
  }
  if (!fs::is_directory(*origine)) throw Fallito("la cartella " + origine->string(), "non c'è");
  const Percorso cartella = (*origine / "").parent_path();  // without a separator at the end
  scena.ditta = scena.radice / cartella.filename();
  if (fs::exists(scena.ditta))
    throw Fallito("una cartella con un nome diverso da quelle dei volumi", scena.ditta);
  Copia_Tutto(cartella, scena.ditta);
}

void Tieni_Il_Resto(const Scena& scena) {
  if (scena.resto.empty()) return;
  Copia_Tutto(scena.ditta, scena.resto / "ditta");
  std::ofstream pagine(scena.resto / "pagine", std::ios::binary);
  for (const auto* righe : {&scena.pagine_girate, &scena.macchina.pagine.righe})
    for (const Testo& riga : *righe) pagine << riga << '\n';
}

void Aggiungi_Volume(Scena& scena, const std::string& lettera, const std::string& etichetta,
                     const std::string& cartella) {
  const Percorso radice = scena.radice / cartella;
  if (radice == scena.ditta) throw Fallito("una cartella accanto a quella della ditta", cartella);
  const Percorso contenuto = Accanto(scena, cartella);
  if (!fs::exists(radice) && fs::is_directory(contenuto)) Copia_Tutto(contenuto, radice);
  fs::create_directories(radice);
  std::erase_if(scena.macchina.volumi, [&](const Volume& v) { return In_Utf8(v.lettera) == lettera; });
  scena.macchina.volumi.push_back({radice, Da_Utf8(lettera), Da_Utf8(etichetta)});
}

void Proteggi_Ditta(const Scena& scena) {
  const char* ditta = scena.ditta.c_str();
  // What the disk forbids already must stay forbidden, or who isn't root may not mount it anew.
  struct statvfs disco {};
  statvfs(ditta, &disco);
  const unsigned long divieti =
      disco.f_flag & (MS_NOSUID | MS_NODEV | MS_NOEXEC | MS_NOATIME | MS_NODIRATIME);
  const bool protetta =
      unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
      mount(ditta, ditta, nullptr, MS_BIND, nullptr) == 0 &&
      mount(nullptr, ditta, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY | divieti, nullptr) == 0;
  if (!protetta) throw Fallito("un disco in sola lettura", std::strerror(errno));
}

bool Guasto(const Scena& scena, const Percorso& percorso) {
  const Percorso voluto = (percorso.is_absolute() ? percorso : scena.ditta / percorso).lexically_normal();
  return std::any_of(scena.guasti.begin(), scena.guasti.end(),
                     [&](const Percorso& guasto) { return Dentro(voluto, guasto); });
}

}  // namespace giornata
