#include "documents/numeri.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/numeri.h"

namespace {

constexpr Vista marchio_ds = "(ds)", marchio_ddt = "(ddt)";

Vista Marchio(TipoDoc tipo) { return tipo == TipoDoc::DDT ? marchio_ddt : marchio_ds; }

// Followed by a dash as the keys of every list: "007 (ds)" so stands before "007".
Testo Chiave(Vista testo) { return Minuscolo(testo) + " - "; }

void Ordina(ListaDocumenti& lista, Testo VoceDoc::*campo, bool crescente) {
  std::vector<Testo> chiavi;
  chiavi.reserve(lista.size());
  for (const VoceDoc& voce : lista) chiavi.push_back(Chiave(voce.*campo));
  std::vector<std::size_t> ordine(lista.size());
  std::iota(ordine.begin(), ordine.end(), std::size_t{0});
  std::stable_sort(ordine.begin(), ordine.end(), [&](std::size_t a, std::size_t b) {
    return crescente ? chiavi[a] < chiavi[b] : chiavi[b] < chiavi[a];
  });
  ListaDocumenti nuova;
  nuova.reserve(lista.size());
  for (const std::size_t i : ordine) nuova.push_back(std::move(lista[i]));
  lista = std::move(nuova);
}

// The list during a repair: sorted all the time, so that a change moves one entry instead of sorting all, and
// a walk goes on where the last change was instead of at the top.
class Riparazione {
 public:
  explicit Riparazione(const ListaDocumenti& lista) {
    voci_.reserve(lista.size());
    for (const VoceDoc& voce : lista) voci_.push_back(Fai(voce));
    for (Voce& voce : voci_) ordine_.push_back(&voce);
    Ordina();
  }
  Riparazione(const Riparazione&) = delete;
  Riparazione& operator=(const Riparazione&) = delete;

  // Every number in its form; an entry without one can wait for the next step.
  void Formatta() {
    for (Voce& voce : voci_)
      if (voce.numero > 0) Metti(voce, voce.numero, LeggiMarchi(voce.testi.Numero));
  }

  void Comincia(int primo) {
    if (voci_.size() > 1) {
      for (Voce& voce : voci_)
        if (voce.numero == 0 || voce.numero < primo) Metti(voce, Numero_Non_Valido);
      Ordina();
    }
    if (voci_.empty() || ordine_.front()->numero == primo) return;
    Metti(*ordine_.front(), primo);
    Ordina();
  }

  // The first of two equal ones keeps its number.
  void Togli_Doppi() {
    const auto doppio = [](const Voce* a, const Voce* b) {
      return a->numero == b->numero && a->numero != Numero_Non_Valido;
    };
    for (std::size_t i = Prima_Coppia(0, doppio); i < ordine_.size();)
      i = Prima_Coppia(std::min(i, Cambia(i + 1, Numero_Non_Valido)), doppio);
  }

  // The lowest hole goes to the last of the list. Below 1000 each pass closes one hole for good; above, it
  // may sort in front of what it should follow, and then this has no end.
  bool Chiudi_Buchi() {
    const auto passi_massimi = 20 * ordine_.size() + 100;
    const auto buco = [](const Voce* a, const Voce* b) { return b->numero != a->numero + 1; };
    std::size_t i = Prima_Coppia(0, buco);
    for (std::size_t passo = 0; i < ordine_.size(); ++passo) {
      if (passo == passi_massimi) return false;
      i = Prima_Coppia(std::min(i, Cambia(ordine_.size() - 1, ordine_[i]->numero + 1)), buco);
    }
    return true;
  }

  ListaDocumenti Lista() const {
    ListaDocumenti lista;
    lista.reserve(voci_.size());
    for (const Voce* voce : ordine_) lista.push_back(voce->testi);
    return lista;
  }

 private:
  struct Voce {
    VoceDoc testi;
    std::int64_t numero = 0;
    Testo chiave;
  };

  static bool Prima(const Voce* a, const Voce* b) { return a->chiave < b->chiave; }

  static Voce Fai(const VoceDoc& voce) { return {voce, NumeroDoc(voce.Numero), Chiave(voce.Numero)}; }

  static void Metti(Voce& voce, std::int64_t numero, MarchiDoc marchi = {}) {
    voce.testi.Numero = TestoNumero(numero, marchi);
    voce = Fai(voce.testi);
  }

  void Ordina() { std::stable_sort(ordine_.begin(), ordine_.end(), Prima); }

  // Place of the first of two neighbours that stand so, where those before place `cambiata` are known not to
  // but for the last; beyond the end for none.
  template <class Coppia>
  std::size_t Prima_Coppia(std::size_t cambiata, Coppia coppia) const {
    const auto da = ordine_.begin() + static_cast<std::ptrdiff_t>(cambiata > 0 ? cambiata - 1 : 0);
    return static_cast<std::size_t>(std::adjacent_find(da, ordine_.end(), coppia) - ordine_.begin());
  }

  // A new number for the entry at that place, which then goes where a sort would put it: its new place.
  std::size_t Cambia(std::size_t posto, std::int64_t numero) {
    const auto voce = ordine_.begin() + static_cast<std::ptrdiff_t>(posto);
    Metti(**voce, numero);
    const auto prima = std::upper_bound(ordine_.begin(), voce, *voce, Prima);
    if (prima != voce) {
      std::rotate(prima, voce, voce + 1);
      return static_cast<std::size_t>(prima - ordine_.begin());
    }
    const auto dopo = std::lower_bound(voce + 1, ordine_.end(), *voce, Prima);
    std::rotate(voce, voce + 1, dopo);
    return static_cast<std::size_t>(dopo - ordine_.begin()) - 1;
  }

  std::vector<Voce> voci_;
  std::vector<Voce*> ordine_;
};

}  // namespace

int NumeroDoc(Vista testo) { return std::max(0, Intero(testo, ',')); }

MarchiDoc LeggiMarchi(Vista testo) { return {Contiene(testo, marchio_ds), Contiene(testo, marchio_ddt)}; }

Testo TestoNumero(std::int64_t numero, MarchiDoc marchi) {
  Testo testo = Pad_Sinistra(std::to_string(numero), 3, '0');
  if (marchi.ds) testo.append(" ").append(marchio_ds);
  if (marchi.ddt) testo.append(" ").append(marchio_ddt);
  return testo;
}

Testo ConMarchio(Vista testo, TipoDoc tipo) {
  const Vista marchio = Marchio(tipo);
  testo = Pulito(testo);
  if (Contiene(testo, marchio)) return Testo(testo);
  const std::size_t dove = tipo == TipoDoc::Sanitario ? Minuscolo(testo).find(marchio_ddt) : Vista::npos;
  const Vista davanti = Pulito(testo.substr(0, dove));
  const Vista dietro = dove == Vista::npos ? Vista() : testo.substr(dove);
  Testo nuovo(davanti);
  if (!nuovo.empty()) nuovo += ' ';
  nuovo += marchio;
  if (!dietro.empty()) nuovo.append(" ").append(dietro);
  return nuovo;
}

Testo SenzaMarchi(Vista testo) { return Testo(Pulito(testo.substr(0, testo.find('(')))); }

bool QualcunoStampato(const ListaDocumenti& lista) {
  return std::any_of(lista.begin(), lista.end(),
                     [](const VoceDoc& voce) { return voce.Numero.find('(') != Testo::npos; });
}

void OrdinaPerCliente(ListaDocumenti& lista) { Ordina(lista, &VoceDoc::Cliente, true); }

void OrdinaPerNumero(ListaDocumenti& lista, bool crescente) { Ordina(lista, &VoceDoc::Numero, crescente); }

void NumeraMancanti(ListaDocumenti& lista) {
  std::int64_t massimo = 0;
  for (const VoceDoc& voce : lista) massimo = std::max<std::int64_t>(massimo, NumeroDoc(voce.Numero));
  for (VoceDoc& voce : lista) {
    const Vista vecchio = Pulito(voce.Numero);
    if (!vecchio.empty() && vecchio.front() != '(') continue;
    Testo nuovo = TestoNumero(++massimo);
    if (!vecchio.empty()) nuovo.append(" ").append(vecchio);
    voce.Numero = std::move(nuovo);
  }
}

void NumeraDa(ListaDocumenti& lista, std::int64_t primo) {
  for (VoceDoc& voce : lista) voce.Numero = TestoNumero(primo++);
}

bool RiparaNumeri(ListaDocumenti& lista, int primo) {
  Riparazione riparazione(lista);
  riparazione.Formatta();
  riparazione.Comincia(primo);
  riparazione.Togli_Doppi();
  if (!riparazione.Chiudi_Buchi()) return false;
  lista = riparazione.Lista();
  return true;
}
