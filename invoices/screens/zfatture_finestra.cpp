#include "invoices/screens/zfatture_finestra.h"

#include <array>
#include <tuple>
#include <utility>

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "invoices/screens/diciture_finestra.h"
#include "invoices/zfatture_vettore.h"
#include "lists/screens/liste_finestre.h"
#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"

namespace {

constexpr int caratteri_lista = 72;  // of a line of the lists
constexpr int caratteri_campo = 24, caratteri_spese = 8;

}  // namespace

ZFattureFinestra::ZFattureFinestra(Programma& programma, ZFatture zfatture, QWidget* padre)
    : FinestraDavanti(In_QString(zfatture.variante->nome), padre, Qt::Window),
      programma_(programma),
      zfatture_(std::move(zfatture)) {
  intitola(zfatture_.titolo);
  si_chiude(zfatture_.chiusa, [this] { ChiudiFatture(programma_, zfatture_); });
  setFont(Carattere(punti_normali));
  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_documento());
  destra->addWidget(fa_stampa());
  destra->addWidget(zfatture_.variante->spedizione ? fa_bottoni_filtri() : fa_caselle_filtri());
  destra->addStretch();
  destra->addWidget(fa_bottone(QStringLiteral("Chiudi"), zfatture_.Chiudi,
                               [this] { ChiudiFatture(programma_, zfatture_); }));
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(14);
  affiancate->addWidget(fa_liste(), 1);
  affiancate->addLayout(destra);
  disponi(fa_menu(), affiancate);
  mostra();
  QListView* prima = zfatture_.ListaAttiva == TipoFattura::Fattura ? fatture_ : note_;
  prima->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZFattureFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  const auto dello_schermo = [this](void (*routine)(Programma&, ZFatture&)) {
    return [this, routine] { routine(programma_, zfatture_); };
  };
  const auto del_programma = [this](void (*routine)(Programma&)) {
    return [this, routine] { routine(programma_); };
  };
  QMenu* numerazione = barra->addMenu(QStringLiteral("Numerazione"));
  fa_voce(numerazione, QStringLiteral("NumeraFat"), zfatture_.NumeraFat, dello_schermo(NumeraFat));
  fa_voce(numerazione, QStringLiteral("NumeraNA"), zfatture_.NumeraNA, dello_schermo(NumeraNA));
  fa_voce(numerazione, QStringLiteral("Numera_Tutto"), zfatture_.Numera_Tutto, dello_schermo(NumeraTutto));
  fa_voce(numerazione, QStringLiteral("Annulla_Numerazione"), zfatture_.Annulla_Numerazione,
          dello_schermo(AnnullaNumerazione));
  numerazione->addSeparator();
  fa_voce(numerazione, QStringLiteral("Aggiungi_Data"), zfatture_.Aggiungi_Data, dello_schermo(AggiungiData));
  fa_voce(numerazione, QStringLiteral("Togli_Data"), zfatture_.Togli_Data, dello_schermo(TogliData));
  QMenu* elenchi = barra->addMenu(QStringLiteral("Mostra"));
  fa_voce(elenchi, QStringLiteral("Mostra_Transazioni"), zfatture_.Mostra_Transazioni,
          del_programma(MostraTransazioni));
  fa_voce(elenchi, QStringLiteral("Mostra_Fatture"), zfatture_.Mostra_Fatture, del_programma(MostraFatture));
  fa_voce(elenchi, QStringLiteral("Mostra_Report"), zfatture_.Mostra_Report, del_programma(MostraReport));
  fa_voce(elenchi, QStringLiteral("Formato_Semplice"), zfatture_.Formato_Semplice,
          del_programma(MostraFormatoSemplice));
  fa_voce(elenchi, QStringLiteral("Formato_Lear"), zfatture_.Formato_Lear, {});
  fa_voce(barra, QStringLiteral("Personalizza_Fatture"), zfatture_.Personalizza_Fatture,
          [this] { DicitureFinestra(programma_, this).esegui(); });
  fa_voce(barra, QStringLiteral("Scelta_Stampante"), zfatture_.Scelta_Stampante,
          [this] { StampanteFinestra(programma_, this).esegui(); });
  if (zfatture_.variante->spedizione) fa_menu_vettori(barra);
  return barra;
}

void ZFattureFinestra::fa_menu_vettori(QMenuBar* barra) {
  const auto prende = [this](const Testo& mezzo, const std::array<Testo, 3>& vettore) {
    legame.esegui([&] { PrendiVettore(zfatture_, mezzo, vettore); });
  };
  fa_voce(barra, QStringLiteral("Vettori"), zfatture_.spedizione.Vettori,
          [this, prende] { Apri_Vettori(programma_, this, prende, [this] { activateWindow(); }); });
  fa_voce(barra, QStringLiteral("Mostra_Esclusi"), zfatture_.spedizione.Mostra_Esclusi,
          [this] { MostraEsclusi(programma_, zfatture_); });
}

QListView* ZFattureFinestra::fa_lista(const QString& nome, Elenco& stato, const Scritta& didascalia,
                                      TipoFattura tipo) {
  auto* lista = new ListaVoci(programma_.preferenze.DimFontListe);
  lista->setAccessibleName(In_QString(didascalia.testo));
  lista->setMinimumWidth(lista->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caratteri_lista);
  legame.lega(lista, nome, stato,
              [this, &stato, tipo] { SceltaDocumento(programma_, zfatture_, tipo, stato.scelta); });
  connect(lista, &QListView::clicked, this, [this, &stato, tipo] {
    legame.esegui([&] { SceltaDocumento(programma_, zfatture_, tipo, stato.scelta); });
  });
  legame.scelta(lista, [this, &stato, tipo] { DoppioClic(programma_, zfatture_, tipo, stato.scelta); });
  lista->installEventFilter(this);
  return lista;
}

QWidget* ZFattureFinestra::fa_liste() {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(6);
  colonna->addWidget(fa_scritta(QStringLiteral("Caption_MList2"), zfatture_.Caption_MList2));
  QLabel* titolo = fa_scritta(QStringLiteral("ListaTitolo"), zfatture_.ListaTitolo);
  titolo->setFont(Carattere_Fisso(programma_.preferenze.DimFontListe));
  colonna->addWidget(titolo);
  fatture_ =
      fa_lista(QStringLiteral("MList2"), zfatture_.MList2, zfatture_.Caption_MList2, TipoFattura::Fattura);
  note_ = fa_lista(QStringLiteral("ListNA"), zfatture_.ListNA, zfatture_.Caption_ListNA, TipoFattura::Nota);
  colonna->addWidget(fatture_, 3);
  colonna->addWidget(fa_scritta(QStringLiteral("Caption_ListNA"), zfatture_.Caption_ListNA));
  colonna->addWidget(note_, 1);
  colonna->addLayout(fa_ordini());
  if (zfatture_.variante->spedizione) colonna->addWidget(fa_trasporto());
  return parte;
}

QBoxLayout* ZFattureFinestra::fa_ordini() {
  auto* riga = new QHBoxLayout;
  const auto ordina = [this](ColonnaFatture colonna) {
    return [this, colonna] { Ordina(programma_, zfatture_, colonna); };
  };
  riga->addWidget(
      fa_bottone(QStringLiteral("Ordina_Codice"), zfatture_.Ordina_Codice, ordina(ColonnaFatture::Codice)));
  riga->addWidget(fa_bottone(QStringLiteral("Ordina_Cliente"), zfatture_.Ordina_Cliente,
                             ordina(ColonnaFatture::Cliente)));
  riga->addWidget(
      fa_bottone(QStringLiteral("Ordina_Numero"), zfatture_.Ordina_Numero, ordina(ColonnaFatture::Numero)));
  return riga;
}

QGroupBox* ZFattureFinestra::fa_documento() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Documento"));
  auto* griglia = new QGridLayout(riquadro);
  for (int i = 1; i <= 3; ++i) {
    const auto posto = static_cast<std::size_t>(i);
    auto* didascalia = fa_scritta(QStringLiteral("Caption(%1)").arg(i), zfatture_.Caption[posto]);
    auto* campo = fa_campo(QStringLiteral("Text1(%1)").arg(i), zfatture_.Text1[posto],
                           zfatture_.Caption[posto], caratteri_campo);
    didascalia->setBuddy(campo);
    griglia->addWidget(didascalia, i, 0);
    griglia->addWidget(campo, i, 1);
  }
  auto* bottoni = new QHBoxLayout;
  bottoni->addWidget(fa_bottone(QStringLiteral("ModificaFAT"), zfatture_.ModificaFAT,
                                [this] { ModificaFAT(programma_, zfatture_); }));
  bottoni->addWidget(fa_bottone(QStringLiteral("ModificaNA"), zfatture_.ModificaNA,
                                [this] { ModificaNA(programma_, zfatture_); }));
  griglia->addLayout(bottoni, 4, 0, 1, 2);
  return riquadro;
}

QGroupBox* ZFattureFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* griglia = new QGridLayout(riquadro);
  const bool spedizione = zfatture_.variante->spedizione;
  griglia->addWidget(fa_casella(QStringLiteral("Tutte"), zfatture_.Tutte), 0, 0, 1, 2);
  if (!spedizione) {
    griglia->addWidget(fa_casella(QStringLiteral("Stampale"), zfatture_.Stampale), 1, 0);
    griglia->addWidget(fa_casella(QStringLiteral("Paginax2"), zfatture_.Paginax2), 1, 1);
    griglia->addWidget(fa_casella(QStringLiteral("Personalizzata"), zfatture_.Personalizzata), 2, 0);
    griglia->addWidget(fa_casella(QStringLiteral("Check1"), zfatture_.Check1), 2, 1);
    griglia->addWidget(fa_casella(QStringLiteral("Completa"), zfatture_.Completa), 3, 0);
  }
  auto* copie = fa_tendina(QStringLiteral("Combo2"), QStringLiteral("Copie"), zfatture_.Combo2);
  griglia->addWidget(copie, spedizione ? 1 : 3, spedizione ? 0 : 1, 1, spedizione ? 2 : 1);
  auto* luogo = fa_scritta(QStringLiteral("Caption_Text2"), zfatture_.Caption_Text2);
  auto* citta = fa_campo(QStringLiteral("Text2"), zfatture_.Text2, zfatture_.Caption_Text2, caratteri_campo);
  luogo->setBuddy(citta);
  griglia->addWidget(luogo, 4, 0);
  griglia->addWidget(citta, 4, 1);
  griglia->addWidget(fa_bottone(QStringLiteral("Command3"), zfatture_.Command3,
                                [this] { StampaFatNa(programma_, zfatture_); }),
                     5, 0, 1, 2);
  griglia->addWidget(fa_bottone(In_QString(zfatture_.variante->nome_Report), zfatture_.Command7,
                                [this] { Report(programma_, zfatture_); }),
                     6, 0);
  griglia->addWidget(
      fa_bottone(QStringLiteral("Command6"), zfatture_.Command6, [this] { Archivio(programma_, zfatture_); }),
      6, 1);
  return riquadro;
}

QGroupBox* ZFattureFinestra::fa_bottoni_filtri() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Clienti"));
  auto* riga = new QVBoxLayout(riquadro);
  riga->addWidget(fa_bottone(QStringLiteral("Command8"), zfatture_.spedizione.Command8,
                             [this] { SelezionaRistoranti(programma_, zfatture_); }));
  riga->addWidget(fa_bottone(QStringLiteral("Command7"), zfatture_.spedizione.Command7,
                             [this] { SelezionaAlfanumerici(programma_, zfatture_); }));
  return riquadro;
}

QLineEdit* ZFattureFinestra::fa_campo_trasporto(const QString& nome, CampoTesto Campi_Spedizione::*campo,
                                                const Scritta& didascalia) {
  QLineEdit* fatto = fa_campo(nome, zfatture_.spedizione.*campo, didascalia, caratteri_spese);
  campi_trasporto_[fatto] = campo;
  fatto->installEventFilter(this);
  return fatto;
}

// What and how on the left, who on the right.
QGroupBox* ZFattureFinestra::fa_trasporto() {
  using S = Campi_Spedizione;
  Campi_Spedizione& spedizione = zfatture_.spedizione;
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Trasporto"));
  auto* griglia = new QGridLayout(riquadro);
  const std::tuple<const char*, CampoTesto S::*, Scritta S::*> campi[] = {
      {"Text8", &S::Text8, &S::Caption_Text8},
      {"Text3", &S::Text3, &S::Caption_Text3},
      {"Text6", &S::Text6, &S::Caption_Text6},
      {"Text4", &S::Text4, &S::Caption_Text4}};
  int y = 0;
  for (const auto& [nome, campo, didascalia] : campi) {
    const QString nome_qt = QString::fromLatin1(nome);
    QLineEdit* fatto = fa_campo_trasporto(nome_qt, campo, spedizione.*didascalia);
    QLabel* scritta = fa_scritta(QStringLiteral("Caption_") + nome_qt, spedizione.*didascalia);
    scritta->setBuddy(fatto);
    griglia->addWidget(scritta, y, 0);
    griglia->addWidget(fatto, y, 1, 1, campo == &S::Text4 ? 1 : 2);
    ++y;
  }
  // the rate stands beside the expenses, under one caption
  griglia->addWidget(fa_campo_trasporto(QStringLiteral("Text5"), &S::Text5, spedizione.Caption_Text4), y - 1,
                     2);
  griglia->addWidget(fa_scritta(QStringLiteral("Caption_Text7"), spedizione.Caption_Text7), 0, 3);
  for (int i = 0; i < static_cast<int>(spedizione.Text7.size()); ++i) {
    QLineEdit* vettore =
        fa_campo(QStringLiteral("Text7(%1)").arg(i), spedizione.Text7[static_cast<std::size_t>(i)],
                 spedizione.Caption_Text7, caratteri_campo);
    griglia->addWidget(vettore, i + 1, 3);
  }
  griglia->setColumnStretch(1, 1);
  griglia->setColumnStretch(2, 1);
  griglia->setColumnStretch(3, 4);
  griglia->setHorizontalSpacing(10);
  return riquadro;
}

QGroupBox* ZFattureFinestra::fa_caselle_filtri() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Clienti"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->addWidget(fa_casella(QStringLiteral("Check2"), zfatture_.Check2,
                                [this] { CambiaFiltro(programma_, zfatture_, false); }));
  colonna->addWidget(fa_casella(QStringLiteral("Check3"), zfatture_.Check3,
                                [this] { CambiaFiltro(programma_, zfatture_, true); }));
  colonna->addWidget(fa_scritta(QStringLiteral("Esclusi"), zfatture_.Esclusi));
  return riquadro;
}

// Only digits are keyed into the fields of the expenses.
bool ZFattureFinestra::tasto_spese(QKeyEvent& evento) {
  const QString testo = evento.text();
  if (testo.size() != 1 || !testo[0].isPrint() || evento.modifiers().testFlag(Qt::ControlModifier))
    return false;
  return !AmmessoNelleSpese(Da_QString(testo)[0]);
}

bool ZFattureFinestra::evento_trasporto(CampoTesto Campi_Spedizione::*campo, QEvent& evento) {
  const bool spese = campo == &Campi_Spedizione::Text4 || campo == &Campi_Spedizione::Text5;
  if (spese) return evento.type() == QEvent::KeyPress && tasto_spese(static_cast<QKeyEvent&>(evento));
  if (evento.type() != QEvent::MouseButtonDblClick) return false;
  legame.esegui([&] { PredefinitoSpedizione(zfatture_, campo); });
  return true;
}

// Who comes to a list has its document in the fields.
bool ZFattureFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (const auto campo = campi_trasporto_.find(oggetto); campo != campi_trasporto_.end())
    return evento_trasporto(campo->second, *evento) || Finestra::eventFilter(oggetto, evento);
  if (oggetto != fatture_ && oggetto != note_) return Finestra::eventFilter(oggetto, evento);
  const TipoFattura tipo = oggetto == fatture_ ? TipoFattura::Fattura : TipoFattura::Nota;
  if (evento->type() == QEvent::FocusIn && !legame.in_evento() && !legame.in_mostra()) {
    const Elenco& lista = tipo == TipoFattura::Fattura ? zfatture_.MList2 : zfatture_.ListNA;
    if (static_cast<QFocusEvent&>(*evento).reason() == Qt::TabFocusReason ||
        static_cast<QFocusEvent&>(*evento).reason() == Qt::BacktabFocusReason)
      legame.esegui([&] { SceltaDocumento(programma_, zfatture_, tipo, lista.scelta); });
  }
  return false;
}
