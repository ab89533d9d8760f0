#include "core/ini.h"

#define SI_NO_CONVERSION  // the bytes are taken as they are
#include <SimpleIni.h>
#include <algorithm>
#include <optional>

namespace {

// A line of the file with its own end, so that what isn't ours goes back as it came.
struct Riga_File {
  Testo testo;
  Vista fine;
};

std::vector<Riga_File> Righe_Con_Fine(Vista contenuto) {
  std::vector<Riga_File> righe;
  while (!contenuto.empty()) {
    const auto posto = std::min(contenuto.find_first_of("\r\n"), contenuto.size());
    const bool coppia = contenuto.substr(posto, 2) == FINE_RIGA;
    const Vista fine = contenuto.substr(posto, coppia ? 2 : 1);
    righe.push_back({Testo(contenuto.substr(0, posto)), fine});
    contenuto.remove_prefix(posto + fine.size());
  }
  return righe;
}

Vista Senza_Margini(Vista testo) {
  const auto primo = testo.find_first_not_of(" \t");
  if (primo == Vista::npos) return {};
  return testo.substr(primo, testo.find_last_not_of(" \t") - primo + 1);
}

// A line as the reader sees it. A NUL would end the whole file for it, and a bracket that isn't closed would
// take the following lines into the section's name: both count as blanks.
Testo Leggibile(Vista riga) {
  Testo testo(riga);
  std::ranges::replace(testo, '\0', ' ');
  testo = Senza_Margini(testo);
  if (testo.starts_with('[') && testo.find(']') == Testo::npos) testo.clear();
  return testo;
}

std::optional<Testo> Nome_Sezione(Vista leggibile) {
  if (!leggibile.starts_with('[')) return std::nullopt;
  return Testo(Senza_Margini(leggibile.substr(1, leggibile.find(']') - 1)));
}

std::optional<Testo> Nome_Chiave(Vista leggibile) {
  if (leggibile.empty() || leggibile.starts_with(';') || leggibile.starts_with('#')) return std::nullopt;
  const auto uguale = leggibile.find('=');
  if (uguale == Vista::npos || uguale == 0) return std::nullopt;
  return Testo(Senza_Margini(leggibile.substr(0, uguale)));
}

}  // namespace

Valori_Ini Leggi_Ini(Vista contenuto, Vista sezione) {
  Testo leggibile;
  for (const Riga_File& riga : Righe_Con_Fine(Senza_Marca(contenuto)))
    leggibile += Leggibile(riga.testo) + "\n";

  CSimpleIniA ini;
  ini.SetMultiKey(true);  // else the last of two equal keys would count
  if (ini.LoadData(leggibile.data(), leggibile.size()) < 0) return {};
  const Testo nome(sezione);
  CSimpleIniA::TNamesDepend chiavi;
  ini.GetAllKeys(nome.c_str(), chiavi);
  Valori_Ini valori;
  for (const auto& chiave : chiavi)
    valori.emplace(chiave.pItem, ini.GetValue(nome.c_str(), chiave.pItem, ""));
  return valori;
}

// The library's own writer would drop lines that are no keys and lay the whole file out anew, so the lines
// that change are changed in place.
Testo Scrivi_Ini(Vista contenuto, Vista sezione, const std::vector<std::pair<Testo, Testo>>& chiavi) {
  const Vista senza_marca = Senza_Marca(contenuto);
  Testo esito(contenuto.substr(0, contenuto.size() - senza_marca.size()));
  auto righe = Righe_Con_Fine(senza_marca);

  std::map<Testo, std::size_t, Ordine_Ini> trovate;  // the first line of each key of the section
  std::optional<std::size_t> ultima;  // last line that isn't blank of the section's first piece
  bool dentro = false, finita = false;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const Testo leggibile = Leggibile(righe[i].testo);
    if (const auto nome = Nome_Sezione(leggibile)) {
      finita = finita || dentro;
      dentro = Uguali(*nome, sezione);
    } else if (const auto chiave = Nome_Chiave(leggibile); chiave && dentro) {
      trovate.emplace(*chiave, i);
    }
    if (dentro && !finita && !leggibile.empty()) ultima = i;
  }

  Testo nuove;
  for (const auto& [chiave, valore] : chiavi) {
    const Testo scritto = "=" + Senza_Separatori(valore);
    const auto trovata = trovate.find(chiave);
    if (trovata == trovate.end()) {
      nuove += chiave + scritto + Testo(FINE_RIGA);
      continue;
    }
    Riga_File& riga = righe[trovata->second];
    riga = {trovata->first + scritto, FINE_RIGA};
  }

  if (!nuove.empty() && !ultima) {
    if (!righe.empty() && righe.back().fine.empty()) righe.back().fine = FINE_RIGA;
    nuove = "[" + Testo(sezione) + "]" + Testo(FINE_RIGA) + nuove;
  }
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const bool qui = !nuove.empty() && ultima == i;
    esito += righe[i].testo;
    esito += qui && righe[i].fine.empty() ? FINE_RIGA : righe[i].fine;
    if (qui) esito += nuove;
  }
  if (!ultima) esito += nuove;
  return esito;
}
