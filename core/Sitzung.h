#pragma once
// The last session: what the exit leaves behind and the next start brings back. The calendar
// takes the day data of auto.zpd back; the other editions keep the whole document in a session
// file of the program folder. The extra settings file zusatz.ini beside zp.ini remembers which
// file the user had and whether the session comes back at all (on unless switched off).

#include "persist/Zusatzeinstellungen.h"

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// The session design file and the calendar's auto.zpd in the program folder.
[[nodiscard]] QString SitzungsDokument(const AppState& s);
[[nodiscard]] QString AutoDaten(const AppState& s);

// Whether the start brings the last session back. A folder that never said otherwise says yes.
[[nodiscard]] bool SitzungWiederherstellenAn(const AppState& s);
// Switches it on or off and keeps the remembered file. False (and told) when it can't be written.
bool SitzungWiederherstellenSetzen(const AppState& s, Oberflaeche& ui, bool an);

// Exit, before anything else is written: remembers the file the user works on (the calendar's
// data file, else the design) and, outside the calendar, writes the document to the session file.
// `weitere` keys of zusatz.ini go into the same write.
bool SitzungSichern(AppState& s, Oberflaeche& ui, const Zusatzwerte& weitere = {});

// Start, after the edition's empty state has been set up. Calendar: the day data of auto.zpd
// (appointments, holidays, colours, month pictures, title and footer) come back and Datendatei
// is the remembered data file, so that Save goes where the user expects. Other editions: the
// session file is loaded and AktuelleDatei is the remembered file. A file that can't be read is
// told and leaves the start state as it was. Returns true when something came back; the status
// bar then says what.
bool SitzungWiederherstellen(AppState& s, Oberflaeche& ui);

} // namespace zp
