#include "lists/screens/modulo_finestra.h"

#include <algorithm>

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "lists/screens/parti.h"
#include "platform/aspetto.h"
#include "platform/tasti_qt.h"
#include "platform/testo_qt.h"

namespace {

constexpr double punti_campi = 13;

}  // namespace

ModuloFinestra::ModuloFinestra(Programma& programma, SchermoAnagrafica& schermo, QWidget* padre)
    : FinestraModulo(In_QString(schermo.anagrafica->modulo), padre, Qt::Window),
      programma_(programma),
      schermo_(schermo),
      scorri_(new QScrollBar(Qt::Horizontal)) {
  setWindowModality(Qt::WindowModal);
  setWindowTitle(In_QString(schermo_.titolo_modulo));
  setFont(Carattere(punti_normali));

  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(18, 16, 18, 16);
  tutto->setSpacing(14);
  tutto->addLayout(fa_campi());
  if (!schermo_.anagrafica->note.empty()) tutto->addLayout(fa_note());
  auto* aiuto = fa_scritta(QStringLiteral("Aiuto"), schermo_.Aiuto);
  aiuto->setWordWrap(true);
  aiuto->setMinimumHeight(aiuto->fontMetrics().lineSpacing() * 2);  // nothing moves when a tip comes
  aiuto->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  tutto->addWidget(aiuto);
  tutto->addStretch();
  tutto->addLayout(fa_scorrimento());
  if (!schermo_.anagrafica->comandi.empty()) tutto->addLayout(fa_altri_comandi());
  tutto->addLayout(fa_comandi());
  legame.mostra();
}

QLayout* ModuloFinestra::fa_note() {
  auto* righe = new QVBoxLayout;
  righe->setSpacing(3);
  for (const Testo& nota : schermo_.anagrafica->note) {
    auto* scritta = new QLabel(In_QString(nota));
    scritta->setObjectName(QStringLiteral("Nota(%1)").arg(righe->count()));
    scritta->setWordWrap(true);
    righe->addWidget(scritta);
  }
  return righe;
}

QLayout* ModuloFinestra::fa_campi() {
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(12);
  griglia->setVerticalSpacing(9);
  griglia->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < schermo_.Text1.size(); ++i) fa_campo(griglia, i);
  return griglia;
}

void ModuloFinestra::fa_campo(QGridLayout* griglia, std::size_t i) {
  const Campo_Anagrafica& descrizione = schermo_.anagrafica->campi[i];
  const int numero = static_cast<int>(i);
  auto* campo = new CasellaTesto;
  auto* scritta = new QLabel;
  scritta->setBuddy(campo);
  legame.lega(scritta, QStringLiteral("Caption(%1)").arg(numero), schermo_.Caption[i]);
  campo->setFont(Carattere(punti_campi));
  campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 34);
  campo->setAccessibleName(In_QString(descrizione.didascalia).trimmed());
  campo->setReadOnly(!descrizione.a_mano);
  campo->installEventFilter(this);
  legame.lega(campo, QStringLiteral("Text1(%1)").arg(numero), schermo_.Text1[i],
              [this, i] { campo_cambiato(i); });
  campi_.push_back(campo);
  griglia->addWidget(scritta, numero, 0);
  griglia->addWidget(campo, numero, 1);
}

// What the logic takes away from the text stood before the cursor, or at it.
void ModuloFinestra::campo_cambiato(std::size_t i) {
  CasellaTesto* campo = campi_[i];
  const Testo prima_del_cursore = Da_QString(campo->text().left(campo->cursorPosition()));
  Cambia_Campo(programma_, schermo_, i);
  const QString testo = In_QString(schermo_.Text1[i].testo);
  if (campo->text() == testo || !schermo_.anagrafica->campi[i].numero) return;
  campo->setText(testo);
  campo->setCursorPosition(
      static_cast<int>(Solo_Numero(prima_del_cursore, programma_.Separatore_Decimale).size()));
}

QLayout* ModuloFinestra::fa_scorrimento() {
  auto* riga = new QHBoxLayout;
  riga->setSpacing(12);
  scorri_->setPageStep(10);
  scorri_->setFocusPolicy(Qt::StrongFocus);
  scorri_->setMinimumHeight(fontMetrics().height() * 3 / 2);
  scorri_->setAccessibleName(QStringLiteral("Riga"));
  legame.lega(scorri_, QStringLiteral("Scorri"), schermo_.Scorri,
              [this] { Vai_Alla_Riga(programma_, schermo_, schermo_.Scorri.valore); });
  auto* posto = fa_scritta(QStringLiteral("Posto"), schermo_.Posto);
  posto->setMinimumWidth(posto->fontMetrics().horizontalAdvance(QStringLiteral("riga 00000 di 00000")));
  posto->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  riga->addWidget(scorri_, 1);
  riga->addWidget(posto);
  return riga;
}

QLayout* ModuloFinestra::fa_comandi() {
  auto* riga = new QHBoxLayout;
  struct Comando {
    const char* nome;
    Bottone& stato;
    Legame::Evento evento;
  };
  const Comando comandi[] = {{"Aggiungi", schermo_.Aggiungi, [this] { Aggiungi_Voce(programma_, schermo_); }},
                             {"Modifica", schermo_.Modifica, [this] { Modifica_Voce(programma_, schermo_); }},
                             {"Elimina", schermo_.Elimina, [this] { Elimina_Voce(programma_, schermo_); }},
                             {"Pulisci", schermo_.Pulisci,
                              [this] {
                                Pulisci_Campi(schermo_);
                                campi_.front()->setFocus(Qt::OtherFocusReason);
                              }},
                             {"Chiudi", schermo_.ChiudiModulo, [this] { chiudi_dopo(); }}};
  for (const auto& [nome, stato, evento] : comandi) {
    QPushButton* bottone = fa_bottone(QString::fromLatin1(nome), stato, evento);
    if (&stato == &schermo_.ChiudiModulo)
      riga->addWidget(fa_scritta(QStringLiteral("Esito"), schermo_.EsitoModulo), 1);
    riga->addWidget(bottone);
  }
  return riga;
}

QLayout* ModuloFinestra::fa_altri_comandi() {
  auto* riga = new QHBoxLayout;
  const auto& comandi = schermo_.anagrafica->comandi;
  for (std::size_t i = 0; i < comandi.size(); ++i)
    riga->addWidget(fa_bottone(In_QString(comandi[i].nome), schermo_.Comandi[i], [this, i] {
      const Comando_Anagrafica& scelto = schermo_.anagrafica->comandi[i];
      if (scelto.esegui != nullptr)
        scelto.esegui(programma_, schermo_);
      else
        emit comando(scelto.nome);
    }));
  riga->addStretch();
  return riga;
}

void ModuloFinestra::mostra() {
  legame.mostra();
  emit mostrata();
}

void ModuloFinestra::apri(const QRect& spazio) {
  mostra();
  adjustSize();
  const int sinistra = qMax(spazio.left(), spazio.right() - width() - 14);
  move(sinistra, spazio.top() + spazio.height() / 10);
  show();
  activateWindow();
  campi_.front()->setFocus(Qt::TabFocusReason);
}

bool ModuloFinestra::evento_campo(std::size_t i, QEvent& evento) {
  if (evento.type() == QEvent::FocusIn && !legame.in_mostra() && !legame.in_evento()) {
    legame.esegui([&] { Fuoco_Campo(schermo_, i); });
    return false;
  }
  const Campo_Anagrafica& campo = schermo_.anagrafica->campi[i];
  const bool cambia = campo.doppio_clic != nullptr || campo.riprende;
  const bool spazio = evento.type() == QEvent::KeyPress && !schermo_.anagrafica->campi[i].a_mano &&
                      Da_QKeyEvent(static_cast<QKeyEvent&>(evento)).tasto == Tasto::Spazio;
  if (!cambia || (evento.type() != QEvent::MouseButtonDblClick && !spazio)) return false;
  legame.esegui([&] { Doppio_Clic_Campo(programma_, schermo_, i); });
  return true;
}

bool ModuloFinestra::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto trovato = std::ranges::find(campi_, oggetto);
  if (trovato != campi_.end() && evento_campo(static_cast<std::size_t>(trovato - campi_.begin()), *evento))
    return true;
  return Finestra::eventFilter(oggetto, evento);
}

bool ModuloFinestra::tasto(const Pressione& pressione) {
  const bool avanti = pressione.tasto == Tasto::PagGiu, indietro = pressione.tasto == Tasto::PagSu;
  if (!pressione.Nudo() || (!avanti && !indietro)) return FinestraModulo::tasto(pressione);
  scorri_->setValue(scorri_->value() + (avanti ? 1 : -1));
  return true;
}
