#include <cerrno>
#include <gmock/gmock.h>

#include "accounts/file_conto.h"
#include "entry/elenco_macro.h"
#include "invoices/file_fatture.h"
#include "invoices/lear.h"
#include "invoices/pagine_testo.h"
#include "invoices/rapporto.h"
#include "invoices/transazioni.h"
#include "primanota/esporta.h"
#include "printing/nomi_stampe.h"
#include "start/copia_giorno.h"
#include "start/ditte.h"
#include "start/strumenti.h"
#include "stats/controllo_cv.h"
#include "stats/rxfor.h"
#include "tests/guasti/scena.h"
#include "tests/luogo/occhio.h"
#include "transfers/sceltafile.h"

// Every way by which a text of a file or of a field becomes a name on the disk or a program, with names made
// to lead out of the firm's folder: outside, nothing is read, made, changed or started. Whatever the operator
// chooses himself in a list of drives and folders (SceltaFile, xdisk, a file dropped on the window) may lie
// anywhere.

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

const Testo Segreto = "segreto";

// Says OK to everything, types the hostile name once, and keeps what it should start or show.
class Macchina_Ostile : public Piattaforma_Finta {
 public:
  std::optional<Testo> digitato;
  std::vector<Percorso> avviati;

  bool Domanda(const Testo& testo, Icona, const Testo&) override {
    domande.push_back(testo);
    return true;
  }
  std::optional<Testo> Chiedi(const Testo& testo, const Testo&, const Testo&) override {
    domande.push_back(testo);
    return std::exchange(digitato, std::nullopt);
  }
  bool Avvia_Programma(const Percorso& programma, const std::vector<Testo>&) override {
    avviati.push_back(programma);
    return true;
  }
};

struct Scena_Ostile {
  Cartella_Temporanea base;
  Percorso ditta = base / "ditta", fuori = base / "fuori";
  Macchina_Ostile macchina;
  Registro_Pagine registro;
  Registratore stampante{macchina.stampante, registro};
  Programma programma{macchina};
  Edita edita;
  Testo in_memoria;  // what a way has read of the files

  Scena_Ostile() {
    static const Scena modello;
    fs::copy(modello.cartella.percorso, ditta, fs::copy_options::recursive);
    for (const char* nome : {"sentinella", "sentinella.txt", "sentinella.dat", "20250314.txt", "01.txt",
                             "03140007.txt", "programma", "programma.exe"})
      base.Metti("fuori/" + std::string(nome), Segreto);
    base.Metti("sentinella.txt", Segreto);
    Apri_Giornata(programma, ditta, ',');
    macchina.dispositivo = &stampante;
    Leggi_Preferenze(programma);
    Leggi_Ultimi_Numeri(programma);
    Leggi_Liste(programma);
    Carica_Giorno(programma);
  }

  // Names, kinds and contents outside.
  std::map<std::string, std::string> Foto() const {
    std::map<std::string, std::string> foto;
    for (const auto& voce : fs::recursive_directory_iterator(base.percorso)) {
      const std::string nome = voce.path().lexically_relative(base.percorso).string();
      if (nome.starts_with("ditta/")) continue;
      foto[nome] = voce.is_regular_file() ? base.Contenuto(nome) : "";
    }
    return foto;
  }
};

Documento_Fattura Documento_Ostile(const Testo& nome, TipoFattura tipo) {
  Documento_Fattura documento;
  documento.tipo = tipo;
  documento.Numero = documento.RifDocumento = documento.Data = documento.Data_AAAAMMGG = nome;
  documento.codice = documento.cliente.Codice = documento.cliente.Nome = nome;
  documento.voci.resize(1);
  return documento;
}

void Macro_Memorizzata(Scena_Ostile& s, const Testo& nome) {
  for (const CampoRiga campo : {CampoRiga::Fornitore, CampoRiga::Specie})
    Campo(s.edita, campo).testo = "Mare Blu";
  s.macchina.digitato = nome;
  MemorizzaFornitore(s.programma, s.edita);
  s.macchina.digitato = nome;
  MemorizzaSpecie(s.programma, s.edita);
}

void Macro_Eseguita(Scena_Ostile& s, const Testo& nome) {
  EseguiMacroFornitore(s.programma, s.edita, nome);
  EseguiMacroSpecie(s.programma, s.edita, nome);
  s.in_memoria += Campo(s.edita, CampoRiga::Fornitore).testo + Campo(s.edita, CampoRiga::Specie).testo;
}

void Macro_Rinominata_E_Tolta(Scena_Ostile& s, const Testo& nome) {
  Elenco_Macro elenco;
  Apri_ElencoMacro(s.programma, elenco, Tipo_Macro::Specie, false);
  if (elenco.tabella.empty()) {
    s.base.Metti("ditta/PREDEF/01.txt", "Orata\r\n");
    Leggi_ElencoMacro(s.programma, elenco);
  }
  elenco.List1.scelta = 0;
  s.macchina.digitato = nome;
  RinominaMacro(s.programma, elenco);
  elenco.tabella.assign(1, {});
  elenco.tabella[0][colonna_macro::Codice] = nome;
  elenco.List1.scelta = 0;
  EliminaMacro(s.programma, elenco);
}

void Documenti_Su_File(Scena_Ostile& s, const Testo& nome) {
  s.programma.preferenze.Codice_Commissionario = nome;
  const Percorso cartella = CartellaGiornoFatture(s.programma);
  s.programma.disco.Crea_Cartella(cartella);
  for (const TipoFattura tipo : {TipoFattura::Fattura, TipoFattura::Nota}) {
    const auto pagine = PagineDocumento(s.programma, Documento_Ostile(nome, tipo), {});
    ScriviPagineTesto(s.programma, cartella, pagine);
    SostituisciDocumenti(s.programma.disco, cartella, pagine);
    StampaFileTesto(s.programma, cartella / In_Percorso(pagine.front().nome), tipo);
  }
}

void Rapporto_Transazioni_Lear(Scena_Ostile& s, const Testo& nome) {
  s.programma.preferenze.Codice_Commissionario = nome;
  EXPECT_EQ(ScriviReport(s.programma, TipoFattura::Fattura, {}).errore, 0);
  EXPECT_EQ(ScriviTransazioni(s.programma, nome, {}).errore, 0);
  CancellaAltreTransazioni(s.programma);
  ScriviLear(s.programma, {Documento_Ostile(nome, TipoFattura::Fattura)});
}

void Conto_Su_File(Scena_Ostile& s, const Testo& nome) {
  for (const Testo& data : {nome, Testo("14/03/2025")})
    if (const auto file = NomeFileConto(data, nome, ','))
      ScriviFileConto(s.programma.disco, s.programma.Cartella_Anno, *file, "x");
}

void Giorno_Scelto(Scena_Ostile& s, const Testo& nome) {
  for (const bool nell_anno : {true, false}) {
    B_Inizio inizio;
    Carica_Inizio(s.programma, inizio);
    (nell_anno ? inizio.Text3 : inizio.Text1).testo = nome;
    inizio.File1.Riempi({nome});
    inizio.File1.scelta = 0;
    MostraFile1(s.programma, inizio);
    TastoInizio(s.programma, inizio, {.tasto = Tasto::F2, .maiuscole = true});
    const Percorso chiavetta = s.ditta / "chiavetta";
    for (const bool dalla : {true, false})
      CopiaGiorno(s.programma, inizio, dalla, [&](ModoCopia, const Percorso&) {
        return DriveScelto{"E:", chiavetta, false};
      });
    Apri_Giorno(s.programma, inizio);
  }
  for (const LedgerRow& riga : s.programma.Vet_Tabella.righe) s.in_memoria += riga[CampoRiga::Fornitore];
}

void Giorno_In_Lavoro(Scena_Ostile& s, const Testo& nome) {
  s.programma.Data_AAAAMMGG = s.programma.Anno_Lavoro = s.programma.Data_Giorno = nome;
  Scegli_File_Giorno(s.programma);
  Carica_Giorno(s.programma);
  bool errore = false;
  Salva_Giorno(s.programma, errore);
  Cartella_Fatture(s.programma);
  Cancella_File_Dat(s.programma, nome);
}

void Esportazione_Al_Mercato(Scena_Ostile& s, const Testo& nome) {
  s.programma.Data_AAAAMMGG = nome;
  Scegli_File_Giorno(s.programma);
  EsportaPrimaNota(s.programma, false, {});
}

void Programma_Convertitore(Scena_Ostile& s, const Testo& nome) {
  s.base.Metti("ditta/ProgDati.txt", nome + "\r\n");
  ConvertiDati(s.programma);
  LanciaProgramma(s.programma, nome);
}

void Controllo_Conti(Scena_Ostile& s, const Testo& nome) {
  ControlloCV schermo;
  Apri_Controllo(s.programma, schermo);
  schermo.Text1.testo = nome;
  Leggi_Controllo(s.programma, schermo);
  for (const RigaControllo& riga : schermo.Tabella_Controllo) s.in_memoria += riga[controllo::Fornitore];
}

void Saldo_Di_Un_Periodo(Scena_Ostile& s, const Testo& nome) {
  for (const bool dal : {true, false}) {
    RXFor schermo;
    Apri_RXFor(s.programma, schermo);
    schermo.Check1.segnata = true;
    (dal ? schermo.Text1 : schermo.Text2).testo = nome;
    Calcola_Saldo(s.programma, schermo);
    schermo.da = schermo.a = nome;
    schermo.ListaSaldo.Riempi({"una riga"});
    Salva_Saldo(s.programma, schermo);
  }
}

void Stampa_In_PDF(Scena_Ostile& s, const Testo& nome) {
  const Documento documenti[] = {{nome, "Fattura", "1", "00101"},
                                 {"20250314", nome, "1", "00101"},
                                 {"20250314", "Fattura", nome, "00101"},
                                 {"20250314", "Fattura", "1", nome},
                                 {nome, nome, nome, nome}};
  s.programma.disco.Crea_Cartella(s.ditta / "Stampe");
  for (const Documento& documento : documenti) {
    const Percorso file = File_Stampa(s.programma.disco, s.ditta / "Stampe", documento);
    EXPECT_EQ(file.parent_path(), s.ditta / "Stampe");
    EXPECT_EQ(s.programma.disco.Sostituisci(file, "%PDF"), 0) << file;
  }
}

void File_Da_Scegliere(Scena_Ostile& s, const Testo& nome) {
  SceltaFile schermo;
  Apri_SceltaFile(s.programma, schermo, "proposto");
  schermo.Text1.testo = nome;
  Conferma_File(s.programma, schermo);
  if (schermo.FileScelto) s.programma.disco.Sostituisci(*schermo.FileScelto, "x");
}

void Ditta_Nuova(Scena_Ostile& s, const Testo& nome) {
  if (const auto ditta = Nome_Di_Ditta(nome))
    s.programma.disco.Crea_Cartella(Unisci_Percorso(s.ditta / "Velmara", *ditta));
}

void Nome_Qualunque(Scena_Ostile& s, const Testo& nome) {
  const Percorso file = Unisci_Percorso(s.ditta, nome);
  s.in_memoria += s.programma.disco.Leggi(file).value_or("");
  s.programma.disco.Esiste_File(file);
  s.programma.disco.Cancella(Unisci_Percorso(s.ditta, "2025/" + nome));
  s.programma.disco.Sovrascrivi(Unisci_Percorso(s.ditta, "2025/" + nome), "x");
}

struct Via {
  const char* nome;
  void (*percorri)(Scena_Ostile&, const Testo&);
  friend void PrintTo(const Via& via, std::ostream* dove) { *dove << via.nome; }
};

const Via vie[] = {{"Macro_Memorizzata", Macro_Memorizzata},
                   {"Macro_Eseguita", Macro_Eseguita},
                   {"Macro_Rinominata_E_Tolta", Macro_Rinominata_E_Tolta},
                   {"Documenti_Su_File", Documenti_Su_File},
                   {"Rapporto_Transazioni_Lear", Rapporto_Transazioni_Lear},
                   {"Conto_Su_File", Conto_Su_File},
                   {"Giorno_Scelto", Giorno_Scelto},
                   {"Giorno_In_Lavoro", Giorno_In_Lavoro},
                   {"Esportazione_Al_Mercato", Esportazione_Al_Mercato},
                   {"Programma_Convertitore", Programma_Convertitore},
                   {"Controllo_Conti", Controllo_Conti},
                   {"Saldo_Di_Un_Periodo", Saldo_Di_Un_Periodo},
                   {"Stampa_In_PDF", Stampa_In_PDF},
                   {"File_Da_Scegliere", File_Da_Scegliere},
                   {"Ditta_Nuova", Ditta_Nuova},
                   {"Nome_Qualunque", Nome_Qualunque}};

std::vector<Testo> Nomi_Ostili(const Scena_Ostile& s) {
  const Testo fuori = Testo_Percorso(s.fuori);
  std::vector<Testo> nomi = {"..",
                             ".",
                             "...",
                             "",
                             " ",
                             "../fuori",
                             "../../fuori",
                             "../fuori/sentinella",
                             "../fuori/sentinella.txt",
                             "../../fuori/sentinella",
                             "../../../fuori/sentinella",
                             "../../../../fuori/01",
                             "../../fuori/sentinella.txt",
                             "../fuori/programma",
                             "../fuori/programma.exe",
                             "../fuori/programma.exe un argomento",
                             "..\\fuori\\sentinella",
                             "..\\..\\fuori\\sentinella.txt",
                             "a/../../fuori/sentinella",
                             "2025/../../fuori/sentinella",
                             "./../fuori/sentinella",
                             "/..",
                             "/../fuori",
                             "//../fuori/sentinella",
                             "../..",
                             "../",
                             "/../",
                             "_/../",
                             "/../x",
                             "C:\\fuori\\sentinella",
                             "C:fuori",
                             "\\\\server\\dati",
                             "file:///etc/passwd",
                             "~/sentinella",
                             "%2e%2e/fuori",
                             "*",
                             "?",
                             "CON",
                             "NUL.txt",
                             "$(touch sentinella)",
                             "`touch sentinella`",
                             "; touch sentinella",
                             "| sh",
                             "&& touch sentinella",
                             "-rf",
                             "--help",
                             "x\ny",
                             "\r\n../fuori/sentinella",
                             "\t../fuori/sentinella",
                             "sentinella",
                             "SENTINELLA",
                             "\x81\x8D\x8F\x90\x9D",
                             "20250314/../../../fuori/sentinella"};
  nomi.push_back(fuori + "/sentinella");
  nomi.push_back(fuori + "/sentinella.txt");
  nomi.push_back("/" + fuori + "/programma.exe");
  nomi.emplace_back("..\0", 3);
  nomi.emplace_back("../fuori/sentinella.txt\0", 24);
  nomi.emplace_back("../fuori/sentinella\0x", 21);
  for (const std::size_t lunghezza : {251U, 252U, 255U, 256U, 300U, 5000U}) nomi.emplace_back(lunghezza, 'x');
  nomi.emplace_back(120, '\x80');  // three bytes each on the disk
  nomi.emplace_back(255, '\xE0');
  Testo scala;
  for (int i = 0; i < 60; ++i) scala += "../";
  nomi.push_back(scala + fuori.substr(1) + "/sentinella.txt");
  return nomi;
}

class Nomi : public testing::TestWithParam<Via> {};

TEST_P(Nomi, NessunoEsceDallaDitta) {
  Scena_Ostile s;
  const auto prima = s.Foto();
  for (const Testo& nome : Nomi_Ostili(s)) {
    SCOPED_TRACE(testing::PrintToString(Sinistra(nome, 80)));
    s.in_memoria.clear();
    s.macchina.messaggi.clear();
    occhio().Guarda(s.ditta);
    GetParam().percorri(s, nome);
    occhio().Chiudi();
    EXPECT_THAT(occhio().Fuori(), IsEmpty());
    EXPECT_EQ(s.Foto(), prima);
    EXPECT_THAT(s.in_memoria, testing::Not(HasSubstr(Segreto)));
    for (const auto* percorsi : {&s.macchina.avviati, &s.macchina.aperti})
      for (const Percorso& percorso : *percorsi)
        EXPECT_TRUE(percorso.lexically_normal().native().starts_with(s.ditta.native() + "/")) << percorso;
    if (HasFailure()) return;
    Apri_Giornata(s.programma, s.ditta, ',');
  }
}

INSTANTIATE_TEST_SUITE_P(Vie, Nomi, testing::ValuesIn(vie),
                         [](const auto& via) { return std::string(via.param.nome); });

// The eye would see it: the same calls with a path that leads out.
TEST(Nomi, ChiEsceSiVede) {
  Scena_Ostile s;
  occhio().Guarda(s.ditta);
  EXPECT_EQ(s.programma.disco.Leggi(s.ditta / "../fuori/sentinella.txt"), Segreto);
  EXPECT_EQ(s.programma.disco.Sostituisci(s.fuori / "nuovo", "x"), 0);
  s.programma.disco.Esiste_Cartella(s.base.percorso);
  occhio().Chiudi();
  EXPECT_THAT(occhio().Fuori(), testing::Contains(HasSubstr("open " + (s.ditta / "../fuori").string())));
  EXPECT_THAT(occhio().Fuori(), testing::Contains(HasSubstr("rename")));
}

// A code that no name can hold is told, and what was keyed stays.
TEST(Nomi, UnCodiceCheNonENomeSiDice) {
  Scena_Ostile s;
  Campo(s.edita, CampoRiga::Specie).testo = "Orata";
  for (const char* codice : {"../x", "a\\b", "C:x", "..", "a*b"}) {
    s.macchina.messaggi.clear();
    s.macchina.digitato = codice;
    MemorizzaSpecie(s.programma, s.edita);
    EXPECT_THAT(s.macchina.messaggi, testing::ElementsAre(Difetto_Codice_Macro())) << codice;
    EXPECT_EQ(Campo(s.edita, CampoRiga::Specie).testo, "Orata");
  }
  s.base.Metti("ditta/ProgDati.txt", "../fuori/programma.exe\r\n");
  s.macchina.messaggi.clear();
  ConvertiDati(s.programma);
  ASSERT_EQ(s.macchina.messaggi.size(), 1U);
  EXPECT_THAT(s.macchina.messaggi[0], HasSubstr("non trovato..."));
  EXPECT_FALSE(s.macchina.terminata);
}

// On some machines they are one name, on others two: here one, with the question before the first is lost.
TEST(Nomi, NomiCheDifferisconoPerLeMaiuscoleSonoUnoSolo) {
  Scena_Ostile s;
  for (const char* codice : {"Orate", "ORATE", "orate"}) {
    s.macchina.domande.clear();
    Campo(s.edita, CampoRiga::Specie).testo = codice;
    s.macchina.digitato = codice;
    MemorizzaSpecie(s.programma, s.edita);
    EXPECT_EQ(s.macchina.domande.back() == "OK per sovrascrivere", Vista(codice) != "Orate") << codice;
  }
  const auto file = fs::directory_iterator(s.ditta / "PREDEF");
  EXPECT_EQ(std::distance(begin(file), end(file)), 1);
}

// What somebody else has put among the documents, with letters that no name of ours has, is in nobody's way.
TEST(Nomi, UnNomeConLettereIgnoteNonFermaLeFatture) {
  Scena_Ostile s;
  const Percorso cartella = CartellaGiornoFatture(s.programma);
  const char* const nomi[] = {"00101_FAT_\u03C0_11.txt", "00101_FAT_\xFF\xFE.txt", "\u65E5\u672C.txt"};
  for (const char* nome : nomi) s.base.Metti("ditta/2025_fat/20250314/" + std::string(nome), "d'altri");
  s.base.Metti("ditta/2025_fat/20250314/00101_FAT_00001_20250314_00000_1_11.txt", "vecchia");
  const Esito_File esito = SostituisciDocumenti(s.programma.disco, cartella,
                                                {{"00102_FAT_00002_20250314_00000_2_11.txt", "nuova"}});
  EXPECT_EQ(esito.errore, 0);
  for (const char* nome : nomi)
    EXPECT_EQ(s.base.Contenuto("ditta/2025_fat/20250314/" + std::string(nome)), "d'altri") << nome;
  EXPECT_FALSE(fs::exists(cartella / "00101_FAT_00001_20250314_00000_1_11.txt"));
}

// ---- links, which only somebody with the folder in his hands can make

// Where a file is a link, what it leads to is saved: a firm may keep its days elsewhere. But nothing is
// emptied or destroyed through one.
TEST(Collegamenti, XBancaAltroveNonSiVuota) {
  Scena_Ostile s;
  fs::remove_all(s.ditta / "XBanca");
  fs::create_directory_symlink(s.fuori, s.ditta / "XBanca");
  const auto prima = s.Foto();
  EXPECT_FALSE(EsportaPrimaNota(s.programma, false, {}));
  ASSERT_EQ(s.macchina.messaggi.size(), 1U);
  EXPECT_THAT(s.macchina.messaggi[0], HasSubstr("durante la cancellazione"));
  EXPECT_THAT(s.macchina.messaggi[0], HasSubstr(Testo_Errore(ELOOP)));
  EXPECT_EQ(CancellaAltreTransazioni(s.programma).errore, ELOOP);
  EXPECT_EQ(CancellaFile(s.programma.disco, s.ditta / "XBanca", ModelloTutti).errore, ELOOP);
  EXPECT_EQ(SostituisciDocumenti(s.programma.disco, s.ditta / "XBanca", {}).errore, ELOOP);
  EXPECT_EQ(s.Foto(), prima);
}

TEST(Collegamenti, IDatDiUnAltroPostoNonSiDistruggono) {
  Scena_Ostile s;
  fs::create_symlink(s.fuori / "sentinella.txt", s.ditta / "2025/20250314.dat");
  fs::create_directory_symlink(s.fuori, s.ditta / "2024");
  const auto prima = s.Foto();
  Cancella_File_Dat(s.programma, "2025");
  EXPECT_EQ(s.Foto(), prima) << "the old bytes of the link's target";
  EXPECT_FALSE(fs::is_symlink(s.ditta / "2025/20250314.dat"));
  s.macchina.messaggi.clear();
  Cancella_File_Dat(s.programma, "2024");
  EXPECT_EQ(s.Foto(), prima);
  ASSERT_EQ(s.macchina.messaggi.size(), 1U);
  EXPECT_THAT(s.macchina.messaggi[0], HasSubstr(Testo_Errore(ELOOP)));
}

}  // namespace
