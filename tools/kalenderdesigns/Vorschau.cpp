#include "Vorschau.h"

#include "calendar/KalenderLauf.h"
#include "calendar/KalenderZeichnen.h"
#include "compose/ImageCanvas.h"
#include "core/AppState.h"

#include <algorithm>
#include <vector>

namespace zp::werkzeug {

QImage Kalenderseite(AppState& s, double zoom) {
    s.Zoomfaktor = zoom;
    s.Zeichenfaktor = zoom / 100;
    s.TwipsProPixelX = s.TwipsProPixelY = 15;
    const double f = s.Zeichenfaktor * s.Geraetefaktor;
    ImageCanvas c(QSize(static_cast<int>(s.AktuelleSeite.Breite * f / 15) + 1,
                        static_cast<int>(s.AktuelleSeite.Höhe * f / 15) + 1));
    if (s.Kalendertyp == 6)
        Wochenstart(static_cast<int>(s.Kalenderjahr), static_cast<int>(s.Seitennummer), s.WocheTag,
                    s.WocheMonat);

    std::vector<int> folge;
    for (int n = 1; n <= static_cast<int>(s.RahmenAnzahl); ++n)
        folge.push_back(n);
    std::sort(folge.begin(), folge.end(),
              [&](int a, int b) { return s.Rahmenliste(a).z < s.Rahmenliste(b).z; });
    for (int n : folge) {
        ClassRahmen& r = s.Rahmenliste(n);
        if (r.Sichtbar == 0) continue;
        if (r.Objekttyp == u"Schrift")
            ZeichneKalenderText(s, c, n);
        else if (r.Objekttyp == u"Linie")
            ZeichneKalenderRahmen(s, c, n);
        else if (r.Objekttyp == u"Bild" && s.Bildliste.Gueltig(static_cast<int>(r.Objektnummer))) {
            // Month designs show the page's month picture, which the shape walk has just chosen.
            const QImage bild(s.Programmpfad + s.Bildliste(static_cast<int>(r.Objektnummer)).File);
            if (!bild.isNull()) c.RenderBild(bild, QRectF(r.X * f, r.Y * f, r.Breite * f, r.Höhe * f));
        }
    }
    return c.Bild();
}

} // namespace zp::werkzeug
