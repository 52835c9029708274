// The text walk of the calendar: title, month names, day numbers, weekday names, appointments,
// holidays, week numbers and captions, cell after cell.
#include "calendar/walks/KalenderLauf.h"

#include "calendar/data/Tagesdaten.h"
#include "calendar/data/Wochennummer.h"
#include "calendar/walks/Laufhilfen.h"

namespace zp {

using namespace lauf;

namespace {

// Mondays of the year before the page, plus one when 1 January falls on Tuesday to Thursday (the
// first week then lies mostly in the new year).
double WochenzaehlerBisSeite(const AppState& s, const Monatstafel& tafel, int typ, int seite) {
    const int neujahr = tafel.Wochentag(1, 1);
    double zaehler = (neujahr >= 3 && neujahr <= 5) ? 1 : 0;
    if (seite <= 1) return zaehler;
    const int wocheTag = static_cast<int>(s.WocheTag), wocheMonat = static_cast<int>(s.WocheMonat);
    int m = 1, d = 0;
    while (m <= 12) {
        ++d;
        if (d <= tafel.LetzterTag(m) && tafel.Wochentag(m, d) == kMontag) zaehler += 1;
        bool erreicht = false;
        switch (typ) {
        case Woche:
            erreicht = d > wocheTag && m == wocheMonat;
            break;
        case Monat1:
        case Monat2:
            erreicht = d == 31 && m == seite - 1;
            break;
        case Halbjahr:
            erreicht = d == 31 && m == 6 * seite - 6;
            break;
        case Planer:
            erreicht = d == 31 && m == 3 * seite - 3;
            break;
        default:
            break;
        }
        if (erreicht) break;
        if (d == 31) {
            d = 0;
            ++m;
        }
    }
    return zaehler;
}

} // namespace

namespace {

// One step of a text walk to the next cell; false where the walk of the page ends. `letzter` and
// `wt` are the last day of the month and the weekday of the cell just drawn.
// Jahr A5: the first half year runs up the page, the second, turned, down from its mirror point.
bool TextSchrittJahrA5(AppState& s, const ClassRahmen& T, ClassRahmen& A, int k, int& d, int& m) {
    const double H = A.Höhe;
    const bool tagesrolle = k >= 3 && k <= 6;
    bool weiter = true;
    if (k == 1 || k == 7) {
        if (m > 1)
            weiter = false;
        else {
            Spiegelpunkt(s, T, A, true, true);
            ++m;
            s.Winkelvorgabe = 0;
        }
    } else if (k == 2) {
        if (m == 12)
            weiter = false;
        else {
            ++m;
            if (m < 7)
                A.X -= s.Spaltenabstand;
            else {
                s.Winkelvorgabe = 0;
                A.X += s.Spaltenabstand;
                if (m == 7) Spiegelpunkt(s, T, A, true, true);
            }
        }
    } else if (tagesrolle) {
        if (d == 31 && m == 12)
            weiter = false;
        else {
            if (m < 7)
                A.Y -= H;
            else {
                s.Winkelvorgabe = 0;
                A.Y += H;
            }
            if (d == 31) {
                ++m;
                d = 0;
                if (m < 7) {
                    A.X -= s.Spaltenabstand;
                    A.Y = T.Y;
                } else {
                    s.Winkelvorgabe = 0;
                    A.X += s.Spaltenabstand;
                    Spiegelpunkt(s, T, A, m == 7, true);
                }
            }
        }
    } else
        weiter = false;
    return weiter;
}

// Tasche: two bands of six months, a column per week.
bool TextSchrittTasche(AppState& s, const ClassRahmen& T, ClassRahmen& A, const Monatstafel& tafel, int k,
                       int wt, int& d, int& m, int& t) {
    const double W = A.Breite, H = A.Höhe;
    bool weiter = true;
    if (k == 2) {
        if (m == 12)
            weiter = false;
        else {
            ++m;
            A.X += W;
            if (m == 7) {
                A.X = T.X;
                A.Y = T.Y + s.Zeilenabstand;
            }
            if (m >= 7) s.Spaltenabstand = W;
        }
    } else if (k == 3) {
        if (d == 31 && m == 12)
            weiter = false;
        else {
            A.Y += H;
            if (wt == kSonntag) {
                A.Y = m < 7 ? T.Y : T.Y + s.Zeilenabstand;
                A.X += W;
            }
            // The text side turns the month at day 31; days past the month's end aren't
            // drawn and the next month starts at the same place as the shapes' month.
            if (d == 31) {
                d = 0;
                ++m;
                t = TascheMonatsanfang(s, T, A, tafel, m, H);
            }
        }
    } else
        weiter = false;
    return weiter;
}

bool TextSchritt(AppState& s, const ClassRahmen& T, ClassRahmen& A, const Monatstafel& tafel, int typ, int k,
                 int seite, int letzter, int wt, int& d, int& m, int& t) {
    const double W = A.Breite, H = A.Höhe;
    const bool tagesrolle = k >= 3 && k <= 6;
    bool weiter = true;
    switch (typ) {
    case Halbjahr:
        if (k == 2) {
            if (m == Endmonat(typ, seite))
                weiter = false;
            else {
                ++m;
                A.Y -= s.Spaltenabstand;
            }
        } else if (tagesrolle) {
            if (d == 31 && m == Endmonat(typ, seite))
                weiter = false;
            else {
                A.X += W;
                if (d == 31) {
                    ++m;
                    d = 0;
                    A.Y -= s.Spaltenabstand;
                    A.X = T.X;
                }
            }
        } else
            weiter = false;
        break;
    case JahrA5:
        weiter = TextSchrittJahrA5(s, T, A, k, d, m);
        break;
    case Tasche:
        weiter = TextSchrittTasche(s, T, A, tafel, k, wt, d, m, t);
        break;
    case Monat1:
        if (!tagesrolle || d == letzter)
            weiter = false;
        else {
            A.X += s.Spaltenabstand;
            if (wt == kSonntag) {
                A.X = T.X;
                A.Y += s.Zeilenabstand;
            }
        }
        break;
    case Monat2:
        if (!tagesrolle || d == letzter)
            weiter = false;
        else
            A.Y += s.Zeilenabstand;
        break;
    case Woche:
        if (!tagesrolle)
            weiter = false;
        else {
            if (d == letzter) {
                d = 0;
                ++m;
                if (m > 12) {
                    weiter = false;
                    break;
                }
            }
            if (k == 3) {
                s.NaechsteWocheTag = d;
                s.NaechsteWocheMonat = m;
            }
            if (t == 7)
                weiter = false;
            else
                A.Y += s.Zeilenabstand;
        }
        break;
    case Planer:
        if (k == 2) {
            if (m == Endmonat(typ, seite))
                weiter = false;
            else {
                ++m;
                A.Y -= H;
            }
        } else if (k == 3 || k == 4 || k == 6) {
            if (d == 31 && m == Endmonat(typ, seite))
                weiter = false;
            else {
                A.Y -= s.Zeilenabstand;
                if (d == 31) {
                    ++m;
                    d = 0;
                }
            }
        } else
            weiter = false;
        break;
    default:
        weiter = false;
        break;
    }
    return weiter;
}

// The text of template text k in the cell of day d of month m (weekday wt), with the one-shot
// colour of the day; false for a frame that keeps its own text. The week numbers count on in
// `wochenzaehler`.
bool Zelltext(AppState& s, const ClassSchrift& schrift, int typ, int k, int d, int m, int t, int wt,
              int letzter, double& wochenzaehler, QString& text) {
    const QString feiertag = Zelle(s.Feiertage, d, m, QString());
    bool zeichnen = true;
    switch (k) {
    case 1:
        text = s.Panel.TextTitel;
        break;
    case 2:
        text = (m >= 1 && m <= 12) ? s.Monatsnamen(m) : QString();
        break;
    case 3:
    case 4:
        text = k == 3 ? QString::number(d) : s.Wochentagsnamen(wt);
        if (wt == kSamstag) s.Farbvorgabe = s.FarbeSamstag;
        if (!feiertag.isEmpty()) {
            const Farbe eigene = Zelle(s.FeiertagSchrift, d, m, -1);
            s.Farbvorgabe = eigene > -1 ? eigene : s.FarbeFeiertag;
        }
        if (wt == kSonntag) s.Farbvorgabe = s.FarbeSonntag; // Sunday beats a holiday's colour
        break;
    case 5: {
        const QString termin = Zelle(s.Termine, d, m, QString());
        if (!termin.isEmpty()) {
            text = termin;
            const Farbe eigene = Zelle(s.TerminSchrift, d, m, -1);
            s.Farbvorgabe = eigene >= 0 ? eigene : s.FarbeTermin;
        } else {
            text = feiertag;
            const Farbe eigene = Zelle(s.FeiertagSchrift, d, m, -1);
            s.Farbvorgabe = eigene >= 0 ? eigene : s.FarbeFeiertag;
        }
        if (typ == Planer) text.clear();
        break;
    }
    case 6:
        if (s.WochennummernIso) {
            // The week of the Monday, or of New Year's Day where the first row starts before.
            const bool neujahr = d == 1 && m == 1 && typ != Monat1;
            if ((wt == kMontag || neujahr) && d <= letzter)
                text = QString::number(IsoWoche(static_cast<int>(s.Kalenderjahr), m, d));
            if (typ == Woche && t > 1) text.clear();
        } else if (wt == kMontag && d <= letzter) {
            if (typ != Woche) wochenzaehler += 1;
            if (wochenzaehler > 52) wochenzaehler = 1; // no week 53: it counts as week 1
            text = QString::number(static_cast<int>(wochenzaehler));
            if (typ == Woche && t > 1) text.clear();
        } else if (d == 1 && m == 1 && wochenzaehler == 1 && typ != Monat1)
            text = QStringLiteral("1");
        break;
    case 7:
        text = s.Panel.TextUnterschrift;
        break;
    case 8:
        if (typ == Monat1 || typ == Monat2)
            text = (m >= 1 && m <= 12) ? s.Monatsbildtexte(m) : QString();
        else
            zeichnen = false; // captions belong to the month pictures; the frame keeps its text
        break;
    default:
        text = schrift.Textstring;
        break;
    }
    return zeichnen;
}

} // namespace

void KalenderTextLauf(AppState& s, KalenderZeichner& zeichner, int n) {
    if (!RahmenDa(s, n)) return;
    const int typ = static_cast<int>(s.Kalendertyp);
    const int seite = static_cast<int>(s.Seitennummer);
    const int jahr = static_cast<int>(s.Kalenderjahr);
    if (!JahrGueltig(jahr)) return;
    const ClassRahmen T = s.Rahmenliste(n);
    const int k = static_cast<int>(T.Objektnummer);
    if (k < 1 || !s.Schriftliste.Gueltig(k)) return;

    s.Winkelvorgabe = -1;
    const Monatstafel tafel(jahr);
    // Only the week numbers count the Mondays before the page.
    double wochenzaehler = k == 6 ? WochenzaehlerBisSeite(s, tafel, typ, seite) : 0;
    int m = Startmonat(s, typ, seite);
    int d = typ == Woche ? static_cast<int>(s.WocheTag) : 0;
    int t = 0;

    ClassRahmen& A = s.AktuellerRahmen;
    A = T;
    if (k >= 3 && k <= 5) {
        t = ErsterTagVersatz(tafel, m, d);
        if (typ == Tasche) A.Y = A.Y + A.Höhe * t;
    }
    // Designs with the month group frame carry the grid measures; Halbjahr and Jahr A5 take the
    // column step that the shape walk of the page has left.
    if (s.RahmenAnzahl > 37 && s.Rahmenliste.Obergrenze() >= 38) {
        const ClassRahmen& gruppe = s.Rahmenliste(38);
        switch (typ) {
        case Monat1:
            s.Spaltenabstand = gruppe.Breite / 7;
            s.Zeilenabstand = gruppe.Höhe / 6;
            A.X = A.X + s.Spaltenabstand * t;
            break;
        case Monat2:
        case Planer:
            s.Zeilenabstand = gruppe.Höhe / 31;
            break;
        case Woche:
            s.Zeilenabstand = gruppe.Höhe / 7;
            if (d == 0 && m == 1)
                A.Y = A.Y + s.Zeilenabstand * t;
            else
                t = 0;
            break;
        default:
            break;
        }
    }
    // Editing the template: the frame stands at its own place, where the mouse picks it up.
    if (VorlageBearbeiten(s)) {
        A.X = T.X;
        A.Y = T.Y;
    }

    ClassSchrift& schrift = s.Schriftliste(k);
    const bool kalender = s.IstKalender != 0;
    for (int schritt = 0; schritt < 400; ++schritt) {
        ++d;
        if (typ == Woche) ++t;
        const int letzter = tafel.LetzterTag(m);
        const int wt = tafel.Wochentag(m, d);
        QString text;
        const bool zeichnen = Zelltext(s, schrift, typ, k, d, m, t, wt, letzter, wochenzaehler, text);
        if (zeichnen) schrift.Textstring = text;

        if (zeichnen && d <= letzter) {
            A.Sichtbar = -1;
            if (!text.isEmpty()) {
                const ClassRahmen rahmen = A;
                zeichner.Schrift(s, schrift, A);
                A = rahmen;
            }
        }
        s.Farbvorgabe = -1;
        if (!kalender || VorlageBearbeiten(s)) break;

        if (!TextSchritt(s, T, A, tafel, typ, k, seite, letzter, wt, d, m, t)) break;
    }
    // A right angle left for a text that had nothing to draw must not turn the next object.
    s.Winkelvorgabe = -1;
}

} // namespace zp
