#pragma once

#include <string>
#include <vector>

#include <QString>

#include "printing/screens/fonte_stampa.h"
#include "printing/screens/lavoro.h"
#include "printing/screens/pdf.h"

// A document as a PDF file on sheets of A4: text that can be searched and copied, fonts inside. Written here
// and not by the toolkit, which takes each font apart anew for every file: an evening's hundreds of documents
// took six times as long.
class Lavoro_Pdf : public Lavoro {
 public:
  explicit Lavoro_Pdf(QString titolo);

  void Pagina(int pagina, int orientamento) override;
  void Scrivi(double x, double base, Fonte_Stampa& fonte, double corpo, Vista testo) override;
  void Disegna(const Segno& segno) override;
  void Disegna(const Ovale& ovale) override;
  void Disegna(const Figura& figura) override;
  std::optional<std::string> Finisci() override;
  bool Abbandona() override { return true; }

 private:
  struct Fonte_In_Uso {
    Fonte_Stampa* fonte = nullptr;
    Segni_Usati segni;
    int oggetto = 0;
  };

  // What the page's pen has already been told.
  struct Penna {
    std::string colore, colore_pieno, spessore, fonte;
  };

  double Alto(double y) const;  // PDF counts from the foot
  std::size_t Indice(Fonte_Stampa& fonte);
  void Metti(std::string& presente, const std::string& voluto);
  void Prendi_Penna(int larghezza, const Colore& colore);
  void Chiudi_Pagina();
  void Scrivi_Fonti();
  int Scrivi_Lettere();
  std::string Risorse() const;
  int Notizie();

  QString titolo_;
  File_Pdf file_;
  int pagine_, risorse_;  // objects that all pages call
  std::vector<int> fatte_;
  std::vector<Fonte_In_Uso> fonti_;
  std::vector<int> figure_;
  double larghezza_ = 0, altezza_ = 0;  // of the page in work, points
  std::string segni_;                   // what is drawn on it
  Penna penna_;
};
