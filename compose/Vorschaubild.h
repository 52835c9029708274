#pragma once
// The preview box of a property dialog: one text or shape drawn alone at its true size into a
// white picture, on the image canvas, as the page would draw it.

#include "model/Klassen.h"

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <vector>

namespace zp {
struct AppState;

// The work frame AktuellerRahmen starts 100 twips in from the top left and fills the box less
// that margin on each side; the object goes into AktuelleSchrift or AktuelleLinie as a copy and
// is drawn with Vorschaumodus on, which is off again afterwards. The list objects stay as they are.
[[nodiscard]] QImage SchriftVorschaubild(AppState& s, const ClassSchrift& schrift, QSize pixel);
[[nodiscard]] QImage LinieVorschaubild(AppState& s, const ClassLinie& linie, QSize pixel);

// The shape in a frame of `groesse` (tenths of a millimetre), as the page has it: at its true size
// where it fits the box less the margin, else shrunk keeping its proportions, centred. A line of
// the page stays a line rather than filling the box.
[[nodiscard]] QImage LinieInGroesse(AppState& s, const ClassLinie& linie, QSizeF groesse, QSize pixel);

// What the page draws under a template text: a shape in its frame (tenths of a millimetre).
struct Grundform {
    ClassLinie linie;
    QRectF rahmen;
};
// A template text as the page shows it: drawn at its true size (zoom 100) in its frame `rahmen`
// (tenths of a millimetre, page coordinates), turned as its angle says, over the shapes of `grund`
// at their places; the piece of the page around the letters, in the proportions of `box`, shrunk
// to fit when it is larger. Letters too small to read at their true size (a week number of six
// points) are drawn larger, up to three times, as far as the box allows. A text that draws nothing
// shows the piece around its frame.
[[nodiscard]] QImage SchriftAufGrund(AppState& s, const ClassSchrift& schrift, QRectF rahmen,
                                     const std::vector<Grundform>& grund, QSize box);

} // namespace zp
