#include "app/Kommandozeile.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace zp;

namespace {
Kommandozeile Lies(const QStringList& args) {
    QString fehler;
    auto z = LeseKommandozeile(args, &fehler);
    EXPECT_TRUE(z.has_value()) << fehler.toStdString();
    Kommandozeile zeile = z.value_or(Kommandozeile{});
    zeile.datenquelle = QStringLiteral(ZP_DATEN_DIR);
    return zeile;
}
QString Fehler(const QStringList& args) {
    QString fehler;
    EXPECT_FALSE(LeseKommandozeile(args, &fehler).has_value());
    return fehler;
}
QByteArray Inhalt(const QString& pfad) {
    return LeseDatei(pfad).value_or(QByteArray("<fehlt>"));
}
} // namespace

TEST(Kommandozeile, KeepsOrderAndValues) {
    const auto z = Lies({"--edition", "etikett", "--programmpfad=/tmp/x", "--beenden"});
    ASSERT_EQ(z.aufrufe.size(), 3u);
    EXPECT_EQ(z.aufrufe[0].option->name, u"--edition");
    EXPECT_EQ(z.aufrufe[0].argument, u"etikett");
    EXPECT_EQ(z.aufrufe[1].argument, u"/tmp/x");
    EXPECT_EQ(z.programmpfad, u"/tmp/x");
    EXPECT_EQ(z.edition, u"etikett");
    EXPECT_TRUE(z.HatAktionen());
    // Start options alone open the window.
    EXPECT_FALSE(Lies({"--programmpfad", "/tmp/x"}).HatAktionen());
    EXPECT_TRUE(Lies({"-h"}).hilfe);
}

TEST(Kommandozeile, RefusesWhatItCannotRun) {
    EXPECT_TRUE(Fehler({"--gibtsnicht"}).contains(u"--gibtsnicht"));
    EXPECT_TRUE(Fehler({"--programmpfad"}).contains(u"braucht einen Wert"));
    EXPECT_TRUE(Fehler({"--beenden=ja"}).contains(u"nimmt keinen Wert"));
    EXPECT_TRUE(Fehler({"--edition", "Poster"}).contains(u"Poster"));
}

TEST(Kommandozeile, HelpListsEveryOption) {
    const QString hilfe = Hilfetext();
    for (const Option* o : Optionen())
        EXPECT_TRUE(hilfe.contains(o->name)) << o->name.toStdString();
}

TEST(Stapellauf, SeedsNewFolderAndWritesSettingsOfTheEdition) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("karten"));
    AppState s;
    BatchOberflaeche ui;
    const auto z = Lies({"--programmpfad", ordner, "--edition", "Visitenkarte", "--beenden"});
    EXPECT_EQ(FuehreStapellaufAus(z, s, ui), 0);
    EXPECT_EQ(s.IstVisitenkarte, -1);
    EXPECT_EQ(s.IstKalender, 0);
    EXPECT_EQ(s.LadeSperre, 0); // start-up ends with the lock open, as after the first paint
    // The shipped settings come back unchanged from a start and an end.
    EXPECT_EQ(Inhalt(ordner + QStringLiteral("/zp.ini")),
              Inhalt(test::MitgelieferteDaten(QStringLiteral("editionen/Visitenkarte/zp.ini"))));
}

TEST(Stapellauf, EtikettEndKeepsTheWholeCatalogue) {
    QTemporaryDir tmp;
    AppState s;
    BatchOberflaeche ui;
    const auto z = Lies({"--programmpfad", tmp.path(), "--edition", "Etikett", "--beenden"});
    EXPECT_EQ(FuehreStapellaufAus(z, s, ui), 0);
    EXPECT_EQ(s.IstEtikett, -1);
    // The seeded catalogue, the user's own rows 1 to 5 first, comes back byte for byte.
    EXPECT_EQ(Inhalt(tmp.filePath(QStringLiteral("etikett.ini"))),
              Inhalt(test::MitgelieferteDaten(QStringLiteral("programm/etikett.ini"))));
    EXPECT_GT(s.KartenformatAnzahl, 5);
    EXPECT_EQ(s.KartenformatNamen(1), u"Eigenes Format 1");
}

TEST(Stapellauf, ExistingFolderKeepsItsOwnEdition) {
    QTemporaryDir tmp;
    QFile f(tmp.filePath(QStringLiteral("zp.ini")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("Programmname = ZP Briefkopf\r\nSeitenbreite =  1480\r\n");
    f.close();
    AppState s;
    BatchOberflaeche ui;
    // The folder lacks its start document: told, the run goes on and ends with status 1.
    const auto zeile = Lies({"--programmpfad", tmp.path(), "--edition", "Etikett", "--beenden"});
    EXPECT_EQ(FuehreStapellaufAus(zeile, s, ui), 1);
    EXPECT_EQ(ui.warnungen, 2); // the settings lack most keys, and the start document is missing
    EXPECT_EQ(s.IstBriefkopf, -1);
    EXPECT_EQ(s.AktuelleSeite.Breite, 1480);
    EXPECT_FALSE(QFile::exists(tmp.filePath(QStringLiteral("etikett.ini"))));
}
