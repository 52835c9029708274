#pragma once
// The central redraw: the whole page on the target that the state selects.

namespace zp {
struct AppState;
class Canvas;
class Oberflaeche;

// The three surfaces of the composition. The target is the printer while DruckenAktiv, else the
// export bitmap while ExportAktiv, else the page picture. Frame outlines during export still go
// to the page picture, so it may be set as well. `Fenster` gets the mouse pointer of the main
// window (hourglass while drawing); without a window it stays unset.
struct Zeichenziele {
    Canvas* PictureSeite = nullptr;
    Canvas* Printer = nullptr;
    Canvas* Lead2 = nullptr;
    Oberflaeche* Fenster = nullptr;
};

void ZeichneSeite(AppState& s, Zeichenziele& ziele);
} // namespace zp
