#include "lists/anagrafica.h"

#include <algorithm>
#include <cerrno>

#include "lists/file_lista.h"

namespace {

std::size_t Righe_Di(const Programma& programma, const SchermoAnagrafica& schermo) {
  return schermo.anagrafica->tabella.righe(programma);
}

std::span<const Testo> Riga_Di(const Programma& programma, const SchermoAnagrafica& schermo, std::size_t r) {
  return schermo.anagrafica->tabella.riga(programma, r);
}

bool Cancellata(std::span<const Testo> riga) { return Pulito(riga[0]).empty(); }

// Where row `r` stands once the file is read again: rows without a first column aren't in it.
std::size_t Posto_Nel_File(const Programma& programma, const SchermoAnagrafica& schermo, std::size_t r) {
  std::size_t posto = 0;
  for (std::size_t i = 0; i < r; ++i)
    if (!Cancellata(Riga_Di(programma, schermo, i))) ++posto;
  return posto;
}

void Mostra_Riga(const Programma& programma, SchermoAnagrafica& schermo) {
  const auto& campi = schermo.anagrafica->campi;
  const int scelta = schermo.List1.scelta;
  for (std::size_t i = 0; i < campi.size(); ++i)
    schermo.Text1[i].testo =
        scelta < 0 ? campi[i].vuoto : Riga_Di(programma, schermo, static_cast<std::size_t>(scelta))[i];
}

// The row in work, selected in the list and in the scroller; -1 where the list is empty.
void Scegli(const Programma& programma, SchermoAnagrafica& schermo, int r) {
  const int righe = static_cast<int>(Righe_Di(programma, schermo));
  r = std::clamp(r, -1, righe - 1);
  schermo.List1.scelta = r;
  schermo.Scorri.massimo = std::max(1, righe);
  schermo.Scorri.valore = std::max(1, r + 1);
  schermo.Scorri.attivo = schermo.Modifica.attivo = schermo.Elimina.attivo = r >= 0;
  schermo.Posto.testo =
      r < 0 ? Testo("nessuna riga") : "riga " + std::to_string(r + 1) + " di " + std::to_string(righe);
}

void Tabella_Riletta(const Programma& programma, SchermoAnagrafica& schermo, int r) {
  schermo.titolo = schermo.anagrafica->titolo(Righe_Di(programma, schermo));
  schermo.List1.Cambiato();
  Scegli(programma, schermo, r);
}

void Esiti(SchermoAnagrafica& schermo, Vista lista, Vista modulo) {
  schermo.Esito.testo = lista;
  schermo.EsitoModulo.testo = modulo;
}

// The fields as a row. A field that nobody touched goes back byte for byte, since the last column of a
// customer may hold more than a field can.
std::vector<Testo> Valori(const Programma& programma, const SchermoAnagrafica& schermo) {
  const auto& campi = schermo.anagrafica->campi;
  const int r = schermo.List1.scelta;
  std::vector<Testo> valori;
  for (std::size_t i = 0; i < campi.size(); ++i) {
    const Testo& testo = schermo.Text1[i].testo;
    const bool intatto = r >= 0 && testo == Riga_Di(programma, schermo, static_cast<std::size_t>(r))[i];
    Testo valore = intatto ? testo : Senza_Separatori(testo);
    if (!intatto && !campi[i].bianchi) valore = Testo(Pulito(valore));
    if (valore.empty()) valore = campi[i].vuoto;
    valori.push_back(std::move(valore));
  }
  return valori;
}

bool Accettata(Programma& programma, const SchermoAnagrafica& schermo, const std::vector<Testo>& valori) {
  if (!schermo.anagrafica->incompleta(programma, valori)) return true;
  programma.piattaforma.Messaggio("Dati incompleti...");
  return false;
}

Testo Riga_Di_File(const std::vector<Testo>& valori) {
  Testo riga;
  for (const Testo& valore : valori) {
    if (&valore != &valori.front()) riga += TAB;
    Aggiungi_Campo(riga, valore);
  }
  return riga.append(FINE_RIGA);
}

// Zero or the errno. A last line that has no end gets one first.
int Accoda(Programma& programma, Vista nome, Vista riga) {
  const Percorso percorso = Percorso_Lista(programma, nome);
  Testo contenuto;
  if (!Manca_Lista(programma, nome)) {
    int errore = 0;
    auto letto = programma.disco.Leggi(percorso, &errore);
    if (!letto) return errore != 0 ? errore : EIO;
    contenuto = std::move(*letto);
  }
  if (!contenuto.empty() && contenuto.back() != '\n' && contenuto.back() != '\r') contenuto += FINE_RIGA;
  return programma.disco.Sostituisci(percorso, contenuto.append(riga));
}

bool Accoda_Al_File(Programma& programma, const SchermoAnagrafica& schermo,
                    const std::vector<Testo>& valori) {
  const int errore = Accoda(programma, schermo.anagrafica->file, Riga_Di_File(valori));
  if (errore == 0) return true;
  programma.piattaforma.Messaggio("Errore =" + std::to_string(errore) + ' ' + Testo_Errore(errore));
  return false;
}

// Writes the row into the table and the table into its file.
bool Scrivi_E_Salva(Programma& programma, const SchermoAnagrafica& schermo, std::size_t r,
                    const std::vector<Testo>& valori) {
  const Anagrafica& anagrafica = *schermo.anagrafica;
  const auto ripristina = anagrafica.tabella.ripristino(programma);
  anagrafica.tabella.scrivi(programma, r, valori);
  if (anagrafica.salva(programma)) return true;
  ripristina();
  return false;
}

// A file that has just been written and can't be read back (told) leaves the table that it was made of.
void Leggi_O_Tieni(Programma& programma, const Anagrafica& anagrafica, bool scritto_dalla_tabella) {
  const auto ripristina = anagrafica.tabella.ripristino(programma);
  anagrafica.leggi(programma);
  const auto ignota = programma.Liste_Ignote.find(Testo(anagrafica.file));
  if (ignota == programma.Liste_Ignote.end()) return;
  ripristina();
  if (scritto_dalla_tabella) programma.Liste_Ignote.erase(ignota);
}

void Rileggi(Programma& programma, SchermoAnagrafica& schermo, std::size_t r, bool scritto_dalla_tabella) {
  Leggi_O_Tieni(programma, *schermo.anagrafica, scritto_dalla_tabella);
  const std::size_t righe = Righe_Di(programma, schermo);
  Tabella_Riletta(programma, schermo, static_cast<int>(std::min(r, righe)) - (r >= righe ? 1 : 0));
  Mostra_Riga(programma, schermo);
}

}  // namespace

void Apri_Anagrafica(Programma& programma, SchermoAnagrafica& schermo, const Anagrafica& anagrafica) {
  schermo.anagrafica = &anagrafica;
  if (anagrafica.letta_all_apertura) anagrafica.leggi(programma);

  schermo.Ordini.clear();
  for (const Ordine_Anagrafica& ordine : anagrafica.ordini)
    schermo.Ordini.emplace_back().testo = ordine.didascalia;
  schermo.Comandi.clear();
  for (const Comando_Anagrafica& comando : anagrafica.comandi)
    schermo.Comandi.emplace_back().testo = comando.didascalia;
  schermo.AggiungiModifica.testo = anagrafica.comando_modulo;
  schermo.Copia.testo = "C&opia";
  schermo.Copia.attivo = static_cast<bool>(schermo.copia);
  schermo.Privacy.testo = "&Privacy";
  schermo.Privacy.visibile = schermo.Privacy.attivo = anagrafica.destinatario != nullptr;
  schermo.Chiudi.testo = schermo.ChiudiModulo.testo = "&Chiudi";
  schermo.Cerca.suggerimento = "Invio: la voce seguente";

  schermo.titolo_modulo = anagrafica.titolo_modulo;
  schermo.Text1.assign(anagrafica.campi.size(), {});
  schermo.Caption.assign(anagrafica.campi.size(), {});
  for (std::size_t i = 0; i < anagrafica.campi.size(); ++i) {
    schermo.Caption[i].testo = anagrafica.campi[i].didascalia;
    schermo.Text1[i].suggerimento = anagrafica.campi[i].suggerimento;
  }
  schermo.Aggiungi.testo = "&Aggiungi";
  schermo.Modifica.testo = "&Modifica";
  schermo.Elimina.testo = "&Elimina";
  schermo.Pulisci.testo = "&Pulisci";

  schermo.List1.Collega([&programma, &schermo] { return Righe_Di(programma, schermo); },
                        [&programma, &schermo](std::size_t r) {
                          return schermo.anagrafica->voce(programma, r, schermo.ordine);
                        });
  Tabella_Riletta(programma, schermo, 0);
  Mostra_Riga(programma, schermo);
}

int Riga_Scelta(const SchermoAnagrafica& schermo) {
  return schermo.List1.scelta < static_cast<int>(schermo.List1.Numero()) ? schermo.List1.scelta : -1;
}

void Ordina_Anagrafica(Programma& programma, SchermoAnagrafica& schermo, std::size_t ordine) {
  const Anagrafica& anagrafica = *schermo.anagrafica;
  const int scelta = Riga_Scelta(schermo);
  std::vector<Testo> riga;
  if (scelta >= 0) {
    const auto campi = Riga_Di(programma, schermo, static_cast<std::size_t>(scelta));
    riga.assign(campi.begin(), campi.end());
  }
  Esiti(schermo, {}, {});
  const auto ripristina = anagrafica.tabella.ripristino(programma);
  if (!anagrafica.ordini[ordine].ordina(programma)) return ripristina();

  std::size_t dove = 0;
  while (dove < Righe_Di(programma, schermo) && !std::ranges::equal(Riga_Di(programma, schermo, dove), riga))
    ++dove;
  schermo.ordine = static_cast<int>(ordine);
  Rileggi(programma, schermo, scelta < 0 ? 0 : Posto_Nel_File(programma, schermo, dove), true);
}

void Cerca_Voce(Programma& programma, SchermoAnagrafica& schermo, bool oltre) {
  Esiti(schermo, {}, {});
  const Testo& cercato = schermo.Cerca.testo;
  if (Pulito(cercato).empty()) return;
  const std::size_t righe = schermo.List1.Numero();
  const int scelta = Riga_Scelta(schermo);
  const std::size_t da = scelta < 0 ? 0 : static_cast<std::size_t>(scelta) + (oltre ? 1 : 0);
  for (std::size_t passo = 0; passo < righe; ++passo) {
    const std::size_t r = (da + passo) % righe;
    if (!Contiene(schermo.List1.Riga(r), cercato)) continue;
    Scegli(programma, schermo, static_cast<int>(r));
    return Mostra_Riga(programma, schermo);
  }
  schermo.Esito.testo = "non trovato";
}

void Copia_Voce(SchermoAnagrafica& schermo) {
  const int r = Riga_Scelta(schermo);
  if (r < 0 || !schermo.copia) return;
  schermo.Esito.testo = "copiato";
  schermo.copia(static_cast<std::size_t>(r));
}

void Lettera_Privacy(Programma& programma, SchermoAnagrafica& schermo) {
  const int scelta = Riga_Scelta(schermo);
  if (scelta < 0) return programma.piattaforma.Messaggio("Selezionare una voce della lista...");
  const auto r = static_cast<std::size_t>(scelta);
  const Destinatario destinatario = schermo.anagrafica->destinatario(programma, r);
  if (!programma.piattaforma.Domanda("OK per stampare:\n" + destinatario[0])) return;
  const auto lettera = CaricaPrivacy(programma);
  if (!lettera) return;
  StampaPrivacy(programma, *lettera, destinatario, schermo.anagrafica->tabella.riga(programma, r)[0]);
}

void Scegli_Voce(Programma& programma, SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  Scegli(programma, schermo, schermo.List1.scelta);
  Mostra_Riga(programma, schermo);
}

void Apri_Modulo(Programma& programma, SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  Scegli(programma, schermo, std::max(0, Riga_Scelta(schermo)));
  Mostra_Riga(programma, schermo);
}

void Vai_Alla_Riga(Programma& programma, SchermoAnagrafica& schermo, int n) {
  Esiti(schermo, {}, {});
  Scegli(programma, schermo, std::max(0, n - 1));
  Mostra_Riga(programma, schermo);
}

Testo Solo_Numero(Vista testo, char separatore) {
  Testo numero;
  bool con_separatore = false;
  for (const char c : testo) {
    if (E_Cifra(c)) numero += c;
    if ((c != '.' && c != ',') || con_separatore) continue;
    numero += separatore;
    con_separatore = true;
  }
  return numero;
}

void Cambia_Campo(Programma& programma, SchermoAnagrafica& schermo, std::size_t i) {
  Esiti(schermo, {}, {});
  if (!schermo.anagrafica->campi[i].numero) return;
  schermo.Text1[i].testo = Solo_Numero(schermo.Text1[i].testo, programma.Separatore_Decimale);
}

void Doppio_Clic_Campo(Programma& programma, SchermoAnagrafica& schermo, std::size_t i) {
  const Campo_Anagrafica& campo = schermo.anagrafica->campi[i];
  const int scelta = Riga_Scelta(schermo);
  Testo& testo = schermo.Text1[i].testo;
  if (campo.riprende && scelta >= 0)
    testo = Riga_Di(programma, schermo, static_cast<std::size_t>(scelta))[i];
  else if (campo.doppio_clic != nullptr)
    testo = campo.doppio_clic(programma, testo);
  else
    return;
  Esiti(schermo, {}, {});
}

void Fuoco_Campo(SchermoAnagrafica& schermo, std::size_t i) {
  schermo.Aiuto.testo = schermo.anagrafica->campi[i].suggerimento;
}

void Pulisci_Campi(SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  for (std::size_t i = 0; i < schermo.Text1.size(); ++i)
    schermo.Text1[i].testo = schermo.anagrafica->campi[i].vuoto;
}

bool Aggiungi_Voce(Programma& programma, SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  const Anagrafica& anagrafica = *schermo.anagrafica;
  auto valori = Valori(programma, schermo);
  if (!Accettata(programma, schermo, valori)) return false;
  if (anagrafica.componi != nullptr) anagrafica.componi(programma, valori, true);
  const bool scritta = anagrafica.aggiunta == Aggiunta::In_Coda_Al_File
                           ? Accoda_Al_File(programma, schermo, valori)
                           : Scrivi_E_Salva(programma, schermo, Righe_Di(programma, schermo), valori);
  if (!scritta) return false;
  Rileggi(programma, schermo, static_cast<std::size_t>(-1),
          anagrafica.aggiunta == Aggiunta::Tutto_Il_File);  // the new row is the last one
  Esiti(schermo, "aggiunta", "aggiunta");
  return true;
}

bool Modifica_Voce(Programma& programma, SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  const int scelta = Riga_Scelta(schermo);
  if (scelta < 0) return false;
  auto valori = Valori(programma, schermo);
  if (!Accettata(programma, schermo, valori)) return false;
  if (schermo.anagrafica->componi != nullptr) schermo.anagrafica->componi(programma, valori, false);
  const auto r = static_cast<std::size_t>(scelta);
  const std::size_t posto = Posto_Nel_File(programma, schermo, r);
  if (!Scrivi_E_Salva(programma, schermo, r, valori)) return false;
  Rileggi(programma, schermo, posto, true);
  Esiti(schermo, "modificata", "modificata");
  return true;
}

bool Elimina_Voce(Programma& programma, SchermoAnagrafica& schermo) {
  Esiti(schermo, {}, {});
  const int scelta = Riga_Scelta(schermo);
  if (scelta < 0) return false;
  const auto r = static_cast<std::size_t>(scelta);
  const auto riga = Riga_Di(programma, schermo, r);
  std::vector<Testo> valori(riga.begin(), riga.end());
  valori[0].clear();
  const std::size_t posto = Posto_Nel_File(programma, schermo, r);
  if (!Scrivi_E_Salva(programma, schermo, r, valori)) return false;
  Rileggi(programma, schermo, posto, true);
  Esiti(schermo, "cancellata", "cancellata");
  return true;
}
