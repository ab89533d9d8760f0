#pragma once

// Keyboard and mouse while a long work runs. Nobody gets what comes meanwhile.

// Lets the windows work once, and says whether Esc was pressed since the last time. A key held down counts
// once, so that the one that closed a message doesn't stop what follows it.
bool Esc_Premuto();
// What was keyed and clicked until now is dropped.
void Butta_Tasti();
