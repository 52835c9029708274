#pragma once
// The calendar walks without a surface: a template frame moved from cell to cell of the page's
// month, week or half-year, with the day's text and colour, handed to a drawer per cell. The
// program's drawer is the text and shape renderer on a canvas; tests record the cells.

namespace zp {
struct AppState;
struct ClassSchrift;
struct ClassLinie;
struct ClassRahmen;

class KalenderZeichner {
public:
    virtual ~KalenderZeichner() = default;
    // One text in the work frame; Farbvorgabe and Winkelvorgabe of the state are set for it.
    virtual void Schrift(AppState& s, ClassSchrift& schrift, ClassRahmen& rahmen) = 0;
    // One shape in the work frame; Farbvorgabe overrides its fill.
    virtual void Linie(AppState& s, ClassLinie& linie, ClassRahmen& rahmen) = 0;
};

// Text frame n: title, month names, day numbers, weekday names, appointments and holidays, week
// numbers, footer, picture captions, by the frame's Objektnummer.
void KalenderTextLauf(AppState& s, KalenderZeichner& zeichner, int n);
// Shape frame n: background, title and month frames, day boxes, appointment boxes, week lines.
void KalenderRahmenLauf(AppState& s, KalenderZeichner& zeichner, int n);

// Start of week page `seite` (day before its first day, and month), as the page composition
// works it out before it draws a week calendar.
void Wochenstart(int jahr, int seite, double& wocheTag, double& wocheMonat);
// One week page on: the counters move from the start of page `seite` to that of the next page.
void NaechsteWoche(int jahr, int seite, double& wocheTag, double& wocheMonat);
} // namespace zp
