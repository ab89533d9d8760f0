#include <cerrno>

#include "tests/guasti/chiamate.h"
#include "tests/guasti/salvataggi.h"

// Each save of each room, with each call to the disk failing in turn: the operator is told, file and table
// are as before, and a later save works.

namespace {

using Foto = std::map<std::string, std::string>;

// The calls of the save, and what it leaves when nothing fails.
struct Buon_Esito {
  std::vector<std::string> chiamate;
  Foto prima, dopo;
  bool un_solo_file = false;
  int ultima_scrittura = 0;  // the place of the call that put the last file into its place
};

std::size_t Diversi(const Foto& a, const Foto& b) {
  std::size_t quanti = 0;
  for (const auto& [nome, contenuto] : a) {
    const auto altro = b.find(nome);
    quanti += altro == b.end() || altro->second != contenuto ? 1 : 0;
  }
  for (const auto& [nome, contenuto] : b) quanti += a.contains(nome) ? 0 : 1;
  return quanti;
}

// The calls that put a file in its place, and make that last.
constexpr const char* mettono_al_posto[] = {"rename", "renameat2", "unlink", "mkdir", "fsync"};

Buon_Esito Senza_Guasti(const Salvataggio& salvataggio) {
  Buon_Esito esito;
  Scena scena;
  const auto salva = salvataggio.prepara(scena);
  esito.prima = scena.Foto();
  regia().Registra();
  const bool fatto = salva();
  regia().Ferma();
  EXPECT_TRUE(fatto) << testing::PrintToString(scena.macchina.messaggi);
  esito.chiamate = regia().Chiamate();
  esito.dopo = scena.Foto();
  esito.un_solo_file = Diversi(esito.prima, esito.dopo) == 1;
  for (std::size_t i = 0; i < esito.chiamate.size(); ++i)
    if (std::ranges::find(mettono_al_posto, esito.chiamate[i]) != std::end(mettono_al_posto))
      esito.ultima_scrittura = static_cast<int>(i) + 1;
  return esito;
}

// Every file is the one of before or the one of after, none is anything else.
void Vecchi_O_Nuovi(const Foto& adesso, const Buon_Esito& esito, const std::string& dove) {
  const auto uguale = [](const Foto& foto, const std::string& nome, const std::string& contenuto) {
    const auto trovato = foto.find(nome);
    return trovato != foto.end() && trovato->second == contenuto;
  };
  for (const auto& [nome, contenuto] : adesso)
    EXPECT_TRUE(uguale(esito.prima, nome, contenuto) || uguale(esito.dopo, nome, contenuto))
        << dove << " " << nome;
  for (const auto& [nome, contenuto] : esito.prima)
    EXPECT_TRUE(adesso.contains(nome) || !esito.dopo.contains(nome)) << dove << " manca " << nome;
}

class Guasti : public testing::TestWithParam<Salvataggio> {};

void Prova(const Salvataggio& salvataggio, const Buon_Esito& esito, int posto, Guasto_Chiamata guasto) {
  const std::string dove = std::to_string(posto) + " " + esito.chiamate[static_cast<std::size_t>(posto - 1)] +
                           " errno " + std::to_string(guasto.errore) + (guasto.a_meta ? " a meta'" : "") +
                           (guasto.per_sempre ? " per sempre" : "");
  Scena scena;
  const auto salva = salvataggio.prepara(scena);
  ASSERT_EQ(scena.Foto(), esito.prima) << dove;
  const Testo tabelle = scena.Tabelle();
  const std::size_t detti = scena.macchina.messaggi.size();
  regia().Guasta(posto, guasto);
  const bool fatto = salva();
  regia().Ferma();
  ASSERT_TRUE(regia().Scattato()) << dove;

  const Foto adesso = scena.Foto();
  if (!salvataggio.si_distrugge) Vecchi_O_Nuovi(adesso, esito, dove);
  const bool detto = !fatto || scena.macchina.messaggi.size() > detti;
  if (!detto && !salvataggio.taciuto) {
    EXPECT_EQ(adesso, esito.dopo) << "taciuto, e non salvato: " << dove;
  }
  // What was saved and then can't be read back is told, and stays saved.
  const bool salvato_e_non_riletto = posto > esito.ultima_scrittura && adesso == esito.dopo;
  if (!fatto && !salvato_e_non_riletto) {
    if (esito.un_solo_file && !guasto.per_sempre) {
      EXPECT_EQ(adesso, esito.prima) << dove;
    }
    if (adesso == esito.prima) {
      EXPECT_EQ(scena.Tabelle(), tabelle) << dove;
    }
  }
  // A name that a dead disk didn't give back is done already.
  if (fatto || (guasto.per_sempre && adesso == esito.dopo)) return;
  EXPECT_TRUE(salva()) << "poi non salva: " << dove << testing::PrintToString(scena.macchina.messaggi);
  if (!guasto.per_sempre) {
    EXPECT_EQ(scena.Foto(), esito.dopo) << "salvato poi: " << dove;
  }
}

TEST_P(Guasti, AdOgniChiamata) {
  const Buon_Esito esito = Senza_Guasti(GetParam());
  ASSERT_GT(Diversi(esito.prima, esito.dopo), 0U) << "non salva nulla";
  for (int posto = 1; posto <= static_cast<int>(esito.chiamate.size()); ++posto) {
    const std::string& chiamata = esito.chiamate[static_cast<std::size_t>(posto - 1)];
    // Whether a file is there can't be asked of a disk that is broken; what opens it then tells.
    if (chiamata == "stat") continue;
    for (const int errore : {ENOSPC, EIO, EACCES}) Prova(GetParam(), esito, posto, {errore});
    Prova(GetParam(), esito, posto, {EIO, false, true});
    if (chiamata == "write") Prova(GetParam(), esito, posto, {ENOSPC, true});
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Salvataggi, Guasti, testing::ValuesIn(Salvataggi()),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace
