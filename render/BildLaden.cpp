#include "render/BildLaden.h"

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "render/Bildwerk.h"

#include <QFileInfo>

namespace zp {

namespace {

constexpr QRgb Weiss = 0xFFFFFFFF;

// The picture pipeline in its fixed order.
void Bearbeiten(const ClassBild& bild, Lead& lead) {
    lead.Load(bild.File);
    if (bild.Rotate > 0) lead.Rotate(bild.Rotate, true, Weiss);
    lead.Intensity(bild.Helligkeit);
    lead.Contrast(bild.Kontrast);
    lead.Saturation(bild.Farbintensität);
    lead.Hue(bild.Farbverschiebung);
    lead.Sharpen(bild.Schärfe);
    if (bild.EffektPixel > 0) lead.AddNoise(bild.EffektPixel, 0);
    if (bild.EffektMosaik > 0) lead.Mosaic(bild.EffektMosaik);
    if (bild.EffektTrapez > 0) lead.Shear(bild.EffektTrapez, true, Weiss);
    if (bild.EffektTrapez < 0) lead.Shear(-bild.EffektTrapez, false, Weiss);
    if (bild.Invert != 0) lead.Invert();
    if (bild.Gray != 0) lead.Grayscale();
}

} // namespace

void BildLaden(AppState& s, ClassBild& bild, Lead& lead) {
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
        Bearbeiten(bild, lead);
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
