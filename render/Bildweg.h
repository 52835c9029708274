#pragma once
// The picture steps of the page composition: the label background from a picture or pattern,
// the design band, and picture frames with their fit. Implemented by the picture pipeline.

#include <QRectF>
#include <QString>

namespace zp {
struct AppState;
struct ClassBild;
struct ClassEtikett;
struct ClassRahmen;
class Canvas;

// Step 5a: a picture background (pattern must<M>.jpg or the sheet's Bilddatei) on the work frame.
// Does nothing unless the sheet's background kind asks for a picture (5, or 4 with Muster >= 1).
void ZeichneBildHintergrund(AppState& s, Canvas& ziel);
// Step 5c: the design band of the card designs.
void ZeichneKartendesign(AppState& s, Canvas& ziel, double breite, double hoehe, double designbreite,
                         const ClassEtikett& etikett);
// Steps 8f and 8g: picture frame n, loaded, corrected, fitted where the edition asks, rendered.
void ZeichneBildRahmen(AppState& s, Canvas& ziel, int n);

// The work picture of a background: the file, with every effect and correction off.
void NeuesArbeitsbild(ClassBild& bild, const QString& datei);
// The pattern file <Programmpfad>daten/must<M>.jpg.
[[nodiscard]] QString MusterDatei(const AppState& s, int muster);
// The picture behind a label: the pattern for kind 5, the sheet's Bilddatei for kind 4 (with
// Muster >= 1); empty for every other kind.
[[nodiscard]] QString HintergrundbildDatei(const AppState& s, const ClassEtikett& etikett);
// Whether frame `rahmen` shows a record picture that keeps its proportions.
[[nodiscard]] bool BildWirdEingepasst(const AppState& s, const ClassRahmen& rahmen);
// The frame reduced to the picture's shape, centred in the old rectangle (tenths of a millimetre).
[[nodiscard]] QRectF EingepassterRahmen(double x, double y, double breite, double hoehe, int bildBreite,
                                        int bildHoehe);
} // namespace zp
