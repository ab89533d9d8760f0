#pragma once

#include <QColor>
#include <QFont>
#include <QLineEdit>
#include <QPalette>

class QGroupBox;
class QPushButton;

// What makes the screens readable at arm's length: sizes in points on the desktop's own fonts and palette.

// Called once, before the first window. A desktop without a font of its own for text would show everything in
// a typewriter face: then the program's own sans serif is taken. On a dark desktop, where the style draws
// fields and boxes dark on dark, these get an outline that can be seen. The desktop's colours stay, but where
// selected or disabled texts can't be read on them; a selected line is seen also while the keyboard is
// elsewhere.
void Prepara_Aspetto();

QPalette Leggibile(QPalette tavolozza);
double Contrasto(const QColor& uno, const QColor& altro);  // 1 for none, to 21 for black on white
inline constexpr double contrasto_scelta = 4.5, contrasto_spento = 3.5;  // at least
inline constexpr int spessore_cornice = 3;  // of lists; always there, so that nothing moves with the focus

QFont Carattere(double punti, bool grassetto = false);  // the desktop's font
QFont Carattere_Fisso(double punti);                    // fixed pitch, so that the columns of a list line up
QColor Colore_Contorno(const QPalette& tavolozza);      // of what stands out from the ground by a line
QColor Colore_Fuoco(const QPalette& tavolozza);         // of the frame around what has the keyboard
QGroupBox* Riquadro_Titolato(const QString& titolo);    // a group of controls under a bold title
// As high and wide as its caption wants for a hand in a hurry; Enter presses it.
QPushButton* Bottone_Comodo(const QString& nome, const QString& didascalia, QWidget* padre = nullptr);
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
