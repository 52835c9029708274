#pragma once
// The picture dialog's preview: the file is read once at the size of the preview box, and each
// change of the dialog runs the picture pipeline on that reduced copy. The page and the print keep
// loading the full picture; effects measured in pixels are scaled with the reduction, so that the
// preview shows what prints.

#include "model/Klassen.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace zp {

class Lead;

struct Vorschauvorlage {
    QString datei;
    QImage bild;    // reduced to fit the box, never enlarged
    QSize original; // the picture's own size, pixels
    [[nodiscard]] bool Leer() const { return bild.isNull(); }
    // Reduced pixels per pixel of the picture, 1 for a picture smaller than the box.
    [[nodiscard]] double Faktor() const;
};

// Reads `datei` to fit `box` pixels. A large JPEG is decoded at a reduced size by the screen's
// path of the imaging control; other pictures are loaded whole and reduced. A missing, empty or unreadable
// file throws LeadFehler with the control's German text.
[[nodiscard]] Vorschauvorlage LadeVorschauvorlage(const QString& datei, QSize box);

// The control takes the reduced picture with the corrections and effects of `bild`.
void BildVorschau(const ClassBild& bild, const Vorschauvorlage& vorlage, Lead& lead);

} // namespace zp
