#pragma once
// The preview boxes of the text and shape dialogs: the object drawn by the page's own renderer,
// at its true size where it fits, in a box of the given pixel size. The state's preview mode is on only while
// the box is drawn.

#include <QImage>
#include <QSize>

namespace zp {
struct AppState;
struct ClassSchrift;
struct ClassLinie;

// The text centred in the box, turned, spaced, shadowed and graded as on the page; a text larger
// than the box is shown smaller, so that it stays whole.
[[nodiscard]] QImage Schriftvorschau(AppState& s, ClassSchrift schrift, QSize pixel);

// The shape in the box less a margin of about 100 twips on each side and the room its shadow
// takes, so that shape and shadow show whole; a hairline bar still shows as one pixel.
[[nodiscard]] QImage Linienvorschau(AppState& s, ClassLinie linie, QSize pixel);

// The thumbnail of catalogue shape `form` (1 to 18), `pixel` wide and high.
[[nodiscard]] QImage Formvorschau(int form, int pixel);

} // namespace zp
