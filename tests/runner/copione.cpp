#include "tests/runner/copione.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/testo.h"

namespace giornata {

namespace {

constexpr std::string_view Spazi = " \t";

struct Errore_Riga {
  std::string atteso, trovato;
};

bool Utf8_Valido(std::string_view testo) {
  for (std::size_t i = 0; i < testo.size();) {
    const auto primo = static_cast<unsigned char>(testo[i]);
    if (primo >= 0x80 && (primo < 0xC2 || primo > 0xF4)) return false;
    const std::size_t seguono = primo < 0x80 ? 0 : primo < 0xE0 ? 1 : primo < 0xF0 ? 2 : 3;
    if (i + seguono >= testo.size()) return false;
    for (std::size_t k = 1; k <= seguono; ++k)
      if ((static_cast<unsigned char>(testo[i + k]) & 0xC0U) != 0x80U) return false;
    i += seguono + 1;
  }
  return true;
}

std::optional<char> Carattere_Scritto(char dopo_la_barra) {
  switch (dopo_la_barra) {
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case '"':
    case '\\':
      return dopo_la_barra;
    default:
      return std::nullopt;
  }
}

// Takes a quoted text from `resto`, which begins with its opening quote.
std::variant<std::string, Errore_Riga> Prendi_Virgolette(std::string_view& resto) {
  std::string testo;
  for (std::size_t i = 1; i < resto.size(); ++i) {
    if (resto[i] == '"') {
      resto.remove_prefix(i + 1);
      return testo;
    }
    if (resto[i] != '\\') {
      testo += resto[i];
      continue;
    }
    const auto carattere = i + 1 < resto.size() ? Carattere_Scritto(resto[i + 1]) : std::nullopt;
    if (!carattere)
      return Errore_Riga{R"(\n, \t, \" o \\ dentro le virgolette)", std::string(resto.substr(i, 2))};
    testo += *carattere;
    ++i;
  }
  return Errore_Riga{"le virgolette chiuse sulla stessa riga", std::string(resto)};
}

std::variant<std::vector<Parola>, Errore_Riga> Parole(std::string_view riga) {
  std::vector<Parola> parole;
  while (true) {
    const std::size_t inizio = riga.find_first_not_of(Spazi);
    if (inizio == std::string_view::npos || riga[inizio] == '#') return parole;
    riga.remove_prefix(inizio);
    Parola parola;
    const std::size_t fine = std::min(riga.find_first_of(" \t#\""), riga.size());
    parola.testo = riga.substr(0, fine);
    riga.remove_prefix(fine);
    if (!riga.empty() && riga[0] == '"') {
      if (!parola.testo.empty() && (parola.testo.size() < 2 || !parola.testo.ends_with('.')))
        return Errore_Riga{"uno spazio prima delle virgolette", parola.testo + std::string(riga)};
      parola.virgolette = true;
      parola.davanti = parola.testo.substr(0, parola.testo.empty() ? 0 : parola.testo.size() - 1);
      auto testo = Prendi_Virgolette(riga);
      if (auto* errore = std::get_if<Errore_Riga>(&testo)) return *errore;
      parola.testo = std::get<std::string>(testo);
      if (!riga.empty() && Spazi.find(riga[0]) == std::string_view::npos && riga[0] != '#')
        return Errore_Riga{"uno spazio dopo le virgolette", std::string(riga)};
    }
    parole.push_back(std::move(parola));
  }
}

bool Numero_Intero(std::string_view testo) { return testo.size() <= 9 && Tutte_Cifre(testo); }

std::vector<std::string_view> Pezzi(std::string_view testo, std::string_view separatori) {
  std::vector<std::string_view> pezzi;
  while (true) {
    const std::size_t fine = testo.find_first_of(separatori);
    pezzi.push_back(testo.substr(0, fine));
    if (fine == std::string_view::npos) return pezzi;
    testo.remove_prefix(fine + 1);
  }
}

bool Nome_Di_Cartella(std::string_view testo) {
  return !testo.empty() && testo != "." && testo != ".." &&
         testo.find_first_of("/\\") == std::string_view::npos;
}

// Inside the firm's folder, or "../NAME..." for the folder of a volume beside it.
bool Percorso_Interno(std::string_view testo) {
  if (testo.empty() || testo[0] == '/' || testo[0] == '\\') return false;
  const auto pezzi = Pezzi(testo, "/\\");
  const bool esce = pezzi.size() > 1 && pezzi[0] == ".." && Nome_Di_Cartella(pezzi[1]);
  return std::find(pezzi.begin() + (esce ? 1 : 0), pezzi.end(), "..") == pezzi.end();
}

bool Semplice(const Parola& parola) { return parola.davanti.empty(); }

struct Genere {
  std::string_view nome;
  bool (*vale)(const Parola&);
  std::string_view spiegazione;
};

const std::array<Genere, 12> generi = {{
    {"<testo>", Semplice, "un testo"},
    {"<testi>", Semplice, "dei testi"},
    {"<voci>", Semplice, "una o più voci"},
    {"<nome>", [](const Parola& p) { return Semplice(p) && !p.testo.empty(); }, "un nome"},
    {"<controllo>",
     [](const Parola& p) { return !p.testo.empty() && (p.virgolette || !p.testo.ends_with('.')); },
     "un nome, una didascalia tra virgolette, o FINESTRA.NOME"},
    {"<numero>", [](const Parola& p) { return !p.virgolette && Numero_Intero(p.testo); }, "un numero intero"},
    {"<percorso>", [](const Parola& p) { return Semplice(p) && Percorso_Interno(p.testo); },
     "un percorso dentro la cartella della ditta o di un volume"},
    {"<accanto>", [](const Parola& p) { return Semplice(p) && !p.testo.empty() && p.testo[0] != '/'; },
     "un file o una cartella accanto al copione"},
    {"<cartella>", [](const Parola& p) { return Semplice(p) && Nome_Di_Cartella(p.testo); },
     "un nome di cartella"},
    {"<data>", [](const Parola& p) { return Semplice(p) && Leggi_Giorno(p.testo).has_value(); },
     "un giorno AAAA-MM-GG"},
    {"<segno>", [](const Parola& p) { return Semplice(p) && (p.testo == "," || p.testo == "."); },
     "',' o '.'"},
    {"<tasto>", [](const Parola& p) { return !p.virgolette && Leggi_Tasto(p.testo).has_value(); },
     "Invio Esc Tab Spazio Backspace Canc Su Giu Destra Sinistra PagSu PagGiu Inizio Fine F1-F12, con Shift+ "
     "Ctrl+ "
     "Alt+ davanti"},
}};

const Genere* Genere_Di(std::string_view pezzo) {
  const auto* genere =
      std::find_if(generi.begin(), generi.end(), [&](const Genere& g) { return g.nome == pezzo; });
  return genere == generi.end() ? nullptr : genere;
}

std::string_view Nome(Forma forma) { return forma.substr(0, forma.find(' ')); }

std::optional<std::vector<Parola>> Combacia(Forma forma, const std::vector<Parola>& parole) {
  std::vector<Parola> argomenti;
  std::size_t i = 0;
  for (const std::string_view pezzo : Pezzi(forma, " ")) {
    const Genere* genere = Genere_Di(pezzo);
    if (pezzo == "<testi>" || pezzo == "<voci>") {
      if (pezzo == "<voci>" && i == parole.size()) return std::nullopt;
      for (; i < parole.size(); ++i) {
        if (!genere->vale(parole[i])) return std::nullopt;
        argomenti.push_back(parole[i]);
      }
      continue;
    }
    if (i == parole.size()) return std::nullopt;
    const Parola& parola = parole[i++];
    if (!genere) {
      if (parola.virgolette || parola.testo != pezzo) return std::nullopt;
      continue;
    }
    if (!genere->vale(parola)) return std::nullopt;
    argomenti.push_back(parola);
  }
  if (i < parole.size()) return std::nullopt;
  return argomenti;
}

std::string Forme_Di(std::string_view nome, std::span<const Forma> forme) {
  std::string esito, spiegazioni;
  for (const Forma forma : forme) {
    if (Nome(forma) != nome) continue;
    esito.append(esito.empty() ? "" : " | ").append(forma);
    for (const std::string_view pezzo : Pezzi(forma, " "))
      if (const Genere* genere = Genere_Di(pezzo); genere && spiegazioni.find(pezzo) == std::string::npos)
        spiegazioni.append("; ").append(pezzo).append(": ").append(genere->spiegazione);
  }
  return esito + spiegazioni;
}

std::variant<Passo, Errore_Riga> Leggi_Passo(const std::vector<Parola>& parole,
                                             std::span<const Forma> forme) {
  const std::string& nome = parole[0].testo;
  bool noto = false;
  for (std::size_t i = 0; i < forme.size(); ++i) {
    if (parole[0].virgolette || Nome(forme[i]) != nome) continue;
    noto = true;
    if (auto argomenti = Combacia(forme[i], parole)) {
      Passo passo;
      passo.forma = i;
      passo.argomenti = std::move(*argomenti);
      return passo;
    }
  }
  if (!noto) return Errore_Riga{"un passo conosciuto", nome};
  return Errore_Riga{Forme_Di(nome, forme), {}};
}

std::string Titolo(std::string_view riga) {
  const std::size_t cancelletto = riga.find('#');
  return std::string(Pulito(riga.substr(cancelletto + 1)));
}

}  // namespace

std::variant<Copione, Errore_Copione> Leggi_Copione(std::string_view utf8, std::span<const Forma> forme) {
  if (utf8.starts_with("\xEF\xBB\xBF")) utf8.remove_prefix(3);
  Copione copione;
  for (const Vista riga : Righe(utf8)) {
    ++copione.righe;
    if (!Utf8_Valido(riga)) return Errore_Copione{copione.righe, "testo UTF-8", "altri byte"};
    const auto parole = Parole(riga);
    if (const auto* errore = std::get_if<Errore_Riga>(&parole))
      return Errore_Copione{copione.righe, errore->atteso, errore->trovato};
    const auto& lette = std::get<std::vector<Parola>>(parole);
    if (lette.empty()) {
      if (copione.titolo.empty() && riga.find('#') != Vista::npos) copione.titolo = Titolo(riga);
      continue;
    }
    auto passo = Leggi_Passo(lette, forme);
    if (const auto* errore = std::get_if<Errore_Riga>(&passo))
      return Errore_Copione{copione.righe, errore->atteso,
                            errore->trovato.empty() ? std::string(Pulito(riga)) : errore->trovato};
    auto& letto = std::get<Passo>(passo);
    letto.riga = copione.righe;
    letto.scritto = std::string(Pulito(riga));
    copione.passi.push_back(std::move(letto));
  }
  return copione;
}

std::vector<std::string> Percorsi_Accanto_Alla_Ditta(const Passo& passo, Forma forma) {
  std::vector<std::string> esito;
  std::size_t i = 0;
  for (const std::string_view pezzo : Pezzi(forma, " ")) {
    if (!Genere_Di(pezzo)) continue;
    if (i == passo.argomenti.size()) break;
    const auto pezzi = Pezzi(passo.argomenti[i++].testo, "/\\");
    if (pezzo == "<percorso>" && pezzi.size() > 1 && pezzi[0] == "..") esito.emplace_back(pezzi[1]);
  }
  return esito;
}

std::optional<Pressione> Leggi_Tasto(std::string_view nome) {
  static constexpr std::array<std::pair<std::string_view, Tasto>, 14> tasti = {
      {{"Invio", Tasto::Invio},
       {"Esc", Tasto::Esc},
       {"Tab", Tasto::Tab},
       {"Spazio", Tasto::Spazio},
       {"Backspace", Tasto::Backspace},
       {"Canc", Tasto::Canc},
       {"Su", Tasto::Su},
       {"Giu", Tasto::Giu},
       {"Destra", Tasto::Destra},
       {"Sinistra", Tasto::Sinistra},
       {"PagSu", Tasto::PagSu},
       {"PagGiu", Tasto::PagGiu},
       {"Inizio", Tasto::Inizio},
       {"Fine", Tasto::Fine}}};
  static constexpr std::array<std::pair<std::string_view, bool Pressione::*>, 3> modi = {
      {{"Shift+", &Pressione::maiuscole}, {"Ctrl+", &Pressione::ctrl}, {"Alt+", &Pressione::alt}}};
  Pressione pressione;
  for (bool trovato = true; trovato;) {
    trovato = false;
    for (const auto& [modo, membro] : modi) {
      if (!nome.starts_with(modo)) continue;
      if (pressione.*membro) return std::nullopt;
      pressione.*membro = trovato = true;
      nome.remove_prefix(modo.size());
    }
  }
  for (const auto& [scritto, tasto] : tasti)
    if (nome == scritto) {
      pressione.tasto = tasto;
      return pressione;
    }
  if (nome.size() < 2 || nome[0] != 'F' || nome[1] == '0' || !Numero_Intero(nome.substr(1)))
    return std::nullopt;
  const int numero = nome.size() == 2   ? nome[1] - '0'
                     : nome.size() == 3 ? (nome[1] - '0') * 10 + (nome[2] - '0')
                                        : 99;
  if (numero > 12) return std::nullopt;
  pressione.tasto = static_cast<Tasto>(static_cast<int>(Tasto::F1) + numero - 1);
  return pressione;
}

std::optional<Data> Leggi_Giorno(std::string_view testo) {
  if (testo.size() != 10 || testo[4] != '-' || testo[7] != '-') return std::nullopt;
  for (const std::string_view pezzo : {testo.substr(0, 4), testo.substr(5, 2), testo.substr(8, 2)})
    if (!Numero_Intero(pezzo)) return std::nullopt;
  const Testo italiana =
      Testo(testo.substr(8, 2)).append("/").append(testo.substr(5, 2)).append("/").append(testo.substr(0, 4));
  return Leggi_Data(italiana);
}

}  // namespace giornata
