#include "render/Hintergrundvorschau.h"

#include "compose/canvas/canvas.h"
#include "core/state/AppState.h"
#include "core/state/Zeichenkontext.h"
#include "render/BildLaden.h"
#include "render/Bildweg.h"
#include "render/Bildwerk.h"
#include "render/ZeichneLinie.h"

#include <QFileInfo>

namespace zp {

void ZeichneHintergrundVorschau(AppState& s, Canvas& box, const ClassEtikett& etikett) {
    box.Cls();
    const int art = etikett.Farbüberlauf;
    if (art < 1) return;

    // The preview box is measured in its own pixels, at the true size.
    Zeichenkontext kontext(s, Zeichenkontext::Art::Bildschirm, box.TwipsPerPixelX(), box.TwipsPerPixelY());
    kontext.SetzeFaktoren(1, 1);
    const double breite = box.Width();
    const double hoehe = box.Height();

    if (art <= 3) {
        ClassRahmen rahmen;
        rahmen.Breite = breite;
        rahmen.Höhe = hoehe;
        rahmen.Sichtbar = -1;
        rahmen.Objekttyp = QStringLiteral("Linie");
        ClassLinie linie;
        linie.Color1 = etikett.Farbe1;
        linie.Color2 = art < 2 ? etikett.Farbe1 : etikett.Farbe2;
        linie.ColorCircle = static_cast<int16_t>(art - 1);
        linie.Form = 16;
        linie.Füllung = -1;
        linie.Stärke = 0;
        linie.ShadowDeep = 0;
        s.Zoomfaktor = 100;
        ZeichneLinie(s, box, linie, rahmen);
    } else if (art <= 5) {
        const QString datei = art == 5 ? MusterDatei(s, etikett.Muster) : etikett.Bilddatei;
        // A missing picture leaves the box cleared; the design still shows, as on the page.
        if (!datei.isEmpty() && QFileInfo(datei).isFile()) {
            ClassBild bild;
            bild.File = datei;
            Lead& lead = BildwerkVon(s).Lead;
            BildLaden(s, bild, lead, BildschirmGroesse(s, box, breite, hoehe));
            if (lead.HatBild()) lead.Render(box, QRectF(0, 0, breite, hoehe));
        }
    }

    if (etikett.Design > 0)
        ZeichneKartendesign(s, box, breite, hoehe - 60, etikett.Designbreite * 2.0, etikett);
}

} // namespace zp
