#include "output/Bitmapexport.h"

#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Zeichenkontext.h"
#include "render/Bildwerk.h"

#include <cmath>

namespace zp {

QSizeF Lead2Groesse(const AppState& s) {
    const Massstab g = Massstab::Geraet(s);
    return {g.Twips(s.AktuellesEtikett.Breite) * s.ZoomExport,
            g.Twips(s.AktuellesEtikett.Höhe) * s.ZoomExport};
}

QImage ExportBild(AppState& s, Zeichenziele& ziele, const Komposition& zeichne, QString* fehler) {
    const QSizeF twips = Lead2Groesse(s);
    const double breite = std::ceil(twips.width() / ExportTwipsProPixel);
    const double hoehe = std::ceil(twips.height() / ExportTwipsProPixel);
    if (!(breite >= 1 && hoehe >= 1)) {
        if (fehler)
            *fehler = QStringLiteral("Das Bild wäre leer: Etikettgröße und Exportzoom (ZoomExport) müssen "
                                     "größer als 0 sein.");
        return {};
    }
    if (breite * hoehe > static_cast<double>(Lead::MaxBildpunkte)) {
        if (fehler)
            *fehler = QStringLiteral("Das Bild wäre mit %1 x %2 Bildpunkten zu groß. Bitte einen kleineren "
                                     "Exportzoom wählen.")
                          .arg(breite, 0, 'f', 0)
                          .arg(hoehe, 0, 'f', 0);
        return {};
    }

    ImageCanvas lead2(QSize(static_cast<int>(breite), static_cast<int>(hoehe)), CanvasArt::Export,
                      ExportTwipsProPixel, ExportTwipsProPixel);
    // The device that draws sets the pixel size of the composition's device operations.
    struct Zielzurueck {
        Zeichenziele& z;
        Canvas* lead2;
        ~Zielzurueck() { z.Lead2 = lead2; }
    } zielzurueck{ziele, ziele.Lead2};
    ziele.Lead2 = &lead2;
    const Zeichenkontext kontext(s, Zeichenkontext::Art::Export, ExportTwipsProPixel, ExportTwipsProPixel);
    zeichne(s, ziele);
    return lead2.Bild();
}

bool BildSpeichern(AppState& s, Zeichenziele& ziele, const QString& datei, const Komposition& zeichne,
                   QString* fehler) {
    const QImage bild = ExportBild(s, ziele, zeichne, fehler);
    if (bild.isNull()) return false;
    Lead& lead2 = BildwerkVon(s).Lead2;
    lead2.SetzeBitmap(bild);
    return lead2.SaveBmp(datei, fehler);
}

QImage ExportBild(AppState& s, QString* fehler) {
    Zeichenziele ziele;
    return ExportBild(s, ziele, ZeichneSeite, fehler);
}

bool BildSpeichern(AppState& s, const QString& datei, QString* fehler) {
    Zeichenziele ziele;
    return BildSpeichern(s, ziele, datei, ZeichneSeite, fehler);
}

} // namespace zp
