#pragma once
// Moving, sizing and drawing frames with the mouse and the arrow keys. The page view turns its
// events into these calls, in twips of the page picture; the document isn't touched while the
// mouse moves: only the outline box changes, and on release it goes through the marker into the
// frame, where it is kept to the page and snapped to the grid.

namespace zp {
struct AppState;
class Oberflaeche;

// The mouse buttons of an event, as a set.
namespace Maustaste {
inline constexpr int Links = 1;
inline constexpr int Rechts = 2;
inline constexpr int Mitte = 4;
} // namespace Maustaste

// What the page view does after an event.
struct Mausantwort {
    int zeiger = -1;           // the pointer shape to show (numbers of the mouse pointers); -1 keeps it
    bool umriss = false;       // the outline box changed: the overlay is painted anew
    bool einfangen = false;    // keep the pointer on the visible page until the button is released
    bool freigeben = false;    // let it go again
    bool kontextmenue = false; // open PopSchrift, with "Verankern" checked when `verankert`
    bool verankert = false;
    bool status = false; // the status panels show "x = " statusX and "y = " statusY
    int statusX = 0;     // whole tenths of a millimetre, rounded down
    int statusY = 0;
};

Mausantwort MausGedrueckt(AppState& s, Oberflaeche& ui, int taste, double x, double y);
// `tasten`: the buttons held during the move.
Mausantwort MausBewegt(AppState& s, Oberflaeche& ui, int tasten, double x, double y);
Mausantwort MausLosgelassen(AppState& s, Oberflaeche& ui, int taste, double x, double y);

// CommitFrameBox: the marker goes into the current frame. The left and top edges are kept on the
// page by the frame's old size, then the grid (or whole millimetres) snaps them towards zero.
// Redraws unless `LadeSperre` is set.
void CommitFrameBox(AppState& s, Oberflaeche& ui);

// An arrow key on the page: the current frame moves by `dx`, `dy` steps of a tenth of a
// millimetre, or of the grid with `rasterschritt` (Shift), through CommitFrameBox. Where the grid
// or whole millimetres snap, a plain step is that of the snap, so that it isn't swallowed.
// Anchored frames don't move. Returns whether the frame moved; a move is one undo step.
bool PfeilBewegen(AppState& s, Oberflaeche& ui, int dx, int dy, bool rasterschritt);

} // namespace zp
