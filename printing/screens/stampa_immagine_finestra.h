#pragma once

#include <QFrame>

#include "platform/finestra.h"
#include "printing/stampa_immagine.h"

class QBoxLayout;
class QLineEdit;

// The sheet with the picture where it will fall; a click is told.
class FoglioAnteprima : public QFrame {
  Q_OBJECT

 public:
  FoglioAnteprima(const FrmStampaFCPB& schermo, const QImage& immagine, QWidget* padre = nullptr);
  void mousePressEvent(QMouseEvent* evento) override;

 signals:
  void cliccato();

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  const FrmStampaFCPB& schermo_;
  const QImage& immagine_;
};

// The screen `frmStampaFCPB`.
class StampaImmagineFinestra : public FinestraDavanti {
  Q_OBJECT

 public:
  // `schermo` is opened already (StampaFCPB); the picture is `immagine`.
  StampaImmagineFinestra(Programma& programma, FrmStampaFCPB schermo, QImage immagine,
                         QWidget* padre = nullptr);
  void mostra() override;

 protected:
  bool tasto(const Pressione& pressione) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QBoxLayout* fa_scelte();
  QLineEdit* fa_numero(const QString& nome, CampoTesto& stato, Scritta& didascalia, QBoxLayout* colonna);
  void ingrandisci(bool si);

  Programma& programma_;
  FrmStampaFCPB schermo_;
  QImage immagine_;
  FoglioAnteprima* anteprima_ = nullptr;
  FoglioAnteprima* ingrandita_ = nullptr;  // over everything, until a click or Esc
  QLineEdit* scala_ = nullptr;
};

// What a window or a part of one shows now, on paper: opens the screen for it. `nome` is what it is called
// there.
void Stampa_Immagine(Programma& programma, QWidget& cosa, const QString& nome);
