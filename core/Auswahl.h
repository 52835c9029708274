#pragma once
// The current frame on the page: the selection marker, the frame under a click and the handle
// under the pointer, all in twips of the page picture.

namespace zp {
struct AppState;
class Oberflaeche;

// A length of the document (tenths of a millimetre) in twips of the page picture at the zoom.
[[nodiscard]] double ZehntelAlsTwips(const AppState& s, double zehntel);

// UpdateSelection: the marker takes the current frame's box; the window shows it and its toolbars.
// The page isn't redrawn.
void UpdateSelection(AppState& s, Oberflaeche& ui);

// SelectFrameAt: a click at (x, y) twips that ended no drag. The frames after the current one are
// tried in list order, wrapping round, so that clicks on a stack step through all frames under
// the pointer; the click must lie strictly inside a visible frame. Returns whether another frame
// became current (the page is then redrawn).
bool SelectFrameAt(AppState& s, Oberflaeche& ui, double x, double y);

// The handle under the pointer and the pointer shape it shows (the numbers of the mouse pointers:
// 1 arrow, 15 move, 6 to 9 the sizing arrows).
struct Griffwahl {
    int griff = 0; // 0 none, 10 inside, 1 to 8 clockwise from the top left corner
    int zeiger = 1;
};
// The handle test of a mouse move without a button, on the current frame's marker.
[[nodiscard]] Griffwahl GriffAn(const AppState& s, double x, double y);

} // namespace zp
