#pragma once
// Documents of the composition benchmarks: the built-in document with texts typed into its boxes,
// and a page rich in effects.

#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"

#include <QTemporaryDir>

namespace zp::bench {

// The built-in document of 31 frames after start-up in an empty program folder, with a text
// typed into each of the 30 boxes.
inline void StandarddokumentMitTexten(AppState& s) {
    QTemporaryDir ordner;
    Oberflaeche still;
    Main(s, ordner.path(), still);
    s.Programmname = QStringLiteral("Briefkopf"); // the page as a whole, with the letter-body note
    SetzeEditionsflags(s);
    for (int i = 1; i <= 30; ++i) {
        const QString text = QStringLiteral("Eingabe %1: Musterstraße %1, 12345 Musterstadt").arg(i);
        s.Panel.Text1(i) = text;
        s.Schriftliste(i).Textstring = text;
        s.Schriftliste(i).FontSize = 8 + i % 5 * 2;
    }
    s.Zoomfaktor = 150;
}

// 40 frames: 20 texts turned by various angles with soft shadows and gradients, and 20 shapes
// of all kinds with gradients and soft shadows.
inline void EffektseiteMitVierzigRahmen(AppState& s) {
    StandarddokumentMitTexten(s);
    const int texte = 20, formen = 20;
    s.Rahmenliste.Redim(texte + formen);
    s.Schriftliste.Redim(std::max(30, texte));
    s.Linienliste.Redim(formen);
    s.RahmenAnzahl = 0;
    s.Panel.Text1 = Liste<QString>(30);
    static const int winkel[] = {0, 30, 90, 180, 270, 45, 0, 315};
    for (int i = 1; i <= texte; ++i) {
        ErzeugeRahmen(s, i, QStringLiteral("Schrift"), i);
        ClassRahmen& r = s.Rahmenliste(i);
        r.X = 100 + (i - 1) % 4 * 480;
        r.Y = 100 + (i - 1) / 4 * 560;
        r.Breite = 450;
        r.Höhe = 300;
        ClassSchrift& t = s.Schriftliste(i);
        t = ClassSchrift{};
        t.Textstring = QStringLiteral("Schatten %1").arg(i);
        t.FontSize = 14 + i % 3 * 4;
        t.Bold = i % 2 ? -1 : 0;
        t.Angle = static_cast<int16_t>(winkel[i % 8]);
        t.AusrichtungH = static_cast<int16_t>(i % 3);
        t.AusrichtungV = static_cast<int16_t>((i / 3) % 3);
        t.ShadowDeep = 40;
        t.ShadowType = 0;
        t.ShadowColor1 = 0x808080;
        t.ShadowColor2 = 0xF0F0F0;
        t.ColorCircle = static_cast<int16_t>(1 + i % 2);
        t.Color1 = 0x0000C0;
        t.Color2 = 0xC06000;
    }
    for (int k = 1; k <= formen; ++k) {
        const int n = texte + k;
        ErzeugeRahmen(s, n, QStringLiteral("Linie"), k);
        ClassRahmen& r = s.Rahmenliste(n);
        r.X = 120 + (k - 1) % 4 * 480;
        r.Y = 380 + (k - 1) / 4 * 560;
        r.Breite = 400;
        r.Höhe = 200;
        ClassLinie& l = s.Linienliste(k);
        l = ClassLinie{};
        l.Form = static_cast<int16_t>(1 + (k - 1) % 18);
        l.Füllung = -1;
        l.Stärke = 10;
        l.ColorCircle = static_cast<int16_t>(1 + k % 2);
        l.Color1 = 0x00A0FF;
        l.Color2 = 0x800000;
        l.ShadowDeep = 8;
        l.ShadowType = 0;
        l.ShadowColor1 = 0x606060;
        l.ShadowColor2 = 0xFFFFFF;
    }
    s.RahmenNummer = 1;
}

} // namespace zp::bench
