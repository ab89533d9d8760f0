#include "primanota/screens/znota_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"
#include "transfers/screens/senza_proposta.h"
#include "transfers/screens/xdisk_finestra.h"

ZnotaFinestra::ZnotaFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Znota"), padre, Qt::Window), programma_(programma) {
  znota_.scegli_drive = Chiedi_Drive(programma_, this);
  ApriNote(programma_, znota_);
  intitola(znota_.titolo);
  si_chiude(znota_.chiusa, [this] { ChiudiNote(programma_, znota_); });
  setFont(Carattere(punti_normali));

  auto* stampante = fa_scritta(QStringLiteral("Stampante"), znota_.Stampante);
  stampante->setWordWrap(true);
  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(fa_scritta(QStringLiteral("Destinatario"), znota_.Destinatario));
  destra->addWidget(fa_stampa());
  destra->addWidget(stampante);
  destra->addWidget(fa_file());
  destra->addStretch();
  destra->addWidget(
      fa_bottone(QStringLiteral("Chiudi"), znota_.Chiudi, [this] { ChiudiNote(programma_, znota_); }));
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(14);
  affiancate->addLayout(fa_sinistra(), 1);
  affiancate->addLayout(destra);
  disponi(fa_menu(), affiancate);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZnotaFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  fa_voce(barra, QStringLiteral("MenuEsclusi"), znota_.MenuEsclusi,
          [this] { MostraEsclusi(programma_, znota_); });
  fa_voce(barra, QStringLiteral("Scelta_Stampante"), znota_.Scelta_Stampante, [this] { apri_stampante(); });
  fa_voce(barra, QStringLiteral("Aiuto_Esportazione"), znota_.Aiuto_Esportazione,
          [this] { MostraAiutoEsportazione(programma_, znota_); });
  return barra;
}

QBoxLayout* ZnotaFinestra::fa_sinistra() {
  lista_ = new Senza_Proposta<ListaVoci>(programma_.preferenze.DimFontListe);
  lista_->setAccessibleName(QStringLiteral("Note"));
  lista_->setMinimumWidth(lista_->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 56);
  legame.lega(lista_, QStringLiteral("ListaNote"), znota_.ListaNote, [this] { SceltaNota(znota_); });
  auto* in_stampa = new CasellaTesto;
  in_stampa->setFont(Carattere(punti_normali));
  in_stampa->setAccessibleName(QStringLiteral("Prima Nota in stampa"));
  legame.lega(in_stampa, QStringLiteral("Text1(1)"), znota_.Text1[1]);
  auto* didascalia = fa_scritta(QStringLiteral("Caption_ListaEsclusi"), znota_.Caption_ListaEsclusi);
  didascalia->setFont(Carattere(punti_normali, true));
  auto* esclusi = new ListaVoci(programma_.preferenze.DimFontListe);
  esclusi->setAccessibleName(In_QString(znota_.Caption_ListaEsclusi.testo));
  legame.lega(esclusi, QStringLiteral("ListaEsclusi"), znota_.ListaEsclusi);

  auto* colonna = new QVBoxLayout;
  colonna->addWidget(lista_, 2);
  colonna->addWidget(in_stampa);
  colonna->addWidget(didascalia);
  colonna->addWidget(esclusi, 1);
  return colonna;
}

QGroupBox* ZnotaFinestra::fa_stampa() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("Stampa"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->addWidget(fa_casella(QStringLiteral("Tutte_Le_Note"), znota_.Tutte_Le_Note));
  colonna->addWidget(fa_casella(QStringLiteral("Unico_Documento"), znota_.Unico_Documento));
  colonna->addWidget(fa_casella(QStringLiteral("Scrivi_Totale"), znota_.Scrivi_Totale));
  colonna->addWidget(fa_casella(QStringLiteral("Ordina_Specie"), znota_.Ordina_Specie,
                                [this] { CambiaOrdine(programma_, znota_); }));
  colonna->addWidget(fa_casella(QStringLiteral("Tante_NA"), znota_.Tante_NA));
  colonna->addWidget(fa_tendina(QStringLiteral("Copie"), QStringLiteral("Copie"), znota_.Copie));
  colonna->addWidget(fa_bottone(QStringLiteral("Stampa_Nota"), znota_.Stampa_Nota,
                                [this] { StampaNote(programma_, znota_); }));
  return riquadro;
}

QGroupBox* ZnotaFinestra::fa_file() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("File"));
  auto* colonna = new QVBoxLayout(riquadro);
  colonna->addWidget(fa_casella(QStringLiteral("Limita_Zona"), znota_.Limita_Zona));
  colonna->addWidget(fa_bottone(QStringLiteral("Esporta_Nota"), znota_.Esporta_Nota,
                                [this] { Esporta(programma_, znota_); }));
  return riquadro;
}

void ZnotaFinestra::apri_stampante() {
  StampanteFinestra finestra(programma_, this);
  finestra.esegui();
  AggiornaComandi(programma_, znota_);
}

void ZnotaFinestra::mostra() {
  const bool spenta = !lista_->isEnabled();
  Finestra::mostra();
  // a disabled list has lost the keyboard
  if (spenta && lista_->isEnabled()) lista_->setFocus(Qt::OtherFocusReason);
}

// The list takes the arrows itself; what the other controls leave comes here.
bool ZnotaFinestra::tasto(const Pressione& pressione) {
  return legame.usa([&] { return TastoNote(programma_, znota_, pressione); });
}
