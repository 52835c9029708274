#include "compose/canvas/Textsatzcache.h"

#include <QTextLine>
#include <cmath>

namespace zp {

namespace {
// What a layout holds beyond its glyphs, counted in characters.
constexpr qsizetype GrundkostenZeichen = 16;
} // namespace

Textsatzcache::Eintrag::Eintrag(const QString& text, const QFont& font) : satz(text, font) {
    satz.setCacheEnabled(true);
    satz.beginLayout();
    QTextLine zeile = satz.createLine();
    zeile.setPosition(QPointF(0, 0));
    satz.endLayout();
    breite = zeile.isValid() ? qRound(zeile.horizontalAdvance()) : 0;
}

Textsatzcache::Textsatzcache(qsizetype budgetZeichen) : m_saetze(budgetZeichen) {}

Textsatzcache::Eintrag& Textsatzcache::Finde(const Zeichensatz& zs, const QString& text) {
    const QPair<int, QString> schluessel(zs.nummer, text);
    if (Eintrag* e = m_saetze.object(schluessel)) return *e;
    auto* neu = new Eintrag(text, zs.font);
    // A text longer than the whole budget takes all of it, for as long as it is the newest.
    const qsizetype kosten = std::min(text.size() + GrundkostenZeichen, m_saetze.maxCost());
    m_saetze.insert(schluessel, neu, kosten);
    return *neu;
}

const QTextLayout& Textsatzcache::Satz(const Zeichensatz& zs, const QString& text) {
    return Finde(zs, text).satz;
}

int Textsatzcache::Breite(const Zeichensatz& zs, const QString& text) {
    if (text.isEmpty()) return 0;
    return Finde(zs, text).breite;
}

} // namespace zp
