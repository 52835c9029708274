// The calendar panel's type, variant and standard-design commands on real design files.
#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Kalenderbefehle.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Objekte.h"
#include "persist/Design.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

// A calendar state in `ordner` with 30 text frames; frame 2's X marks which design is in use.
void Kalenderzustand(AppState& s, const QString& ordner) {
    s.Programmname = QStringLiteral("ZP Kalender");
    s.IstKalender = -1;
    s.Programmpfad = ordner + QLatin1Char('/');
    s.RahmenAnzahl = 0;
    for (int n = 1; n <= 30; ++n) {
        ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        ErzeugeSchrift(s, n);
    }
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2980;
}

// A design of the calendar type `typ` (the file names its type) with frame 2 at `x`.
void DesignSchreiben(AppState s, const QString& pfad, int typ, double x) {
    ProtokollOberflaeche still;
    s.Kalendertyp = typ;
    s.Rahmenliste(2).X = x;
    s.AktuelleDatei = pfad;
    ASSERT_TRUE(SaveDesign(s, still));
}

TEST(Kalenderbefehle, TypwechselSpeichertErstUndKommtZuDenAenderungenZurueck) {
    QTemporaryDir dir;
    AppState s;
    Kalenderzustand(s, dir.path());
    ProtokollOberflaeche ui;
    s.Kalendertyp = 1;
    s.Seitennummer = 2;
    s.Rahmenliste(2).X = 111; // an edited Halbjahr design
    DesignSchreiben(s, s.Programmpfad + "kal4.zpk", 4, 444);

    EXPECT_TRUE(CommandTyp(s, ui, 4));
    EXPECT_EQ(s.Rahmenliste(2).X, 444);
    EXPECT_EQ(s.Seitennummer, 1);
    EXPECT_EQ(s.Seitenanzahl, 12);
    EXPECT_TRUE(QFileInfo::exists(s.Programmpfad + "kal1.zpk")); // the old design was kept
    EXPECT_TRUE(CommandTyp(s, ui, 1));
    EXPECT_EQ(s.Rahmenliste(2).X, 111);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_FALSE(CommandTyp(s, ui, 8));
    EXPECT_EQ(s.Kalendertyp, 1);

    // Without a kal1v2.zpk the built-in design of the variant stands in, and the variant stays
    // chosen over a change of type.
    EXPECT_TRUE(ComboVariante(s, ui, QStringLiteral("Variante 2")));
    EXPECT_EQ(s.Designvariante, u"v2");
    EXPECT_EQ(s.RahmenAnzahl, 39);
    EXPECT_EQ(s.Rahmenliste(32).Objekttyp, u"Linie");
    EXPECT_TRUE(CommandTyp(s, ui, 4));
    EXPECT_TRUE(QFileInfo::exists(s.Programmpfad + "kal1v2.zpk"));
    EXPECT_EQ(s.AktuelleDatei, s.Programmpfad + "kal4v2.zpk");
    EXPECT_TRUE(ui.meldungen.isEmpty()) << ui.meldungen.join('\n').toStdString();
}

TEST(Kalenderbefehle, StandarddesignFragtUndKopiert) {
    QTemporaryDir dir;
    AppState s;
    Kalenderzustand(s, dir.path());
    s.Kalendertyp = 5;
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("daten")));
    const QString arbeit = s.Programmpfad + "kal5.zpk";
    DesignSchreiben(s, arbeit, 5, 555);
    const QByteArray vorher = *LeseDatei(arbeit);
    ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    EXPECT_FALSE(CommandStandard(s, ui));
    EXPECT_EQ(*LeseDatei(arbeit), vorher);
    ui.standardAntwort = true;
    EXPECT_FALSE(CommandStandard(s, ui)); // no standard file: nothing is lost
    EXPECT_EQ(*LeseDatei(arbeit), vorher);
    DesignSchreiben(s, s.Programmpfad + "daten/kal5.zpk", 5, 50);
    EXPECT_TRUE(CommandStandard(s, ui));
    EXPECT_EQ(s.Rahmenliste(2).X, 50);
    EXPECT_EQ(*LeseDatei(arbeit), *LeseDatei(s.Programmpfad + "daten/kal5.zpk"));
}

} // namespace
} // namespace zp::test
