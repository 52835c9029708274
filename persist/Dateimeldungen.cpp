#include "persist/Dateimeldungen.h"

#include "core/state/Oberflaeche.h"

namespace zp {

void MeldeFalschesFormat(Oberflaeche& ui, const QString& datei, const Lesefehler& fehler) {
    ui.Meldung(QStringLiteral("Falsches Datenformat"), QStringLiteral("Warnung!"),
               fehler.zeile > 0
                   ? QStringLiteral("%1, Zeile %2: %3").arg(datei).arg(fehler.zeile).arg(fehler.grund)
                   : QStringLiteral("%1: %2").arg(datei, fehler.grund));
}

void MeldeSchreibfehler(Oberflaeche& ui, const QString& datei, const QString& grund) {
    ui.Meldung(datei.isEmpty()
                   ? QStringLiteral("Die Datei konnte nicht geschrieben werden: es ist kein Dateiname "
                                    "angegeben.")
                   : QStringLiteral("Die Datei %1 konnte nicht geschrieben werden.").arg(datei),
               QStringLiteral("Fehler"), grund);
}

} // namespace zp
