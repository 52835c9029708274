#include "core/state/Papier.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

TEST(WendePapierAn, NamedSizesInPortraitAndUserSizeKept) {
    ClassSeite seite;
    struct Fall {
        const char* name;
        int b, h;
    } faelle[] = {{"DIN A4", 2100, 2970},
                  {"DIN A5", 1480, 2100},
                  {"Letter", 2160, 2790},
                  {"Legal", 2160, 3560},
                  {"Executive", 1850, 2670}};
    for (const auto& f : faelle) {
        seite.Papier = QString::fromLatin1(f.name);
        seite.Querformat = -1; // landscape never swaps the numbers
        EXPECT_FALSE(WendePapierAn(seite)) << f.name;
        EXPECT_EQ(seite.Breite, f.b) << f.name;
        EXPECT_EQ(seite.Höhe, f.h) << f.name;
    }
    seite.Papier = QStringLiteral("Benutzerdefiniert");
    EXPECT_TRUE(WendePapierAn(seite));
    EXPECT_EQ(seite.Breite, 1850); // the last named size stays
    EXPECT_EQ(Papiernamen().size(), 6);
    EXPECT_EQ(Papiernamen().last(), u"Benutzerdefiniert");
}

TEST(EtikettPosition, SlotIsALabelPlusItsGap) {
    ClassSeite seite;
    seite.Randlinks = 46;
    seite.Randoben = 151;
    ClassEtikett e;
    e.Breite = 991;
    e.Höhe = 381;
    e.Abstand_x = 25;
    e.Abstand_y = 0;
    EXPECT_EQ(EtikettPosition(seite, e, 1, 1).x, 46);
    EXPECT_EQ(EtikettPosition(seite, e, 2, 1).x, 46 + 991 + 25);
    EXPECT_EQ(EtikettPosition(seite, e, 2, 7).y, 151 + 6 * 381);
}

TEST(Kartenformat, TemplateFillsTheCopiesAndOwnRowsRemember) {
    AppState s;
    s.KartenformatAnzahl = 6;
    const char* werte[10] = {"1170", "1170", "1", "2", "0", "300", "465", "150", "1", "0"};
    for (int z : {5, 6})
        for (int spalte = 1; spalte <= 10; ++spalte)
            s.KartenformatWerte(spalte, z) = QString::fromLatin1(werte[spalte - 1]);
    ASSERT_TRUE(WendeKartenformatAn(s, 6));
    EXPECT_EQ(s.SeiteKopie.Randlinks, 465); // column 7
    EXPECT_EQ(s.SeiteKopie.Randoben, 150);  // column 8
    EXPECT_EQ(s.EtikettKopie.Breite, 1170);
    EXPECT_EQ(s.EtikettKopie.Anzahl_y, 2);
    EXPECT_EQ(s.EtikettKopie.Abstand_y, 300);
    EXPECT_EQ(s.EtikettKopie.Form, 1); // column 9 = 1: round
    EXPECT_FALSE(WendeKartenformatAn(s, 7));
    EXPECT_TRUE(WendeKartenformatAn(s, 0)); // "Vorgaben" changes nothing
    EXPECT_EQ(s.EtikettKopie.Breite, 1170);

    MerkeKartenformatwert(s, 5, 1, 700);
    MerkeKartenformatwert(s, 6, 1, 700);
    EXPECT_EQ(s.KartenformatWerte(1, 5), u"700");
    EXPECT_EQ(s.KartenformatWerte(1, 6), u"1170"); // shipped rows stay as they are
}
