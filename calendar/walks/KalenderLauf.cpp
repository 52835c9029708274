#include "calendar/walks/KalenderLauf.h"

#include "calendar/data/Monatstafel.h"
#include "calendar/data/Tagesdaten.h"
#include "core/state/AppState.h"

#include <algorithm>

namespace zp {

namespace {

enum Typ { Halbjahr = 1, JahrA5 = 2, Tasche = 3, Monat1 = 4, Monat2 = 5, Woche = 6, Planer = 7 };
constexpr int kSonntag = 1, kMontag = 2, kSamstag = 7;

// Days from Monday to the first of month m: the weekday of day d (0 is the last day of the
// month before), Sunday counted 1, less one; a Sunday before the first gives 0, a Saturday 6.
int ErsterTagVersatz(const Monatstafel& tafel, int m, int d) {
    int t = tafel.Wochentag(m, d) - 1;
    if (t < 0) t = 6;
    return t;
}

// Day tables read safely: a walk of a page beyond the year reads empty days.
template <typename T> T Zelle(const Tabelle<T>& tabelle, int d, int m, T leer) {
    return (d >= 1 && d <= 31 && m >= 1 && m <= 12) ? tabelle(d, m) : leer;
}

bool RahmenDa(const AppState& s, int n) {
    return n >= 1 && n <= static_cast<int>(s.RahmenAnzahl) && s.Rahmenliste.Gueltig(n);
}

// The measures of the grid are the sizes of the background (32) and the month group (38).
double Masz(const AppState& s, int n, bool breite, double bisher) {
    if (!RahmenDa(s, n)) return bisher;
    return breite ? s.Rahmenliste(n).Breite : s.Rahmenliste(n).Höhe;
}

// Where the first half of a folding sheet's position lands on the other half.
void Spiegelpunkt(const AppState& s, const ClassRahmen& T, ClassRahmen& A, bool x, bool y) {
    if (x) A.X = s.AktuelleSeite.Breite - T.X - A.Breite;
    if (y) A.Y = s.AktuelleSeite.Höhe - T.Y - A.Höhe;
}

// Tasche: the first day cell of month m. January to June stand in the upper band, July to
// December in the lower one; the cell moves down to the month's first weekday. Returns that
// weekday offset.
int TascheMonatsanfang(const AppState& s, const ClassRahmen& T, ClassRahmen& A, const Monatstafel& tafel,
                       int m, double H) {
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

int Startmonat(const AppState& s, int typ, int seite) {
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
int Endmonat(int typ, int seite) {
    return typ == Halbjahr ? 6 * seite : typ == Planer ? 3 * seite : 12;
}

void NaechsteWoche(const Monatstafel& tafel, int seite, double& wocheTag, double& wocheMonat) {
    // The first page ends on the first Sunday of the year: it holds the rest of the week that
    // began in December, so only the days up to that Sunday are stepped over.
    int t = seite <= 1 ? ErsterTagVersatz(tafel, 1, 0) : 0;
    while (t != 7) {
        ++t;
        wocheTag += 1;
        if (wocheTag == tafel.LetzterTag(static_cast<int>(wocheMonat))) {
            wocheTag = 0;
            wocheMonat += 1;
        }
    }
}
} // namespace

void Wochenstart(int jahr, int seite, double& wocheTag, double& wocheMonat) {
    wocheTag = 0;
    wocheMonat = 1;
    if (!JahrGueltig(jahr)) return;
    const Monatstafel tafel(jahr);
    // A year has at most 54 week pages; a wild page number stops there instead of running on.
    seite = std::min(seite, 600);
    for (int p = 1; p <= seite - 1; ++p)
        NaechsteWoche(tafel, p, wocheTag, wocheMonat);
}

void NaechsteWoche(int jahr, int seite, double& wocheTag, double& wocheMonat) {
    NaechsteWoche(Monatstafel(jahr), seite, wocheTag, wocheMonat);
}

// ---- Shapes --------------------------------------------------------------------------------

void KalenderRahmenLauf(AppState& s, KalenderZeichner& zeichner, int n) {
    if (!RahmenDa(s, n)) return;
    const int typ = static_cast<int>(s.Kalendertyp);
    const int seite = static_cast<int>(s.Seitennummer);
    const int jahr = static_cast<int>(s.Kalenderjahr);
    if (!JahrGueltig(jahr)) return;
    const ClassRahmen T = s.Rahmenliste(n);
    const int k = static_cast<int>(T.Objektnummer);
    if (!s.Linienliste.Gueltig(k) || k < 1) return;
    const Monatstafel tafel(jahr);

    int m = Startmonat(s, typ, seite);
    int d = typ == Woche ? static_cast<int>(s.WocheTag) : 0;
    int t = 0;
    // The month picture of the page goes into picture 1, which the month designs show.
    if ((typ == Monat1 || typ == Monat2) && s.Bildliste.Obergrenze() >= 1)
        s.Bildliste(1).File = (m >= 1 && m <= 12) ? Monatsbildpfad(s, s.Monatsbilder(m)) : QString();

    ClassRahmen& A = s.AktuellerRahmen;
    A = T;
    if (k == 4 || k == 5) {
        t = ErsterTagVersatz(tafel, m, d);
        if (typ == Tasche) A.Y = A.Y + A.Höhe * t;
    }
    switch (typ) {
    case Halbjahr:
        s.Spaltenabstand = Masz(s, 32, false, s.Spaltenabstand * 6) / 6;
        break;
    case JahrA5:
        s.Spaltenabstand = Masz(s, 32, true, s.Spaltenabstand * 6) / 6;
        break;
    case Monat1:
        s.Spaltenabstand = Masz(s, 38, true, s.Spaltenabstand * 7) / 7;
        s.Zeilenabstand = Masz(s, 38, false, s.Zeilenabstand * 6) / 6;
        if (k == 4 || k == 5) A.X = s.Spaltenabstand * t + A.X;
        break;
    case Monat2:
    case Planer:
        s.Zeilenabstand = Masz(s, 38, false, s.Zeilenabstand * 31) / 31;
        break;
    case Woche:
        s.Zeilenabstand = Masz(s, 38, false, s.Zeilenabstand * 7) / 7;
        if (d == 0 && m == 1)
            A.Y = s.Zeilenabstand * t + A.Y;
        else
            t = 0;
        break;
    default:
        break;
    }

    const bool kalender = s.IstKalender != 0;
    // Every walk turns or stops within 12 months of 31 days; the bound only guards odd states.
    for (int schritt = 0; schritt < 400; ++schritt) {
        ++d;
        ++t;
        if (k == 5) {
            const Farbe feiertag = Zelle(s.FeiertagBack, d, m, -1);
            if (feiertag > -1) s.Farbvorgabe = feiertag;
            const Farbe termin = Zelle(s.TerminBack, d, m, -1);
            if (termin > -1) s.Farbvorgabe = termin; // an appointment's colour beats a holiday's
        }
        const bool montag = d <= tafel.LetzterTag(m) && tafel.Wochentag(m, d) == kMontag;
        if (k != 6 || typ >= 8 || montag) {
            // The renderer may change the objects it is given; the template stays as designed.
            ClassLinie linie = s.Linienliste(k);
            const ClassRahmen rahmen = A;
            zeichner.Linie(s, linie, A);
            A = rahmen;
        }
        s.Farbvorgabe = -1;
        if (!kalender || s.KalenderBearbeiten != 0) return;

        const int letzter = tafel.LetzterTag(m);
        const double W = A.Breite, H = A.Höhe;
        switch (typ) {
        case Halbjahr:
            if (k == 3 || k == 7) {
                if (d == 6) return;
                A.Y -= s.Spaltenabstand;
            } else if (k >= 4 && k <= 6) {
                if (d == 31 && m == Endmonat(typ, seite)) return;
                A.X += W;
                if (d == 31) {
                    ++m;
                    d = 0;
                    A.Y -= s.Spaltenabstand;
                    A.X = T.X;
                }
            } else
                return;
            break;
        case JahrA5:
            if (k == 1 || k == 2) {
                if (d == 2) return;
                Spiegelpunkt(s, T, A, true, true);
            } else if (k == 3 || k == 7) {
                if (d == 12) return;
                if (d < 6)
                    A.X -= s.Spaltenabstand;
                else {
                    A.X += s.Spaltenabstand;
                    if (d == 6) Spiegelpunkt(s, T, A, true, true);
                }
            } else if (k >= 4 && k <= 6) {
                if (d == 31 && m == 12) return;
                A.Y += m < 7 ? -H : H;
                if (d == 31) {
                    ++m;
                    d = 0;
                    if (m < 7) {
                        A.X -= s.Spaltenabstand;
                        A.Y = T.Y;
                    } else {
                        A.X += s.Spaltenabstand;
                        Spiegelpunkt(s, T, A, m == 7, true);
                    }
                }
            } else
                return;
            break;
        case Tasche:
            if (k == 1) {
                s.Zeilenabstand = H / 2; // the height of one band of six months
                return;
            } else if (k == 3 || k == 7) {
                if (d == 12) return;
                A.X += W;
                if (d == 6) {
                    A.X = T.X;
                    A.Y = T.Y + s.Zeilenabstand;
                }
                if (k == 3) s.Spaltenabstand = W;
            } else if (k == 4 || k == 5) {
                if (d == 31 && m == 12) return;
                A.Y += H;
                if (tafel.Wochentag(m, d) == kSonntag) {
                    A.Y = m < 7 ? T.Y : T.Y + s.Zeilenabstand;
                    A.X += W;
                }
                if (d == letzter) {
                    d = 0;
                    ++m;
                    t = TascheMonatsanfang(s, T, A, tafel, m, H);
                }
            } else
                return;
            break;
        case Monat1:
            if (k != 4 && k != 5) return;
            if (d == letzter) return;
            A.X += s.Spaltenabstand;
            if (tafel.Wochentag(m, d) == kSonntag) {
                A.X = T.X;
                A.Y += s.Zeilenabstand;
            }
            break;
        case Monat2:
            if (k != 4 && k != 5) return;
            if (d == letzter) return;
            A.Y += s.Zeilenabstand;
            break;
        case Woche:
            if (t == 7) return;
            if (d == letzter) {
                d = 0;
                ++m;
                if (m > 12) return;
            }
            if (k != 4 && k != 5) return;
            A.Y += s.Zeilenabstand;
            break;
        case Planer:
            if (k == 3 || k == 7) {
                if (d == 3) return;
                A.Y -= H;
            } else if (k >= 4 && k <= 6) {
                if (d == 31 && m == Endmonat(typ, seite)) return;
                A.Y -= s.Zeilenabstand;
                if (d == 31) {
                    d = 0;
                    ++m;
                }
            } else if (k == 8) {
                A.X += W;
                if (d > 26) return;
            } else
                return;
            break;
        default:
            return;
        }
    }
}

} // namespace zp

// ---- Texts ---------------------------------------------------------------------------------

namespace zp {

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

    ClassSchrift& schrift = s.Schriftliste(k);
    const bool kalender = s.IstKalender != 0;
    for (int schritt = 0; schritt < 400; ++schritt) {
        ++d;
        if (typ == Woche) ++t;
        const int letzter = tafel.LetzterTag(m);
        const int wt = tafel.Wochentag(m, d);
        const QString feiertag = Zelle(s.Feiertage, d, m, QString());

        QString text;
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
            if (wt == kMontag && d <= letzter) {
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
        if (!kalender || s.KalenderBearbeiten != 0) break;

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
            break;
        case Tasche:
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
        if (!weiter) break;
    }
    // A right angle left for a text that had nothing to draw must not turn the next object.
    s.Winkelvorgabe = -1;
}

} // namespace zp
