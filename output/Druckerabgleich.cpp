#include "output/Druckerabgleich.h"

#include "compose/canvas/canvas.h"
#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Papier.h"
#include "output/Druckercanvas.h"

#include <cmath>

namespace zp {

QString DruckerabgleichDatei(const AppState& s) {
    return s.Programmpfad + QStringLiteral("druckerabgleich.ini");
}

Druckerabgleiche LeseDruckerabgleiche(const QByteArray& bytes) {
    Druckerabgleiche werte;
    for (const QString& zeile : ZeilenAusBytes(bytes)) {
        const QStringList teile = zeile.split(u'\t');
        if (teile.size() != 3 || teile[0].isEmpty()) continue;
        const auto x = basic::ParseDouble(teile[1]);
        const auto y = basic::ParseDouble(teile[2]);
        if (!x || !y || !std::isfinite(*x) || !std::isfinite(*y)) continue;
        werte.insert(teile[0], {*x, *y});
    }
    return werte;
}

QByteArray SchreibeDruckerabgleiche(const Druckerabgleiche& werte) {
    QStringList zeilen;
    for (auto it = werte.cbegin(); it != werte.cend(); ++it)
        zeilen << EinzeiligesFeld(it.key()).replace(u'\t', u' ') + u'\t' + basic::DoubleText(it->x) + u'\t' +
                      basic::DoubleText(it->y);
    return BytesAusZeilen(zeilen);
}

bool SpeichereDruckerabgleich(AppState& s, Oberflaeche& ui, const QString& drucker, Abgleichwerte neu) {
    const QString datei = DruckerabgleichDatei(s);
    Druckerabgleiche werte = LeseDruckerabgleiche(LeseDatei(datei).value_or(QByteArray()));
    werte.insert(drucker, neu);
    QString fehler;
    if (!SchreibeDateiAtomar(datei, SchreibeDruckerabgleiche(werte), &fehler)) {
        ui.Meldung(QStringLiteral("Der Druckerabgleich kann nicht gespeichert werden."),
                   QStringLiteral("Hinweis"), fehler);
        return false;
    }
    if (drucker == s.Druckername) {
        s.AbgleichX = neu.x;
        s.AbgleichY = neu.y;
    }
    return true;
}

bool WendeDruckerabgleichAn(AppState& s, const QString& drucker) {
    const Druckerabgleiche werte =
        LeseDruckerabgleiche(LeseDatei(DruckerabgleichDatei(s)).value_or(QByteArray()));
    const auto it = werte.constFind(drucker);
    if (it == werte.cend()) return false;
    s.AbgleichX = it->x;
    s.AbgleichY = it->y;
    return true;
}

void ZeichneTestbogen(const AppState& s, Canvas& d) {
    const double fx = s.Geraetefaktor / d.TwipsPerPixelX();
    const double fy = s.Geraetefaktor / d.TwipsPerPixelY();
    auto px = [&](double v) { return static_cast<int>(std::lround(v * fx)); };
    auto py = [&](double v) { return static_cast<int>(std::lround(v * fy)); };
    d.ForeColor = 0;
    d.DrawWidth = 1;
    d.DrawStyle = 0;
    d.FillStyle = 1;
    d.SetBkMode(true);

    // Crosses of 6 mm at the corners of each label, where the sheet says they are.
    const ClassSeite& seite = s.AktuelleSeite;
    const ClassEtikett& e = s.AktuellesEtikett;
    const int spalten = std::clamp(e.Anzahl_x, 0, 50);
    const int zeilen = std::clamp(e.Anzahl_y, 0, 50);
    auto kreuz = [&](double x, double y) {
        d.Polyline({{px(x - 30), py(y)}, {px(x + 30), py(y)}});
        d.Polyline({{px(x), py(y - 30)}, {px(x), py(y + 30)}});
    };
    for (int r = 1; r <= zeilen; ++r)
        for (int c = 1; c <= spalten; ++c) {
            const Etikettenplatz p = EtikettPosition(seite, e, c, r);
            kreuz(p.x, p.y);
            kreuz(p.x + e.Breite, p.y);
            kreuz(p.x, p.y + e.Höhe);
            kreuz(p.x + e.Breite, p.y + e.Höhe);
        }

    // Rulers from the paper's corner: a tick each millimetre, longer each 5 and 10, numbered in cm.
    const int breite = seite.Breite > 0 ? seite.Breite : 2100;
    const int hoehe = seite.Höhe > 0 ? seite.Höhe : 2970;
    d.FontSize = 7;
    for (int mm = 0; mm * 10 <= breite; ++mm) {
        const int laenge = mm % 10 == 0 ? 50 : mm % 5 == 0 ? 35 : 20;
        d.Polyline({{px(mm * 10), 0}, {px(mm * 10), py(laenge)}});
        if (mm % 10 == 0 && mm > 0) {
            d.CurrentX = mm * 10 * s.Geraetefaktor + 20;
            d.CurrentY = 40 * s.Geraetefaktor;
            d.Print(QString::number(mm / 10));
        }
    }
    for (int mm = 0; mm * 10 <= hoehe; ++mm) {
        const int laenge = mm % 10 == 0 ? 50 : mm % 5 == 0 ? 35 : 20;
        d.Polyline({{0, py(mm * 10)}, {px(laenge), py(mm * 10)}});
        if (mm % 10 == 0 && mm > 0) {
            d.CurrentX = 55 * s.Geraetefaktor;
            d.CurrentY = mm * 10 * s.Geraetefaktor - 60;
            d.Print(QString::number(mm / 10));
        }
    }
    // The note, each line from the same left edge: Print starts the next line at the paper's edge.
    d.CurrentY = 300 * s.Geraetefaktor;
    d.FontSize = 10;
    for (const QString& zeile :
         {QStringLiteral(
              "Testbogen für den Druckerabgleich: Die Kreuze sollen auf den Ecken der Etiketten liegen."),
          QStringLiteral(
              "Liegen sie zu weit rechts oder unten, tragen Sie die Abweichung in 1/10 mm negativ ein.")}) {
        d.CurrentX = 300 * s.Geraetefaktor;
        d.Print(zeile);
    }
}

bool DruckeTestbogen(const AppState& s, Oberflaeche& ui, const QString& drucker, const QString& pdfDatei) {
    Druckercanvas canvas(drucker, pdfDatei, s.AktuelleSeite);
    if (!canvas.Oeffne()) {
        ui.Meldung(QStringLiteral("Der Testbogen kann nicht gedruckt werden."), QStringLiteral("Hinweis"),
                   canvas.Fehlertext());
        return false;
    }
    ZeichneTestbogen(s, canvas);
    canvas.Schliesse();
    if (!canvas.Abschliessen()) {
        ui.Meldung(QStringLiteral("Der Testbogen kann nicht gedruckt werden."), QStringLiteral("Hinweis"),
                   canvas.Fehlertext());
        return false;
    }
    return true;
}

} // namespace zp
