#include "render/BildLaden.h"

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "render/Bildwerk.h"

#include "compose/canvas/canvas.h"

#include <QFileInfo>
#include <cmath>

namespace zp {

namespace {

constexpr QRgb Weiss = 0xFFFFFFFF;

Farbwerte FarbwerteVon(const ClassBild& bild) {
    return {bild.Helligkeit, bild.Kontrast, static_cast<int>(bild.Farbintensität)};
}

// The corrections that see one pixel at a time give the same picture on a reduced copy; turn,
// sharpening, noise, mosaic and shear depend on the pixel size.
bool NurPunktweise(const ClassBild& bild) {
    return bild.Rotate % 36000 <= 0 && bild.Schärfe == 0 && bild.EffektPixel <= 0 && bild.EffektMosaik <= 1 &&
           bild.EffektTrapez == 0;
}

} // namespace

// The picture pipeline in its fixed order, after the load. Brightness, contrast and saturation
// run as one pass.
void BildKorrekturen(const ClassBild& bild, Lead& lead) {
    if (bild.Rotate > 0) lead.Rotate(bild.Rotate, true, Weiss);
    lead.Farbkorrektur(FarbwerteVon(bild));
    lead.Hue(bild.Farbverschiebung);
    lead.Sharpen(bild.Schärfe);
    if (bild.EffektPixel > 0) lead.AddNoise(bild.EffektPixel, 0);
    if (bild.EffektMosaik > 0) lead.Mosaic(bild.EffektMosaik);
    if (bild.EffektTrapez > 0) lead.Shear(bild.EffektTrapez, true, Weiss);
    if (bild.EffektTrapez < 0) lead.Shear(-bild.EffektTrapez, false, Weiss);
    if (bild.Invert != 0) lead.Invert();
    if (bild.Gray != 0) lead.Grayscale();
}

namespace {

// A reduced copy for the screen, from the cache or the file; false when the full picture is needed.
bool VerkleinertLaden(Bildwerk& werk, const ClassBild& bild, BildSchluessel schluessel, QSize bildschirm,
                      Lead& lead) {
    schluessel.bildschirm = bildschirm;
    QSize voll;
    if (auto fertig = werk.Cache.Finde(schluessel, &voll)) {
        lead.SetzeBitmap(*fertig, voll);
        return true;
    }
    if (!lead.LadeVerkleinert(bild.File, bildschirm)) return false;
    BildKorrekturen(bild, lead);
    werk.Cache.Ablegen(schluessel, lead.Bitmap(), lead.Vollgroesse());
    return true;
}

} // namespace

QSize BildschirmGroesse(const AppState& s, const Canvas& ziel, double breiteTwips, double hoeheTwips) {
    if (s.DruckenAktiv != 0 || s.ExportAktiv != 0) return {};
    if (ziel.Art() != CanvasArt::Bildschirm && ziel.Art() != CanvasArt::Vorschau) return {};
    const double tppX = ziel.TwipsPerPixelX() > 0 ? ziel.TwipsPerPixelX() : 15.0;
    const double tppY = ziel.TwipsPerPixelY() > 0 ? ziel.TwipsPerPixelY() : 15.0;
    if (breiteTwips <= 0 || hoeheTwips <= 0) return {};
    return {std::max(1, static_cast<int>(std::ceil(breiteTwips / tppX))),
            std::max(1, static_cast<int>(std::ceil(hoeheTwips / tppY)))};
}

void BildLaden(AppState& s, ClassBild& bild, Lead& lead, QSize bildschirm) {
    const bool arbeit = bild.File != s.LetztesBild || s.DruckenAktiv == 0;
    s.LetztesBild = bild.File;
    if (!arbeit || bild.File.isEmpty() || !QFileInfo(bild.File).isFile()) return;

    Bildwerk& werk = BildwerkVon(s);
    const auto schluessel = SchluesselFuer(bild);
    if (schluessel) {
        if (auto fertig = werk.Cache.Finde(*schluessel)) {
            lead.SetzeBitmap(*fertig);
            return;
        }
        if (werk.Cache.IstFehlerhaft(*schluessel)) return; // already reported
    }
    try {
        if (schluessel && bildschirm.isValid() && s.DruckenAktiv == 0 && NurPunktweise(bild) &&
            VerkleinertLaden(werk, bild, *schluessel, bildschirm, lead))
            return;
        lead.Load(bild.File);
        BildKorrekturen(bild, lead);
        if (schluessel) werk.Cache.Ablegen(*schluessel, lead.Bitmap());
    } catch (const LeadFehler& e) {
        if (schluessel) werk.Cache.MerkeFehler(*schluessel);
        if (werk.Meldungen) werk.Meldungen->Meldung(e.Text(), QStringLiteral("Hinweis"), bild.File);
    } catch (const std::exception& e) {
        // Anything else the library throws (out of memory while correcting) is a failed load too.
        if (schluessel) werk.Cache.MerkeFehler(*schluessel);
        if (werk.Meldungen)
            werk.Meldungen->Meldung(QStringLiteral("Das Bild kann nicht bearbeitet werden: %1")
                                        .arg(QString::fromLocal8Bit(e.what())),
                                    QStringLiteral("Hinweis"), bild.File);
    }
}

} // namespace zp
