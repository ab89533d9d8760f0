#pragma once

#include <memory>

#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>

#include "printing/screens/lavoro.h"

// A document on its way to a printer of the system.
class Lavoro_Carta : public Lavoro {
 public:
  // `bordi` are those of the sheet as it stands upright.
  Lavoro_Carta(std::unique_ptr<QPrinter> stampante, const QPageSize& foglio, const QMarginsF& bordi);

  void Pagina(int pagina, int orientamento) override;
  void Scrivi(double x, double base, Fonte_Stampa& fonte, double corpo, Vista testo) override;
  void Disegna(const Segno& segno) override;
  void Disegna(const Ovale& ovale) override;
  void Disegna(const Figura& figura) override;
  std::optional<std::string> Finisci() override;
  bool Abbandona() override;

 private:
  double Punti(double millimetri) const;
  QPen Penna(int larghezza, const Colore& colore) const;

  std::unique_ptr<QPrinter> stampante_;
  QPageSize foglio_;
  QMarginsF bordi_;
  QPainter pennello_;
};

QMarginsF Bordi_Girati(const QMarginsF& bordi, int orientamento);  // as the sheet lies
