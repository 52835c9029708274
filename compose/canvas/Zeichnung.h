#pragma once
// One drawing of a painter canvas, kept with everything it needs to be drawn later: the figure,
// pen and brush, the composition and the clip it was given. Stepped effects collect their steps
// as such records before they are drawn.

#include "compose/canvas/Clipflaeche.h"

#include <QBrush>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QPolygon>
#include <QRect>
#include <QString>
#include <optional>

namespace zp {

// The text cell of a font as the device measures it.
struct Zeichensatz {
    QFont font;
    int ascent = 0;
    int hoehe = 0;
    int extra = 0;
    int nummer = 0; // the same number for the same font
};

struct Zeichnung {
    enum class Art { Text, Flaeche, Rahmen, Ellipse, Vieleck, Linienzug };
    Art art = Art::Flaeche;
    // Flaeche: a box filled with the brush alone; Rahmen: a box with pen and brush; Ellipse.
    QRect rechteck;
    QPolygon punkte; // Vieleck, Linienzug
    // Text: the string hangs from `ort`, turned counter-clockwise by `drehung` degrees.
    QString text;
    QPoint ort;
    double drehung = 0;
    Zeichensatz schrift;
    std::optional<QColor> hintergrund; // an opaque text cell

    QPen stift;
    QBrush pinsel;
    QPainter::CompositionMode modus = QPainter::CompositionMode_SourceOver;
    std::optional<Clipflaeche> clip; // device pixels
};

} // namespace zp
