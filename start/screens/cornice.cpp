#include "start/screens/cornice.h"

#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <QStackedWidget>

namespace {

constexpr QSize misura_piccola(80, 27);  // 1200 by 400 twips
constexpr double parte_di_lavoro = 0.93;

}  // namespace

Cornice::Cornice() : pagine_(new QStackedWidget) {
  setObjectName(QStringLiteral("Albero2"));
  setWindowTitle(QStringLiteral("Prima Nota"));
  setProperty("ricordata", true);
  setCentralWidget(pagine_);
  // The small window is smaller than what its pages ask for.
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
  pagine_->setMinimumSize(1, 1);
  setMinimumSize(misura_piccola);
  resize(screen()->availableSize() * parte_di_lavoro);
}

void Cornice::aggiungi(QWidget* pagina, QWidget* con_titolo) {
  pagine_->addWidget(pagina);
  pagina->setProperty("titolo_di", QVariant::fromValue(con_titolo));
  connect(con_titolo, &QWidget::windowTitleChanged, this, &Cornice::aggiorna_titolo);
}

void Cornice::vai(QWidget* pagina) {
  pagine_->setCurrentWidget(pagina);
  aggiorna_titolo();
}

QWidget* Cornice::pagina() const { return pagine_->currentWidget(); }

void Cornice::aggiorna_titolo() {
  const auto* con_titolo = pagine_->currentWidget()->property("titolo_di").value<QWidget*>();
  setWindowTitle(QStringLiteral("Prima Nota - ") + con_titolo->windowTitle());
}

bool Cornice::grande() const { return height() > screen()->availableGeometry().height() / 2; }

void Cornice::riduci() {
  const QRect schermo = screen()->availableGeometry();
  if (grande()) {
    massima_ = isMaximized();
    misura_ = massima_ ? normalGeometry() : geometry();
    setWindowState(Qt::WindowNoState);
    setGeometry(QRect(schermo.topLeft(), misura_piccola));
  } else {
    const QSize di_lavoro(schermo.width(), static_cast<int>(schermo.height() * parte_di_lavoro));
    setGeometry(misura_.isValid() ? misura_ : QRect(schermo.topLeft(), di_lavoro));
    if (massima_) setWindowState(Qt::WindowMaximized);
  }
  setProperty("ricordata", grande());  // the small window is for a moment
  activateWindow();
}

void Cornice::closeEvent(QCloseEvent* evento) {
  evento->ignore();  // the closing routine decides
  if (chiusura) chiusura();
}
