#pragma once
// The end of the program: the files written when it ends.

namespace zp {

struct AppState;
class Oberflaeche;

// Close, Exit, the window's close button and --beenden: the address records (Visitenkarte), the
// settings, and the edition's own files (Kalender: kalender.ini, auto.zpd and the type's working
// design; Etikett: etikett.ini). Nothing asks; a file that can't be written is told and the others
// are still written. A file that is there but can't be read is first moved aside, and never written
// over. Returns false when any file failed or was left alone.
bool Beenden(AppState& s, Oberflaeche& ui);

} // namespace zp
