#include "calendar/walks/KalenderLauf.h"

#include "calendar/data/Monatstafel.h"
#include "calendar/data/Tagesdaten.h"
#include "calendar/walks/Laufhilfen.h"
#include "core/state/AppState.h"

#include <algorithm>

namespace zp {

using namespace lauf;

namespace {

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

namespace {

// One step of a shape walk to the next cell; false where the walk of the page ends.
bool RahmenSchritt(AppState& s, const ClassRahmen& T, ClassRahmen& A, const Monatstafel& tafel, int typ,
                   int k, int seite, int& d, int& m, int& t) {
    const int letzter = tafel.LetzterTag(m);
    const double W = A.Breite, H = A.Höhe;
    switch (typ) {
    case Halbjahr:
        if (k == 3 || k == 7) {
            if (d == 6) return false;
            A.Y -= s.Spaltenabstand;
        } else if (k >= 4 && k <= 6) {
            if (d == 31 && m == Endmonat(typ, seite)) return false;
            A.X += W;
            if (d == 31) {
                ++m;
                d = 0;
                A.Y -= s.Spaltenabstand;
                A.X = T.X;
            }
        } else
            return false;
        break;
    case JahrA5:
        if (k == 1 || k == 2) {
            if (d == 2) return false;
            Spiegelpunkt(s, T, A, true, true);
        } else if (k == 3 || k == 7) {
            if (d == 12) return false;
            if (d < 6)
                A.X -= s.Spaltenabstand;
            else {
                A.X += s.Spaltenabstand;
                if (d == 6) Spiegelpunkt(s, T, A, true, true);
            }
        } else if (k >= 4 && k <= 6) {
            if (d == 31 && m == 12) return false;
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
            return false;
        break;
    case Tasche:
        if (k == 1) {
            s.Zeilenabstand = H / 2; // the height of one band of six months
            return false;
        } else if (k == 3 || k == 7) {
            if (d == 12) return false;
            A.X += W;
            if (d == 6) {
                A.X = T.X;
                A.Y = T.Y + s.Zeilenabstand;
            }
            if (k == 3) s.Spaltenabstand = W;
        } else if (k == 4 || k == 5) {
            if (d == 31 && m == 12) return false;
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
            return false;
        break;
    case Monat1:
        if (k != 4 && k != 5) return false;
        if (d == letzter) return false;
        A.X += s.Spaltenabstand;
        if (tafel.Wochentag(m, d) == kSonntag) {
            A.X = T.X;
            A.Y += s.Zeilenabstand;
        }
        break;
    case Monat2:
        if (k != 4 && k != 5) return false;
        if (d == letzter) return false;
        A.Y += s.Zeilenabstand;
        break;
    case Woche:
        if (t == 7) return false;
        if (d == letzter) {
            d = 0;
            ++m;
            if (m > 12) return false;
        }
        if (k != 4 && k != 5) return false;
        A.Y += s.Zeilenabstand;
        break;
    case Planer:
        if (k == 3 || k == 7) {
            if (d == 3) return false;
            A.Y -= H;
        } else if (k >= 4 && k <= 6) {
            if (d == 31 && m == Endmonat(typ, seite)) return false;
            A.Y -= s.Zeilenabstand;
            if (d == 31) {
                d = 0;
                ++m;
            }
        } else if (k == 8) {
            A.X += W;
            if (d > 26) return false;
        } else
            return false;
        break;
    default:
        return false;
    }
    return true;
}

} // namespace

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
    // Editing the template: the frame stands at its own place, where the mouse picks it up.
    if (VorlageBearbeiten(s)) {
        A.X = T.X;
        A.Y = T.Y;
    }
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
        if (!kalender || VorlageBearbeiten(s)) return;

        if (!RahmenSchritt(s, T, A, tafel, typ, k, seite, d, m, t)) return;
    }
}

} // namespace zp
