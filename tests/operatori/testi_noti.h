#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/disco.h"
#include "core/testo.h"

// Whether a message is one of ours. A message is put together from literals of the program's sources, and
// from data: what the firm's files hold, what was keyed, names of files, what the machine says of an error.
namespace operatori {

// The literals of a C++ source as Windows-1252, neighbours joined; no comments, no #include lines.
std::vector<Testo> Letterali(const std::string& sorgente);

class Testi_Noti {
 public:
  explicit Testi_Noti(std::vector<Testo> letterali);
  // Those of the rooms' sources under that folder, logic and windows.
  static Testi_Noti Dei_Sorgenti(const Percorso& radice);

  // What in the message is neither literal nor data, or what no message may hold: empty when it is known.
  // `dati` is asked for all data, as one text, only where literals don't explain it all.
  Testo Sconosciuto(const Testo& messaggio, const std::function<Testo()>& dati) const;
  std::size_t quanti() const { return letterali_.size(); }

 private:
  std::vector<Testo> letterali_;  // longest first
};

}  // namespace operatori
