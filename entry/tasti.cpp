#include "core/numeri.h"
#include "core/profili.h"
#include "entry/comandi.h"
#include "entry/edita.h"
#include "entry/liste_campi.h"
#include "lists/liste.h"

// What the keys do: in a field, on the screen, in the look-up list, and which characters a field takes.

namespace {

constexpr CampoRiga con_azione_invio[] = {
    CampoRiga::Fornitore,   CampoRiga::Cliente,      CampoRiga::CodCliente, CampoRiga::Specie,
    CampoRiga::ZonaP,       CampoRiga::Peso,         CampoRiga::Prezzo,     CampoRiga::Prov,
    CampoRiga::Lotti,       CampoRiga::MetodoPesca,  CampoRiga::Pezzatura,  CampoRiga::StatoFisico,
    CampoRiga::Lavorazione, CampoRiga::Preparazione, CampoRiga::PrimoImb};

constexpr CampoRiga con_lista[] = {CampoRiga::Fornitore,   CampoRiga::Cliente,      CampoRiga::CodCliente,
                                   CampoRiga::Specie,      CampoRiga::ZonaP,        CampoRiga::Prov,
                                   CampoRiga::MetodoPesca, CampoRiga::Pezzatura,    CampoRiga::StatoFisico,
                                   CampoRiga::Lavorazione, CampoRiga::Preparazione, CampoRiga::PrimoImb};

template <std::size_t N>
bool Fra(const CampoRiga (&campi)[N], int indice) {
  return std::ranges::any_of(campi, [&](CampoRiga c) { return Indice(c) == indice; });
}

void ChiudiLista(Edita& edita) {
  edita.List1.visibile = false;
  edita.List1.Svuota();
}

void DopoInvio(Edita& edita, int indice) {
  if (Fra(con_azione_invio, indice))
    CampoSuccessivo(edita, indice);
  else
    ChiediFuoco(edita, indice + 1);
}

// An entry of the look-up list goes into its field, with all that follows from it.
void PrendiVoce(Programma& programma, Edita& edita, int indice, const Testo& voce) {
  ChiudiLista(edita);
  edita.Text1[static_cast<std::size_t>(indice)].testo = voce;
  SegnaCambiamento(edita, indice);
  if (indice == Indice(CampoRiga::Specie)) {
    CompilaSpecie(programma, edita, voce);
    Campo(edita, CampoRiga::Specie).testo = NomeSpecie(voce);
  }
  AzioneInvio(programma, edita, indice);
  DopoInvio(edita, indice);
}

// The unfiltered list of a field, as the left and right arrows bring it up. Fields without a list keep these
// keys for their own editing.
void ApriListaIntera(Programma& programma, Edita& edita, int indice) {
  if (!Fra(con_lista, indice)) {
    edita.List1.visibile = false;
    return;
  }
  edita.ListaChiusa = true;
  edita.CampoLista = indice;
  MostraListaCampo(programma, edita, indice);
  edita.ListaChiusa = false;
}

bool TastoSenzaLista(Programma& programma, Edita& edita, int indice, Tasto tasto) {
  switch (tasto) {
    case Tasto::Invio:
      AzioneInvio(programma, edita, indice);
      DopoInvio(edita, indice);
      return true;
    case Tasto::Sinistra:
    case Tasto::Destra:
      ApriListaIntera(programma, edita, indice);
      return false;  // the cursor moves as well
    case Tasto::Su:
      CampoPrecedente(edita, indice);
      return true;
    case Tasto::Giu:
      CampoSuccessivo(edita, indice);
      return true;
    default:
      return false;
  }
}

bool TastoConLista(Programma& programma, Edita& edita, int indice, Tasto tasto) {
  if (edita.List1.scelta < 0 && edita.List1.Numero() > 0) edita.List1.scelta = 0;
  switch (tasto) {
    case Tasto::Invio:
      if (edita.List1.Numero() > 0 && Fra(con_lista, indice))
        PrendiVoce(programma, edita, indice, edita.List1.Scelta());
      else
        ChiediFuoco(edita, indice + 1);
      return true;
    case Tasto::Su:
    case Tasto::Giu:
      if (edita.List1.Numero() > 0) edita.List1.scelta = 0;
      edita.fuoco = Edita::fuoco_List1;
      return true;
    default:
      return false;
  }
}

// PgUp and PgDn swap which of the customer's two fields is keyed.
void ScambiaCliente(Programma& programma, Edita& edita) {
  const auto marca = [&](int casella) {
    edita.Check[static_cast<std::size_t>(casella)].segnata = true;
    CambiaSpunta(programma, edita, casella);
  };
  if (Campo(edita, CampoRiga::Cliente).attivo == Campo(edita, CampoRiga::CodCliente).attivo) {
    marca(6);
    if (edita.CampoCorrente == Indice(CampoRiga::Cliente)) ChiediFuoco(edita, Indice(CampoRiga::CodCliente));
  } else if (edita.Check[6].segnata) {
    marca(7);
    ChiediFuoco(edita, Indice(CampoRiga::Cliente));
  } else {
    marca(6);
    ChiediFuoco(edita, Indice(CampoRiga::CodCliente));
  }
}

void MappaMediterraneo(Programma&, Edita& edita) { ApriMappa(edita, Richiesta::Mappa_Mediterraneo); }
void MappaMondo(Programma&, Edita& edita) { ApriMappa(edita, Richiesta::Mappa_Mondo); }

void ModificaSeAttiva(Programma& programma, Edita& edita) {
  if (edita.Modifica.attivo) Modifica(programma, edita);
}

struct TastoComando {
  Tasto tasto;
  void (*esegue)(Programma&, Edita&);
};
constexpr TastoComando tasti_schermo[] = {
    {Tasto::F1, MappaMediterraneo}, {Tasto::F3, Elimina},     {Tasto::F4, ModificaSeAttiva},
    {Tasto::F5, Aggiungi},          {Tasto::F7, Salva},       {Tasto::F8, RigaPrecedente},
    {Tasto::F9, RigaSuccessiva},    {Tasto::F11, MappaMondo}, {Tasto::PagSu, ScambiaCliente},
    {Tasto::PagGiu, ScambiaCliente}};

// One firm's own key for the statistics of a period.
bool Seconda_Statistica(const Programma& programma, int indice, const Pressione& pressione) {
  return indice == Indice(CampoRiga::Fornitore) && pressione.tasto == Tasto::F1 && pressione.maiuscole &&
         !pressione.ctrl && !pressione.alt &&
         Profilo_Ditta(programma.preferenze.Codice_Commissionario) == Profilo::Lagomar;
}

char Separatore(const Programma& programma, Vista resta) {
  return resta.find(programma.Separatore_Decimale) == Vista::npos ? programma.Separatore_Decimale : '\0';
}

}  // namespace

void AzioneInvio(Programma& programma, Edita& edita, int indice) {
  if (indice == Indice(CampoRiga::Fornitore)) return LottoAutomatico(programma, edita);
  if (indice == Indice(CampoRiga::Cliente)) {
    const int r = Cerca_Cliente_Per_Nome(programma, Campo(edita, CampoRiga::Cliente).testo);
    if (r >= 0)
      Campo(edita, CampoRiga::CodCliente).testo =
          programma.Vet_Clienti[static_cast<std::size_t>(r)][cliente::Codice];
    return;
  }
  if (indice == Indice(CampoRiga::CodCliente)) {
    const int r = Cerca_Cliente_Per_Codice(programma, Campo(edita, CampoRiga::CodCliente).testo);
    if (r >= 0)
      Campo(edita, CampoRiga::Cliente).testo =
          programma.Vet_Clienti[static_cast<std::size_t>(r)][cliente::RagioneSociale1];
  }
}

void LottoAutomatico(Programma& programma, Edita& edita) {
  if (!programma.preferenze.FlagLottiAutomatici) return;
  programma.PrefissoLotto = Codice_Lotto(programma, Campo(edita, CampoRiga::Fornitore).testo);
  Campo(edita, CampoRiga::Lotti).testo = programma.PrefissoLotto + programma.Ieri_AAMMGG;
}

bool TastoCampo(Programma& programma, Edita& edita, int indice, const Pressione& pressione) {
  if (Occupata(edita)) return true;
  if (indice == Indice(CampoRiga::Commento)) return false;
  if (Seconda_Statistica(programma, indice, pressione)) {
    ChiediSchermo(edita, "Stat2");
    return true;
  }
  if (indice == Indice(CampoRiga::Colli) && pressione.tasto == Tasto::Invio && edita.Aggiungi.attivo) {
    Aggiungi(programma, edita);
    CampoSuccessivo(edita, indice);
    return true;
  }
  if (pressione.Nudo()) {
    if (pressione.tasto == Tasto::Esc) {
      const bool era_visibile = edita.List1.visibile;
      edita.List1.visibile = false;
      return era_visibile;
    }
    if (pressione.tasto >= Tasto::F2 && pressione.tasto <= Tasto::F9) return false;
  }
  if (edita.Aggiungi.attivo) Semaforo(edita, StatoSemaforo::NORMALE);
  return edita.List1.visibile ? TastoConLista(programma, edita, indice, pressione.tasto)
                              : TastoSenzaLista(programma, edita, indice, pressione.tasto);
}

bool TastoSchermo(Programma& programma, Edita& edita, const Pressione& pressione) {
  if (!pressione.Nudo()) return false;
  for (const TastoComando& comando : tasti_schermo) {
    if (comando.tasto != pressione.tasto) continue;
    if (!Occupata(edita)) comando.esegue(programma, edita);
    return true;
  }
  for (const Vista nome : Comandi_Altrui())
    for (const Voce_Comando& voce : Comandi()) {
      if (voce.nome != nome || voce.tasto != pressione.tasto || voce.tasto == Tasto::Altro) continue;
      ChiediSchermo(edita, nome);
      return true;
    }
  return false;
}

char FiltraCarattere(const Programma& programma, const Edita& edita, int indice, char carattere) {
  if (indice < 0 || indice >= Num_Campi) return 0;
  return FiltraCarattere(programma, edita, indice, edita.Text1[static_cast<std::size_t>(indice)].testo,
                         carattere);
}

char FiltraCarattere(const Programma& programma, const Edita& edita, int indice, Vista resta,
                     char carattere) {
  if (Occupata(edita)) return 0;
  if (carattere == '\b' || carattere == TAB || carattere == '\r') return carattere;
  switch (static_cast<CampoRiga>(indice + 1)) {
    case CampoRiga::Peso:
    case CampoRiga::SAnt:
      return E_Cifra(carattere) ? carattere : Separatore(programma, resta);
    case CampoRiga::Colli:
    case CampoRiga::NCV:
      return E_Cifra(carattere) ? carattere : '\0';
    case CampoRiga::Prezzo:
      if (E_Cifra(carattere) || carattere == 'c' || carattere == 'C' || carattere == '-') return carattere;
      return Separatore(programma, resta);
    default:
      return carattere;
  }
}

bool TastoList1(Programma& programma, Edita& edita, const Pressione& pressione) {
  if (Occupata(edita)) return true;
  if (pressione.tasto == Tasto::Invio) {
    ScegliList1(programma, edita, std::max(edita.List1.scelta, 0));
    return true;
  }
  if (pressione.tasto == Tasto::Esc) {
    edita.List1.visibile = false;
    ChiediFuoco(edita, edita.CampoLista);
    return true;
  }
  return false;
}

void ScegliList1(Programma& programma, Edita& edita, int riga) {
  const int campo = edita.CampoLista;
  if (Occupata(edita) || campo < 0 || campo >= Num_Campi) return;
  if (riga < 0 || static_cast<std::size_t>(riga) >= edita.List1.Numero()) return;
  ChiediFuoco(edita, campo);  // where the flow goes no further the focus comes back from the list
  PrendiVoce(programma, edita, campo, edita.List1.Riga(static_cast<std::size_t>(riga)));
}

void SinistroCampo(Programma& programma, Edita& edita, int indice) {
  if (Occupata(edita) || !programma.preferenze.FlagMouse || indice == Indice(CampoRiga::Commento)) return;
  TastoCampo(programma, edita, indice, {.tasto = Tasto::Destra});
}

void BottoneTastierino(Programma& programma, Edita& edita, Vista testo) {
  const int indice = edita.CampoCorrente;
  if (Occupata(edita) || indice < 0 || indice >= Num_Campi) return;
  for (const char carattere : testo)
    if (const char c = FiltraCarattere(programma, edita, indice, carattere); c != 0)
      edita.Text1[static_cast<std::size_t>(indice)].testo += c;
  CambiaCampo(programma, edita, indice);
}

void InvioTastierino(Programma& programma, Edita& edita) {
  if (edita.CampoCorrente < 0 || edita.CampoCorrente >= Num_Campi) return;
  TastoCampo(programma, edita, edita.CampoCorrente, {.tasto = Tasto::Invio});
}

void SvuotaTastierino(Programma& programma, Edita& edita) {
  const int indice = edita.CampoCorrente;
  if (Occupata(edita) || indice < 0 || indice >= Num_Campi) return;
  edita.Text1[static_cast<std::size_t>(indice)].testo.clear();
  CambiaCampo(programma, edita, indice);
}
