#pragma once

#include <QColor>
#include <QFont>
#include <QLineEdit>

class QGroupBox;

// What makes the screens readable at arm's length: sizes in points on the desktop's own fonts and palette.

// Called once, before the first window. A desktop without a font of its own for text would show everything in
// a typewriter face: then the program's own sans serif is taken. On a dark desktop, where the style draws
// fields and boxes dark on dark, these get an outline that can be seen.
void Prepara_Aspetto();

QFont Carattere(double punti, bool grassetto = false);  // the desktop's font
QFont Carattere_Fisso(double punti);                    // fixed pitch, so that the columns of a list line up
QColor Colore_Contorno(const QPalette& tavolozza);      // of what stands out from the ground by a line
QGroupBox* Riquadro_Titolato(const QString& titolo);    // a group of controls under a bold title
inline constexpr double punti_titolo = 18, punti_grandi = 15, punti_normali = 11;

// A text field with a strong mark while it has the focus, and a text that stays readable while it is
// disabled.
class CasellaTesto : public QLineEdit {
  Q_OBJECT

 public:
  explicit CasellaTesto(QWidget* padre = nullptr);
  void tieni(bool si);  // a held field, which the cursor passes over, carries a bar

 protected:
  void focusOutEvent(QFocusEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  bool tenuta_ = false;
};
