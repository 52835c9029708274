#include "Schnappschuss.h"

#include "core/state/AppState.h"

#include <QDir>

namespace zp {

QString Schnappschuss(AppState& s, Oberflaeche& ui, const Dienst& speichern, const QString& ordner) {
    if (!speichern || ordner.isEmpty() || !QDir(ordner).exists()) return {};
    const QString datei = QDir(ordner).filePath(QStringLiteral("test.zpb"));
    const QString gemerkt = s.AktuelleDatei;
    s.AktuelleDatei = datei;
    const bool geschrieben = DienstAusfuehren(speichern, s, ui);
    s.AktuelleDatei = gemerkt;
    return geschrieben ? datei : QString();
}

} // namespace zp
