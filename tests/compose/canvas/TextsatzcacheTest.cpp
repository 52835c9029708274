// Each text is shaped once: the width the canvas measures comes from the same layout it draws,
// and must stay the width the font metrics give; the cache keeps the strings a page repeats.
#include "compose/canvas/Textsatzcache.h"
#include "compose/canvas/ImageCanvas.h"

#include <QFontMetrics>
#include <gtest/gtest.h>

using namespace zp;

namespace {

Zeichensatz Satz(const QString& familie, int pixel, int extra, bool fett, int nummer) {
    Zeichensatz zs;
    zs.font = QFont(familie);
    zs.font.setPixelSize(pixel);
    zs.font.setBold(fett);
    if (extra != 0) zs.font.setLetterSpacing(QFont::AbsoluteSpacing, extra);
    zs.extra = extra;
    zs.nummer = nummer;
    return zs;
}

TEST(Textsatzcache, WidthIsTheFontMetricsWidth) {
    const QString texte[] = {QStringLiteral("Montag"),
                             QStringLiteral("Hauptstraße 12"),
                             QStringLiteral("  führende und folgende Leerzeichen   "),
                             QStringLiteral("Effizienz ffi fl"),
                             QStringLiteral("€ „Anführung“ – Gedankenstrich"),
                             QStringLiteral("1234567890,50"),
                             QStringLiteral("x"),
                             QStringLiteral(" ")};
    const struct {
        const char* familie;
        int pixel, extra;
        bool fett;
    } schriften[] = {{"Arial", 13, 0, false},
                     {"Arial", 100, 0, true},
                     {"Times New Roman", 27, 3, false},
                     {"Arial", 9, -1, false},
                     {"DejaVu Sans", 50, 12, true}};
    Textsatzcache cache;
    int nummer = 0;
    for (const auto& s : schriften) {
        const Zeichensatz zs = Satz(QString::fromLatin1(s.familie), s.pixel, s.extra, s.fett, ++nummer);
        for (const QString& text : texte) {
            SCOPED_TRACE(testing::Message() << s.familie << " " << s.pixel << " px, Abstand " << s.extra
                                            << ": \"" << text.toStdString() << "\"");
            EXPECT_EQ(cache.Breite(zs, text), QFontMetrics(zs.font).horizontalAdvance(text));
        }
    }
    EXPECT_EQ(cache.Breite(Satz("Arial", 13, 0, false, 1), QString()), 0);
}

TEST(Textsatzcache, KeepsRepeatedStringsWhileOneOffTextsPassThrough) {
    Textsatzcache cache(2000);
    const Zeichensatz zs = Satz("Arial", 20, 0, false, 1);
    const QString fest = QStringLiteral("Musterstadt");
    const int breite = cache.Breite(zs, fest);
    const QTextLayout* satz = &cache.Satz(zs, fest);
    for (int i = 0; i < 5000; ++i) {
        (void)cache.Breite(zs, QStringLiteral("Name %1").arg(i)); // a record's own line
        ASSERT_EQ(&cache.Satz(zs, fest), satz) << "after " << i << " records";
    }
    EXPECT_EQ(cache.Breite(zs, fest), breite);
    EXPECT_LE(cache.Kosten(), 2000);
    EXPECT_GT(cache.Anzahl(), 50); // the budget is used, not dropped whole
    // The same text in another font is another entry.
    EXPECT_NE(cache.Breite(Satz("Arial", 40, 0, false, 2), fest), breite);
}

TEST(Textsatzcache, ATextLongerThanTheBudgetIsStillMeasuredAndDrawn) {
    Textsatzcache cache(50);
    const Zeichensatz zs = Satz("Arial", 12, 0, false, 1);
    const QString lang(200, QLatin1Char('W'));
    EXPECT_EQ(cache.Breite(zs, lang), QFontMetrics(zs.font).horizontalAdvance(lang));
    EXPECT_EQ(cache.Satz(zs, lang).text(), lang);
    EXPECT_EQ(cache.Breite(zs, QStringLiteral("W")),
              QFontMetrics(zs.font).horizontalAdvance(QLatin1Char('W')));
}

} // namespace
