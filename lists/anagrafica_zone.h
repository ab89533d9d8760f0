#pragma once

#include "lists/anagrafica.h"

// The fishing zones: list window `Zone`, editor `ModZona`. A line is the label, a TAB and the code text; the
// row being keyed takes the label.

const Anagrafica& Anagrafica_Zone();
