#include "core/Schnappschuss.h"

#include "core/Befehlsrahmen.h"
#include "core/state/AppState.h"
#include "persist/Design.h"

#include <QDir>

namespace zp {

QString Schnappschuss(AppState& s, Oberflaeche& ui, const QString& ordner) {
    if (ordner.isEmpty() || !QDir(ordner).exists()) return {};
    const QString datei = QDir(ordner).filePath(QStringLiteral("test.zpb"));
    const QString gemerkt = s.AktuelleDatei;
    s.AktuelleDatei = datei;
    const bool geschrieben = Sicher(ui, [&] { return SaveDesign(s, ui); });
    s.AktuelleDatei = gemerkt;
    return geschrieben ? datei : QString();
}

} // namespace zp
