// --bmp DATEI: the page as a bitmap file, as "Bild speichern" writes it without its dialog.
#include "app/Kommandozeile.h"

#include "core/state/AppState.h"
#include "output/Bitmapexport.h"

namespace {

bool SchreibeBmp(zp::Batchlauf& lauf, const QString& datei) {
    QString fehler;
    if (!zp::BildSpeichern(lauf.s, datei, &fehler)) {
        lauf.Fehler(fehler);
        return false;
    }
    return true;
}

const bool registriert = zp::RegistriereOption(
    {QStringLiteral("--bmp"), QStringLiteral("DATEI"),
     QStringLiteral("die Seite als BMP-Bild schreiben (wie „Bild speichern“, im Exportzoom)"),
     zp::OptionArt::Aktion, SchreibeBmp});

} // namespace
