#include "core/ini.h"
#include "fuzz/ingresso.h"

// The settings: any bytes as the file. A key that is set reads back as it was set, and no other key changes.

namespace {

void Prova_Chiave(Vista contenuto, const Testo& chiave, const Testo& valore) {
  const Valori_Ini prima = Leggi_Ini(contenuto, Sezione_Ini);
  const Testo scritto = Scrivi_Ini(contenuto, Sezione_Ini, {{chiave, valore}});
  const Valori_Ini dopo = Leggi_Ini(scritto, Sezione_Ini);
  const auto riletta = dopo.find(chiave);
  Esigi(riletta != dopo.end() && riletta->second == Vista(valore), "la chiave scritta si rilegge");
  for (const auto& [nome, testo] : prima)
    if (!Uguali(nome, chiave)) {
      const auto altra = dopo.find(nome);
      Esigi(altra != dopo.end() && altra->second == testo, "le altre chiavi restano");
    }
  Esigi(dopo.size() <= prima.size() + 1, "nessuna chiave nasce da sola");
  Esigi(Scrivi_Ini(scritto, Sezione_Ini, {{chiave, valore}}) == scritto,
        "scriverla due volte non cambia nulla");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  static const Ditta_Muta ditta;
  Ingresso ingresso(dati, quanti);
  // the whole road over the disk takes a hundred times as long as a key
  const unsigned strada = ingresso.Scelta(128);
  const Vista contenuto = ingresso.Resto();
  if (strada == 1) Prova_Chiave(contenuto, "maxrighesalvate", "7");
  if (strada > 1) Prova_Chiave(contenuto, "CittaVC", "Chioggia");
  if (strada > 0) return 0;

  Macchina_Muta macchina;
  Programma programma(macchina);
  ditta.Riparti(programma, ',');
  ditta.Metti("Velmara_2020.ini", contenuto);
  Leggi_Preferenze(programma);
  Esigi(Posteggio_Valido(programma.preferenze.Numero_Posteggio), "il posteggio c'e'");
  const Preferenze lette = programma.preferenze;
  Esigi(Scrivi_Preferenze(programma), "le impostazioni si scrivono");
  Leggi_Preferenze(programma);
  for (const Impostazione& impostazione : Impostazioni()) {
    if (!impostazione.fra_tutte || impostazione.vuoto != SeVuoto::Resta) continue;
    const Testo prima = Valore_Scritto(impostazione, lette);
    Esigi(Pulito(Senza_Separatori(prima)) == Pulito(Valore_Scritto(impostazione, programma.preferenze)),
          "un'impostazione scritta si rilegge");
  }
  return 0;
}
