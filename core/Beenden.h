#pragma once
// The files written when the program ends.

namespace zp {

struct AppState;
class Oberflaeche;

// `Beenden` without unloading the window: the settings and the edition's own files. Nothing
// asks; a file that can't be written is told and the others are still written. Returns false
// when any file failed.
bool BeendenDateienSchreiben(AppState& s, Oberflaeche& ui);

} // namespace zp
