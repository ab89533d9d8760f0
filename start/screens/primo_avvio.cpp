#include "start/screens/primo_avvio.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "platform/aspetto.h"

namespace {

struct Dato {
  const char16_t* titolo;
  const char16_t* esempio;
};

constexpr std::array<Dato, 7> righe = {{{u"Ragione sociale", u"Mare Blu s.n.c."},
                                        {u"Seconda riga", u"di Verdi Anna & C."},
                                        {u"Riga libera", u"Commissionari in prodotti ittici"},
                                        {u"Indirizzo", u"via Roma, 1"},
                                        {u"CAP e città", u"30100 Venezia - VE"},
                                        {u"Telefono", u"Tel. (041) ....."},
                                        {u"Partita IVA", u"Partita I.V.A. 000000000000"}}};
constexpr Dato codice = {u"Codice della ditta", u"0"};
constexpr Dato posteggio = {u"Numero del posteggio", u"01"};

constexpr const char16_t* spiegazione =
    u"Benvenuti. In questa cartella il programma parte per la prima volta: servono i dati della ditta, "
    u"come devono comparire sull'intestazione dei documenti.\n"
    u"Le righe che non servono possono restare vuote.";
constexpr const char16_t* nota_codice = u"Il codice assegnato dal mercato; 0 se non ce n'è uno.";
constexpr const char16_t* nota_posteggio = u"Due cifre, per esempio 01.";

QString Qt_Di(const char16_t* testo) { return QString::fromUtf16(testo); }

}  // namespace

PrimoAvvioFinestra::PrimoAvvioFinestra(Piattaforma& piattaforma, char separatore)
    : FinestraModulo(QStringLiteral("PrimoAvvio"), nullptr, Qt::Dialog),
      piattaforma_(piattaforma),
      separatore_(separatore) {
  setWindowTitle(QStringLiteral("Prima Nota - Primo avvio"));
  Text2_.testo = "0";
  Command1_.testo = "&Conferma";
  Command2_.testo = "&Annulla";

  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(24, 20, 24, 20);
  colonna->setSpacing(16);
  auto* testo = new QLabel(Qt_Di(spiegazione));
  testo->setFont(Carattere(punti_normali));
  testo->setWordWrap(true);
  colonna->addWidget(testo);
  colonna->addWidget(fa_campi());

  auto* riga = new QHBoxLayout;
  auto* conferma_bottone = new QPushButton;
  auto* annulla = new QPushButton;
  legame.lega(conferma_bottone, QStringLiteral("Command1"), Command1_, [this] { conferma(); });
  legame.lega(annulla, QStringLiteral("Command2"), Command2_, [this] { chiudi_dopo(); });
  riga->addStretch();
  for (QPushButton* bottone : {conferma_bottone, annulla}) {
    bottone->setFont(Carattere(punti_grandi));
    bottone->setMinimumHeight(bottone->fontMetrics().height() * 2);
    riga->addWidget(bottone);
  }
  colonna->addLayout(riga);
}

QWidget* PrimoAvvioFinestra::fa_campi() {
  auto* riquadro = new QWidget;
  auto* griglia = new QGridLayout(riquadro);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setVerticalSpacing(8);
  int riga = 0;
  const auto aggiungi = [&](const QString& nome, CampoTesto& stato, const Dato& dato, const char16_t* nota) {
    auto* campo = new CasellaTesto;
    campo->setFont(Carattere(punti_grandi));
    campo->setPlaceholderText(QStringLiteral("per esempio:  ") + Qt_Di(dato.esempio));
    campo->setAccessibleName(Qt_Di(dato.titolo));
    legame.lega(campo, nome, stato);
    auto* titolo = new QLabel(Qt_Di(dato.titolo));
    titolo->setFont(Carattere(punti_normali));
    titolo->setBuddy(campo);
    griglia->addWidget(titolo, riga, 0);
    if (!nota) {
      griglia->addWidget(campo, riga++, 1, 1, 2);
      return campo;
    }
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QString(22, u'0')));
    griglia->addWidget(campo, riga, 1);
    griglia->addWidget(new QLabel(Qt_Di(nota)), riga++, 2);
    return campo;
  };
  for (std::size_t i = 0; i < righe.size(); ++i)
    aggiungi(QStringLiteral("Text1(%1)").arg(i), Text1_[i], righe[i], nullptr);
  aggiungi(QStringLiteral("Text2"), Text2_, codice, nota_codice);
  posteggio_ = aggiungi(QStringLiteral("Text3"), Text3_, posteggio, nota_posteggio);
  posteggio_->setMaxLength(2);
  griglia->setColumnStretch(2, 1);
  riquadro->setMinimumWidth(griglia->sizeHint().width() + 160);
  return riquadro;
}

void PrimoAvvioFinestra::conferma() {
  if (Numero(Text3_.testo, separatore_).value_or(0) <= 0) {
    piattaforma_.Messaggio(
        "Il numero del posteggio manca o non va bene:\nscrivere un numero maggiore di 0, per esempio 01");
    posteggio_->setFocus();
    return;
  }
  confermato_ = true;
  chiudi_dopo();
}

std::optional<PrimoAvvio> PrimoAvvioFinestra::chiedi() {
  confermato_ = false;
  esegui();
  if (!confermato_) return std::nullopt;
  PrimoAvvio dati;
  for (std::size_t i = 0; i < Text1_.size(); ++i) dati.righe[i] = Pulito(Text1_[i].testo);
  dati.codice = Pulito(Text2_.testo);
  dati.posteggio = Pulito(Text3_.testo);
  return dati;
}
