#include <map>
#include <regex>

#include "accounts/zvendita.h"
#include "tests/accounts/conti_di_prova.h"

// The program dies before any one of its writes to the disk. Whatever is on paper by then must agree with
// what the next start finds: a number that was printed for one supplier never goes to another.

namespace {

struct Morte {};  // the process ends here

struct Ditta_Che_Muore : Conti_Di_Prova {
  // From the next write that shall fail on nothing more is done.
  void Muori_Alla_Scrittura(int quale) {
    programma.disco.guasto = [this, quale](const Percorso&) {
      if (++scritture == quale) throw Morte{};
      return 0;
    };
  }
  // The suppliers' numbers on the pages that came out.
  std::map<Testo, int> Su_Carta() const {
    static const std::regex documento(R"re(documento "20250314 Conto Vendita (\d+) (\d+)" Registro)re");
    std::map<Testo, int> numeri;
    for (const Testo& riga : registro.righe) {
      std::smatch parti;
      if (std::regex_match(riga, parti, documento)) numeri[parti[2]] = std::stoi(parti[1]);
    }
    return numeri;
  }
  // What the next start finds.
  void Riparti() {
    programma.disco.guasto = nullptr;
    macchina.risposte.clear();
    macchina.testi.clear();
    zvendita = {};
    programma.preferenze = Preferenze_Predefinite();
    Carica_Giorno(programma);
    Leggi_Ultimi_Numeri(programma);
  }
  Testo Codice(const Testo& fornitore) const { return CercaFornitoreCV(programma, fornitore)->Codice; }
  int scritture = 0;
};

struct Lavoro {
  const char* nome;
  bool automatici;
  std::function<void(Ditta_Che_Muore&)> fai;
};

void Stampa_Tutti(Ditta_Che_Muore& f) {
  f.zvendita.Check1.segnata = true;
  f.macchina.risposte.push_back(true);
  StampaCV(f.programma, f.zvendita);
}

void Prepara(Ditta_Che_Muore& f, bool automatici) {
  f.programma.preferenze.FlagNumCVAutomatica = automatici;
  for (const char* fornitore : {"Cozze Srl", "Adriatica", "Baldo", "Adriatica"})
    f.Vendita(Riga_CV(fornitore, "Orata", "1", "1"));
  bool errore = false;
  Salva_Giorno(f.programma, errore);
}

void Controlla(Ditta_Che_Muore& f) {
  const auto carta = f.Su_Carta();
  f.Riparti();
  ASSERT_EQ(f.programma.Vet_Tabella.Righe(), 4);
  for (const auto& [fornitore, numero] : carta) EXPECT_GE(f.programma.Ultimo_CV, numero);
  f.Apri();
  for (const Conto_CV& conto : f.zvendita.Tabella_CV) {
    const Testo codice = f.Codice(conto.Fornitore);
    for (const auto& [altro, numero] : carta)
      EXPECT_TRUE(altro == codice || NumeroCV(conto.NCV, ',') != numero) << conto.Fornitore << " " << numero;
  }
}

const Lavoro lavori[] = {
    {"si apre e si stampa tutto", true,
     [](Ditta_Che_Muore& f) {
       f.Apri();
       Stampa_Tutti(f);
     }},
    {"si apre, si salva la numerazione e si stampa", true,
     [](Ditta_Che_Muore& f) {
       f.Apri();
       f.macchina.risposte = {true};
       SalvaNumerazione(f.programma, f.zvendita);
       Stampa_Tutti(f);
     }},
    {"si rinumera piu' in alto e si stampa", true,
     [](Ditta_Che_Muore& f) {
       f.Apri();
       f.macchina.risposte = {true, true};
       f.macchina.testi = {"700"};
       Rinumera(f.programma, f.zvendita);
       Stampa_Tutti(f);
     }},
    {"si rinumera senza salvare e si stampa", true,
     [](Ditta_Che_Muore& f) {
       f.Apri();
       f.macchina.risposte = {true, false};
       f.macchina.testi = {"700"};
       Rinumera(f.programma, f.zvendita);
       Stampa_Tutti(f);
     }},
    {"i numeri a mano, uno per volta", false,
     [](Ditta_Che_Muore& f) {
       f.Apri();
       int numero = 77;
       for (const Vista fornitore : {"Baldo", "Adriatica", "Cozze Srl"}) {
         for (std::size_t i = 0; i < f.zvendita.Tabella_CV.size(); ++i)
           if (f.zvendita.Tabella_CV[i].Fornitore == fornitore) SceltaConto(f.zvendita, static_cast<int>(i));
         f.zvendita.Text1[Campo_NCV].testo = std::to_string(numero++);
         f.macchina.risposte = {true, true};
         StampaCV(f.programma, f.zvendita);
       }
     }},
};

TEST(Crollo, NessunNumeroDellaCartaVaAUnAltro) {
  for (const Lavoro& lavoro : lavori) {
    for (int quale = 1; quale < 200; ++quale) {
      SCOPED_TRACE(Testo(lavoro.nome) + ", scrittura " + std::to_string(quale));
      Ditta_Che_Muore f;
      Prepara(f, lavoro.automatici);
      f.Muori_Alla_Scrittura(quale);
      bool morta = false;
      try {
        lavoro.fai(f);
      } catch (const Morte&) {
        morta = true;
      }
      Controlla(f);
      if (testing::Test::HasFatalFailure()) return;
      if (!morta) {
        EXPECT_GT(quale, 5);  // the work did write
        break;
      }
      ASSERT_LT(quale, 199);
    }
  }
}

}  // namespace
