// `zp --png`: the page picture of the edition, at the zoom asked for, written or refused.
#include "app/Kommandozeile.h"
#include "common/TestHilfe.h"
#include "core/state/AppState.h"

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
int Lauf(const QStringList& args) {
    QString fehler;
    auto zeile = LeseKommandozeile(args, &fehler);
    if (!zeile) return -1;
    zeile->datenquelle = QStringLiteral(ZP_DATEN_DIR);
    AppState s;
    BatchOberflaeche ui;
    return FuehreStapellaufAus(*zeile, s, ui);
}
} // namespace

TEST(SeitenbildPng, SchreibtDieSeiteDerAusgabeInIhremZoom) {
    QTemporaryDir ordner;
    const QString brief = ordner.filePath(QStringLiteral("brief.png"));
    ASSERT_EQ(Lauf({"--programmpfad", ordner.filePath("p"), "--edition", "Briefkopf", "--zoom", "50", "--png",
                    brief}),
              0);
    const QImage bild(brief);
    ASSERT_FALSE(bild.isNull());
    // The letterhead shows its A4 page: 2100 x 2970 at 5.67 x 0.5 / 15 = 396.9 x 561.3 px.
    EXPECT_EQ(bild.size(), QSize(397, 561));
    // The dotted grid is on after start-up: some pixels are grey, most are white.
    int grau = 0;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            grau += bild.pixel(x, y) == qRgb(192, 192, 192);
    EXPECT_GT(grau, 2000);
    EXPECT_LT(grau, bild.width() * bild.height() / 4);
}

TEST(SeitenbildPng, FalscherZoomOderOrdnerGibtFehler) {
    QTemporaryDir ordner;
    EXPECT_EQ(
        Lauf({"--programmpfad", ordner.filePath("p"), "--zoom", "viel", "--png", ordner.filePath("a.png")}),
        1);
    EXPECT_EQ(Lauf({"--programmpfad", ordner.filePath("p"), "--png", ordner.filePath("fehlt/nicht/da.png")}),
              1);
    EXPECT_FALSE(QFile::exists(ordner.filePath("a.png")));
}
