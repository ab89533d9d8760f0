#pragma once

#include <functional>
#include <optional>

#include <QKeyEvent>

#include "core/controlli.h"

class QLineEdit;

// A key event of the toolkit as the logic sees it. The numeric pad counts as the keys it types.
Pressione Da_QKeyEvent(const QKeyEvent& evento);

// The field's text without its selected part, which the next character replaces.
Testo Testo_Che_Resta(const QLineEdit& campo);

// What a field makes of a character: the character itself, another in its place, or nothing.
using Filtro_Carattere = std::function<std::optional<char>(char battuto, const Testo& resta)>;

// Types the event's character as the filter wants it. False when the field is to do so by itself: the key has
// no character, or the filter leaves it as it is.
bool Batti_Carattere(QLineEdit& campo, const QKeyEvent& evento, const Filtro_Carattere& filtro);
