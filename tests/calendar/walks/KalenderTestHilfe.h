#pragma once
// A calendar design for the walks: text frames 1..8 and shape frames 32..39 with their roles,
// and a drawer that records every cell the walks hand over.

#include "calendar/walks/KalenderLauf.h"
#include "core/state/AppState.h"

#include <QString>
#include <vector>

namespace zp::test {

struct Zelle {
    bool text = false;
    int rolle = 0;
    double x = 0, y = 0, breite = 0, hoehe = 0;
    QString inhalt;
    Farbe farbe = -1;
    double winkel = -1;
};

class Aufzeichner final : public KalenderZeichner {
public:
    std::vector<Zelle> zellen;
    void Schrift(AppState& s, ClassSchrift& schrift, ClassRahmen& r) override {
        zellen.push_back({true, static_cast<int>(r.Objektnummer), r.X, r.Y, r.Breite, r.Höhe,
                          schrift.Textstring, s.Farbvorgabe, s.Winkelvorgabe});
        // The text renderer uses up the one-shot overrides.
        s.Farbvorgabe = -1;
        s.Winkelvorgabe = -1;
    }
    void Linie(AppState& s, ClassLinie&, ClassRahmen& r) override {
        zellen.push_back(
            {false, static_cast<int>(r.Objektnummer), r.X, r.Y, r.Breite, r.Höhe, {}, s.Farbvorgabe, -1});
        s.Farbvorgabe = -1;
    }
    std::vector<Zelle> Texte() const {
        std::vector<Zelle> v;
        for (const auto& z : zellen)
            if (z.text) v.push_back(z);
        return v;
    }
};

// Text frame k is frame k, shape frame k is frame 31 + k; every frame at (x, y) sized w x h.
inline void Rahmen(AppState& s, int n, double x, double y, double w, double h) {
    ClassRahmen& r = s.Rahmenliste(n);
    r.X = x;
    r.Y = y;
    r.Breite = w;
    r.Höhe = h;
}

inline AppState Kalenderdesign(int typ, int jahr, int seite = 1) {
    AppState s;
    s.IstKalender = -1;
    s.Kalendertyp = typ;
    s.Kalenderjahr = jahr;
    s.Seitennummer = seite;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Rahmenliste.Redim(39);
    s.Schriftliste.Redim(30);
    s.Linienliste.Redim(8);
    s.RahmenAnzahl = 39;
    for (int n = 1; n <= 39; ++n) {
        ClassRahmen& r = s.Rahmenliste(n);
        r.Sichtbar = -1;
        r.z = static_cast<int16_t>(n);
        if (n <= 31) {
            r.Objekttyp = QStringLiteral("Schrift");
            r.Objektnummer = n;
        } else {
            r.Objekttyp = QStringLiteral("Linie");
            r.Objektnummer = n - 31;
        }
        r.Breite = 100;
        r.Höhe = 100;
    }
    const char* namen[] = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                           "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    for (int m = 1; m <= 12; ++m)
        s.Monatsnamen(m) = QString::fromUtf8(namen[m - 1]);
    const char* tage[] = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    for (int w = 1; w <= 8; ++w)
        s.Wochentagsnamen(w) = QString::fromUtf8(tage[w - 1]);
    s.Panel.TextTitel = QStringLiteral("Titel");
    s.Panel.TextUnterschrift = QStringLiteral("Fuß");
    return s;
}

inline std::vector<Zelle> Text(AppState& s, int n) {
    Aufzeichner a;
    KalenderTextLauf(s, a, n);
    return a.zellen;
}
inline std::vector<Zelle> Form(AppState& s, int n) {
    Aufzeichner a;
    KalenderRahmenLauf(s, a, n);
    return a.zellen;
}

} // namespace zp::test
