// The last session: what one run leaves at its end comes back at the next start.
#include "core/Sitzung.h"
#include "common/TestHilfe.h"
#include "core/Beenden.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Zusatzeinstellungen.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QFile>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

// One run of the program on `ordner`, from Main to the start document.
struct Lauf {
    Lauf(const QTemporaryDir& ordner, const QString& edition) {
        QString fehler;
        EXPECT_TRUE(RichteProgrammordnerEin(ordner.path(), edition, QStringLiteral(ZP_DATEN_DIR), &fehler));
        Main(s, ordner.path(), ui);
        LadeStartzustand(s, ui);
    }
    AppState s;
    ProtokollOberflaeche ui;
};

void TageEintragen(AppState& s) {
    s.Termine(3, 5) = QStringLiteral("Zahnarzt\r\n10 Uhr");
    s.TerminBack(3, 5) = 0x00FF00;
    s.Feiertage(1, 1) = QStringLiteral("Neujahr");
    s.FeiertagSchrift(1, 1) = 0x0000FF;
    s.Monatsbilder(2) = QStringLiteral("/home/ich/schnee.jpg");
    s.Panel.TextTitel = QStringLiteral("Familie Berg 2027");
    s.Panel.TextUnterschrift = QStringLiteral("Fotos: Oma");
}

TEST(Sitzung, KalenderBringtDieTageDerLetztenSitzungZurueck) {
    QTemporaryDir ordner;
    {
        Lauf montag(ordner, QStringLiteral("Kalender"));
        EXPECT_TRUE(montag.s.Termine(3, 5).isEmpty()); // a fresh folder starts empty
        EXPECT_TRUE(montag.ui.status.isEmpty());
        TageEintragen(montag.s);
        montag.s.Datendatei = ordner.filePath(QStringLiteral("familie.zpd"));
        ASSERT_TRUE(Beenden(montag.s, montag.ui));
    }
    {
        // Tuesday only looks and ends: the data must not be emptied by that exit.
        Lauf dienstag(ordner, QStringLiteral("Kalender"));
        ASSERT_TRUE(Beenden(dienstag.s, dienstag.ui));
    }
    Lauf mittwoch(ordner, QStringLiteral("Kalender"));
    const AppState& s = mittwoch.s;
    EXPECT_EQ(s.Termine(3, 5), u"Zahnarzt\r\n10 Uhr");
    EXPECT_EQ(s.TerminBack(3, 5), 0x00FF00);
    EXPECT_EQ(s.Feiertage(1, 1), u"Neujahr");
    EXPECT_EQ(s.FeiertagSchrift(1, 1), 0x0000FF);
    EXPECT_EQ(s.Monatsbilder(2), u"/home/ich/schnee.jpg");
    // Title and footer stand in the design's texts as well.
    EXPECT_EQ(s.Schriftliste(1).Textstring, u"Familie Berg 2027");
    EXPECT_EQ(s.Schriftliste(7).Textstring, u"Fotos: Oma");
    // Save goes to the user's own data file, which the exit never wrote.
    EXPECT_EQ(s.Datendatei, ordner.filePath(QStringLiteral("familie.zpd")));
    EXPECT_EQ(mittwoch.ui.datei, s.Datendatei);
    EXPECT_FALSE(QFile::exists(s.Datendatei));
    ASSERT_EQ(mittwoch.ui.status.size(), 1);
    EXPECT_TRUE(mittwoch.ui.status[0].contains(u"familie.zpd"));
    EXPECT_TRUE(mittwoch.ui.meldungen.isEmpty()) << mittwoch.ui.ganz.join(u'\n').toStdString();
}

TEST(Sitzung, AusgeschaltetBeginntDerStartWieBisherUndZpIniBleibtWieSie) {
    QTemporaryDir ordner;
    QByteArray ini;
    {
        Lauf erster(ordner, QStringLiteral("Kalender"));
        EXPECT_TRUE(SitzungWiederherstellenAn(erster.s));
        TageEintragen(erster.s);
        ASSERT_TRUE(SitzungWiederherstellenSetzen(erster.s, erster.ui, false));
        ASSERT_TRUE(Beenden(erster.s, erster.ui));
        ini = *LeseDatei(ordner.filePath(QStringLiteral("zp.ini")));
    }
    Lauf zweiter(ordner, QStringLiteral("Kalender"));
    EXPECT_FALSE(SitzungWiederherstellenAn(zweiter.s));
    EXPECT_TRUE(zweiter.s.Termine(3, 5).isEmpty());
    EXPECT_EQ(zweiter.s.Datendatei, ordner.filePath(QStringLiteral("neu.zpd")));
    // auto.zpd is still left behind, and the settings file knows nothing of the switch.
    EXPECT_TRUE(LeseDatei(ordner.filePath(QStringLiteral("auto.zpd")))->contains("Zahnarzt"));
    EXPECT_FALSE(ini.contains("Wiederherstellen"));
    EXPECT_FALSE(ini.contains("itzung"));
    // Switched on again, the next start brings the data back.
    ASSERT_TRUE(SitzungWiederherstellenSetzen(zweiter.s, zweiter.ui, true));
    Lauf dritter(ordner, QStringLiteral("Kalender"));
    EXPECT_EQ(dritter.s.Termine(3, 5), u"Zahnarzt\r\n10 Uhr");
}

TEST(Sitzung, EtikettenBehaltenIhreAdressenUndIhrenDateinamen) {
    QTemporaryDir ordner;
    const QString eigene = ordner.filePath(QStringLiteral("weihnachten.zpe"));
    {
        Lauf erster(ordner, QStringLiteral("Etikett"));
        AppState& s = erster.s;
        s.Datensaetze.Redim(30, 40);
        for (int r = 1; r <= 40; ++r)
            s.Datensaetze(1, r) = QStringLiteral("Adresse %1").arg(r);
        s.DatensatzAnzahl = 40;
        s.Schriftliste(1).Textstring = QStringLiteral("Absender: Berg");
        s.AktuelleDatei = eigene;
        ASSERT_TRUE(Beenden(s, erster.ui));
    }
    EXPECT_FALSE(QFile::exists(eigene)); // the exit writes the session file, not the user's
    Lauf zweiter(ordner, QStringLiteral("Etikett"));
    EXPECT_EQ(zweiter.s.DatensatzAnzahl, 40);
    EXPECT_EQ(zweiter.s.Datensaetze(1, 40), u"Adresse 40");
    EXPECT_EQ(zweiter.s.Schriftliste(1).Textstring, u"Absender: Berg");
    EXPECT_EQ(zweiter.s.AktuelleDatei, eigene);
    EXPECT_EQ(zweiter.ui.datei, eigene);
    ASSERT_EQ(zweiter.ui.status.size(), 1);
    EXPECT_TRUE(zweiter.ui.status[0].contains(u"weihnachten.zpe"));
}

TEST(Sitzung, EineUnlesbareSitzungWirdGemeldetUndAufbewahrt) {
    for (const char* edition : {"Kalender", "Briefkopf"}) {
        QTemporaryDir ordner;
        { Lauf erster(ordner, QString::fromUtf8(edition)); }
        const QString datei = ordner.filePath(
            edition == std::string("Kalender") ? QStringLiteral("auto.zpd") : QStringLiteral("sitzung.zps"));
        {
            QFile f(datei);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write("kaputt\r\n");
        }
        Lauf zweiter(ordner, QString::fromUtf8(edition));
        EXPECT_EQ(zweiter.ui.meldungen, QStringList{"Falsches Datenformat"}) << edition;
        EXPECT_EQ(zweiter.ui.titel_, u"Warnung!");
        EXPECT_EQ(*LeseDatei(datei + QStringLiteral(".defekt")), "kaputt\r\n") << edition;
        // The start goes on as on a fresh folder.
        EXPECT_TRUE(zweiter.s.Termine(3, 5).isEmpty());
        EXPECT_FALSE(zweiter.s.AktuelleDatei.endsWith(u"sitzung.zps"));
        ASSERT_TRUE(Beenden(zweiter.s, zweiter.ui));
        EXPECT_EQ(*LeseDatei(datei + QStringLiteral(".defekt")), "kaputt\r\n");
    }
}

TEST(Sitzung, SchalterUndKalenderzusaetzeTeilenSichZusatzIniUndDieAlteSitzungsIniGiltWeiter) {
    QTemporaryDir ordner;
    { Lauf erster(ordner, QStringLiteral("Kalender")); }
    // An older build's session file, and extras with a key of a newer build and a doubled key.
    ASSERT_TRUE(SchreibeDateiAtomar(ordner.filePath(QStringLiteral("sitzung.ini")),
                                    "Wiederherstellen = 0\r\nDatei = /home/ich/alt.zpd\r\n"));
    ASSERT_TRUE(
        SchreibeDateiAtomar(ordner.filePath(QStringLiteral("zusatz.ini")),
                            test::CrLf({"bundesland = Bremen", "zukunft = 7", "bundesland = Berlin"})));
    Lauf zweiter(ordner, QStringLiteral("Kalender"));
    EXPECT_FALSE(SitzungWiederherstellenAn(zweiter.s)); // the old file still speaks
    EXPECT_EQ(zweiter.s.Bundesland, u"Berlin");         // the last of a doubled key
    zweiter.s.WochennummernIso = true;
    const QString familie = ordner.filePath(QStringLiteral("familie.zpd"));
    zweiter.s.Datendatei = familie;
    ASSERT_TRUE(Beenden(zweiter.s, zweiter.ui));

    const QByteArray zusatz = *LeseDatei(ordner.filePath(QStringLiteral("zusatz.ini")));
    EXPECT_EQ(Zusatzwert(zusatz, QStringLiteral("wiederherstellen")), QStringLiteral("0"));
    EXPECT_EQ(Zusatzwert(zusatz, QStringLiteral("sitzungsdatei")), familie);
    EXPECT_EQ(Zusatzwert(zusatz, QStringLiteral("wochennummern")), QStringLiteral("iso"));
    EXPECT_EQ(Zusatzwert(zusatz, QStringLiteral("zukunft")), QStringLiteral("7"));
    EXPECT_EQ(zusatz.count("bundesland"), 1);
    EXPECT_FALSE(LeseDatei(ordner.filePath(QStringLiteral("zp.ini")))->contains("zusatz"));

    // Switched on: zusatz.ini now holds the switch and outweighs the old file; the extras stay.
    ASSERT_TRUE(SitzungWiederherstellenSetzen(zweiter.s, zweiter.ui, true));
    Lauf dritter(ordner, QStringLiteral("Kalender"));
    EXPECT_TRUE(SitzungWiederherstellenAn(dritter.s));
    EXPECT_TRUE(dritter.s.WochennummernIso);
    EXPECT_EQ(dritter.s.Bundesland, u"Berlin");
    EXPECT_EQ(dritter.s.Datendatei, familie);
}

} // namespace
} // namespace zp::test
