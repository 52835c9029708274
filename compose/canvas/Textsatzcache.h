#pragma once
// Strings laid out in a font, each shaped once: the width a text is measured with and the glyphs
// it is drawn with come from the same layout. Every entry costs its length; when the budget is
// used up the entries unused the longest leave first, so that the strings a page repeats (month
// and day names, the fixed lines of a label) stay while the one-off texts of records pass through.

#include "compose/canvas/Zeichnung.h"

#include <QCache>
#include <QPair>
#include <QString>
#include <QTextLayout>

namespace zp {

class Textsatzcache {
public:
    explicit Textsatzcache(qsizetype budgetZeichen = 100'000);

    // The text laid out on one line from (0, 0); valid until the next call.
    [[nodiscard]] const QTextLayout& Satz(const Zeichensatz& zs, const QString& text);
    // The text's advance in device pixels, rounded as the font metrics round it.
    [[nodiscard]] int Breite(const Zeichensatz& zs, const QString& text);

    [[nodiscard]] qsizetype Anzahl() const { return m_saetze.count(); }
    [[nodiscard]] qsizetype Kosten() const { return m_saetze.totalCost(); }

private:
    struct Eintrag {
        Eintrag(const QString& text, const QFont& font);
        QTextLayout satz;
        int breite = 0;
    };
    Eintrag& Finde(const Zeichensatz& zs, const QString& text);

    QCache<QPair<int, QString>, Eintrag> m_saetze;
};

} // namespace zp
