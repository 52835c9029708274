// The picture steps of the page composition: a picture or pattern behind a label, and picture
// frames with the fit of record pictures.
#include "render/Bildweg.h"

#include "compose/canvas/canvas.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "render/BildLaden.h"
#include "render/Bildwerk.h"

#include <QFileInfo>

namespace zp {

namespace {

bool DateiVorhanden(const QString& datei) {
    return !datei.isEmpty() && QFileInfo(datei).isFile();
}

} // namespace

void NeuesArbeitsbild(ClassBild& b, const QString& datei) {
    b.File = datei;
    b.Effekt = QStringLiteral("0");
    b.EffektMosaik = 0;
    b.EffektPixel = 0;
    b.EffektTrapez = 0;
    b.Farbintensität = 0;
    b.Farbverschiebung = 0;
    b.Gray = 0;
    b.Helligkeit = 0;
    b.Invert = 0;
    b.Kontrast = 0;
    b.Rotate = 0;
    b.Schärfe = 0;
}

namespace {

void LeadRechteckLeeren(Lead& lead) {
    lead.Left = lead.Top = lead.Width = lead.Height = 0;
}

} // namespace

QString MusterDatei(const AppState& s, int muster) {
    return s.Programmpfad + QStringLiteral("daten/must") + QString::number(muster) + QStringLiteral(".jpg");
}

QString HintergrundbildDatei(const AppState& s, const ClassEtikett& etikett) {
    if (etikett.Farbüberlauf == 5) return MusterDatei(s, etikett.Muster);
    if (etikett.Farbüberlauf == 4 && etikett.Muster >= 1) return etikett.Bilddatei;
    return {};
}

void ZeichneBildHintergrund(AppState& s, Canvas& ziel) {
    const ClassEtikett& e = s.AktuellesEtikett;
    const QString datei = HintergrundbildDatei(s, e);
    if (datei.isEmpty()) return;

    ClassRahmen& r = s.AktuellerRahmen;
    r.X = 0;
    r.Y = 0;
    r.Breite = e.Breite;
    r.Höhe = e.Höhe;
    r.Sichtbar = -1;
    r.Objekttyp = QStringLiteral("Bild");

    Lead& lead = BildwerkVon(s).Lead;
    LeadRechteckLeeren(lead);
    NeuesArbeitsbild(s.AktuellesBild, datei);
    if (!DateiVorhanden(datei)) return;

    const Massstab bildschirm = Massstab::Zeichnung(s);
    BildLaden(s, s.AktuellesBild, lead,
              BildschirmGroesse(s, ziel, bildschirm.Twips(r.Breite), bildschirm.Twips(r.Höhe)));
    if (ziel.Art() == CanvasArt::Drucker) {
        // The printer gets the label at its own size; the print zoom plays no part here.
        const Massstab g = Massstab::Geraet(s);
        lead.Render(ziel, QRectF(0, 0, g.Twips(e.Breite), g.Twips(e.Höhe)));
    } else {
        const Massstab m = Massstab::Zeichnung(s);
        lead.Render(ziel, QRectF(m.Twips(r.X), m.Twips(r.Y), m.Twips(r.Breite), m.Twips(r.Höhe)));
    }
}

bool BildWirdEingepasst(const AppState& s, const ClassRahmen& rahmen) {
    if (s.IstKalender != 0) return rahmen.Objektnummer == 1 && (s.Kalendertyp == 4 || s.Kalendertyp == 5);
    return (s.IstEtikett != 0 || s.IstVisitenkarte != 0) && rahmen.bilddaten > 0;
}

QRectF EingepassterRahmen(double x, double y, double breite, double hoehe, int bildBreite, int bildHoehe) {
    if (bildBreite <= 0 || bildHoehe <= 0 || breite <= 0 || hoehe <= 0) return {x, y, breite, hoehe};
    // The ratios in single precision, as the frame fit always compared them.
    const float r = static_cast<float>(bildBreite) / static_cast<float>(bildHoehe);
    const float f = static_cast<float>(breite) / static_cast<float>(hoehe);
    if (f >= r) {
        const double neu = static_cast<double>(r) * hoehe;
        return {x + (breite - neu) / 2, y, neu, hoehe};
    }
    const double neu = breite / static_cast<double>(r);
    return {x, y + (hoehe - neu) / 2, breite, neu};
}

void ZeichneBildRahmen(AppState& s, Canvas& ziel, int n) {
    if (!s.Rahmenliste.Gueltig(n)) return;
    const ClassRahmen& rahmen = s.Rahmenliste(n);
    const int k = static_cast<int>(rahmen.Objektnummer);
    if (k < 1 || !s.Bildliste.Gueltig(k)) return;
    ClassBild& bild = s.Bildliste(k);

    if (bild.bilddaten == 1) {
        const int satz = static_cast<int>(s.DatensatzNummer);
        bild.File = s.Datensaetze.Gueltig(21, satz) ? s.Datensaetze(21, satz) : QString();
    }
    if (!DateiVorhanden(bild.File)) return;

    Lead& lead = BildwerkVon(s).Lead;
    LeadRechteckLeeren(lead);
    // The fit only makes the frame smaller: its full size is enough for a reduced screen copy.
    const Massstab bildschirm = Massstab::Zeichnung(s);
    BildLaden(s, bild, lead,
              BildschirmGroesse(s, ziel, bildschirm.Twips(rahmen.Breite), bildschirm.Twips(rahmen.Höhe)));
    if (!lead.HatBild()) return;

    // The fit works on a copy: the document's frame keeps its size.
    QRectF r(rahmen.X, rahmen.Y, rahmen.Breite, rahmen.Höhe);
    if (BildWirdEingepasst(s, rahmen))
        r = EingepassterRahmen(rahmen.X, rahmen.Y, rahmen.Breite, rahmen.Höhe, lead.BitmapWidth(),
                               lead.BitmapHeight());
    const Massstab m = Massstab::Zeichnung(s);
    lead.Render(ziel, QRectF(m.Twips(r.x()), m.Twips(r.y()), m.Twips(r.width()), m.Twips(r.height())));
}

} // namespace zp
