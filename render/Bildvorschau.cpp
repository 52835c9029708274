#include "render/Bildvorschau.h"

#include "render/BildLaden.h"
#include "render/Lead.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>

namespace zp {

double Vorschauvorlage::Faktor() const {
    if (bild.isNull() || original.width() <= 0) return 1;
    return std::min(1.0, static_cast<double>(bild.width()) / original.width());
}

Vorschauvorlage LadeVorschauvorlage(const QString& datei, QSize box) {
    Vorschauvorlage v;
    v.datei = datei;
    if (!QFileInfo(datei).isFile())
        throw LeadFehler(QStringLiteral("Die Bilddatei \"%1\" gibt es nicht.").arg(datei));
    const QSize grenze = box.expandedTo(QSize(1, 1));

    // A large JPEG is decoded reduced, as the page's screen path does it.
    Lead lead;
    if (lead.LadeVerkleinert(datei, grenze)) {
        v.original = lead.Vollgroesse().isValid() ? lead.Vollgroesse() : lead.Bitmap().size();
        const QImage verkleinert = lead.Bitmap();
        v.bild = verkleinert.scaled(grenze, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (verkleinert.size().boundedTo(grenze) == verkleinert.size()) v.bild = verkleinert;
        return v;
    }
    // Other pictures are loaded whole; a damaged file gets the imaging control's German message.
    lead.Load(datei);
    const QImage ganz = lead.Bitmap();
    v.original = ganz.size();
    v.bild = ganz.size().boundedTo(grenze) == ganz.size()
                 ? ganz
                 : ganz.scaled(grenze, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return v;
}

void BildVorschau(const ClassBild& bild, const Vorschauvorlage& vorlage, Lead& lead) {
    if (vorlage.Leer()) return;
    lead.SetzeBitmap(vorlage.bild);
    ClassBild klein = bild;
    // Mosaic tiles are pixels of the picture: on the reduced copy they shrink with it.
    if (klein.EffektMosaik > 0)
        klein.EffektMosaik =
            std::max(1, static_cast<int>(std::lround(klein.EffektMosaik * vorlage.Faktor())));
    BildKorrekturen(klein, lead);
}

} // namespace zp
