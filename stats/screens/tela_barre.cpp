#include "stats/screens/tela_barre.h"

#include <QPainter>

#include "platform/aspetto.h"
#include "platform/testo_qt.h"

namespace {

constexpr int caratteri_larghi = 30, margine = 8, righe_nome_e_barra = 2;

}  // namespace

TelaBarre::TelaBarre(const Grafico& grafico, char separatore, QWidget* padre)
    : QWidget(padre), grafico_(grafico), separatore_(separatore) {
  setFont(Carattere(punti_normali));
  setObjectName(QStringLiteral("Grafico"));
  setAccessibleName(QStringLiteral("Importi maggiori"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

// What the bars show is read aloud as well.
void TelaBarre::aggiorna() {
  if (versione_ == grafico_.versione) return;
  versione_ = grafico_.versione;
  QStringList voci;
  for (const Barra& barra : grafico_.barre) voci << In_QString(barra.nome + " " + Cifra(barra, separatore_));
  setAccessibleDescription(voci.join(QStringLiteral("; ")));
  update();
}

int TelaBarre::passo() const {
  const int riga = fontMetrics().height();
  return righe_nome_e_barra * riga + riga / 2;
}

QSize TelaBarre::minimumSizeHint() const {
  const int righe = static_cast<int>(Barre_Massime);
  return {fontMetrics().averageCharWidth() * caratteri_larghi / 2, passo() * righe / 2};
}

QSize TelaBarre::sizeHint() const {
  const int alta = fontMetrics().height() * 3 + passo() * static_cast<int>(Barre_Massime) + 2 * margine;
  return {fontMetrics().averageCharWidth() * caratteri_larghi, alta};
}

void TelaBarre::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.fillRect(rect(), palette().base());
  pittore.setPen(palette().color(QPalette::Mid));
  pittore.drawRect(rect().adjusted(0, 0, -1, -1));
  if (grafico_.barre.empty()) return;
  const int riga = fontMetrics().height();
  pittore.setFont(Carattere(punti_normali, true));
  pittore.setPen(palette().color(QPalette::Text));
  pittore.drawText(QRect(margine, margine, width() - 2 * margine, 2 * riga), Qt::AlignLeft | Qt::TextWordWrap,
                   In_QString(grafico_.titolo));
  pittore.setFont(font());
  int alto = margine + 2 * riga + riga / 2;
  for (const Barra& barra : grafico_.barre) {
    dipingi_barra(pittore, barra, alto);
    alto += passo();
  }
}

// The name above, the amount behind the bar.
void TelaBarre::dipingi_barra(QPainter& pittore, const Barra& barra, int alto) const {
  const QFontMetrics misure = fontMetrics();
  const int riga = misure.height(), larga = width() - 2 * margine;
  pittore.setPen(palette().color(QPalette::Text));
  pittore.drawText(QRect(margine, alto, larga, riga), Qt::AlignLeft | Qt::AlignVCenter,
                   misure.elidedText(In_QString(barra.nome), Qt::ElideMiddle, larga));
  const int lunga = qMax(1, static_cast<int>(Lunghezza(grafico_, barra) * (larga - larghezza_cifre())));
  pittore.drawText(QRect(margine + lunga + margine, alto + riga, larga, riga),
                   Qt::AlignLeft | Qt::AlignVCenter, In_QString(Cifra(barra, separatore_)));
  pittore.setBrush(barra.importo > 0 ? palette().brush(QPalette::Highlight) : QBrush(Qt::NoBrush));
  pittore.drawRect(QRect(margine, alto + riga + riga / 8, lunga, riga * 3 / 4));
}

// What the longest amount takes, with the gap before it.
int TelaBarre::larghezza_cifre() const {
  int larghezza = 0;
  for (const Barra& barra : grafico_.barre)
    larghezza = qMax(larghezza, fontMetrics().horizontalAdvance(In_QString(Cifra(barra, separatore_))));
  return larghezza + 2 * margine;
}
