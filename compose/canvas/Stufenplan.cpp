#include "compose/canvas/Stufenplan.h"

namespace zp {

namespace {
bool GleicherStift(const QPen& a, const QPen& b) {
    return a.style() == b.style() && a.width() == b.width() && a.capStyle() == b.capStyle() &&
           a.joinStyle() == b.joinStyle();
}

// The one colour a drawing puts down: the pen's, or the brush's where there is no pen.
std::optional<QColor> Einzelfarbe(const Zeichnung& z) {
    const bool stift = z.stift.style() != Qt::NoPen;
    const bool pinsel = z.pinsel.style() != Qt::NoBrush && z.art != Zeichnung::Art::Linienzug &&
                        z.art != Zeichnung::Art::Text;
    if (stift && pinsel && z.stift.color() != z.pinsel.color()) return std::nullopt;
    if (stift) return z.stift.color();
    if (pinsel) return z.pinsel.color();
    return std::nullopt;
}
} // namespace

bool GleicheFigur(const Zeichnung& a, const Zeichnung& b) {
    if (a.art != b.art || a.modus != b.modus || !GleicherStift(a.stift, b.stift) ||
        a.pinsel.style() != b.pinsel.style() || a.hintergrund.has_value() != b.hintergrund.has_value())
        return false;
    switch (a.art) {
    case Zeichnung::Art::Text:
        return a.ort == b.ort && a.drehung == b.drehung && a.schrift.nummer == b.schrift.nummer &&
               a.text == b.text;
    case Zeichnung::Art::Vieleck:
    case Zeichnung::Art::Linienzug:
        return a.punkte == b.punkte;
    default:
        return a.rechteck == b.rechteck;
    }
}

bool Deckend(const Zeichnung& z) {
    if (z.modus != QPainter::CompositionMode_SourceOver || z.hintergrund) return false;
    if (z.stift.style() != Qt::NoPen && z.stift.color().alpha() != 255) return false;
    if (z.pinsel.style() != Qt::NoBrush && z.pinsel.color().alpha() != 255) return false;
    return true;
}

bool Ueberdeckt(const Stufe& spaeter, const Stufe& frueher) {
    if (spaeter.empty() || spaeter.size() != frueher.size()) return false;
    for (size_t j = 0; j < spaeter.size(); ++j) {
        const Zeichnung& s = spaeter[j];
        const Zeichnung& f = frueher[j];
        if (!GleicheFigur(s, f) || !Deckend(s) || !Deckend(f)) return false;
        if (s.clip && !(f.clip && *f.clip == *s.clip)) return false;
    }
    return true;
}

std::optional<Schichtplan> AlsSchicht(const std::vector<Stufe>& stufen) {
    if (stufen.size() < 2 || stufen.front().empty()) return std::nullopt;
    const Stufe& erste = stufen.front();
    Schichtplan plan;
    for (const Stufe& stufe : stufen) {
        if (stufe.size() != erste.size()) return std::nullopt;
        std::optional<QColor> farbe;
        const Clipflaeche* flaeche = nullptr;
        for (size_t j = 0; j < stufe.size(); ++j) {
            const Zeichnung& z = stufe[j];
            if (!z.clip || !Deckend(z) || !GleicheFigur(z, erste[j])) return std::nullopt;
            // Patterns would be laid from another origin in the band picture.
            if (z.pinsel.style() != Qt::NoBrush && z.pinsel.style() != Qt::SolidPattern) return std::nullopt;
            const std::optional<QColor> f = Einzelfarbe(z);
            if (!f || (farbe && *farbe != *f)) return std::nullopt;
            if (flaeche && !(*flaeche == *z.clip)) return std::nullopt;
            farbe = f;
            flaeche = &*z.clip;
        }
        plan.farben.push_back(*farbe);
        plan.flaechen.push_back(flaeche);
        plan.umriss |= flaeche->Umriss();
    }
    return plan;
}

} // namespace zp
