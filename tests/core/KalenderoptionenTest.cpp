#include "core/Kalenderoptionen.h"
#include "tests/core/state/ProtokollOberflaeche.h"
#include "common/TestHilfe.h"
#include "core/Beenden.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Zusatzeinstellungen.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace zp;

TEST(Zusatzeinstellungen, RoundTripUnknownKeysAndBadValues) {
    AppState s;
    s.WochennummernIso = true;
    s.Bundesland = QStringLiteral("Thüringen");
    AppState t;
    ASSERT_TRUE(LeseZusatzeinstellungen(t, SchreibeZusatzeinstellungen(s)));
    EXPECT_TRUE(t.WochennummernIso);
    EXPECT_EQ(t.Bundesland, u"Thüringen");

    // Keys of a newer build and lines without "=" are passed over.
    ASSERT_TRUE(
        LeseZusatzeinstellungen(t, test::CrLf({"sitzung = aus", "# Notiz", "WOCHENNUMMERN = Montage"})));
    EXPECT_FALSE(t.WochennummernIso);

    Lesefehler fehler;
    t.WochennummernIso = true;
    EXPECT_FALSE(
        LeseZusatzeinstellungen(t, test::CrLf({"bundesland = Bremen", "wochennummern = ja"}), &fehler));
    EXPECT_EQ(fehler.zeile, 2);
    EXPECT_TRUE(t.WochennummernIso); // all or nothing
    EXPECT_EQ(t.Bundesland, u"Thüringen");
}

TEST(Zusatzeinstellungen, KeptOverARestartBesideTheUntouchedZpIni) {
    QTemporaryDir tmp;
    test::ProtokollOberflaeche ui;
    QString fehler;
    ASSERT_TRUE(RichteProgrammordnerEin(tmp.path(), QStringLiteral("Kalender"), QStringLiteral(ZP_DATEN_DIR),
                                        &fehler));
    AppState s;
    Main(s, tmp.path(), ui);
    LadeStartzustand(s, ui);
    s.WochennummernIso = true;
    s.Bundesland = QStringLiteral("Bayern");
    ASSERT_TRUE(Beenden(s, ui));
    const auto zpIni = LeseDatei(tmp.filePath(QStringLiteral("zp.ini")));
    ASSERT_TRUE(zpIni);
    EXPECT_FALSE(zpIni->contains("wochennummern"));

    AppState neu;
    Main(neu, tmp.path(), ui);
    LadeStartzustand(neu, ui);
    EXPECT_TRUE(neu.WochennummernIso);
    EXPECT_EQ(neu.Bundesland, u"Bayern");
    EXPECT_TRUE(ui.meldungen.isEmpty()) << ui.meldungen.join('\n').toStdString();
}

TEST(GeburtstageUebernehmen, FindsTheCardEditionsRecordsAndRefusesBadFiles) {
    QTemporaryDir tmp;
    qputenv("XDG_DATA_HOME", tmp.filePath(QStringLiteral("leer")).toUtf8());
    QDir(tmp.path()).mkpath(QStringLiteral("Kalender"));
    QDir(tmp.path()).mkpath(QStringLiteral("Visitenkarte"));
    AppState karten;
    karten.Programmname = QStringLiteral("ZP Visitenkarte");
    karten.DatensatzAnzahl = 1;
    karten.Datensaetze.Redim(DatensatzFelder, 1);
    karten.Datensaetze(1, 1) = QStringLiteral("Eva");
    karten.Datensaetze(9, 1) = QStringLiteral("03.07.1990");
    const QString adressen = tmp.filePath(QStringLiteral("Visitenkarte/daten.dat"));
    ASSERT_TRUE(SchreibeDateiAtomar(adressen, SchreibeDatenbank(karten)));

    AppState s;
    s.Programmpfad = tmp.filePath(QStringLiteral("Kalender")) + u'/';
    s.Kalenderjahr = 2027;
    EXPECT_EQ(GeburtstagsdateiVorschlag(s), adressen);
    test::ProtokollOberflaeche ui;
    const auto bilanz = GeburtstageUebernehmen(s, ui);
    ASSERT_TRUE(bilanz);
    EXPECT_EQ(bilanz->uebernommen, 1);
    EXPECT_EQ(s.Termine(3, 7), u"Eva (37)");

    // Bad files: nothing of the calendar changes, and the user is told why.
    const QString fremd = tmp.filePath(QStringLiteral("fremd.dat"));
    const QString kaputt = tmp.filePath(QStringLiteral("kaputt.dat"));
    const QString ohne = tmp.filePath(QStringLiteral("ohne.dat"));
    ASSERT_TRUE(SchreibeDateiAtomar(fremd, "Name;Geburtstag\r\nEva;03.07.1990\r\n"));
    ASSERT_TRUE(SchreibeDateiAtomar(
        kaputt, test::CrLf({"ZP Datenbank", "ZP Visitenkarte", "8.02", "20", "5", "Eva"})));
    karten.Datensaetze(9, 1) = QStringLiteral("Berlin");
    ASSERT_TRUE(SchreibeDateiAtomar(ohne, SchreibeDatenbank(karten)));
    for (const QString& datei : {fremd, kaputt, ohne, tmp.filePath(QStringLiteral("fehlt.dat"))}) {
        ui.meldungen.clear();
        EXPECT_FALSE(GeburtstageUebernehmen(s, ui, datei)) << datei.toStdString();
        EXPECT_EQ(ui.meldungen.size(), 1) << datei.toStdString();
        EXPECT_EQ(s.Termine(3, 7), u"Eva (37)");
    }

    // Without the card edition's folder the file dialog asks; cancelling it changes nothing.
    QFile::remove(adressen);
    ui.meldungen.clear();
    ui.vorgabeDatei.clear();
    EXPECT_FALSE(GeburtstageUebernehmen(s, ui));
    EXPECT_TRUE(ui.meldungen.isEmpty());
}

TEST(KalenderEditieren, TogglesTheTemplateModeWithoutRedraw) {
    AppState s;
    EXPECT_TRUE(KalenderEditieren(s));
    EXPECT_EQ(s.KalenderBearbeiten, -1);
    EXPECT_FALSE(KalenderEditieren(s));
    EXPECT_EQ(s.KalenderBearbeiten, 0);
}
