#include "Positionsdialog.h"

#include "core/Auswahl.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

#include <cmath>

namespace zp {

namespace {
ClassRahmen* AktuellerRahmenVon(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || !s.Rahmenliste.Gueltig(n)) return nullptr;
    return &s.Rahmenliste(n);
}

// A box shows two decimals at most: a frame drawn with the mouse lies on fractions of a tenth of
// a millimetre that nobody would type.
QString Zahltext(double wert) {
    return basic::DoubleText(std::round(wert * 100) / 100);
}

// The value of a box for the frame: a box still showing the frame's own value keeps it exactly,
// so that Ok on untouched boxes moves nothing by the rounding of the display.
double Feldwert(const QString& text, double bisher) {
    return text == Zahltext(bisher) ? bisher : Positionszahl(text);
}

// Position box `lage` against size box `groesse` on a page of `seitenmass`.
void LageReparieren(QString& lage, const QString& groesse, double seitenmass) {
    double wert = Positionszahl(lage);
    const double mass = Positionszahl(groesse);
    if (wert + mass > seitenmass) wert = seitenmass - mass;
    if (wert < 0) wert = 0; // a frame larger than the page starts at its edge
    lage = Zahltext(wert);
}

void GroesseReparieren(QString& groesse, const QString& lage, double seitenmass) {
    double wert = Positionszahl(groesse);
    const double start = Positionszahl(lage);
    if (start + wert > seitenmass) wert = seitenmass - start;
    if (wert < 0) wert = 0;
    groesse = Zahltext(wert);
}
} // namespace

QString& Positionsfelder::Feld(int nummer) {
    switch (nummer) {
    case 1:
        return Text1;
    case 2:
        return Text2;
    case 3:
        return Text3;
    default:
        return Text4;
    }
}

double Positionszahl(const QString& text) {
    if (const auto wert = basic::ParseDouble(text); wert && std::isfinite(*wert)) return *wert;
    QString punkt = text;
    punkt.replace(QLatin1Char(','), QLatin1Char('.'));
    const double wert = basic::Val(punkt);
    return std::isfinite(wert) ? wert : 0;
}

Positionsfelder PositionsdialogOeffnen(AppState& s) {
    s.LadeSperre = 255;
    Positionsfelder f;
    if (const ClassRahmen* r = AktuellerRahmenVon(s)) {
        f.Text1 = Zahltext(r->X);
        f.Text2 = Zahltext(r->Y);
        f.Text3 = Zahltext(r->Breite);
        f.Text4 = Zahltext(r->Höhe);
        f.Check1 = r->Proportional != 0;
        f.Check2 = r->Verankert != 0;
    }
    return f;
}

void PositionsfeldReparieren(Positionsfelder& f, int nummer, const ClassSeite& seite) {
    switch (nummer) {
    case 1:
        LageReparieren(f.Text1, f.Text3, seite.Breite);
        break;
    case 2:
        LageReparieren(f.Text2, f.Text4, seite.Höhe);
        break;
    case 3:
        GroesseReparieren(f.Text3, f.Text1, seite.Breite);
        break;
    case 4:
        GroesseReparieren(f.Text4, f.Text2, seite.Höhe);
        break;
    default:
        break;
    }
}

bool PositionsdialogOk(AppState& s, Oberflaeche& ui, Positionsfelder f) {
    ClassRahmen* r = AktuellerRahmenVon(s);
    if (!r) {
        s.LadeSperre = 0;
        return false;
    }
    for (int nummer = 1; nummer <= 4; ++nummer)
        PositionsfeldReparieren(f, nummer, s.AktuelleSeite);
    if (s.Auswahlmodus == 0) VerlaufMerken(s); // while inserting, the insertion's step holds it
    r->X = Feldwert(f.Text1, r->X);
    r->Y = Feldwert(f.Text2, r->Y);
    r->Breite = Feldwert(f.Text3, r->Breite);
    r->Höhe = Feldwert(f.Text4, r->Höhe);
    r->Proportional = basic::AlsWahrheit(f.Check1);
    r->Verankert = basic::AlsWahrheit(f.Check2);
    s.LadeSperre = 0;
    UpdateSelection(s, ui); // the marker and the handles take the new box
    ui.Neuzeichnen();
    return true;
}

void PositionsdialogAbbruch(AppState& s) {
    s.LadeSperre = 0;
}

} // namespace zp
