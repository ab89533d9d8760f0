#include "entry/liste_campi.h"
#include "entry/screens/edita_finestra.h"
#include "lists/mappe.h"
#include "lists/screens/esclusi_finestra.h"
#include "lists/screens/liste_finestre.h"
#include "lists/screens/mappa_finestra.h"
#include "platform/testo_qt.h"

// The list windows and maps that the entry form opens, and what they bring back.

void EditaFinestra::prepara_azioni_liste() {
  for (const Finestra_Campo& finestra : Finestre_Campi())
    azioni_[In_QString(finestra.nome)] = [this, campo = finestra.campo] {
      ApriListaCampo(edita_, Indice(campo));
    };
  azioni_[QStringLiteral("Nasconde_Bottoni")] = [this] { MostraNascondeBottoni(edita_); };
  azioni_[QStringLiteral("Mappa")] = [this] { ApriMappa(edita_, Richiesta::Mappa_Mediterraneo); };
  azioni_[QStringLiteral("MappaMondo")] = [this] { ApriMappa(edita_, Richiesta::Mappa_Mondo); };
  const auto ripresa = [this] {
    activateWindow();
    riprendi_fuoco();
  };
  // The carriers go into the carrier's invoice and nowhere in the row: here the firm only keeps the list.
  azioni_[QStringLiteral("Vettori")] = [this, ripresa] { Apri_Vettori(programma_, this, {}, ripresa); };
  azioni_[QStringLiteral("Esclusi")] = [this, ripresa] { Apri_Esclusi(programma_, this, ripresa); };
  azioni_[QStringLiteral("Escludi_Codice")] = [this, ripresa] {
    Escludi_Questo_Codice(programma_, this, edita_.Text1[Indice(CampoRiga::CodCliente)].testo, ripresa);
  };
}

void EditaFinestra::apri_lista_campo() {
  const Finestra_Campo* finestra = FinestraDelCampo(edita_.campo_lista_aperta);
  const auto chiusa = [this] { chiudi_lista_campo(); };
  const auto voce = [this, campo = finestra->campo](const Testo& testo) {
    legame.esegui([&] { CopiaVoce(edita_, campo, testo); });
  };
  const auto cliente = [this](const Testo& nome, const Testo& codice) {
    legame.esegui([&] { CopiaCliente(edita_, nome, codice); });
  };
  const auto fornitore = [this](const Testo& nome, const Testo& provvigione, const Testo&) {
    legame.esegui([&] { CopiaFornitore(programma_, edita_, nome, provvigione); });
  };
  const auto specie = [this](const std::array<Testo, 8>& riga) {
    legame.esegui([&] { CopiaSpecie(programma_, edita_, riga); });
  };
  switch (finestra->lista) {
    case Lista_Campo::Fornitori:
      Apri_Fornitori(programma_, this, fornitore, chiusa);
      return;
    case Lista_Campo::Clienti:
      Apri_Clienti(programma_, this, cliente, chiusa);
      return;
    case Lista_Campo::Specie:
      Apri_Specie(programma_, this, specie, chiusa);
      return;
    case Lista_Campo::Zone:
      Apri_Zone(programma_, this, voce, chiusa);
      return;
    case Lista_Campo::Provenienze:
      Apri_Provenienze(programma_, this, voce, chiusa);
      return;
    case Lista_Campo::Codificata:
      Apri_Lista_Codificata(programma_, finestra->tipo, this, voce, chiusa);
      return;
  }
}

// Not every desktop gives the keyboard back by itself.
void EditaFinestra::chiudi_lista_campo() {
  legame.esegui([this] { ChiudiListaCampo(edita_); });
  activateWindow();
}

void EditaFinestra::apri_mappa(Vista nome) {
  Apri_Mappa(
      In_QString(nome), programma_, edita_.Text1[Indice(CampoRiga::ZonaP)].testo,
      [this](const Testo& zona) { legame.esegui([&] { ScegliZona(edita_, zona); }); }, this);
}
