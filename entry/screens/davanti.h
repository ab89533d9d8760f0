#pragma once

#include "platform/finestra.h"

// Opens a window that goes away by itself in front of `padre` and returns at once. `padre` has the keyboard
// again and shows its state when the window has closed.
void Apri_Davanti(Finestra* finestra, Finestra* padre);
