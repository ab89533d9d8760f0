#include "lists/anagrafica_clienti.h"

#include "lists/liste.h"
#include "lists/ordina.h"

namespace {

constexpr int ordine_soprannome = 2;

// By the column as the operator counts.
template <int campo>
bool Ordina_Per(Programma& programma) {
  return Ordina_Clienti(programma, campo);
}

Testo Inverti_Escluso(const Programma&, Vista testo) { return testo == "-" ? "ESCLUSO" : "-"; }
Testo Inverti_Ristorante(const Programma&, Vista testo) { return testo == "-" ? "RISTORANTE" : "-"; }

Anagrafica Descrizione() {
  Anagrafica clienti;
  clienti.lista = "Clienti";
  clienti.modulo = "ModCLI";
  clienti.file = nomi_file::Clienti;
  clienti.didascalia_lista = "Lista dei Clienti";
  clienti.titolo_modulo = "Aggiungi/Modifica Lista dei Clienti Registrati";
  clienti.comando_modulo = "Aggiungi/&modifica";
  clienti.campi = {{.didascalia = "Codice"},
                   {.didascalia = "Ragione Sociale 1 "},
                   {.didascalia = "Soprannome "},
                   {.didascalia = "Via + Civico"},
                   {.didascalia = "Cap + Citta' "},
                   {.didascalia = "P.IVA",
                    .suggerimento = "Inserire partita iva ed eventualmente codice fiscale\n"
                                    "inserire eventualmente 12345678901 cf XXXXXX00Y00Z000Z"},
                   {.didascalia = "Cliente ESCLUSO",
                    .suggerimento = "doppio click o barra spaziatrice per cambiare",
                    .vuoto = "-",
                    .a_mano = false,
                    .doppio_clic = Inverti_Escluso},
                   {.didascalia = "RISTORANTE",
                    .suggerimento = "doppio click o barra spaziatrice per cambiare",
                    .vuoto = "-",
                    .a_mano = false,
                    .doppio_clic = Inverti_Ristorante},
                   {.didascalia = "IBAN"}};
  clienti.ordini = {{"Ordina_Nome", "per &Nome", Ordina_Per<2>},
                    {"Ordina_Codice", "per Co&dice", Ordina_Per<1>},
                    {"Ordina_Soprannome", "per &Soprannome", Ordina_Per<3>}};
  clienti.tabella = Accesso<&Programma::Vet_Clienti>();
  clienti.titolo = [](std::size_t voci) { return "Lista dei Clienti: " + std::to_string(voci); };
  clienti.voce = [](const Programma& programma, std::size_t r, int ordine) {
    return Riga_Cliente(programma, r, ordine == ordine_soprannome);
  };
  clienti.leggi = Leggi_Clienti;
  clienti.salva = Salva_Clienti;
  clienti.incompleta = [](Programma&, std::span<const Testo> valori) {
    return Pulito(valori[cliente::Codice]).empty() || Pulito(valori[cliente::RagioneSociale1]).empty();
  };
  clienti.destinatario = [](const Programma& programma, std::size_t r) {
    const auto& riga = programma.Vet_Clienti[r];
    return Destinatario{riga[cliente::RagioneSociale1], {}, riga[cliente::Via], riga[cliente::Citta]};
  };
  return clienti;
}

}  // namespace

const Anagrafica& Anagrafica_Clienti() {
  static const Anagrafica clienti = Descrizione();
  return clienti;
}

Testo Riga_Cliente(const Programma& programma, std::size_t r, bool per_soprannome) {
  const auto& riga = programma.Vet_Clienti[r];
  const Vista soprannome = riga[cliente::Soprannome].empty() ? Vista("zz") : riga[cliente::Soprannome];
  constexpr Vista fra = " - ";
  Testo voce;
  if (per_soprannome) {
    const Testo nomi = Pad(soprannome, 10) + ' ' + riga[cliente::RagioneSociale1];
    voce.append(Sinistra(nomi, 25)).append(fra).append(riga[cliente::Codice]);
  } else {
    voce.append(riga[cliente::Codice]).append(fra).append(Pad(riga[cliente::RagioneSociale1], 25));
    voce.append(fra).append(soprannome);
  }
  return voce.append(fra).append(riga[cliente::Escluso]);
}

Cliente_Copiato Copia_Del_Cliente(const Programma& programma, std::size_t r) {
  const auto& riga = programma.Vet_Clienti[r];
  return {riga[cliente::RagioneSociale1], riga[cliente::Codice]};
}
