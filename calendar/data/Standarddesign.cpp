#include "calendar/data/Standarddesign.h"

#include <cmath>

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <vector>

namespace zp {

using basic::RGB;

namespace {

struct Stil {
    Farbe tinte;      // body text
    Farbe akzent;     // month names, header fills, title
    Farbe akzentHell; // soft fills behind headers
    Farbe gitter;     // lines of the grid
    Farbe grau;       // week numbers, captions, footer
    Farbe grund;      // soft page fill
    Farbe sonntag;    // the Sunday label of free weekday headers
};

Stil StilFuer(int variante) {
    if (variante == 2)
        return {RGB(45, 45, 45),    RGB(0, 118, 128),   RGB(214, 236, 236), RGB(190, 200, 200),
                RGB(120, 130, 130), RGB(246, 250, 250), RGB(214, 84, 56)};
    return {RGB(30, 36, 56),    RGB(28, 54, 104),   RGB(222, 228, 240), RGB(168, 178, 198),
            RGB(118, 124, 140), RGB(250, 250, 252), RGB(176, 32, 40)};
}

constexpr Farbe kWeiss = 0xFFFFFF;
enum Ausrichtung { Links = 0, Mitte = 1, Rechts = 2 };
enum Senkrecht { Oben = 0, Zentriert = 1, Unten = 2 };

class Bau {
public:
    Bau(AppState& s, int typ, int variante) : s(s), st(StilFuer(variante)), variante(variante) {
        const int rahmen = (typ == 4 || typ == 5) ? 40 : 39;
        s.Rahmenliste.Redim(rahmen);
        s.Schriftliste.Redim(30);
        s.Linienliste.Redim(8);
        s.Bildliste.Redim(1);
        s.RTFliste.Redim(1);
        s.RahmenAnzahl = rahmen;
        s.SchriftMax = 30;
        s.LinieAnzahl = 8;
        s.BildAnzahl = (typ == 4 || typ == 5) ? 1 : 0;
        s.RTFAnzahl = 1;
        s.Kalendertyp = typ;
        for (int n = 1; n <= rahmen; ++n) {
            ClassRahmen& r = s.Rahmenliste(n);
            r = ClassRahmen{};
            r.Breite = r.Höhe = 100;
            if (n <= 30) {
                r.Objekttyp = QStringLiteral("Schrift");
                r.Objektnummer = n;
                s.Schriftliste(n) = ClassSchrift{};
            } else if (n == 31) {
                r.Objekttyp = QStringLiteral("RTF");
                r.Objektnummer = 1;
            } else if (n <= 39) {
                r.Objekttyp = QStringLiteral("Linie");
                r.Objektnummer = n - 31;
                s.Linienliste(n - 31) = ClassLinie{};
            } else {
                r.Objekttyp = QStringLiteral("Bild");
                r.Objektnummer = 1;
                s.Bildliste(1) = ClassBild{};
            }
        }
    }
    ~Bau() {
        // Stacking: what was placed first is drawn first; the frames left over go on top, hidden.
        std::vector<bool> vergeben(static_cast<size_t>(s.RahmenAnzahl) + 1, false);
        int z = 0;
        for (int n : reihenfolge) {
            if (vergeben[static_cast<size_t>(n)]) continue;
            vergeben[static_cast<size_t>(n)] = true;
            s.Rahmenliste(n).z = static_cast<int16_t>(++z);
        }
        for (int n = 1; n <= static_cast<int>(s.RahmenAnzahl); ++n)
            if (!vergeben[static_cast<size_t>(n)]) s.Rahmenliste(n).z = static_cast<int16_t>(++z);
    }

    ClassRahmen& Rahmen(int n, double x, double y, double w, double h) {
        ClassRahmen& r = s.Rahmenliste(n);
        r.X = x;
        r.Y = y;
        r.Breite = w;
        r.Höhe = h;
        r.Sichtbar = -1;
        reihenfolge.push_back(n);
        return r;
    }

    // Text frame n (role n for 1..8, a free label above), in the variant's typeface.
    ClassSchrift& Text(int n, double x, double y, double w, double h, double punkt, Farbe farbe,
                       int winkel = 0, int ah = Links, int av = Oben, bool fett = false) {
        return TextObjekt(n, n, x, y, w, h, punkt, farbe, winkel, ah, av, fett);
    }
    // A label beyond the thirty text frames of the template (the page fills texts 21 to 30 from
    // the side panel, so those can't carry labels): a frame and a text object of its own.
    ClassSchrift& Zusatz(const QString& text, double x, double y, double w, double h, double punkt,
                         Farbe farbe) {
        const int n = static_cast<int>(s.RahmenAnzahl) + 1;
        const int k = static_cast<int>(s.SchriftMax) + 1;
        s.Rahmenliste.RedimPreserve(n);
        s.Schriftliste.RedimPreserve(k);
        s.RahmenAnzahl = n;
        s.SchriftMax = k;
        ClassRahmen& r = s.Rahmenliste(n);
        r = ClassRahmen{};
        r.Objekttyp = QStringLiteral("Schrift");
        r.Objektnummer = k;
        ClassSchrift& t = TextObjekt(n, k, x, y, w, h, punkt, farbe, 0, Mitte, Zentriert, false);
        t.Textstring = text;
        return t;
    }
    ClassSchrift& TextObjekt(int n, int k, double x, double y, double w, double h, double punkt, Farbe farbe,
                             int winkel, int ah, int av, bool fett) {
        Rahmen(n, x, y, w, h);
        ClassSchrift& t = s.Schriftliste(k);
        t = ClassSchrift{};
        t.fontname = variante == 2 ? QStringLiteral("DejaVu Sans") : QStringLiteral("Arial");
        t.FontSize = punkt;
        t.Color1 = t.Color2 = farbe;
        t.Angle = static_cast<int16_t>(winkel);
        t.AusrichtungH = static_cast<int16_t>(ah);
        t.AusrichtungV = static_cast<int16_t>(av);
        t.Bold = fett ? -1 : 0;
        t.Sichtbar = -1;
        // The design file keeps these four of a text as whole numbers (the reader cuts them).
        t.X = std::floor(x);
        t.Top = std::floor(y);
        t.widht = std::floor(w);
        t.Height = std::floor(h);
        return t;
    }
    ClassSchrift& Frei(int n, const QString& text, double x, double y, double w, double h, double punkt,
                       Farbe farbe, int winkel = 0, int ah = Mitte, int av = Zentriert, bool fett = false) {
        ClassSchrift& t = Text(n, x, y, w, h, punkt, farbe, winkel, ah, av, fett);
        t.Textstring = text;
        return t;
    }

    // Shape role k in frame 31 + k: an outline in `linie`, filled with `fuellung` unless -1.
    ClassLinie& Form(int k, double x, double y, double w, double h, int form, Farbe linie,
                     Farbe fuellung = -1, int staerke = 1) {
        Rahmen(31 + k, x, y, w, h);
        ClassLinie& l = s.Linienliste(k);
        l.Form = static_cast<int16_t>(form);
        l.Color1 = linie;
        l.Color2 = fuellung < 0 ? kWeiss : fuellung;
        l.Füllung = fuellung < 0 ? 0 : -1;
        l.Stärke = static_cast<int16_t>(staerke);
        l.X = static_cast<float>(x);
        l.Y = static_cast<float>(y);
        l.widht = static_cast<float>(w);
        l.Height = static_cast<float>(h);
        return l;
    }
    // A shape role that the type doesn't show: it stays in the design, hidden, so the design
    // dialog can bring it back.
    void Verborgen(int k, double x, double y, double w, double h) {
        ClassRahmen& r = s.Rahmenliste(31 + k);
        r.X = x;
        r.Y = y;
        r.Breite = w;
        r.Höhe = h;
        r.Sichtbar = 0;
    }

    AppState& s;
    Stil st;
    int variante;
    std::vector<int> reihenfolge;
};

const char* kKopf[] = {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};

// Halbjahr: six month columns on a sheet read turned (texts at 90 degrees); months run towards
// smaller Y, the days of a month towards larger X.
void Halbjahr(Bau& b) {
    const Stil& st = b.st;
    const double sp = 460, spalte = 450, y1 = 2405; // January's column; five more above it
    const double x0 = 340, zeile = 54;              // day rows
    b.Form(1, 60, 105, 1980, 6 * sp, 16, b.variante == 2 ? st.grund : kWeiss,
           b.variante == 2 ? st.grund : -1);
    b.Verborgen(2, 80, 105, 120, 2760);
    b.Form(3, 220, y1, 100, spalte, 16, st.akzent, st.akzent);
    b.Form(5, x0, y1, zeile, spalte, 16, st.gitter);
    b.Form(4, x0, y1, zeile, spalte, 16, st.gitter);
    b.Form(6, x0, y1, zeile, spalte, 6, st.akzent, -1, 2);
    b.Form(7, 220, y1, x0 - 220 + 31 * zeile, spalte, 16, st.akzent);
    b.Verborgen(8, x0, y1, zeile, spalte);
    b.Text(1, 90, 105, 110, 2760, 20, st.akzent, 90, Links, Zentriert, true);
    b.Text(2, 220, y1, 100, spalte, 13, kWeiss, 90, Links, Zentriert, true);
    b.Text(3, x0, y1, zeile, spalte - 8, 9, st.tinte, 90, Links, Unten, true);
    b.Text(4, x0, y1, zeile, spalte - 62, 7, st.grau, 90, Links, Unten);
    b.Text(5, x0, y1, zeile, spalte - 112, 7, st.tinte, 90, Links, Unten);
    b.Text(6, x0, y1 + 6, zeile, spalte, 5, st.grau, 90, Links, Oben);
    b.Text(7, 2030, 105, 50, 2760, 8, st.grau, 90, Links, Zentriert);
}

// Jahr A5: a folding sheet. The upper half stands upside down (texts at 180 degrees) and holds
// January to June from right to left; the lower half is its mirror, upright, July to December.
void JahrA5(Bau& b) {
    const Stil& st = b.st;
    const double H = 2970, W = 2100;
    auto gx = [&](double x, double w) { return W - x - w; }; // place given for the upright half
    auto gy = [&](double y, double h) { return H - y - h; };
    const double zeile = 37, tag1 = 1745, kopf = 1665, spalte = 315;
    b.Form(1, gx(90, 6 * 320), gy(1520, 1400), 6 * 320, 1400, 16, b.variante == 2 ? st.grund : kWeiss,
           b.variante == 2 ? st.grund : -1);
    b.Form(2, gx(90, 1920), gy(1648, 4), 1920, 4, 16, st.akzent, st.akzent);
    b.Form(3, gx(90, spalte), gy(kopf, 70), spalte, 70, 16, st.akzent, st.akzentHell);
    b.Form(5, gx(90, spalte), gy(tag1, zeile), spalte, zeile, 16, st.gitter);
    b.Form(4, gx(90, spalte), gy(tag1, zeile), spalte, zeile, 16, st.gitter);
    b.Verborgen(6, gx(90, spalte), gy(tag1, zeile), spalte, zeile);
    b.Form(7, gx(90, spalte), gy(kopf, 70 + 31 * zeile + 10), spalte, 70 + 31 * zeile + 10, 16, st.akzent);
    b.Verborgen(8, gx(90, spalte), gy(tag1, zeile), spalte, zeile);
    b.Text(1, gx(90, 1920), gy(1530, 110), 1920, 110, 18, st.akzent, 180, Links, Zentriert, true);
    b.Text(2, gx(90, spalte), gy(kopf, 70), spalte, 70, 11, st.akzent, 180, Mitte, Zentriert, true);
    b.Text(3, gx(96, 44), gy(tag1, zeile), 44, zeile, 8, st.tinte, 180, Rechts, Zentriert, true);
    b.Text(4, gx(146, 40), gy(tag1, zeile), 40, zeile, 6, st.grau, 180, Links, Zentriert);
    b.Text(5, gx(188, 180), gy(tag1, zeile), 180, zeile, 6, st.tinte, 180, Links, Zentriert);
    b.Text(6, gx(372, 30), gy(tag1, zeile), 30, zeile, 5, st.grau, 180, Rechts, Zentriert);
    b.Text(7, gx(90, 1920), gy(2905, 45), 1920, 45, 7, st.grau, 180, Mitte, Zentriert);
}

// Tasche: a pocket card of 90 x 62 mm, two bands of six month blocks; in a block a column is a
// week and a row a weekday. The sheet grid repeats the card.
void Tasche(Bau& b) {
    const Stil& st = b.st;
    const double band = 270, x0 = 45, block = 140, woche = block / 6, zeile = 33, y0 = 88;
    b.Form(1, 0, 50, 900, 2 * band, 16, b.variante == 2 ? st.grund : kWeiss, b.variante == 2 ? st.grund : -1);
    b.Verborgen(2, 20, 8, 500, 40);
    b.Form(3, x0, 55, block, 30, 16, st.akzentHell, st.akzentHell);
    b.Form(5, x0, y0, woche, zeile, 16, b.variante == 2 ? st.grund : kWeiss);
    b.Verborgen(4, x0, y0, woche, zeile);
    b.Verborgen(6, x0, y0, woche, zeile);
    b.Form(7, x0, 55, block, 30 + 7 * zeile + 4, 16, st.gitter);
    b.Verborgen(8, x0, y0, woche, zeile);
    b.Text(1, 20, 8, 600, 40, 9, st.akzent, 0, Links, Zentriert, true);
    b.Text(2, x0, 55, block, 30, 6, st.akzent, 0, Mitte, Zentriert, true);
    b.Text(3, x0, y0, woche, zeile, 4.2, st.tinte, 0, Mitte, Zentriert);
    b.Text(7, 20, 592, 860, 25, 4.5, st.grau, 0, Mitte, Zentriert);
    // Weekday initials before both bands; the second band's go to frames of their own.
    for (int i = 0; i < 7; ++i) {
        const QString kuerzel = QString::fromUtf8(kKopf[i]).left(1);
        const Farbe farbe = i == 6 ? st.sonntag : st.grau;
        b.Frei(9 + i, kuerzel, 12, y0 + i * zeile, 30, zeile, 4.5, farbe);
        b.Zusatz(kuerzel, 12, y0 + band + i * zeile, 30, zeile, 4.5, farbe);
    }
}

// Monat 1: one month a page, the month picture above a grid of seven columns and six weeks.
void Monat1(Bau& b) {
    const Stil& st = b.st;
    const double x0 = 150, y0 = 1720, breite = 1800, sp = breite / 7, ze = 175;
    // The background goes first: its walk chooses the month picture that the picture frame shows.
    b.Form(1, 80, 80, 1940, 2810, 16, b.variante == 2 ? st.grund : st.gitter,
           b.variante == 2 ? st.grund : -1);
    b.Rahmen(40, 150, 140, 1800, 1230);
    b.Form(2, x0, 1560, breite, 6, 16, st.akzent, st.akzent);
    b.Form(3, x0, 1640, breite, 80, 16, st.akzent, b.variante == 2 ? st.akzentHell : st.akzent);
    b.Form(5, x0, y0, sp, ze, 16, st.gitter);
    b.Form(4, x0, y0, sp, ze, 16, st.gitter);
    b.Verborgen(6, x0, y0, sp, ze);
    b.Form(7, x0, y0, breite, 6 * ze, 16, st.akzent, -1, 2);
    b.Verborgen(8, x0, y0, sp, ze);
    b.Text(8, 150, 1378, 1800, 50, 8, st.grau, 0, Rechts, Oben);
    b.Text(2, x0, 1430, 1100, 130, 30, st.akzent, 0, Links, Unten, true);
    b.Text(1, 950, 1460, 1000, 90, 13, st.grau, 0, Rechts, Unten);
    const Farbe kopfschrift = b.variante == 2 ? st.akzent : kWeiss;
    for (int i = 0; i < 7; ++i)
        b.Frei(9 + i, QString::fromUtf8(kKopf[i]), x0 + i * sp, 1640, sp, 80, 10,
               i == 6 && b.variante == 2 ? st.sonntag : kopfschrift, 0, Mitte, Zentriert, true);
    b.Text(3, x0 + 14, y0 + 10, sp - 28, 70, 17, st.tinte, 0, Links, Oben, true);
    b.Text(5, x0 + 14, y0 + 100, sp - 28, 60, 7, st.tinte, 0, Links, Oben);
    b.Text(6, x0 - 60, y0 + 8, 50, 40, 6, st.grau, 0, Rechts, Oben);
    b.Text(7, 150, 2860, 1800, 50, 8, st.grau, 0, Mitte, Zentriert);
}

// Monat 2: one month a page, the picture above a list with a row per day.
void Monat2(Bau& b) {
    const Stil& st = b.st;
    const double x0 = 150, y0 = 1350, breite = 1800, ze = 47;
    // The background goes first: its walk chooses the month picture that the picture frame shows.
    b.Form(1, 80, 80, 1940, 2810, 16, b.variante == 2 ? st.grund : st.gitter,
           b.variante == 2 ? st.grund : -1);
    b.Rahmen(40, 150, 140, 1800, 1000);
    b.Form(2, x0, 1335, breite, 5, 16, st.akzent, st.akzent);
    b.Verborgen(3, x0, 1200, breite, 120);
    b.Form(5, x0, y0, breite, ze, 16, b.variante == 2 ? st.grund : kWeiss);
    b.Form(4, x0, y0 + ze - 2, breite, 2, 16, st.gitter, st.gitter);
    b.Verborgen(6, x0, y0, breite, ze);
    b.Verborgen(7, x0, y0, breite, 31 * ze);
    b.Verborgen(8, x0, y0, breite, ze);
    b.Text(8, 150, 1148, 1800, 45, 8, st.grau, 0, Rechts, Oben);
    b.Text(2, x0, 1195, 1100, 130, 28, st.akzent, 0, Links, Unten, true);
    b.Text(1, 950, 1225, 1000, 90, 13, st.grau, 0, Rechts, Unten);
    b.Text(3, x0, y0, 90, ze, 11, st.tinte, 0, Rechts, Zentriert, true);
    b.Text(4, x0 + 110, y0, 110, ze, 9, st.grau, 0, Links, Zentriert);
    b.Text(5, x0 + 240, y0, 1400, ze, 9, st.tinte, 0, Links, Zentriert);
    b.Text(6, x0 + breite - 200, y0, 200, ze, 7, st.grau, 0, Rechts, Zentriert);
    b.Text(7, 150, 2860, 1800, 50, 8, st.grau, 0, Mitte, Zentriert);
}

// Woche: one week a page, Monday to Sunday in seven rows with room to write.
void Woche(Bau& b) {
    const Stil& st = b.st;
    const double x0 = 150, y0 = 420, breite = 1800, ze = 340;
    b.Form(1, 80, 80, 1940, 2810, 16, b.variante == 2 ? st.grund : st.gitter,
           b.variante == 2 ? st.grund : -1);
    b.Form(2, x0, 330, breite, 6, 16, st.akzent, st.akzent);
    b.Verborgen(3, x0, 150, breite, 120);
    b.Form(5, x0, y0, breite, ze, 16, st.gitter);
    b.Form(4, x0, y0, breite, ze, 16, st.gitter);
    b.Verborgen(6, x0, y0, breite, ze);
    b.Form(7, x0, y0, breite, 7 * ze, 16, st.akzent, -1, 2);
    b.Verborgen(8, x0, y0, breite, ze);
    b.Text(1, x0, 170, 1000, 120, 18, st.akzent, 0, Links, Unten, true);
    b.Text(2, 1000, 150, 950, 140, 28, st.akzent, 0, Rechts, Unten, true);
    b.Frei(9, QStringLiteral("Woche"), x0, 350, 160, 60, 10, st.grau, 0, Links, Zentriert);
    b.Text(6, x0 + 160, 350, 200, 60, 10, st.grau, 0, Links, Zentriert, true);
    b.Text(3, x0 + 20, y0 + 15, 160, 120, 30, st.tinte, 0, Links, Oben, true);
    b.Text(4, x0 + 200, y0 + 35, 700, 70, 13, st.grau, 0, Links, Oben);
    b.Text(5, x0 + 200, y0 + 120, 1560, 60, 11, st.tinte, 0, Links, Oben);
    b.Text(7, 150, 2860, 1800, 50, 8, st.grau, 0, Mitte, Zentriert);
}

// Planer: three months a page in one line of days, read with the sheet turned (texts at 90
// degrees); below the dates 27 rows for projects or people.
void Planer(Bau& b) {
    const Stil& st = b.st;
    const double ze = 29, unten = 2840, y1 = unten - ze, monat = 31 * ze;
    const double xKopf = 250, xTag = 330, xStreifen = 460, streifen = 55;
    const double xEnde = xStreifen + 27 * streifen;
    b.Form(1, 60, unten - 3 * monat - 20, 2000, 3 * monat + 40, 16, b.variante == 2 ? st.grund : kWeiss,
           b.variante == 2 ? st.grund : -1);
    b.Verborgen(2, 90, unten - 3 * monat, 120, 3 * monat);
    b.Form(3, xKopf, unten - monat, 80, monat, 16, kWeiss, st.akzent);
    b.Form(8, xStreifen, unten - 3 * monat, streifen, 3 * monat, 10, st.gitter, -1, 2);
    b.Form(4, xTag, y1, xEnde - xTag, ze, 9, st.gitter, -1, 2);
    b.Form(6, xTag, y1 + ze - 4, xEnde - xTag, 4, 16, st.akzent, st.akzent);
    b.Form(7, xKopf, unten - monat, xEnde - xKopf, monat, 16, st.akzent, -1, 2);
    b.Verborgen(5, xTag, y1, xEnde - xTag, ze);
    b.Text(1, 100, unten - 3 * monat, 120, 3 * monat, 18, st.akzent, 90, Links, Unten, true);
    b.Text(2, xKopf, unten - monat, 80, monat, 12, kWeiss, 90, Links, Zentriert, true);
    b.Text(3, xTag, y1, 60, ze, 5, st.tinte, 90, Links, Zentriert, true);
    b.Text(4, xTag + 62, y1, 60, ze, 4.5, st.grau, 90, Links, Zentriert);
    b.Text(6, xEnde + 8, y1, 50, ze, 5, st.grau, 90, Links, Zentriert);
    b.Text(7, 2040, unten - 3 * monat, 40, 3 * monat, 7, st.grau, 90, Links, Zentriert);
}

} // namespace

void BaueStandarddesign(AppState& s, int typ, int variante) {
    // The sheet: one page, or for the pocket card two by four cards centred on A4.
    ClassEtikett& e = s.AktuellesEtikett;
    e.Breite = typ == 3 ? 900 : 2100;
    e.Höhe = typ == 3 ? 620 : 2970;
    e.Anzahl_x = typ == 3 ? 2 : 1;
    e.Anzahl_y = typ == 3 ? 4 : 1;
    e.Randlinks = typ == 3 ? 150 : 0;
    e.Randoben = typ == 3 ? 245 : 0;
    e.Abstand_x = e.Abstand_y = 0;
    Bau b(s, typ, variante == 2 ? 2 : 1);
    switch (typ) {
    case 1:
        Halbjahr(b);
        break;
    case 2:
        JahrA5(b);
        break;
    case 3:
        Tasche(b);
        break;
    case 4:
        Monat1(b);
        break;
    case 5:
        Monat2(b);
        break;
    case 6:
        Woche(b);
        break;
    default:
        Planer(b);
        break;
    }
}

} // namespace zp
