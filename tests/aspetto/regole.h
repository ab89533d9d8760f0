#pragma once

#include <QStringList>

class QWidget;

// What every window owes to the operator, whatever it is for. Each routine gives one line a fault, none when
// all is well; the window must be shown.

QStringList Senza_Nome(
    const QWidget& finestra);  // reached by the keyboard, and a screen reader can't say what it is
QStringList Fuori_Misura(const QWidget& finestra);    // larger than the smallest screen, or a caption cut off
QStringList Fuori_Ordine(QWidget& finestra);          // Tab goes back to the left or up
QStringList Lettere_Doppie(const QWidget& finestra);  // two controls with the same letter underlined
