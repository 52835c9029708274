#include "persist/Unlesbar.h"

#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace zp {

bool Defektsicherung::Frei(const QString& pfad, qint64 groesste, const Lesepruefung& lesbar) {
    const QFileInfo info(pfad);
    if (!info.exists() && !info.isSymLink()) return true;
    const auto bytes = LeseDatei(pfad, groesste);
    if (bytes && lesbar(*bytes)) return true;
    QString ziel = pfad + QLatin1String(DefektEndung);
    for (int n = 2; QFileInfo::exists(ziel) || QFileInfo(ziel).isSymLink(); ++n)
        ziel = pfad + QLatin1String(DefektEndung) + QString::number(n);
    // rename() moves a folder or a link as it stands, where QFile would copy or refuse.
    if (std::rename(QFile::encodeName(pfad).constData(), QFile::encodeName(ziel).constData()) == 0) {
        m_beiseite << ziel;
        return true;
    }
    m_geblieben << pfad;
    return false;
}

Defektsicherung::~Defektsicherung() {
    if (!m_beiseite.isEmpty())
        m_ui.Meldung(
            m_beiseite.size() == 1
                ? QStringLiteral("Eine Datei, die nicht gelesen werden konnte, wurde aufbewahrt.")
                : QStringLiteral("Dateien, die nicht gelesen werden konnten, wurden aufbewahrt."),
            QStringLiteral("Hinweis"),
            QStringLiteral("Neu geschrieben wurden sie mit den Werten dieser Sitzung. Die alten stehen "
                           "unter:\n") +
                m_beiseite.join(u'\n'));
    if (!m_geblieben.isEmpty())
        m_ui.Meldung(QStringLiteral("Dateien, die nicht gelesen werden konnten, wurden nicht überschrieben."),
                     QStringLiteral("Warnung!"), m_geblieben.join(u'\n'));
}

bool LesbarAlsEinstellungen(const QByteArray& bytes) {
    AppState probe;
    return LeseEinstellungen(probe, bytes) && FehlendeEinstellungen(bytes).isEmpty();
}

bool LesbarAlsDatenbank(const QByteArray& bytes) {
    try {
        Datenbank db;
        return LeseDatenbank(bytes, db) == DatenbankLesung::Gelesen;
    } catch (const FormatFehler&) {
        return false;
    }
}

bool LesbarAlsKartenformate(const QByteArray& bytes) {
    AppState probe;
    return LeseKartenformate(probe, bytes);
}

bool LesbarAlsKalenderIni(const QByteArray& bytes) {
    AppState probe;
    return LeseKalenderIni(probe, bytes);
}

bool LesbarAlsDesign(const AppState& s, const QByteArray& bytes) {
    return DesignLesbar(s, bytes);
}

} // namespace zp
