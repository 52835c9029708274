#pragma once
// What the shape and the text walks of the calendar share: the types, the cells of the day
// tables read safely, and where a page starts and ends.

#include "calendar/data/Monatstafel.h"
#include "core/state/AppState.h"

namespace zp::lauf {

enum Typ { Halbjahr = 1, JahrA5 = 2, Tasche = 3, Monat1 = 4, Monat2 = 5, Woche = 6, Planer = 7 };
constexpr int kSonntag = 1, kMontag = 2, kSamstag = 7;

// Days from Monday to the first of month m: the weekday of day d (0 is the last day of the
// month before), Sunday counted 1, less one; a Sunday before the first gives 0, a Saturday 6.
inline int ErsterTagVersatz(const Monatstafel& tafel, int m, int d) {
    int t = tafel.Wochentag(m, d) - 1;
    if (t < 0) t = 6;
    return t;
}

// Day tables read safely: a walk of a page beyond the year reads empty days.
template <typename T> T Zelle(const Tabelle<T>& tabelle, int d, int m, T leer) {
    return (d >= 1 && d <= 31 && m >= 1 && m <= 12) ? tabelle(d, m) : leer;
}

// "Kalender Editieren": the template's frames stand once at their own places on the screen; a
// print walks the days all the same.
inline bool VorlageBearbeiten(const AppState& s) {
    return s.IstKalender != 0 && s.KalenderBearbeiten != 0 && s.DruckenAktiv == 0;
}

inline bool RahmenDa(const AppState& s, int n) {
    return n >= 1 && n <= static_cast<int>(s.RahmenAnzahl) && s.Rahmenliste.Gueltig(n);
}

// The measures of the grid are the sizes of the background (32) and the month group (38).
inline double Masz(const AppState& s, int n, bool breite, double bisher) {
    if (!RahmenDa(s, n)) return bisher;
    return breite ? s.Rahmenliste(n).Breite : s.Rahmenliste(n).Höhe;
}

// Where the first half of a folding sheet's position lands on the other half.
inline void Spiegelpunkt(const AppState& s, const ClassRahmen& T, ClassRahmen& A, bool x, bool y) {
    if (x) A.X = s.AktuelleSeite.Breite - T.X - A.Breite;
    if (y) A.Y = s.AktuelleSeite.Höhe - T.Y - A.Höhe;
}

// Tasche: the first day cell of month m. January to June stand in the upper band, July to
// December in the lower one; the cell moves down to the month's first weekday. Returns that
// weekday offset.
inline int TascheMonatsanfang(const AppState& s, const ClassRahmen& T, ClassRahmen& A,
                              const Monatstafel& tafel, int m, double H) {
    if (m < 7) {
        A.Y = T.Y;
        A.X = (m - 1) * s.Spaltenabstand + T.X;
    } else {
        A.Y = T.Y + s.Zeilenabstand;
        A.X = (m - 7) * s.Spaltenabstand + T.X;
    }
    if (m == 7) A.X = T.X;
    const int t = ErsterTagVersatz(tafel, m, 0);
    A.Y += H * t;
    return t;
}

inline int Startmonat(const AppState& s, int typ, int seite) {
    switch (typ) {
    case Halbjahr:
        return 6 * seite - 5;
    case Planer:
        return 3 * seite - 2;
    case Woche:
        return static_cast<int>(s.WocheMonat);
    default:
        return seite;
    }
}

// The last month of a page, where the multi-month walks stop.
inline int Endmonat(int typ, int seite) {
    return typ == Halbjahr ? 6 * seite : typ == Planer ? 3 * seite : 12;
}

} // namespace zp::lauf
