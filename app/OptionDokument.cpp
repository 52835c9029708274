// --oeffnen, --speichern, --speichern-unter: the File menu's Open, Save and Save As, with the file
// name given instead of chosen in the dialog. They run the same commands as the menu entries.
#include "app/Kommandozeile.h"

#include "core/Dokumentbefehle.h"
#include "core/state/AppState.h"

#include <QFileInfo>

namespace {

// Messages titled "Warnung!" or "Fehler" that the run has told so far: a command that adds one
// has failed, also where the menu entry itself goes on without a word.
int Warnungen(const zp::Batchlauf& lauf) {
    const auto* batch = dynamic_cast<const zp::BatchOberflaeche*>(&lauf.ui);
    return batch ? batch->warnungen : 0;
}

bool Oeffnen(zp::Batchlauf& lauf, const QString& datei) {
    if (const QString fehlt = zp::KeineDatei(datei); !fehlt.isEmpty()) {
        lauf.Fehler(fehlt);
        return false;
    }
    const int vorher = Warnungen(lauf);
    lauf.ui.vorgabeDatei = QFileInfo(datei).absoluteFilePath();
    const bool gut = zp::BefehlOeffnen(lauf.s, lauf.ui);
    lauf.ui.vorgabeDatei.clear();
    return gut && Warnungen(lauf) == vorher;
}

bool Speichern(zp::Batchlauf& lauf, const QString&) {
    return zp::BefehlSpeichern(lauf.s, lauf.ui);
}

bool SpeichernUnter(zp::Batchlauf& lauf, const QString& datei) {
    const int vorher = Warnungen(lauf);
    lauf.ui.vorgabeDatei = QFileInfo(datei).absoluteFilePath();
    const bool gut = zp::BefehlSpeichernUnter(lauf.s, lauf.ui, zp::Dateidialog::SpeichernUnter);
    lauf.ui.vorgabeDatei.clear();
    return gut && Warnungen(lauf) == vorher;
}

const bool oeffnen = zp::RegistriereOption(
    {QStringLiteral("--oeffnen"), QStringLiteral("DATEI"),
     QStringLiteral("eine Datei öffnen (wie Datei/Öffnen: Design, im Kalender auch .zpd und .kal)"),
     zp::OptionArt::Aktion, Oeffnen});
const bool speichern =
    zp::RegistriereOption({QStringLiteral("--speichern"),
                           {},
                           QStringLiteral("das Dokument unter seinem Namen speichern (wie Datei/Speichern)"),
                           zp::OptionArt::Aktion,
                           Speichern});
const bool speichernUnter = zp::RegistriereOption(
    {QStringLiteral("--speichern-unter"), QStringLiteral("DATEI"),
     QStringLiteral("das Dokument unter einem neuen Namen speichern (wie Datei/Speichern unter)"),
     zp::OptionArt::Aktion, SpeichernUnter});

} // namespace
