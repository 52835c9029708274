#include "app/Kommandozeile.h"
#include "core/state/AppState.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
int Lauf(const QStringList& optionen, AppState& s) {
    static QTemporaryDir tmp;
    QString fehler;
    auto z =
        LeseKommandozeile(QStringList{QStringLiteral("--programmpfad"), tmp.filePath(QStringLiteral("kal")),
                                      QStringLiteral("--edition"), QStringLiteral("Kalender")} +
                              optionen,
                          &fehler);
    EXPECT_TRUE(z.has_value()) << fehler.toStdString();
    if (!z) return -1;
    z->datenquelle = QStringLiteral(ZP_DATEN_DIR);
    BatchOberflaeche ui;
    return FuehreStapellaufAus(*z, s, ui);
}
} // namespace

TEST(KalenderKommandozeile, TypeYearAndPageAsTheButtonsSetThem) {
    AppState s;
    ASSERT_EQ(Lauf({"--jahr", "2017", "--typ", "4", "--variante", "2", "--seite", "12"}, s), 0);
    EXPECT_EQ(s.Kalenderjahr, 2017);
    EXPECT_EQ(s.Kalendertyp, 4);
    EXPECT_EQ(s.Designvariante, u"v2");
    EXPECT_EQ(s.Seitennummer, 12);
    EXPECT_EQ(s.Seitenanzahl, 12);
    EXPECT_EQ(s.FesteRahmen, 39);
    EXPECT_EQ(s.Rahmenliste(40).Objekttyp, u"Bild"); // the month design with its picture
    EXPECT_EQ(s.Panel.MonthView1.MaxDate, QDate(2017, 12, 31));
}

TEST(KalenderKommandozeile, RefusesPagesTypesAndYearsThatDontExist) {
    AppState a, b, c, d;
    EXPECT_EQ(Lauf({"--typ", "2", "--seite", "2"}, a), 1); // Jahr A5 has one page
    EXPECT_EQ(Lauf({"--typ", "8"}, b), 1);
    EXPECT_EQ(Lauf({"--jahr", "10000"}, c), 1);
    EXPECT_EQ(Lauf({"--jahr", "zwei"}, d), 1);
}

TEST(KalenderKommandozeile, StatePresetWeekCountAndBirthdaysAsTheOptionsDialogSetsThem) {
    AppState s;
    ASSERT_EQ(Lauf({"--bundesland", "Bayern", "--jahr", "2027", "--feiertage", "--wochennummern", "iso"}, s),
              0);
    EXPECT_EQ(s.Feiertage(6, 1), u"Hl. 3 Könige");
    EXPECT_EQ(s.Feiertage(1, 11), u"Allerheiligen");
    EXPECT_TRUE(s.Feiertage(31, 10).isEmpty());
    EXPECT_TRUE(s.WochennummernIso);
    EXPECT_EQ(s.Bundesland, u"Bayern");

    AppState falsch;
    EXPECT_EQ(Lauf({"--bundesland", "Bayernland"}, falsch), 1);
    EXPECT_EQ(Lauf({"--wochennummern", "ja"}, falsch), 1);
    EXPECT_EQ(Lauf({"--geburtstage", "/gibt/es/nicht.dat"}, falsch), 1);
}
