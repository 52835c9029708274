#include "Dateischreiber.h"

#include "TextDatei.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp {

namespace {

ssize_t echtesWrite(int fd, const void* p, size_t n) {
    return ::write(fd, p, n);
}
int echtesFdatasync(int fd) {
    return ::fdatasync(fd);
}
int echtesClose(int fd) {
    return ::close(fd);
}
int echtesRename(const char* a, const char* b) {
    return ::rename(a, b);
}

// The file a path names in the end: a link is followed, so that saving through it keeps it.
QString Zielpfad(const QString& path) {
    const QFileInfo info(path);
    if (info.isSymLink()) {
        const QString ziel = info.canonicalFilePath();
        if (!ziel.isEmpty()) return ziel;
        return info.symLinkTarget();
    }
    return path;
}

// Opens a new private file beside `ziel`, never one that exists or a link planted there.
int OeffneZwischendatei(const QString& ziel, QByteArray& name) {
    for (int versuch = 0; versuch < 100; ++versuch) {
        QString zufall;
        for (int i = 0; i < 6; ++i)
            zufall += QChar(u"abcdefghijklmnopqrstuvwxyz0123456789"[QRandomGenerator::global()->bounded(36)]);
        name = QFile::encodeName(ziel + QLatin1String(ZwischendateiKennung) + zufall);
        const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    errno = EEXIST;
    return -1;
}

bool SchreibeAlles(const Systemaufrufe& sys, int fd, const QByteArray& bytes) {
    const char* p = bytes.constData();
    qsizetype rest = bytes.size();
    while (rest > 0) {
        const ssize_t n = sys.write(fd, p, static_cast<size_t>(rest));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            if (n == 0) errno = ENOSPC; // nothing written and no error: the disk took no more
            return false;
        }
        p += n;
        rest -= n;
    }
    return true;
}

// The folder's entry for the renamed file reaches the disk too; a file system that can't sync
// a folder is no fault.
void SynchronisiereOrdner(const QString& ziel) {
    const QByteArray ordner = QFile::encodeName(QFileInfo(ziel).absolutePath());
    const int fd = ::open(ordner.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

const Systemaufrufe& EchteSystemaufrufe() {
    static const Systemaufrufe echt{echtesWrite, echtesFdatasync, echtesClose, echtesRename};
    return echt;
}

QString Systemfehlertext(int nummer) {
    switch (nummer) {
    case ENOSPC:
        return QStringLiteral("Kein Speicherplatz auf dem Datenträger");
    case EDQUOT:
        return QStringLiteral("Der zugeteilte Speicherplatz auf dem Datenträger ist aufgebraucht");
    case EIO:
        return QStringLiteral("Ein- oder Ausgabefehler des Datenträgers");
    case EACCES:
    case EPERM:
        return QStringLiteral("Keine Berechtigung zum Schreiben");
    case EROFS:
        return QStringLiteral("Der Datenträger ist schreibgeschützt");
    case ENOENT:
        return QStringLiteral("Der Ordner existiert nicht");
    case ENOTDIR:
        return QStringLiteral("Ein Teil des Pfades ist kein Ordner");
    case EISDIR:
        return QStringLiteral("Unter diesem Namen steht ein Ordner");
    case ENAMETOOLONG:
        return QStringLiteral("Der Dateiname ist zu lang");
    case ELOOP:
        return QStringLiteral("Der Pfad enthält zu viele Verweise");
    case EFBIG:
        return QStringLiteral("Die Datei ist zu groß für den Datenträger");
    default:
        return QStringLiteral("Systemfehler %1 (%2)")
            .arg(nummer)
            .arg(QString::fromLocal8Bit(std::strerror(nummer)));
    }
}

bool SchreibeDateiAtomar(const QString& path, const QByteArray& bytes, QString* fehler,
                         const Systemaufrufe& sys) {
    const auto scheitern = [&](int nummer) {
        if (fehler) *fehler = Systemfehlertext(nummer);
        return false;
    };
    if (path.isEmpty()) {
        if (fehler) *fehler = QStringLiteral("Es ist kein Dateiname angegeben");
        return false;
    }
    const QString ziel = Zielpfad(path);
    if (QFileInfo(ziel).isDir()) return scheitern(EISDIR);

    QByteArray zwischen;
    const int fd = OeffneZwischendatei(ziel, zwischen);
    if (fd < 0) return scheitern(errno);
    struct stat alt {};
    const QByteArray zielName = QFile::encodeName(ziel);
    if (::stat(zielName.constData(), &alt) == 0) ::fchmod(fd, alt.st_mode & 07777);

    int nummer = 0;
    if (!SchreibeAlles(sys, fd, bytes) || sys.fdatasync(fd) != 0) nummer = errno;
    if (sys.close(fd) != 0 && nummer == 0) nummer = errno;
    if (nummer == 0 && sys.rename(zwischen.constData(), zielName.constData()) != 0) nummer = errno;
    if (nummer != 0) {
        ::unlink(zwischen.constData());
        return scheitern(nummer);
    }
    SynchronisiereOrdner(ziel);
    return true;
}

QString LegeZwischendateiAn(const QString& ziel, QString* fehler) {
    QByteArray name;
    const int fd = OeffneZwischendatei(Zielpfad(ziel), name);
    if (fd < 0) {
        if (fehler) *fehler = Systemfehlertext(errno);
        return {};
    }
    ::close(fd);
    return QFile::decodeName(name);
}

bool SchliesseZwischendateiAb(const QString& zwischen, const QString& ziel, QString* fehler) {
    const QByteArray name = QFile::encodeName(zwischen);
    const QString endziel = Zielpfad(ziel);
    int nummer = 0;
    const int fd = ::open(name.constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0 || ::fdatasync(fd) != 0) nummer = errno;
    if (fd >= 0 && ::close(fd) != 0 && nummer == 0) nummer = errno;
    if (nummer == 0 && ::rename(name.constData(), QFile::encodeName(endziel).constData()) != 0)
        nummer = errno;
    if (nummer != 0) {
        ::unlink(name.constData());
        if (fehler) *fehler = Systemfehlertext(nummer);
        return false;
    }
    SynchronisiereOrdner(endziel);
    return true;
}

bool SchreibeDateiAtomar(const QString& path, const QByteArray& bytes, QString* fehler) {
    return SchreibeDateiAtomar(path, bytes, fehler, EchteSystemaufrufe());
}

QStringList EntferneZwischendateien(const QString& ordner) {
    static const QRegularExpression eigene(QStringLiteral("^(.+)\\.zp-neu-[a-z0-9]{6}$"));
    // Random names of six letters and digits; one of lower-case letters only ("defekt") is a word
    // and never taken for such a name.
    static const QRegularExpression fremde(QStringLiteral("^(.+)\\.(?![a-z]{6}$)[A-Za-z0-9]{6}$"));
    QStringList entfernt;
    QDir dir(ordner);
    const QStringList namen = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : namen) {
        bool weg = eigene.match(name).hasMatch() || name.endsWith(QLatin1String(".pdf.entsteht"));
        if (!weg) {
            // A save of an earlier version was cut off: "daten.dat.Ab12Cd" beside "daten.dat".
            const auto m = fremde.match(name);
            static const QStringList eigeneEndungen = {
                QStringLiteral("dat"), QStringLiteral("ini"), QStringLiteral("zpd"), QStringLiteral("zpb"),
                QStringLiteral("zpv"), QStringLiteral("zpe"), QStringLiteral("zpk"), QStringLiteral("lay")};
            weg = m.hasMatch() && namen.contains(m.captured(1)) &&
                  eigeneEndungen.contains(QFileInfo(m.captured(1)).suffix().toLower());
        }
        if (weg && dir.remove(name)) entfernt << name;
    }
    return entfernt;
}

} // namespace zp
