#pragma once
// The position dialog's rules: the box of the current frame in numbers (tenths of a millimetre),
// kept on the page as soon as a box loses the focus, and written to the frame on Ok.

#include <QString>

namespace zp {
struct AppState;
struct ClassSeite;
class Oberflaeche;

// The dialog's boxes as typed: Text1 X, Text2 Y, Text3 width, Text4 height, Check1 keep the
// proportions, Check2 anchored.
struct Positionsfelder {
    QString Text1, Text2, Text3, Text4;
    bool Check1 = false;
    bool Check2 = false;

    [[nodiscard]] QString& Feld(int nummer);
};

// A typed number: comma or point as separator; what doesn't read as a number counts from its
// leading digits, and as 0 without any.
[[nodiscard]] double Positionszahl(const QString& text);

// Opening: the boxes show the current frame; LadeSperre keeps the change events quiet.
[[nodiscard]] Positionsfelder PositionsdialogOeffnen(AppState& s);

// The lost-focus repair of box `nummer` (1 to 4) against the page. A negative value becomes 0; a
// position that would push the frame over the page's edge moves back, a size that would reach
// over the edge is cut to it. The box then shows the repaired number.
void PositionsfeldReparieren(Positionsfelder& f, int nummer, const ClassSeite& seite);

// Ok: the four repairs in order, then X, Y, width, height and the two flags go to the current
// frame; the marker and the page follow. Returns false when there is no current frame.
bool PositionsdialogOk(AppState& s, Oberflaeche& ui, Positionsfelder f);

// Cancel: nothing is written.
void PositionsdialogAbbruch(AppState& s);

} // namespace zp
