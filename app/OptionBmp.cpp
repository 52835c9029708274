// --bmp DATEI: the page as a bitmap file, as "Bild speichern" writes it without its dialog.
#include "app/Kommandozeile.h"

#include "core/Druckbefehle.h"

namespace {

bool SchreibeBmp(zp::Batchlauf& lauf, const QString& datei) {
    return zp::BefehlBildSpeichern(lauf.s, lauf.ui, datei);
}

const bool registriert = zp::RegistriereOption(
    {QStringLiteral("--bmp"), QStringLiteral("DATEI"),
     QStringLiteral("die Seite als BMP-Bild schreiben (wie „Bild speichern“, im Exportzoom)"),
     zp::OptionArt::Aktion, SchreibeBmp});

} // namespace
