#include "tests/operatori/testi_noti.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <iterator>

namespace operatori {

namespace fs = std::filesystem;

namespace {

// A piece of the program's own text has at least that many letters, and a word of the message that nobody
// explains has at least as many: shorter ones are articles, units, codes.
constexpr std::size_t lettere_minime = 4;

constexpr std::array stanze = {"core",      "printing", "transfers", "lists", "documents", "entry",
                               "primanota", "accounts", "invoices",  "stats", "start",     "platform"};

// What an exception, a null or a format that was never filled in leaves in a text.
constexpr std::array<Vista, 14> mai = {"std::",     "bad_alloc", "vector::", "basic_string", "_M_",
                                       "terminate", "__n",       "0x",       "(null)",       "nullptr",
                                       "%s",        "%d",        "%1",       "%ld"};

bool Lettera(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || byte >= 0xC0;
}

std::size_t Lettere(Vista testo) {
  return static_cast<std::size_t>(std::count_if(testo.begin(), testo.end(), Lettera));
}

// Reads the source once, character by character.
class Lettore {
 public:
  explicit Lettore(const std::string& sorgente) : s_(sorgente) {}

  std::vector<Testo> leggi() {
    while (i_ < s_.size()) passo();
    chiudi();
    return std::move(trovati_);
  }

 private:
  void passo() {
    if (comincia("//") || (s_[i_] == '#' && a_capo_)) return salta_a("\n");
    if (comincia("/*")) return salta_a("*/");
    if (comincia("R\"(")) return grezzo();
    if (s_[i_] == '"') return letterale();
    if (s_[i_] == '\'' && !dopo_cifra()) return carattere();
    const char c = s_[i_++];
    if (c == '\n') a_capo_ = true;
    if (std::strchr(" \t\r\n", c) != nullptr) return;
    a_capo_ = false;
    // Neighbours belong together; "..."_t, and what a macro of the toolkit puts around one, don't part them.
    if (c != '_' && c != 't') chiudi();
  }

  bool comincia(const char* con) const { return s_.compare(i_, std::strlen(con), con) == 0; }
  bool dopo_cifra() const { return i_ > 0 && std::strchr("0123456789abcdefABCDEF", s_[i_ - 1]) != nullptr; }

  void salta_a(const char* fine) {
    const auto dove = s_.find(fine, i_);
    i_ = dove == std::string::npos ? s_.size() : dove + std::strlen(fine);
    a_capo_ = true;
  }

  void grezzo() {
    const auto fine = s_.find(")\"", i_);
    aperto_ += s_.substr(i_ + 3, fine - i_ - 3);
    i_ = fine + 2;
  }

  void carattere() {
    for (++i_; i_ < s_.size() && s_[i_] != '\''; ++i_)
      if (s_[i_] == '\\') ++i_;
    ++i_;
  }

  void letterale() {
    for (++i_; i_ < s_.size() && s_[i_] != '"'; ++i_) aperto_ += s_[i_] == '\\' ? sciolto() : s_[i_];
    ++i_;
  }

  char sciolto() {
    switch (const char c = s_[++i_]) {
      case 'n':
        return '\n';
      case 't':
        return '\t';
      case 'r':
        return '\r';
      default:
        return c;
    }
  }

  void chiudi() {
    if (!aperto_.empty()) trovati_.push_back(Da_Utf8(aperto_));
    aperto_.clear();
  }

  const std::string& s_;
  std::size_t i_ = 0;
  bool a_capo_ = true;
  std::string aperto_;
  std::vector<Testo> trovati_;
};

// Cuts every occurrence of the literal out of the text. A short one must stand by itself, as a word does.
void Togli(Testo& testo, const Testo& letterale) {
  constexpr std::size_t intero_fino_a = 6;
  const bool corto = Lettere(letterale) < intero_fino_a;
  for (auto dove = testo.find(letterale); dove != Testo::npos; dove = testo.find(letterale, dove + 1)) {
    const auto fine = dove + letterale.size();
    const bool in_parola = (dove > 0 && Lettera(testo[dove - 1]) && Lettera(letterale.front())) ||
                           (fine < testo.size() && Lettera(testo[fine]) && Lettera(letterale.back()));
    if (corto && in_parola) continue;
    testo.replace(dove, letterale.size(), letterale.size(), '\n');
  }
}

std::vector<Testo> Parole(const Testo& testo) {
  std::vector<Testo> parole;
  auto qui = testo.begin();
  while (qui != testo.end()) {
    const auto inizio = std::find_if(qui, testo.end(), Lettera);
    qui = std::find_if_not(inizio, testo.end(), Lettera);
    if (static_cast<std::size_t>(qui - inizio) >= lettere_minime) parole.emplace_back(inizio, qui);
  }
  return parole;
}

bool Di_Comando(char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t'; }

}  // namespace

std::vector<Testo> Letterali(const std::string& sorgente) { return Lettore(sorgente).leggi(); }

Testi_Noti::Testi_Noti(std::vector<Testo> letterali) : letterali_(std::move(letterali)) {
  std::erase_if(letterali_, [](const Testo& testo) { return Lettere(testo) < lettere_minime; });
  std::sort(letterali_.begin(), letterali_.end(), [](const Testo& a, const Testo& b) {
    return a.size() != b.size() ? a.size() > b.size() : a < b;
  });
  letterali_.erase(std::unique(letterali_.begin(), letterali_.end()), letterali_.end());
}

Testi_Noti Testi_Noti::Dei_Sorgenti(const Percorso& radice) {
  std::vector<Testo> tutti;
  for (const char* stanza : stanze) {
    for (const auto& voce : fs::recursive_directory_iterator(radice / stanza)) {
      if (voce.path().extension() != ".cpp" && voce.path().extension() != ".h") continue;
      std::ifstream flusso(voce.path(), std::ios::binary);
      const std::string sorgente{std::istreambuf_iterator<char>(flusso), {}};
      for (Testo& uno : Letterali(sorgente)) tutti.push_back(std::move(uno));
    }
  }
  return Testi_Noti(std::move(tutti));
}

Testo Testi_Noti::Sconosciuto(const Testo& messaggio, const std::function<Testo()>& dati) const {
  if (std::any_of(messaggio.begin(), messaggio.end(), Di_Comando)) return "caratteri di comando";
  Testo resto = messaggio;
  for (const Testo& letterale : letterali_)
    if (letterale.size() <= resto.size()) Togli(resto, letterale);
  const bool nostro = resto != messaggio;
  Testo tutti;
  const auto nei_dati = [&](Vista parola) {
    if (tutti.empty()) tutti = dati() + " ";
    return tutti.find(parola) != Testo::npos || Contiene(tutti, parola);
  };
  for (const Vista parola : mai)
    if (resto.find(parola) != Testo::npos && !nei_dati(parola)) return Testo(parola);
  for (const Testo& parola : Parole(resto))
    if (!nei_dati(parola)) return parola;
  // Data alone: a line of a list that is shown whole.
  if (!nostro && !nei_dati(messaggio.substr(0, messaggio.find('\n')))) return "nessun testo del programma";
  return {};
}

}  // namespace operatori
