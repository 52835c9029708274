// The layouts and addresses that the card and label editions ship.
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Layout.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
AppState Karte(bool etikett) {
    AppState s;
    (etikett ? s.IstEtikett : s.IstVisitenkarte) = -1;
    s.AktuellesEtikett.Breite = etikett ? 700 : 850;
    s.AktuellesEtikett.Höhe = etikett ? 370 : 540;
    s.RahmenAnzahl = 31;
    for (int n = 1; n <= 30; ++n) {
        s.Rahmenliste(n).Objekttyp = QStringLiteral("Schrift");
        s.Rahmenliste(n).Objektnummer = n;
    }
    s.Rahmenliste(31).Objekttyp = QStringLiteral("RTF");
    s.Rahmenliste(31).Objektnummer = 1;
    return s;
}
} // namespace

TEST(MitgelieferteDaten, LayoutsKeepTheAddressOnCardAndLabel) {
    for (int k = 1; k <= 5; ++k) {
        const auto bytes =
            LeseDatei(test::MitgelieferteDaten(QStringLiteral("programm/Layout%1.lay").arg(k)));
        ASSERT_TRUE(bytes) << k;
        EXPECT_EQ(ZeilenAusBytes(*bytes).value(4), u"Vorlage"); // a template, never the user's document
        for (bool etikett : {false, true}) {
            AppState s = Karte(etikett);
            const QString name = QStringLiteral("Layout%1.lay").arg(k);
            ASSERT_EQ(WendeLayoutAn(s, *bytes, name), LayoutLesung::Gelesen) << k;
            const double w = s.AktuellesEtikett.Breite, h = s.AktuellesEtikett.Höhe;
            // Name, street and town stand fully on the piece; on a card every shown field does.
            for (int n = 21; n <= 30; ++n) {
                const ClassRahmen& r = s.Rahmenliste(n);
                if (r.Sichtbar == 0 || (etikett && n > 23)) continue;
                const std::string was =
                    name.toStdString() + (etikett ? " Etikett " : " Karte ") + std::to_string(n);
                EXPECT_GE(r.X, 0) << was;
                // A frame wider than a label is left-aligned, so that its text starts on the label.
                if (!etikett || s.Schriftliste(n).AusrichtungH != 0) {
                    EXPECT_LE(r.X + r.Breite, w) << was;
                }
                EXPECT_LE(r.X, w / 2) << was;
                EXPECT_GE(r.Y, 0) << was;
                EXPECT_LE(r.Y + r.Höhe, h) << was;
                EXPECT_EQ(r.Objekttyp, u"Schrift") << was;
                EXPECT_EQ(r.Objektnummer, n) << was;
                EXPECT_GT(s.Schriftliste(n).FontSize, 6) << was;
            }
            EXPECT_EQ(s.Rahmenliste(31).Objekttyp, u"RTF");
        }
    }
}

TEST(MitgelieferteDaten, SampleAddresses) {
    const auto bytes = LeseDatei(test::MitgelieferteDaten(QStringLiteral("programm/daten.dat")));
    ASSERT_TRUE(bytes);
    Datenbank db;
    ASSERT_EQ(LeseDatenbank(*bytes, db), DatenbankLesung::Gelesen);
    EXPECT_GE(db.DatensatzAnzahl, 3);
    EXPECT_EQ(db.FelderJeDatensatz, 30);
    for (int r = 1; r <= db.DatensatzAnzahl; ++r) {
        EXPECT_FALSE(db.Datensaetze(1, r).isEmpty()) << r; // name
        EXPECT_FALSE(db.Datensaetze(3, r).isEmpty()) << r; // town
    }
    EXPECT_FALSE(bytes->startsWith("\xEF\xBB\xBF")); // Windows-1252, as the old programs read it
}
