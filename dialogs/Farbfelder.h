#pragma once
// The colour boxes of the appointment and holiday panels: text and background colour of the
// selected days, white standing for "no colour of its own".

#include "calendar/data/Tagesdaten.h"

class QFormLayout;
class QToolButton;

namespace zp {
class Fensterantworten;

struct Tagesfarbfelder {
    QToolButton* schrift;
    QToolButton* hintergrund;
    QFormLayout* layout;
};

// Two boxes under their object names; a click asks for the colour of `schriftArt` or the one after.
Tagesfarbfelder TagesfarbfelderAnlegen(AppState& s, Fensterantworten& ui, Tagesfarbe schriftArt, const char* schrift,
                         const char* hintergrund);
void FarbfeldZeigen(QToolButton* feld, int farbe);

} // namespace zp
