#include "Kartendesigns.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Objekte.h"
#include "persist/Design.h"

#include <cmath>
#include <vector>

namespace zp {

namespace {

using basic::RGB;
const Farbe Weiss = RGB(255, 255, 255);

// One text frame n over text object n. The frame is the anchor of the alignment; its height
// follows the font size so that a click on the line selects it.
struct Zeile {
    double y;
    double groesse; // points
    bool fett = false;
    bool kursiv = false;
};

void Text(AppState& s, int n, double x, double breite, const Zeile& z, Farbe farbe, int ausrichtung,
          const QString& schrift = QStringLiteral("Arial")) {
    ClassRahmen& r = s.Rahmenliste(n);
    r.X = x;
    r.Y = z.y;
    r.Breite = breite;
    r.Höhe = std::round(z.groesse * 5) + 10;
    r.Sichtbar = -1;
    ClassSchrift& t = s.Schriftliste(n);
    t.FontSize = z.groesse;
    t.Bold = z.fett ? -1 : 0;
    t.Italic = z.kursiv ? -1 : 0;
    t.Color1 = farbe;
    t.fontname = schrift;
    t.AusrichtungH = static_cast<int16_t>(ausrichtung);
    t.AusrichtungV = 1;
    t.X = r.X;
    t.Top = r.Y;
    t.widht = r.Breite;
    t.Height = r.Höhe;
}

// A shape in a frame of its own; solid figures take one colour for pen and fill.
void Form(AppState& s, int form, double x, double y, double b, double h, Farbe rand, Farbe fuellung,
          int staerke = 0, int verlauf = 0, bool gefuellt = true) {
    const int k = static_cast<int>(s.LinieAnzahl) + 1;
    if (k > s.Linienliste.Obergrenze()) s.Linienliste.RedimPreserve(k);
    s.LinieAnzahl = k;
    ClassLinie& l = s.Linienliste(k);
    l = ClassLinie{};
    l.Form = static_cast<int16_t>(form);
    l.Color1 = rand;
    l.Color2 = fuellung;
    l.Stärke = static_cast<int16_t>(staerke);
    l.ColorCircle = static_cast<int16_t>(verlauf);
    l.Füllung = gefuellt ? -1 : 0;
    l.X = static_cast<float>(x);
    l.Y = static_cast<float>(y);
    l.widht = static_cast<float>(b);
    l.Height = static_cast<float>(h);
    const int n = static_cast<int>(s.RahmenAnzahl) + 1;
    ErzeugeRahmen(s, n, QStringLiteral("Linie"), k);
    ClassRahmen& r = s.Rahmenliste(n);
    r.X = x;
    r.Y = y;
    r.Breite = b;
    r.Höhe = h;
}

void Hintergrund(AppState& s, int art, Farbe f1, Farbe f2 = 0) {
    s.AktuellesEtikett.Farbüberlauf = art;
    s.AktuellesEtikett.Farbe1 = f1;
    s.AktuellesEtikett.Farbe2 = f2;
}

void Designfigur(AppState& s, int figur, Farbe farbe, int breiteTwips = 80) {
    s.AktuellesEtikett.Design = figur;
    s.AktuellesEtikett.Farbe3 = farbe;
    s.AktuellesEtikett.Designbreite = breiteTwips;
}

// The usual address block: company, name, profession, then street, town, phone and e-mail.
void Adressblock(AppState& s, double x, double y0, double breite, Farbe haupt, Farbe neben, int ausrichtung,
                 const QString& schrift = QStringLiteral("Arial")) {
    Text(s, 26, x, breite, {y0, 12, true}, haupt, ausrichtung, schrift);
    Text(s, 21, x, breite, {y0 + 85, 11, true}, neben, ausrichtung, schrift);
    Text(s, 27, x, breite, {y0 + 135, 8, false, true}, neben, ausrichtung, schrift);
    Text(s, 22, x, breite, {y0 + 215, 8}, neben, ausrichtung, schrift);
    Text(s, 23, x, breite, {y0 + 260, 8}, neben, ausrichtung, schrift);
    Text(s, 24, x, breite, {y0 + 305, 8}, neben, ausrichtung, schrift);
    Text(s, 25, x, breite, {y0 + 350, 8}, neben, ausrichtung, schrift);
}

// Shapes lie under the texts: they come first in the stacking order, in the order made.
void Stapelordnung(AppState& s) {
    std::vector<int> reihe;
    const int anzahl = static_cast<int>(s.RahmenAnzahl);
    for (int n = 1; n <= anzahl; ++n)
        if (s.Rahmenliste(n).Objekttyp == u"Linie") reihe.push_back(n);
    for (int n = 1; n <= anzahl; ++n)
        if (s.Rahmenliste(n).Objekttyp != u"Linie") reihe.push_back(n);
    for (size_t i = 0; i < reihe.size(); ++i)
        s.Rahmenliste(reihe[i]).z = static_cast<int16_t>(i + 1);
}

void Design(AppState& s, int n) {
    const int W = KarteBreite, H = KarteHoehe;
    switch (n) {
    case 1: { // Korkstreifen: a cork band on the left of a cream card, with its grain
        Hintergrund(s, 1, RGB(253, 250, 240));
        Designfigur(s, 1, RGB(176, 122, 70));
        Form(s, 16, 0, 0, W / 7, H, RGB(150, 100, 55), RGB(205, 160, 105), 0, 1);
        const double punkte[][3] = {{25, 60, 18},  {70, 140, 12}, {35, 230, 15}, {80, 310, 20},
                                    {30, 400, 13}, {75, 470, 16}, {55, 30, 10},  {20, 500, 11}};
        for (const auto& p : punkte)
            Form(s, 18, p[0], p[1], p[2], p[2], RGB(130, 85, 45), RGB(130, 85, 45));
        Form(s, 2, W / 7 - 6, 0, 12, H, RGB(110, 70, 35), RGB(110, 70, 35), 1);
        Adressblock(s, 175, 50, 625, RGB(110, 70, 35), RGB(60, 45, 35), 0,
                    QStringLiteral("Liberation Serif"));
        break;
    }
    case 2: // Blauer Pfeil: a blue card with an arrow cut in from the left
        Designfigur(s, 6, RGB(20, 70, 160), 1400);
        Form(s, 13, 0, 190, 110, 160, RGB(120, 170, 235), RGB(120, 170, 235));
        Adressblock(s, 300, 50, 500, Weiss, RGB(215, 228, 250), 2);
        break;
    case 3: // Grüne Streifen: green bands on both sides, thin light stripes inside
        Designfigur(s, 2, RGB(60, 150, 60));
        Form(s, 16, W / 7 + 12, 0, 10, H, RGB(150, 210, 120), RGB(150, 210, 120));
        Form(s, 16, W / 7 * 6 - 22, 0, 10, H, RGB(150, 210, 120), RGB(150, 210, 120));
        Adressblock(s, 150, 50, 550, RGB(30, 100, 30), RGB(40, 40, 40), 1);
        break;
    case 4: // Grüne Zacken: a white card torn in zigzag from a green edge
        Hintergrund(s, 3, RGB(34, 120, 60), RGB(90, 170, 90));
        Designfigur(s, 9, Weiss, 700);
        Adressblock(s, 290, 50, 520, RGB(30, 110, 50), RGB(40, 40, 40), 0);
        break;
    case 5: { // Bunte Balken: a row of bright bars along the bottom
        const Farbe farben[] = {RGB(220, 50, 50), RGB(245, 150, 30), RGB(245, 210, 40), RGB(70, 170, 70),
                                RGB(40, 110, 200)};
        for (int i = 0; i < 5; ++i)
            Form(s, 16, i * (W / 5), 470, W / 5, 70, farben[i], farben[i]);
        Adressblock(s, 50, 35, 750, RGB(40, 110, 200), RGB(50, 50, 50), 0);
        break;
    }
    case 6: // Blaue Ecke: a broad blue corner top left, a light echo bottom right
        Form(s, 5, 30, 30, 320, 200, RGB(30, 90, 180), RGB(30, 90, 180), 40);
        Form(s, 7, 590, 370, 230, 140, RGB(140, 180, 230), RGB(140, 180, 230), 15);
        Adressblock(s, 100, 80, 650, RGB(30, 90, 180), RGB(40, 40, 40), 0);
        break;
    case 7: { // Wasserkarte: water blue from light to deep, with rising bubbles
        Hintergrund(s, 3, RGB(225, 245, 255), RGB(110, 180, 230));
        const double blasen[][3] = {{690, 330, 90}, {620, 230, 50}, {740, 180, 40},
                                    {660, 110, 30}, {720, 60, 22},  {590, 420, 60}};
        for (const auto& b : blasen)
            Form(s, 18, b[0], b[1], b[2], b[2], Weiss, RGB(200, 232, 250), 1);
        Adressblock(s, 50, 50, 520, RGB(10, 60, 120), RGB(15, 45, 90), 0);
        break;
    }
    case 8: // Rote Karte: a white field in a red frame
        Hintergrund(s, 1, RGB(190, 30, 45));
        Designfigur(s, 4, Weiss, 230);
        Adressblock(s, 100, 60, 650, RGB(190, 30, 45), RGB(50, 30, 30), 1);
        break;
    case 9: // Grüne Karte: deep to light green, white lettering
        Hintergrund(s, 2, RGB(20, 90, 50), RGB(110, 180, 90));
        Form(s, 1, 50, 220, 420, 20, Weiss, Weiss, 3);
        Adressblock(s, 50, 40, 750, Weiss, RGB(235, 250, 235), 0);
        break;
    case 10: // Gelbes Quadrat: a yellow square with a fine offset outline
        Form(s, 16, 610, 50, 190, 190, RGB(250, 205, 30), RGB(250, 205, 30));
        Form(s, 16, 640, 80, 180, 180, RGB(70, 70, 70), RGB(70, 70, 70), 3, 0, false);
        Adressblock(s, 50, 50, 540, RGB(60, 60, 60), RGB(40, 40, 40), 0);
        break;
    case 11: // Lila Dreieck: a purple wedge on the right edge
        Form(s, 15, W - 260, 0, 260, H, RGB(120, 50, 150), RGB(120, 50, 150));
        Form(s, 15, W - 160, 150, 160, 240, RGB(200, 160, 220), RGB(200, 160, 220));
        Adressblock(s, 50, 50, 520, RGB(120, 50, 150), RGB(45, 35, 50), 0);
        break;
    case 12: // Schwarze Ecke: two black wedges in opposite corners, the address between them
        Designfigur(s, 12, RGB(25, 25, 25), 1400);
        Text(s, 26, 60, 700, {40, 12, true}, RGB(25, 25, 25), 0);
        Text(s, 21, 60, 700, {115, 11, true}, RGB(50, 50, 50), 0);
        Text(s, 27, 60, 700, {165, 8, false, true}, RGB(50, 50, 50), 0);
        Text(s, 22, 300, 500, {330, 8}, RGB(50, 50, 50), 2);
        Text(s, 23, 300, 500, {375, 8}, RGB(50, 50, 50), 2);
        Text(s, 24, 300, 500, {420, 8}, RGB(50, 50, 50), 2);
        Text(s, 25, 300, 500, {465, 8}, RGB(50, 50, 50), 2);
        break;
    case 13: // Blauer Streife: the name in white on a blue strip across the card
        Form(s, 16, 0, 140, W, 150, RGB(25, 80, 170), RGB(25, 80, 170));
        Text(s, 26, 50, 750, {40, 12, true}, RGB(25, 80, 170), 0);
        Text(s, 21, 50, 750, {160, 13, true}, Weiss, 0);
        Text(s, 27, 50, 750, {230, 8, false, true}, RGB(210, 225, 250), 0);
        Text(s, 22, 50, 750, {330, 8}, RGB(40, 40, 40), 0);
        Text(s, 23, 50, 750, {375, 8}, RGB(40, 40, 40), 0);
        Text(s, 24, 50, 750, {420, 8}, RGB(40, 40, 40), 0);
        Text(s, 25, 50, 750, {465, 8}, RGB(40, 40, 40), 0);
        break;
    case 14: // Gelber Kreis: a sun-yellow circle beside the address
        Form(s, 18, 570, 130, 240, 240, RGB(235, 150, 0), RGB(250, 200, 20), 2);
        Adressblock(s, 50, 50, 500, RGB(200, 120, 0), RGB(40, 40, 40), 0);
        break;
    case 15: { // Bunte Rechtecke: coloured squares tumbling over each other
        const double q[][3] = {
            {40, 50, 130}, {110, 130, 120}, {60, 230, 115}, {140, 320, 105}, {70, 410, 90}};
        const Farbe farben[] = {RGB(220, 50, 50), RGB(250, 200, 30), RGB(40, 110, 200), RGB(70, 170, 70),
                                RGB(150, 60, 170)};
        for (int i = 0; i < 5; ++i)
            Form(s, 16, q[i][0], q[i][1], q[i][2], q[i][2], farben[i], farben[i]);
        Adressblock(s, 300, 50, 500, RGB(40, 110, 200), RGB(40, 40, 40), 0);
        break;
    }
    case 16: // Gelber Kreis im blauen Rahmen
        Hintergrund(s, 1, RGB(30, 70, 160));
        Designfigur(s, 4, Weiss, 300);
        Form(s, 18, 600, 170, 170, 170, RGB(235, 170, 0), RGB(250, 210, 40), 2);
        Adressblock(s, 100, 70, 480, RGB(30, 70, 160), RGB(30, 40, 70), 0);
        break;
    case 17: // Roter Balken unten: phone and e-mail in white on a red bar
        Form(s, 16, 0, 420, W, 120, RGB(200, 30, 40), RGB(200, 30, 40));
        Text(s, 26, 50, 750, {40, 13, true}, RGB(200, 30, 40), 0);
        Text(s, 21, 50, 750, {125, 11, true}, RGB(40, 40, 40), 0);
        Text(s, 27, 50, 750, {180, 8, false, true}, RGB(60, 60, 60), 0);
        Text(s, 22, 50, 750, {270, 8}, RGB(40, 40, 40), 0);
        Text(s, 23, 50, 750, {315, 8}, RGB(40, 40, 40), 0);
        Text(s, 24, 50, 750, {440, 8}, Weiss, 0);
        Text(s, 25, 50, 750, {485, 8}, Weiss, 0);
        break;
    case 18: // Grünes Dreieck: a green arrowhead from the left edge
        Form(s, 13, 0, 0, 270, H, RGB(40, 150, 70), RGB(40, 150, 70));
        Form(s, 13, 0, 130, 130, 280, RGB(160, 215, 150), RGB(160, 215, 150));
        Adressblock(s, 320, 50, 480, RGB(30, 120, 55), RGB(40, 40, 40), 0);
        break;
    case 19: // Rotes Dach: a red roof with a chimney over the address
        Hintergrund(s, 1, RGB(255, 252, 245));
        Form(s, 16, 620, 20, 45, 90, RGB(120, 30, 25), RGB(120, 30, 25));
        Form(s, 12, 0, 0, W, 150, RGB(190, 40, 30), RGB(190, 40, 30));
        Text(s, 26, 0, W, {165, 13, true}, RGB(190, 40, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 21, 0, W, {235, 11, true}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 27, 0, W, {285, 8, false, true}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 22, 0, W, {345, 8}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 23, 0, W, {385, 8}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 24, 0, W, {425, 8}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        Text(s, 25, 0, W, {465, 8}, RGB(50, 35, 30), 1, QStringLiteral("Liberation Serif"));
        break;
    default:
        break;
    }
}

// The arrangement of a layout: the field frames 21 to 30 by row, and the texts 1 to 20.
struct Platz {
    int n;
    double x, y, groesse;
    int ausrichtung;
    bool sichtbar = true;
};

} // namespace

QStringList Galerienamen() {
    return {QStringLiteral("Korkstreifen"),       QStringLiteral("Blauer Pfeil"),
            QStringLiteral("Grüne Streifen"),     QStringLiteral("Grüne Zacken"),
            QStringLiteral("Bunte Balken"),       QStringLiteral("Blaue Ecke"),
            QStringLiteral("Wasserkarte"),        QStringLiteral("Rote Karte"),
            QStringLiteral("Grüne Karte"),        QStringLiteral("Gelbes Quadrat"),
            QStringLiteral("Lila Dreieck"),       QStringLiteral("Schwarze Ecke"),
            QStringLiteral("Blauer Streife"),     QStringLiteral("Gelber Kreis"),
            QStringLiteral("Bunte Rechtecke"),    QStringLiteral("Gelber Kreis im blauen Rahmen"),
            QStringLiteral("Roter Balken unten"), QStringLiteral("Grünes Dreieck"),
            QStringLiteral("Rotes Dach")};
}

void Grunddokument(AppState& s) {
    s.Programmname = QStringLiteral("ZP Visitenkarte");
    s.IstVisitenkarte = -1;
    ClassEtikett& e = s.AktuellesEtikett;
    e.Breite = KarteBreite;
    e.Höhe = KarteHoehe;
    e.Anzahl_x = 2;
    e.Anzahl_y = 5;
    e.Randlinks = e.Randrechts = 200;
    e.Randoben = e.Randunten = 135;

    s.RahmenAnzahl = 0;
    s.Rahmenliste.Redim(31);
    s.Schriftliste.Redim(30);
    for (int n = 1; n <= 30; ++n) {
        ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        ErzeugeSchrift(s, n);
        ClassRahmen& r = s.Rahmenliste(n);
        r.Data = -1;
        r.Sichtbar = 0;
        r.X = r.Y = 50;
        // The field texts name their record field, so that a design shows the address on view.
        if (n >= 21) s.Schriftliste(n).Textstring = QStringLiteral("#Feld%1").arg(n);
    }
    ErzeugeRahmen(s, 31, QStringLiteral("RTF"), 1);
    s.Rahmenliste(31).Data = -1;
    s.Rahmenliste(31).Sichtbar = 0; // a card has no letter body
    s.SchriftMax = 30;
    s.BildAnzahl = 0;
    s.LinieAnzahl = 0;
    s.RTFAnzahl = 1;
    s.RTFliste.Redim(1);
    s.RTFliste(1) = QStringLiteral("RTF1.rtf");
    s.Datensaetze.Redim(30, 1);
    s.DatensatzAnzahl = 1;
    s.DatensatzNummer = 1;
}

void BaueKartendesign(AppState& s, int n) {
    Grunddokument(s);
    Design(s, n);
    Stapelordnung(s);
}

QByteArray GaleriedesignBytes(const AppState& s) {
    // Line 5 marks a shipped template: its load never replaces the user's records.
    QStringList zeilen = ZeilenAusBytes(SchreibeDesign(s));
    if (zeilen.size() > 4) zeilen[4] = QStringLiteral("Vorlage");
    return BytesAusZeilen(zeilen);
}

void BaueLayout(AppState& s, int k) {
    Grunddokument(s);
    std::vector<Platz> plaetze;
    // Field frames: 26 company, 21 name, 27 profession, 22 street, 23 town, 24 phone, 25 e-mail,
    // 28 to 30 free fields. Widths come from the card or label when the layout is applied.
    const int order[] = {26, 21, 27, 22, 23, 24, 25, 28, 29, 30};
    const double stapelY[] = {40, 100, 150, 215, 265, 320, 365, 410, 455, 490};
    const double stapelGroesse[] = {12, 11, 8, 9, 9, 8, 8, 8, 8, 8};
    switch (k) {
    case 1: // one column on the left
    case 2: // one column on the right
    case 3: // centred
        for (int i = 0; i < 10; ++i)
            plaetze.push_back({order[i], k == 3 ? 0.0 : 50.0, stapelY[i], stapelGroesse[i],
                               k == 1   ? 0
                               : k == 2 ? 2
                                        : 1});
        break;
    case 4: // the name across the top, the rest in the right half
        plaetze.push_back({21, 50, 50, 14, 0});
        {
            const double y[] = {170, 215, 260, 305, 370, 415, 460, 460, 460};
            const int rest[] = {26, 27, 22, 23, 24, 25, 28, 29, 30};
            for (int i = 0; i < 9; ++i)
                plaetze.push_back({rest[i], 350, y[i], i < 2 ? 9.0 : 8.0, 0, i < 6});
        }
        break;
    case 5: // the name large on top, left-aligned throughout so that it fits labels as well
        plaetze.push_back({21, 50, 40, 16, 0});
        plaetze.push_back({27, 50, 135, 9, 0});
        plaetze.push_back({26, 50, 185, 10, 0});
        plaetze.push_back({22, 50, 245, 8, 0});
        plaetze.push_back({23, 50, 290, 8, 0});
        plaetze.push_back({24, 50, 335, 8, 0});
        plaetze.push_back({25, 50, 380, 8, 0});
        for (int n : {28, 29, 30})
            plaetze.push_back({n, 50, 425, 8, 0, false});
        break;
    default:
        return;
    }
    // Texts 1 to 10 are the label's own lines (sender, notes): a small column on the left.
    for (int n = 1; n <= 20; ++n)
        plaetze.push_back({n, 20, 20 + 33.0 * ((n - 1) % 10), 7, 0, n <= 10});

    for (const Platz& p : plaetze) {
        Text(s, p.n, p.x, KarteBreite - 100, {p.y, p.groesse}, 0, p.ausrichtung);
        s.Rahmenliste(p.n).Sichtbar = p.sichtbar ? -1 : 0;
    }
    Stapelordnung(s);
}

void BaueBeispieladressen(AppState& s) {
    const QStringList adressen[] = {
        {QStringLiteral("Anna Schneider"), QStringLiteral("Lindenstraße 12"), QStringLiteral("80331 München"),
         QStringLiteral("Tel. 089 1234567"), QStringLiteral("anna@schneider-design.example"),
         QStringLiteral("Schneider Grafikdesign"), QStringLiteral("Diplom-Designerin")},
        {QStringLiteral("Dr. Thomas Becker"), QStringLiteral("Am Marktplatz 3"), QStringLiteral("50667 Köln"),
         QStringLiteral("Tel. 0221 987654"), QStringLiteral("praxis@dr-becker.example"),
         QStringLiteral("Praxis für Zahnheilkunde"), QStringLiteral("Zahnarzt")},
        {QStringLiteral("Julia Wagner"), QStringLiteral("Hafenweg 7"), QStringLiteral("20457 Hamburg"),
         QStringLiteral("Tel. 040 5556677"), QStringLiteral("julia@wagner-reisen.example"),
         QStringLiteral("Wagner Reisen"), QStringLiteral("Reiseberaterin")},
        {QStringLiteral("Michael Hoffmann"), QStringLiteral("Bergstraße 45"), QStringLiteral("01069 Dresden"),
         QStringLiteral("Tel. 0351 443322"), QStringLiteral("info@hoffmann-immo.example"),
         QStringLiteral("Hoffmann Immobilien"), QStringLiteral("Immobilienmakler")},
        {QStringLiteral("Familie Özdemir"), QStringLiteral("Rosenweg 5a"), QStringLiteral("70173 Stuttgart"),
         QStringLiteral("Tel. 0711 2223344")},
    };
    const int anzahl = static_cast<int>(std::size(adressen));
    s.Datensaetze.Redim(30, anzahl);
    for (int r = 1; r <= anzahl; ++r)
        for (int f = 1; f <= adressen[r - 1].size(); ++f)
            s.Datensaetze(f, r) = adressen[r - 1][f - 1];
    s.DatensatzAnzahl = anzahl;
    s.DatensatzNummer = 1;
}

} // namespace zp
