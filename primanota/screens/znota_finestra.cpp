#include "primanota/screens/znota_finestra.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"
#include "printing/screens/stampante_finestra.h"
#include "transfers/screens/senza_proposta.h"
#include "transfers/screens/xdisk_finestra.h"

ZnotaFinestra::ZnotaFinestra(Programma& programma, QWidget* padre)
    : Finestra(QStringLiteral("Znota"), padre, Qt::Window), programma_(programma) {
  znota_.scegli_drive = Chiedi_Drive(programma_, this);
  ApriNote(programma_, znota_);
  setFont(Carattere(punti_normali));

  auto* destinatario = new QLabel;
  destinatario->setFont(Carattere(punti_normali));
  legame.lega(destinatario, QStringLiteral("Destinatario"), znota_.Destinatario);
  auto* stampante = new QLabel;
  stampante->setFont(Carattere(punti_normali));
  stampante->setTextFormat(Qt::PlainText);
  stampante->setWordWrap(true);
  legame.lega(stampante, QStringLiteral("Stampante"), znota_.Stampante);

  auto* destra = new QVBoxLayout;
  destra->setSpacing(12);
  destra->addWidget(destinatario);
  destra->addWidget(fa_stampa());
  destra->addWidget(stampante);
  destra->addWidget(fa_file());
  destra->addStretch();
  destra->addWidget(fa_bottone("Chiudi", znota_.Chiudi, [this] { ChiudiNote(programma_, znota_); }));
  auto* affiancate = new QHBoxLayout;
  affiancate->setContentsMargins(18, 14, 18, 14);
  affiancate->setSpacing(14);
  affiancate->addLayout(fa_sinistra(), 1);
  affiancate->addLayout(destra);

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setMenuBar(fa_menu());
  tutto->addLayout(affiancate, 1);
  mostra();
  lista_->setFocus(Qt::OtherFocusReason);
}

QMenuBar* ZnotaFinestra::fa_menu() {
  auto* barra = new QMenuBar;
  const auto voce = [&](const char* nome, Bottone& stato, Legame::Evento evento) {
    legame.lega(barra->addAction(In_QString(stato.testo)), QString::fromUtf8(nome), stato, std::move(evento));
  };
  voce("MenuEsclusi", znota_.MenuEsclusi, [this] { MostraEsclusi(programma_, znota_); });
  voce("Scelta_Stampante", znota_.Scelta_Stampante, [this] { apri_stampante(); });
  voce("Aiuto_Esportazione", znota_.Aiuto_Esportazione,
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
  auto* didascalia = new QLabel;
  didascalia->setFont(Carattere(punti_normali, true));
  legame.lega(didascalia, QStringLiteral("Caption_ListaEsclusi"), znota_.Caption_ListaEsclusi);
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
  fa_casella(colonna, "Tutte_Le_Note", znota_.Tutte_Le_Note);
  fa_casella(colonna, "Unico_Documento", znota_.Unico_Documento);
  fa_casella(colonna, "Scrivi_Totale", znota_.Scrivi_Totale);
  fa_casella(colonna, "Ordina_Specie", znota_.Ordina_Specie, [this] { CambiaOrdine(programma_, znota_); });
  fa_casella(colonna, "Tante_NA", znota_.Tante_NA);
  auto* copie = new QComboBox;
  copie->setFont(Carattere(punti_normali));
  copie->setAccessibleName(QStringLiteral("Copie"));
  legame.lega(copie, QStringLiteral("Copie"), znota_.Copie);
  colonna->addWidget(copie);
  colonna->addWidget(
      fa_bottone("Stampa_Nota", znota_.Stampa_Nota, [this] { StampaNote(programma_, znota_); }));
  return riquadro;
}

QGroupBox* ZnotaFinestra::fa_file() {
  auto* riquadro = Riquadro_Titolato(QStringLiteral("File"));
  auto* colonna = new QVBoxLayout(riquadro);
  fa_casella(colonna, "Limita_Zona", znota_.Limita_Zona);
  colonna->addWidget(
      fa_bottone("Esporta_Nota", znota_.Esporta_Nota, [this] { Esporta(programma_, znota_); }));
  return riquadro;
}

void ZnotaFinestra::fa_casella(QBoxLayout* colonna, const char* nome, Spunta& stato, Legame::Evento evento) {
  const QString didascalia = In_QString(stato.didascalia);
  auto* casella = new QCheckBox(didascalia);
  casella->setFont(Carattere(punti_normali));
  casella->setAccessibleName(didascalia);
  legame.lega(casella, QString::fromUtf8(nome), stato, std::move(evento));
  colonna->addWidget(casella);
}

QPushButton* ZnotaFinestra::fa_bottone(const char* nome, Bottone& stato, Legame::Evento evento) {
  QPushButton* bottone = Fa_Bottone(stato);
  legame.lega(bottone, QString::fromUtf8(nome), stato, std::move(evento));
  return bottone;
}

void ZnotaFinestra::apri_stampante() {
  StampanteFinestra finestra(programma_, this);
  finestra.esegui();
  AggiornaComandi(programma_, znota_);
}

void ZnotaFinestra::mostra() {
  const bool spenta = !lista_->isEnabled();
  Finestra::mostra();
  const QString titolo = In_QString(znota_.titolo);
  if (windowTitle() != titolo) setWindowTitle(titolo);
  // a disabled list has lost the keyboard
  if (spenta && lista_->isEnabled()) lista_->setFocus(Qt::OtherFocusReason);
  if (!znota_.chiusa || in_chiusura_) return;
  in_chiusura_ = true;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

// The list takes the arrows itself; what the other controls leave comes here.
void ZnotaFinestra::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = Da_QKeyEvent(*evento);
  bool usato = false;
  legame.esegui([&] { usato = TastoNote(programma_, znota_, pressione); });
  if (!usato) Finestra::keyPressEvent(evento);
}

void ZnotaFinestra::closeEvent(QCloseEvent* evento) {
  if (!znota_.chiusa) {
    in_chiusura_ = true;
    if (!occupata()) legame.esegui([this] { ChiudiNote(programma_, znota_); });
    in_chiusura_ = znota_.chiusa;
  }
  if (znota_.chiusa)
    Finestra::closeEvent(evento);
  else
    evento->ignore();
}
