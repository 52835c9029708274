// What a run without a window tells: every message reaches standard error, a folder given as a
// file is called a folder, and the exit status says whether all went well.
#include "common/TestHilfe.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Lauf {
    int status = -1;
    QString meldungen;
};

Lauf Starte(const QStringList& argumente) {
    QProcess zp;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    zp.setProcessEnvironment(env);
    zp.start(QStringLiteral(ZP_PROGRAMM), argumente);
    if (!zp.waitForFinished(120000)) return {};
    return {zp.exitCode(), QString::fromUtf8(zp.readAllStandardError())};
}

} // namespace

TEST(Stapelmeldungen, EveryFailureIsToldAndEndsWithStatusOne) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("Etikett"));
    ASSERT_EQ(Starte({"--programmpfad", ordner, "--edition", "Etikett", "--beenden"}).status, 0);
    const QString leer = tmp.filePath(QStringLiteral("leer.txt"));
    {
        QFile f(leer);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QDir(tmp.path()).mkdir(QStringLiteral("ordner.zpe")));
    const struct {
        QStringList argumente;
        const char* meldung;
    } faelle[] = {
        {{"--importieren", leer}, "enthält keine Adressen"},
        {{"--importieren", tmp.path()}, "steht ein Ordner"},
        {{"--oeffnen", tmp.filePath(QStringLiteral("ordner.zpe"))}, "steht ein Ordner"},
        {{"--oeffnen", tmp.filePath(QStringLiteral("fehlt.zpe"))}, "wurde nicht gefunden"},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.argumente.join(u' ').toStdString());
        const Lauf lauf = Starte(QStringList{"--programmpfad", ordner} + fall.argumente);
        EXPECT_EQ(lauf.status, 1);
        EXPECT_TRUE(lauf.meldungen.contains(QString::fromUtf8(fall.meldung))) << lauf.meldungen.toStdString();
    }
}
