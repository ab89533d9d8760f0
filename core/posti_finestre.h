#pragma once

#include <map>
#include <optional>

#include "core/disco.h"

// Where a window stands on the screen, in the toolkit's points; `massima`: it fills the screen, and the rest
// is what it goes back to.
struct Posto_Finestra {
  int sinistra = 0, alto = 0, larghezza = 0, altezza = 0;
  bool massima = false;
  bool operator==(const Posto_Finestra&) const = default;
};

// The windows that the operator has moved or resized, for each firm: a file of the firm's own folder, one
// line a window, the name and the place joined by TAB. Lines of windows that this program doesn't know stay.
class Posti_Finestre {
 public:
  // `disco` must outlive this. A file that is there and can't be read is left alone for good.
  Posti_Finestre(const Disco& disco, const Percorso& cartella);

  std::optional<Posto_Finestra> Posto(Vista finestra) const;
  // Writes the file where the place is a new one. After a failure, whose errno is given, the place holds
  // until the program ends, and the next window that is remembered writes it too.
  int Ricorda(Vista finestra, const Posto_Finestra& posto);

 private:
  Testo Contenuto() const;

  const Disco& disco_;
  Percorso file_;
  bool ignoti_ = false;
  std::map<Testo, Posto_Finestra> posti_;
};

// The same window where it can be seen whole: not larger than the screen (`schermo`, its place), and inside
// it.
Posto_Finestra Dentro_Lo_Schermo(const Posto_Finestra& posto, const Posto_Finestra& schermo);
