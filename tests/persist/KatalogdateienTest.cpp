#include "persist/Katalogdateien.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Papier.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
QByteArray Katalog(int zeilen, bool ende = true) {
    QByteArray b;
    for (int i = 1; i <= zeilen; ++i) {
        b += "Bogen " + QByteArray::number(i) + "\r\n";
        for (int spalte = 1; spalte <= 10; ++spalte)
            b += QByteArray::number(i * 100 + spalte) + "\r\n";
    }
    if (ende) b += "ende\r\n";
    return b;
}
} // namespace

TEST(Kartenformate, ReadsUpTo353RowsAndStopsAtEnde) {
    AppState s;
    ASSERT_TRUE(LeseKartenformate(s, Katalog(353)));
    EXPECT_EQ(s.KartenformatAnzahl, 353);
    EXPECT_EQ(s.KartenformatNamen(353), u"Bogen 353");
    EXPECT_EQ(s.KartenformatWerte(10, 353), u"35310");
    // A longer catalogue stops at row 354 before its name is used.
    ASSERT_TRUE(LeseKartenformate(s, Katalog(360, false)));
    EXPECT_EQ(s.KartenformatAnzahl, 353);
    EXPECT_EQ(s.KartenformatNamen(354), QString());
    // "ende" first: only "Vorgaben" remains for the list.
    ASSERT_TRUE(LeseKartenformate(s, QByteArray("ende\r\n")));
    EXPECT_EQ(s.KartenformatAnzahl, 0);
    EXPECT_EQ(s.KartenformatNamen(1), QString());
}

TEST(Kartenformate, BadCatalogueLeavesTheOldOne) {
    AppState s;
    ASSERT_TRUE(LeseKartenformate(s, Katalog(2)));
    QByteArray kaputt = Katalog(2);
    kaputt.replace("204\r\n", "vier\r\n");
    Lesefehler f;
    EXPECT_FALSE(LeseKartenformate(s, kaputt, &f));
    EXPECT_EQ(f.zeile, 12 + 4); // row 2 starts at line 12 with its name
    EXPECT_EQ(s.KartenformatAnzahl, 2);
    EXPECT_EQ(s.KartenformatWerte(4, 2), u"204");
    // Cut short: no "ende" after the last row.
    EXPECT_FALSE(LeseKartenformate(s, Katalog(2, false), &f));
    EXPECT_EQ(f.zeile, 23);
}

TEST(Kartenformate, ExitWritesEveryRowBack) {
    AppState s;
    ASSERT_TRUE(LeseKartenformate(s, Katalog(353)));
    EXPECT_EQ(SchreibeKartenformate(s), Katalog(353));
    // The user's own rows come back as changed; a name can't break the rows after it, and a
    // column left empty goes back as a number the reader takes.
    s.KartenformatNamen(1) = QStringLiteral("Mein Bogen\r\nzweite Zeile");
    s.KartenformatWerte(3, 2) = QString();
    AppState t;
    ASSERT_TRUE(LeseKartenformate(t, SchreibeKartenformate(s)));
    EXPECT_EQ(t.KartenformatAnzahl, 353);
    EXPECT_EQ(t.KartenformatNamen(1), u"Mein Bogen zweite Zeile");
    EXPECT_EQ(t.KartenformatWerte(3, 2), u"0");
    EXPECT_EQ(t.KartenformatNamen(353), u"Bogen 353");
}

TEST(Kartenformate, ShippedCatalogueHoldsRealSheetsThatFitOnA4) {
    const auto bytes = LeseDatei(test::MitgelieferteDaten(QStringLiteral("programm/etikett.ini")));
    ASSERT_TRUE(bytes);
    AppState s;
    ASSERT_TRUE(LeseKartenformate(s, *bytes));
    ASSERT_GE(s.KartenformatAnzahl, 60);
    bool rundeCd = false, visitenkarte = false;
    for (int z = 1; z <= s.KartenformatAnzahl; ++z) {
        ASSERT_TRUE(WendeKartenformatAn(s, z));
        const ClassEtikett& e = s.EtikettKopie;
        EXPECT_GT(e.Anzahl_x, 0) << z;
        // The last label's far corner stays on the 210 x 297 mm sheet.
        const auto ecke = EtikettPosition(s.SeiteKopie, e, e.Anzahl_x, e.Anzahl_y);
        EXPECT_LE(ecke.x + e.Breite, 2100) << s.KartenformatNamen(z).toStdString();
        EXPECT_LE(ecke.y + e.Höhe, 2970) << s.KartenformatNamen(z).toStdString();
        if (e.Form == 1 && e.Breite == 1170) rundeCd = true;
        if (e.Breite == 850 && e.Höhe == 540 && e.Anzahl_x == 2 && e.Anzahl_y == 5) visitenkarte = true;
    }
    EXPECT_TRUE(rundeCd);
    EXPECT_TRUE(visitenkarte);
}

TEST(KalenderIni, RoundTripAndShortFile) {
    const auto bytes = LeseDatei(test::MitgelieferteDaten(QStringLiteral("programm/kalender.ini")));
    ASSERT_TRUE(bytes);
    AppState s;
    ASSERT_TRUE(LeseKalenderIni(s, *bytes));
    EXPECT_EQ(s.FeiertagWahl(1), 1);  // Neujahr
    EXPECT_EQ(s.FeiertagWahl(2), 0);  // Hl. 3 Könige is regional
    EXPECT_EQ(s.FeiertagWahl(16), 1); // Tag der Dt. Einheit
    EXPECT_EQ(SchreibeKalenderIni(s), *bytes);
    EXPECT_EQ(ZeilenAusBytes(*bytes).size(), 34);

    const Farbe sonntag = s.FarbeSonntag;
    Lesefehler f;
    EXPECT_FALSE(LeseKalenderIni(s, test::CrLf({"1", "0"}), &f));
    EXPECT_EQ(f.zeile, 3);
    EXPECT_FALSE(LeseKalenderIni(s, QByteArray(*bytes).replace("255\r\n", "rot\r\n"), &f));
    EXPECT_EQ(f.zeile, 32);
    EXPECT_EQ(s.FarbeSonntag, sonntag);
}
