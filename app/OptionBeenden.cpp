// --beenden: the files that the program writes when it ends.
#include "app/Kommandozeile.h"

#include "core/Beenden.h"

namespace {
bool Beenden(zp::Batchlauf& lauf, const QString&) {
    return zp::Beenden(lauf.s, lauf.ui);
}
const bool registriert = zp::RegistriereOption(
    {QStringLiteral("--beenden"),
     {},
     QStringLiteral("die Dateien schreiben, die das Programm beim Beenden schreibt (Einstellungen, "
                    "Kataloge, Daten der Ausgabe)"),
     zp::OptionArt::Aktion,
     Beenden});
} // namespace
