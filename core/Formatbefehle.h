#pragma once
// The format bar of the current frame: the state of its keys and lists, and what each key does.

#include <QString>

namespace zp {
struct AppState;
struct ClassSchrift;
class Oberflaeche;

// What the bar shows for the current frame. The text keys and lists are only live on a text.
struct Formatzustand {
    bool Rahmen = false;  // there is a current frame
    bool Schrift = false; // the current frame is a text
    bool Linie = false;   // a shape: only colour and shadow of the text keys apply
    bool Fett = false;
    bool Kursiv = false;
    bool Unterstrichen = false;
    int AusrichtungH = 0; // 0 left, 1 centre, 2 right: exactly one key pressed
    int AusrichtungV = 0; // 0 top, 1 middle, 2 bottom
    QString Schriftart;
    double Groesse = 0;
    bool Gesperrt = false; // the frame is anchored
};

// The text object of the current frame, or nullptr when the frame isn't a text.
[[nodiscard]] ClassSchrift* SchriftDesRahmens(AppState& s);

// UpdateFormatBar: the bar's state from the current frame and its text.
[[nodiscard]] Formatzustand UpdateFormatBar(AppState& s);

// A key of Toolbar3 by its key name ("fett", "links", "farbe", "gesperrt", ...). Style and
// alignment change the current text and redraw; "farbe" and "schatten" open the colour or shadow
// page of the text or shape dialog; "winkel" the text dialog, "positionieren" the position
// dialog, "löschen" deletes the frame. Returns false for a key that does nothing on this frame.
bool Toolbar3Knopf(AppState& s, Oberflaeche& ui, const QString& schluessel);

// Combo1: the font family of the current text.
bool SchriftartSetzen(AppState& s, Oberflaeche& ui, const QString& familie);
// Combo3: the size, picked or typed. A size that can't be read or lies outside 1 to 1000 points
// is told to the user and changes nothing.
bool SchriftgroesseSetzen(AppState& s, Oberflaeche& ui, const QString& eingabe);

// Text1 focus on box i: unless a frame is being drawn or the focus follows a click on the page
// (`nachKlick`, whose selection must stay), the box's text object and frame become the current
// ones, the selection follows and the page shows the handles. Returns whether the frame changed.
bool TextfeldFokus(AppState& s, Oberflaeche& ui, int i, bool nachKlick);

// Whether the current frame already shows text object i: the focus that a click on it moves to
// box i must then leave the clicked frame current.
[[nodiscard]] bool AuswahlZeigtText(const AppState& s, int i);

// OpenPropertyDialog: the current frame becomes visible and the dialog of its kind opens on
// `seite` (1 first). A letter body has no dialog here.
void OpenPropertyDialog(AppState& s, Oberflaeche& ui, int seite = 1);

// The pages of the text and shape dialogs that the format bar opens.
namespace Dialogseite {
inline constexpr int Schrift = 1; // text dialog: font and alignment; shape dialog: the forms
inline constexpr int Farbe = 2;
inline constexpr int Schatten = 3;
inline constexpr int Winkel = 4; // text dialog only: angle and spacing
} // namespace Dialogseite

} // namespace zp
