#pragma once
// What a run of stepped drawings really needs drawn. A step that the next one draws again, at
// the same place, in an opaque colour and through no smaller clip, is covered and can be left
// out. A run whose steps all draw the same figure, each in one colour through a clip of its own,
// can be drawn once and coloured band by band: every pixel takes the colour of the last step
// whose clip holds it.

#include "compose/canvas/Zeichnung.h"

#include <QColor>
#include <QRect>
#include <optional>
#include <vector>

namespace zp {

using Stufe = std::vector<Zeichnung>;

// Everything but the colours and the clip alike.
[[nodiscard]] bool GleicheFigur(const Zeichnung& a, const Zeichnung& b);
// Drawn over the picture, it leaves nothing of what lay beneath where it draws.
[[nodiscard]] bool Deckend(const Zeichnung& z);
// Every pixel that `frueher` sets is set again by `spaeter`.
[[nodiscard]] bool Ueberdeckt(const Stufe& spaeter, const Stufe& frueher);

struct Schichtplan {
    std::vector<QColor> farben;               // per step
    std::vector<const Clipflaeche*> flaechen; // per step, into the steps
    QRect umriss;                             // holds every clip
};
// The plan for drawing the run as one figure coloured by bands, when it can be drawn so.
[[nodiscard]] std::optional<Schichtplan> AlsSchicht(const std::vector<Stufe>& stufen);

} // namespace zp
