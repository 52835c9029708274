// The atomic writer under faults: a full disk on the first or a later write, a failing sync or
// close, a kill before the rename. The old file must stay whole and the reason must be told.
#include "core/runtime/Dateischreiber.h"
#include "core/runtime/TextDatei.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;

namespace {

// The fault of one case: which call fails, on which turn, with which error.
struct Stoerung {
    const char* aufruf; // "write", "fdatasync", "close", "rename"
    int beimAufruf;     // 1 = the first call of that kind
    int fehler;
};
Stoerung g_stoerung;
int g_aufrufe = 0;

bool Trifft(const char* aufruf) {
    if (std::string(aufruf) != g_stoerung.aufruf) return false;
    return ++g_aufrufe == g_stoerung.beimAufruf;
}
// Writes at most 1000 bytes a call, so a larger file takes several writes.
ssize_t StoerWrite(int fd, const void* p, size_t n) {
    if (Trifft("write")) {
        errno = g_stoerung.fehler;
        return -1;
    }
    return ::write(fd, p, std::min<size_t>(n, 1000));
}
int StoerSync(int fd) {
    if (Trifft("fdatasync")) {
        errno = g_stoerung.fehler;
        return -1;
    }
    return ::fdatasync(fd);
}
int StoerClose(int fd) {
    const int r = ::close(fd);
    if (Trifft("close")) {
        errno = g_stoerung.fehler;
        return -1;
    }
    return r;
}
int StoerRename(const char* a, const char* b) {
    if (Trifft("rename")) {
        errno = g_stoerung.fehler;
        return -1;
    }
    return ::rename(a, b);
}
const Systemaufrufe Gestoert{StoerWrite, StoerSync, StoerClose, StoerRename};

QByteArray Inhalt(const QString& pfad) {
    return LeseDatei(pfad).value_or(QByteArray("<fehlt>"));
}
void Lege(const QString& pfad, const QByteArray& bytes) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

} // namespace

TEST(Dateischreiber, EveryFaultKeepsTheOldFileWholeAndSaysWhy) {
    const QByteArray alt(4561, 'a');
    const QByteArray neu(5000, 'n'); // five writes of 1000 bytes
    const struct {
        Stoerung stoerung;
        const char* meldung;
    } faelle[] = {
        {{"write", 1, ENOSPC}, "Kein Speicherplatz auf dem Datenträger"},
        {{"write", 3, ENOSPC}, "Kein Speicherplatz auf dem Datenträger"},
        {{"write", 2, EDQUOT}, "Speicherplatz"},
        {{"fdatasync", 1, EIO}, "Ein- oder Ausgabefehler"},
        {{"close", 1, EIO}, "Ein- oder Ausgabefehler"},
        {{"rename", 1, EACCES}, "Keine Berechtigung"},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::string(fall.stoerung.aufruf) + " #" + std::to_string(fall.stoerung.beimAufruf));
        QTemporaryDir tmp;
        const QString pfad = tmp.filePath(QStringLiteral("entwurf.zpb"));
        Lege(pfad, alt);
        g_stoerung = fall.stoerung;
        g_aufrufe = 0;
        QString fehler;
        EXPECT_FALSE(SchreibeDateiAtomar(pfad, neu, &fehler, Gestoert));
        EXPECT_TRUE(fehler.contains(QString::fromUtf8(fall.meldung))) << fehler.toStdString();
        EXPECT_EQ(Inhalt(pfad), alt);
        // No half-written file is left beside it.
        EXPECT_EQ(QDir(tmp.path()).entryList(QDir::Files), QStringList{QStringLiteral("entwurf.zpb")});
    }
}

TEST(Dateischreiber, WritesThroughLinksAndKeepsPermissions) {
    QTemporaryDir tmp;
    const QString echt = tmp.filePath(QStringLiteral("daten.dat"));
    const QString link = tmp.filePath(QStringLiteral("verweis.dat"));
    Lege(echt, "alt");
    ASSERT_EQ(::chmod(QFile::encodeName(echt).constData(), 0640), 0);
    ASSERT_TRUE(QFile::link(echt, link));
    QString fehler;
    ASSERT_TRUE(SchreibeDateiAtomar(link, "neu", &fehler)) << fehler.toStdString();
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(Inhalt(echt), QByteArray("neu"));
    struct stat st {};
    ASSERT_EQ(::stat(QFile::encodeName(echt).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0640u);

    // A folder under the name, or no name at all, is told in words, never "(Unknown error)".
    EXPECT_FALSE(SchreibeDateiAtomar(tmp.path(), "x", &fehler));
    EXPECT_EQ(fehler, QStringLiteral("Unter diesem Namen steht ein Ordner"));
    EXPECT_FALSE(SchreibeDateiAtomar(tmp.filePath(QStringLiteral("fehlt/x.zpb")), "x", &fehler));
    EXPECT_EQ(fehler, QStringLiteral("Der Ordner existiert nicht"));
}

TEST(Dateischreiber, KillBeforeRenameLeavesOldFileAndALeftoverTheNextStartRemoves) {
    QTemporaryDir tmp;
    const QString pfad = tmp.filePath(QStringLiteral("daten.dat"));
    Lege(pfad, "alt");
    // Files of the user that merely look similar stay.
    Lege(tmp.filePath(QStringLiteral("urlaub.jpg.abc123")), "foto");
    Lege(tmp.filePath(QStringLiteral("notiz.abc123")), "notiz");
    Lege(tmp.filePath(QStringLiteral("daten.dat.defekt")), "aufbewahrt");
    const pid_t kind = fork();
    if (kind == 0) {
        static const Systemaufrufe toedlich{::write, ::fdatasync, ::close,
                                            [](const char*, const char*) -> int { _exit(9); }};
        SchreibeDateiAtomar(pfad, QByteArray(10000, 'n'), nullptr, toedlich);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(kind, &status, 0), kind);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 9);
    EXPECT_EQ(Inhalt(pfad), QByteArray("alt"));
    // What an earlier version's writer and the PDF output leave behind goes too.
    Lege(tmp.filePath(QStringLiteral("zp.ini")), "ini");
    Lege(tmp.filePath(QStringLiteral("zp.ini.Xy12Zq")), "halb");
    Lege(tmp.filePath(QStringLiteral("kalender.pdf.entsteht")), "halb");
    const QStringList entfernt = EntferneZwischendateien(tmp.path());
    EXPECT_EQ(entfernt.size(), 3) << entfernt.join(u' ').toStdString();
    QStringList bleibt = QDir(tmp.path()).entryList(QDir::Files);
    bleibt.sort();
    EXPECT_EQ(bleibt,
              QStringList({"daten.dat", "daten.dat.defekt", "notiz.abc123", "urlaub.jpg.abc123", "zp.ini"}));
}
