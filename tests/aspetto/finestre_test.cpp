#include <gtest/gtest.h>

#include <QApplication>

#include "accounts/screens/gemmit_finestra.h"
#include "accounts/screens/zvendita_finestra.h"
#include "core/screens/colori_finestra.h"
#include "core/screens/preferenze_finestra.h"
#include "documents/screens/dimddt_finestra.h"
#include "documents/screens/zsani_finestra.h"
#include "entry/screens/albero_finestra.h"
#include "entry/screens/edita_finestra.h"
#include "entry/screens/elenco_macro_finestra.h"
#include "entry/screens/lotti_finestra.h"
#include "entry/screens/nota_acc_finestra.h"
#include "invoices/screens/diciture_finestra.h"
#include "invoices/screens/zfatture_finestra.h"
#include "lists/anagrafica_clienti.h"
#include "lists/anagrafica_codificate.h"
#include "lists/anagrafica_fornitori.h"
#include "lists/anagrafica_specie.h"
#include "lists/anagrafica_vettori.h"
#include "lists/anagrafica_zone.h"
#include "lists/mappe.h"
#include "lists/screens/anagrafica_finestra.h"
#include "lists/screens/esclusi_finestra.h"
#include "lists/screens/mappa_finestra.h"
#include "lists/screens/modulo_finestra.h"
#include "lists/screens/ufficiali_finestra.h"
#include "primanota/screens/znota_finestra.h"
#include "printing/screens/stampa_immagine_finestra.h"
#include "printing/screens/stampante_finestra.h"
#include "start/screens/b_inizio.h"
#include "start/screens/ditte_finestra.h"
#include "start/screens/primo_avvio.h"
#include "stats/screens/controllo_cv_finestra.h"
#include "stats/screens/rxcli_finestra.h"
#include "stats/screens/rxfor_finestra.h"
#include "stats/screens/statistica2_finestra.h"
#include "stats/screens/statistica_finestra.h"
#include "tests/aspetto/banco.h"
#include "tests/aspetto/regole.h"
#include "tools/finestra_generatore.h"
#include "transfers/screens/sceltafile_finestra.h"
#include "transfers/screens/xdisk_finestra.h"

// All windows of the program on the smallest screen it must fit on.

namespace {

using Finestra_Fatta = std::unique_ptr<QWidget>;

template <class Schermata, class... Altri>
Finestra_Fatta Fai(Altri&&... altri) {
  return std::make_unique<Schermata>(std::forward<Altri>(altri)...);
}

template <class Schermata>
Finestra_Fatta Di_Programma(Banco& banco) {
  return Fai<Schermata>(banco.programma);
}

template <const Anagrafica& (*anagrafica)()>
Finestra_Fatta Di_Anagrafica(Banco& banco) {
  return Fai<AnagraficaFinestra>(banco.programma, anagrafica(), nullptr, std::function<void(std::size_t)>());
}

const Anagrafica& Attrezzi() { return Anagrafica_Codificata(1); }

// An editor shows the state of a list.
template <const Anagrafica& (*anagrafica)()>
Finestra_Fatta Di_Modulo(Banco& banco) {
  Apri_Anagrafica(banco.programma, banco.anagrafica, anagrafica());
  Apri_Modulo(banco.programma, banco.anagrafica);
  return Fai<ModuloFinestra>(banco.programma, banco.anagrafica, nullptr);
}

Finestra_Fatta Di_Fatture(Banco& banco, const Variante_Fatture& variante) {
  ZFatture zfatture;
  zfatture.variante = &variante;
  ApriFatture(banco.programma, zfatture);
  return Fai<ZFattureFinestra>(banco.programma, std::move(zfatture));
}

Finestra_Fatta Di_Periodo(Banco& banco) {
  Statistica2 statistica;
  if (!Apri_Statistica2(banco.programma, statistica)) return nullptr;
  return Fai<Statistica2Finestra>(banco.programma, std::move(statistica));
}

struct Voce {
  const char* nome;
  Finestra_Fatta (*fai)(Banco&);
  // Captions of the trade that share a letter, and the entry form, whose order is that of its fields: these
  // stay.
  bool lettere_sue = false, ordine_suo = false;
};

void PrintTo(const Voce& voce, std::ostream* dove) { *dove << voce.nome; }

const Voce finestre[] = {
    {"Inizio", Di_Programma<B_InizioFinestra>},
    {"Immissione",
     [](Banco& b) -> Finestra_Fatta {
       auto finestra = std::make_unique<EditaFinestra>(b.programma, b.edita);
       finestra->apri();
       return finestra;
     },
     true},
    {"Elenco_Del_Giorno", [](Banco& b) { return Fai<AlberoFinestra>(b.programma, b.edita); }},
    {"Clienti", Di_Anagrafica<Anagrafica_Clienti>},
    {"Fornitori", Di_Anagrafica<Anagrafica_Fornitori>},
    {"Specie", Di_Anagrafica<Anagrafica_Specie>},
    {"Zone", Di_Anagrafica<Anagrafica_Zone>},
    {"Provenienze", Di_Anagrafica<Anagrafica_Provenienze>},
    {"Attrezzi", Di_Anagrafica<Attrezzi>},
    {"Vettori", Di_Anagrafica<Anagrafica_Vettori>},
    {"Modulo_Clienti", Di_Modulo<Anagrafica_Clienti>},
    {"Modulo_Fornitori", Di_Modulo<Anagrafica_Fornitori>},
    {"Modulo_Specie", Di_Modulo<Anagrafica_Specie>},
    {"Modulo_Zone", Di_Modulo<Anagrafica_Zone>},
    {"Modulo_Attrezzi", Di_Modulo<Attrezzi>},
    {"Modulo_Vettori", Di_Modulo<Anagrafica_Vettori>},
    {"Specie_Ufficiali",
     [](Banco& b) {
       Apri_Anagrafica(b.programma, b.anagrafica, Anagrafica_Specie());
       return Fai<UfficialiFinestra>(b.programma, b.anagrafica, nullptr);
     }},
    {"Esclusi", Di_Programma<EsclusiFinestra>},
    {"Mappa",
     [](Banco& b) {
       return Fai<MappaFinestra>(QString::fromLatin1(nomi_mappa::Mediterraneo.data()), b.programma, Testo(),
                                 MappaFinestra::Scelta());
     },
     false, true},
    {"Macro_Specie",
     [](Banco& b) { return Fai<ElencoMacroFinestra>(b.programma, b.edita, Tipo_Macro::Specie, false); },
     true},
    {"Macro_Fornitori",
     [](Banco& b) { return Fai<ElencoMacroFinestra>(b.programma, b.edita, Tipo_Macro::Fornitore, false); },
     true},
    {"Lotti",
     [](Banco& b) {
       Apri_LottiPredefiniti(b.programma, b.lotti);
       return Fai<LottiFinestra>(b.programma, b.edita, b.lotti);
     }},
    {"Nota_Accredito", [](Banco& b) { return Fai<NotaAccFinestra>(b.programma, b.edita); }},
    {"Documenti",
     [](Banco& b) {
       return Fai<ZsaniFinestra>(b.programma, [&b](Zsani& zsani) { ApriDocumenti(b.programma, zsani); });
     }},
    {"Dimensioni_DDT", Di_Programma<DimDDTFinestra>},
    {"Prima_Nota", Di_Programma<ZnotaFinestra>},
    {"Conti", Di_Programma<ZvenditaFinestra>, false, true},
    {"Conti_A_Mano", Di_Programma<ZgemmitFinestra>, false, true},
    {"Fatture", [](Banco& b) { return Di_Fatture(b, Fatture_Senza_Vettore); }},
    {"Fatture_Con_Vettore", [](Banco& b) { return Di_Fatture(b, Fatture_Con_Vettore); }},
    {"Diciture", Di_Programma<DicitureFinestra>},
    {"Statistica", [](Banco& b) { return Fai<StatisticaFinestra>(b.programma, Chi_Chiede_File()); }},
    {"Periodo", Di_Periodo},
    {"Saldo", Di_Programma<RXForFinestra>},
    {"Totali_Clienti", [](Banco& b) { return Fai<RXcliFinestra>(b.programma, Vista(), Chi_Chiede_File()); }},
    {"Controllo_Conti", Di_Programma<ControlloCVFinestra>},
    {"Preferenze", [](Banco& b) { return Fai<PreferenzeFinestra>(b.programma); }},
    {"Colori", Di_Programma<ColoriFinestra>},
    {"Stampante", Di_Programma<StampanteFinestra>},
    {"Chiavetta",
     [](Banco& b) { return Fai<XdiskFinestra>(b.programma, ModoCopia::COPIA_IN, b.cartella.percorso); }},
    {"Scelta_File", [](Banco& b) { return Fai<SceltaFileFinestra>(b.programma, Vista("zzzz.txt")); }},
    {"Primo_Avvio", [](Banco& b) { return Fai<PrimoAvvioFinestra>(b.macchina, ','); }},
    {"Generatore", Di_Programma<Finestra_Generatore>},
    {"Scelta_Ditta", [](Banco& b) { return Fai<DitteFinestra>(b.cartella.percorso, b.cartella.percorso); }},
};

struct Aspetto : testing::TestWithParam<Voce> {
  Aspetto() : finestra(GetParam().fai(banco)) {
    if (auto* schermata = qobject_cast<Finestra*>(finestra.get())) schermata->mostra();
    finestra->show();
    QCoreApplication::processEvents();
  }
  static std::string Testi(const QStringList& difetti) {
    return difetti.join(QLatin1Char('\n')).toStdString();
  }

  Banco banco;
  Finestra_Fatta finestra;
};

TEST_P(Aspetto, OgniControlloHaUnNomeCheSiLegge) { EXPECT_EQ(Testi(Senza_Nome(*finestra)), ""); }

TEST_P(Aspetto, StaSulloSchermoPiccoloConLeScritteIntere) { EXPECT_EQ(Testi(Fuori_Misura(*finestra)), ""); }

TEST_P(Aspetto, IlTabulatoreVaDaSinistraADestraEInGiu) {
  const bool in_ordine = Fuori_Ordine(*finestra).isEmpty();
  if (GetParam().ordine_suo)
    EXPECT_FALSE(in_ordine) << "the exception isn't needed any more";
  else
    EXPECT_EQ(Testi(Fuori_Ordine(*finestra)), "");
}

TEST_P(Aspetto, NessunaLetteraEDiDueComandi) {
  if (GetParam().lettere_sue)
    EXPECT_NE(Testi(Lettere_Doppie(*finestra)), "") << "the exception isn't needed any more";
  else
    EXPECT_EQ(Testi(Lettere_Doppie(*finestra)), "");
}

INSTANTIATE_TEST_SUITE_P(Tutte, Aspetto, testing::ValuesIn(finestre),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace
