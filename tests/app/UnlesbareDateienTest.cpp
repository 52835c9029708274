// A file of the program folder that can't be read at start survives the exit: it is moved aside
// as "<name>.defekt" with its bytes, the user is told where, and only then a new one is written.
#include "app/Kommandozeile.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {

Kommandozeile Zeile(const QString& ordner, const QString& edition) {
    QString fehler;
    auto z = LeseKommandozeile({"--programmpfad", ordner, "--edition", edition, "--beenden"}, &fehler);
    Kommandozeile zeile = z.value_or(Kommandozeile{});
    zeile.datenquelle = QStringLiteral(ZP_DATEN_DIR);
    return zeile;
}

QByteArray Inhalt(const QString& pfad) {
    return LeseDatei(pfad).value_or(QByteArray("<fehlt>"));
}

void Schreibe(const QString& pfad, const QByteArray& bytes) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// Meldungen of a run, kept for the checks.
struct Protokoll : BatchOberflaeche {
    void Meldung(const QString& text, const QString& titel, const QString& detail) override {
        BatchOberflaeche::Meldung(text, titel, detail);
        alles << titel + u'|' + text + u'|' + detail;
    }
    QStringList alles;
};

} // namespace

TEST(UnlesbareDateien, SurviveTheExitMovedAside) {
    const QByteArray einDatensatz = QByteArray("ZP Datenbank\r\nZP Visitenkarte\r\n8.02\r\n20\r\n3\r\n") +
                                    QByteArray("x\r\n").repeated(30) + "-1\r\n";
    const struct {
        const char* edition;
        const char* datei;
        QByteArray bytes; // empty: a folder stands under the name
    } faelle[] = {
        {"Visitenkarte", "daten.dat", einDatensatz}, // the count says 3, the file holds 1
        {"Kalender", "kalender.ini", "1\r\n0\r\n"},
        {"Etikett", "etikett.ini", "Eigenes Format 1\r\nbreit\r\n"},
        {"Kalender", "kal1.zpk", "ZP Datenfile\r\nZP Kalender\r\nkaputt\r\n"},
        {"Kalender", "zp.ini", QByteArray("\x01\x02 kein Schlüssel\r\n")},
        {"Kalender", "zp.ini", QByteArray()},
        {"Briefkopf", "zp.ini", ""},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::string(fall.edition) + " " + fall.datei + " " + std::to_string(fall.bytes.size()));
        QTemporaryDir tmp;
        // The folder is named as the per-user folders are, by its edition.
        const QString ordner = tmp.filePath(QString::fromLatin1(fall.edition));
        {
            AppState s;
            BatchOberflaeche ui;
            ASSERT_EQ(FuehreStapellaufAus(Zeile(ordner, QString::fromLatin1(fall.edition)), s, ui), 0);
        }
        const QString pfad = ordner + u'/' + QString::fromLatin1(fall.datei);
        ASSERT_TRUE(QFile::remove(pfad));
        if (fall.bytes.isNull())
            ASSERT_TRUE(QDir().mkdir(pfad));
        else
            Schreibe(pfad, fall.bytes);

        AppState s;
        Protokoll ui;
        EXPECT_EQ(FuehreStapellaufAus(Zeile(ordner, QString::fromLatin1(fall.edition)), s, ui), 1);
        // The edition survives a settings file that could not be read.
        EXPECT_EQ(s.Programmname, QStringLiteral("ZP ") + QString::fromLatin1(fall.edition));
        const QString aufbewahrt = pfad + QStringLiteral(".defekt");
        if (fall.bytes.isNull())
            EXPECT_TRUE(QFileInfo(aufbewahrt).isDir());
        else
            EXPECT_EQ(Inhalt(aufbewahrt), fall.bytes);
        EXPECT_TRUE(QFileInfo(pfad).isFile()); // and a new one is written
        EXPECT_EQ(ui.alles.filter(QStringLiteral(".defekt")).size(), 1) << ui.alles.join(u'\n').toStdString();

        // The next run reads the new file without a word and moves nothing more aside.
        AppState s2;
        Protokoll ui2;
        EXPECT_EQ(FuehreStapellaufAus(Zeile(ordner, QString::fromLatin1(fall.edition)), s2, ui2), 0);
        EXPECT_TRUE(ui2.alles.filter(QStringLiteral(".defekt")).isEmpty())
            << ui2.alles.join(u'\n').toStdString();
        EXPECT_FALSE(QFileInfo::exists(pfad + QStringLiteral(".defekt2")));
        EXPECT_TRUE(QFileInfo::exists(aufbewahrt)); // the user's bytes stay where they were told to be
    }
}

TEST(UnlesbareDateien, SettingsCutShortKeepWhatTheyHeld) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("Kalender"));
    {
        AppState s;
        BatchOberflaeche ui;
        ASSERT_EQ(FuehreStapellaufAus(Zeile(ordner, QStringLiteral("Kalender")), s, ui), 0);
    }
    const QString ini = ordner + QStringLiteral("/zp.ini");
    QByteArray ganz = Inhalt(ini);
    ganz.replace("Kalenderjahr =  2002", "Kalenderjahr =  2027");
    const QByteArray halb = ganz.left(ganz.indexOf("Grid ="));
    ASSERT_TRUE(halb.contains("Kalenderjahr =  2027"));
    Schreibe(ini, halb);

    AppState s;
    Protokoll ui;
    EXPECT_EQ(FuehreStapellaufAus(Zeile(ordner, QStringLiteral("Kalender")), s, ui), 1);
    EXPECT_EQ(s.Kalenderjahr, 2027);
    EXPECT_EQ(ui.alles.filter(QStringLiteral("unvollständig")).size(), 1)
        << ui.alles.join(u'\n').toStdString();
    EXPECT_EQ(Inhalt(ini + QStringLiteral(".defekt")), halb);
    // The new file has every key again, with the year that was read.
    const QByteArray neu = Inhalt(ini);
    EXPECT_TRUE(neu.contains("Kalenderjahr =  2027"));
    EXPECT_TRUE(neu.contains("Wochentag8 = "));
}

// The real program under strace, which makes the system calls fail: a save that can't reach the
// disk leaves every file as it was and ends the run with status 1.
TEST(VollerDatentraeger, ExitKeepsEveryFileAndFails) {
    if (QStandardPaths::findExecutable(QStringLiteral("strace")).isEmpty()) GTEST_SKIP() << "strace fehlt";
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("Visitenkarte"));
    {
        AppState s;
        BatchOberflaeche ui;
        ASSERT_EQ(FuehreStapellaufAus(Zeile(ordner, QStringLiteral("Visitenkarte")), s, ui), 0);
    }
    const QStringList dateien = QDir(ordner).entryList(QDir::Files);
    QMap<QString, QByteArray> vorher;
    for (const QString& name : dateien)
        vorher[name] = Inhalt(ordner + u'/' + name);

    const struct {
        const char* injektion;
        const char* meldung; // empty: the program's own messages fail too
    } faelle[] = {
        {"fdatasync:error=EIO", "Ein- oder Ausgabefehler"},
        {"write:error=ENOSPC", ""},
        {"rename:error=ENOSPC", "Kein Speicherplatz auf dem Datenträger"},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.injektion);
        QProcess zp;
        zp.setProcessChannelMode(QProcess::SeparateChannels);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        // The leak checker of a sanitizer build can't run under a tracer and would end the run.
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        zp.setProcessEnvironment(env);
        zp.start(QStringLiteral("strace"),
                 {"-f", "-qq", "-o", "/dev/null", "-e",
                  QStringLiteral("inject=") + QString::fromLatin1(fall.injektion),
                  QStringLiteral(ZP_PROGRAMM), "--programmpfad", ordner, "--beenden"});
        ASSERT_TRUE(zp.waitForFinished(120000));
        const QString fehler = QString::fromUtf8(zp.readAllStandardError());
        EXPECT_EQ(zp.exitCode(), 1) << fehler.toStdString();
        if (*fall.meldung) {
            EXPECT_TRUE(fehler.contains(QString::fromUtf8(fall.meldung))) << fehler.toStdString();
        }
        EXPECT_EQ(QDir(ordner).entryList(QDir::Files), dateien); // nothing half-written left beside them
        for (auto it = vorher.cbegin(); it != vorher.cend(); ++it)
            EXPECT_EQ(Inhalt(ordner + u'/' + it.key()), it.value()) << it.key().toStdString();
    }
}
