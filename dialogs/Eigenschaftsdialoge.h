#pragma once
// The property dialogs on the current frame, as the window opens them: each dialog works on a
// copy of the frame's object, and its Ok or Cancel goes to the dialog's command.

class QWidget;

namespace zp {
struct AppState;
class Oberflaeche;

// frmSchrift on text object SchriftNummer, at page `seite` (1 font, 2 colour, 3 shadow, 4 angle).
void SchriftdialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui, int seite);
// frmlinie on shape LinieNummer, at page `seite` (1 form, 2 colour, 3 shadow).
void LiniendialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui, int seite);
// frmPosition on the current frame.
void PositionsdialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui);

} // namespace zp
