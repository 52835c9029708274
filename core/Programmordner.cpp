#include "core/Programmordner.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zp {

namespace {
// Inside the shipped data: "programm/" is copied into a new program folder as it stands,
// "editionen/<Edition>/zp.ini" is the settings file of each edition, and every other file goes
// into the folder's subfolder "daten/" (standard designs, card designs, patterns).
const QString ProgrammDateien = QStringLiteral("programm");
const QString EditionsDateien = QStringLiteral("editionen");
const QString StandardEdition = QStringLiteral("Kalender");
} // namespace

QStringList Editionen() {
    return {QStringLiteral("Kalender"), QStringLiteral("Visitenkarte"), QStringLiteral("Briefkopf"),
            QStringLiteral("Etikett"), QStringLiteral("CD-Hülle")};
}

QString NormaleEdition(const QString& name) {
    QString n = name.trimmed().toLower();
    n.replace(QStringLiteral("ue"), QStringLiteral("ü"));
    for (const QString& e : Editionen())
        if (e.toLower() == n || QString(e).remove(u'-').toLower() == n) return e;
    return {};
}

QString ProgrammnameDerEdition(const QString& edition) {
    const QString e = NormaleEdition(edition);
    return e.isEmpty() ? QString() : QStringLiteral("ZP ") + e;
}

QString MitgelieferteDaten() {
    if (QCoreApplication::instance()) {
        const QString nebenan = QCoreApplication::applicationDirPath() + QStringLiteral("/daten");
        if (QFileInfo(nebenan + u'/' + EditionsDateien).isDir()) return nebenan;
    }
    return QStringLiteral(ZP_INSTALLED_DATA);
}

QString WaehleProgrammordner(const QString& befehlszeile, const QString& edition) {
    if (!befehlszeile.isEmpty()) return QDir(befehlszeile).absolutePath();
    if (QFileInfo::exists(QStringLiteral("zp.ini"))) return QDir::currentPath();
    QString basis = qEnvironmentVariable("XDG_DATA_HOME");
    if (basis.isEmpty() || !QDir::isAbsolutePath(basis))
        basis = QDir::homePath() + QStringLiteral("/.local/share");
    const QString e = NormaleEdition(edition);
    return basis + QStringLiteral("/zp/") + (e.isEmpty() ? StandardEdition : e);
}

bool RichteProgrammordnerEin(const QString& ordner, const QString& edition, const QString& quelle,
                             QString* fehler) {
    auto scheitern = [&](const QString& text) {
        if (fehler) *fehler = text;
        return false;
    };
    QDir ziel(ordner);
    if (!ziel.exists() && !QDir().mkpath(ordner))
        return scheitern(QStringLiteral("Der Programmordner %1 kann nicht angelegt werden.").arg(ordner));
    if (ziel.exists(QStringLiteral("zp.ini"))) return true;

    const QString e = NormaleEdition(edition).isEmpty() ? StandardEdition : NormaleEdition(edition);
    // Folder names of the shipped data stay ASCII: "CD-Huelle".
    const QString ini = quelle + u'/' + EditionsDateien + u'/' +
                        QString(e).replace(QStringLiteral("ü"), QStringLiteral("ue")) +
                        QStringLiteral("/zp.ini");
    if (!QFileInfo::exists(ini))
        return scheitern(QStringLiteral("Die mitgelieferten Daten fehlen (%1).").arg(ini));

    // Shipped files first, the settings last: a folder with zp.ini counts as set up.
    const QDir programm(quelle + u'/' + ProgrammDateien);
    const QDir daten(quelle);
    QDirIterator it(quelle, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString datei = it.next();
        const QString relativ = daten.relativeFilePath(datei);
        QString zielDatei;
        if (relativ.startsWith(EditionsDateien + u'/'))
            continue;
        else if (relativ.startsWith(ProgrammDateien + u'/'))
            zielDatei = ziel.filePath(programm.relativeFilePath(datei));
        else
            zielDatei = ziel.filePath(QStringLiteral("daten/") + relativ);
        if (QFileInfo::exists(zielDatei)) continue; // the user's own files are kept
        QDir().mkpath(QFileInfo(zielDatei).absolutePath());
        if (!QFile::copy(datei, zielDatei))
            return scheitern(
                QStringLiteral("%1 kann nicht in den Programmordner kopiert werden.").arg(relativ));
        // Installed data is read-only; the user's copy must be writable.
        QFile(zielDatei).setPermissions(QFile::permissions(zielDatei) | QFileDevice::WriteOwner);
    }
    const QString zielIni = ziel.filePath(QStringLiteral("zp.ini"));
    if (!QFile::copy(ini, zielIni))
        return scheitern(QStringLiteral("zp.ini kann nicht in %1 angelegt werden.").arg(ordner));
    QFile(zielIni).setPermissions(QFile::permissions(zielIni) | QFileDevice::WriteOwner);
    return true;
}

} // namespace zp
