#pragma once

#include <functional>
#include <map>
#include <memory>
#include <tuple>

#include <QMarginsF>
#include <QPageSize>
#include <QStringList>

#include "printing/dispositivo.h"
#include "printing/nomi_stampe.h"
#include "printing/screens/fonte_stampa.h"
#include "printing/screens/lavoro.h"

class QPrinter;

// The page device on paper: a printer of the system, or "PDF", by which each document becomes a file in the
// firm's folder `Stampe`. The machine's default printer is the first choice, PDF where there is none; a
// system printer that is called "PDF" itself gives way to ours. Letters stand where the built-in tables
// measure them, so that what was measured is what is drawn; a font that the tables weren't made for is
// measured by its own widths.
class Stampante_Qt : public Printer {
 public:
  explicit Stampante_Qt(const Percorso& cartella_ditta);
  ~Stampante_Qt() override;

  Disco disco;
  std::function<void(const Percorso&)> mostra;  // shows a finished PDF; called while Apri_Alla_Fine is set
  // Tells the operator that a document was lost. A run prints many: then the first one only, until one comes
  // out again or the same one is tried again.
  std::function<void(const Testo&)> avviso;

  std::optional<Testo> DeviceName() override;
  std::vector<Testo> Stampanti() override;
  Percorso Ultimo_PDF() const override { return ultimo_pdf_; }

 protected:
  // The system's printers; the default one is the first. A name that isn't there gives null.
  virtual QStringList Stampanti_Di_Sistema() const;
  virtual std::unique_ptr<QPrinter> Stampante_Di_Sistema(const QString& nome) const;

  Carta Foglio(int orientamento) const override;
  const Metrica& Misure(const Carattere_Stampa& carattere) override;
  int Orientamento() const override;
  void Orienta(int orientamento) override;
  bool Prendi_Stampante(const Testo& nome) override;
  bool Inizia_Documento() override;
  void Inizia_Pagina(int pagina, int orientamento) override;
  bool Finisci_Documento() override;
  bool Abbandona_Documento() override;
  void Disegna(double x, double y, const Carattere_Stampa& carattere, Vista testo) override;
  void Disegna(const Segno& segno) override;
  void Disegna(const Ovale& ovale) override;
  void Disegna(const Figura& figura) override;

 private:
  struct Scelta {  // the printer in use
    Testo nome;
    int orientamento = Verticale;
    // Of a system printer, in millimetres: its paper and what its driver keeps of it, as the sheet stands
    // upright.
    QPageSize foglio;
    QMarginsF bordi;
  };
  using Chiave = std::tuple<Testo, bool, bool>;  // font name or family, bold, italic

  const Scelta& In_Uso() const;
  std::optional<Scelta> Trova(const QString& nome) const;
  Fonte_Stampa& Fonte(const Carattere_Stampa& carattere);
  Fonte_Stampa& Fonte_Di(const Testo& famiglia, const Carattere_Stampa& stile);
  std::unique_ptr<Lavoro> Nuovo_Lavoro(const QString& titolo);
  std::unique_ptr<Lavoro> Nuovo_Pdf(const QString& titolo);
  bool Consegna_PDF(Vista contenuto);
  void Perso(const Documento& documento_perso, const Testo& perche);

  Percorso cartella_stampe_;
  // Asked of the system at the first need: a print server may let one wait.
  mutable std::optional<Scelta> scelta_;
  std::unique_ptr<Lavoro> lavoro_;
  Documento in_lavoro_;
  std::map<Chiave, Fonte_Stampa> fonti_;     // by family
  std::map<Chiave, Fonte_Stampa*> chieste_;  // by name
  Nomi_Stampe nomi_;
  Percorso ultimo_pdf_;
  std::optional<Documento> avvisato_;  // the lost document that was told
};
