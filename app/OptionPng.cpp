// --png DATEI: the page picture as the screen shows it, written as a PNG file.
// --zoom N: the zoom of the page picture (100 without a window, as the zoom menus set it).
#include "app/Kommandozeile.h"

#include "compose/Seitenbild.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"

#include <QImageWriter>
#include <QSaveFile>

namespace {

std::optional<int> LeseZoom(const QString& text) {
    bool ok = false;
    const int zoom = text.trimmed().toInt(&ok);
    if (!ok || zoom < 10 || zoom > 1000) return std::nullopt;
    return zoom;
}

bool PruefeZoom(zp::Batchlauf& lauf, const QString& wert) {
    if (LeseZoom(wert)) return true;
    lauf.Fehler(QStringLiteral("Der Zoom „%1“ ist keine ganze Zahl von 10 bis 1000.").arg(wert));
    return false;
}

// The marker of the current frame, as the window places it after a change of zoom.
void SetzeMarkierung(zp::AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (!s.Rahmenliste.Gueltig(n) || n < 1) return;
    const zp::ClassRahmen& r = s.Rahmenliste(n);
    const zp::Massstab m = zp::Massstab::Ansicht(s);
    s.Rahmen = {m.Twips(r.X), m.Twips(r.Y), m.Twips(r.Breite), m.Twips(r.Höhe)};
}

bool SchreibePng(zp::Batchlauf& lauf, const QString& datei) {
    zp::AppState& s = lauf.s;
    s.Zoomfaktor = LeseZoom(lauf.Wert(QStringLiteral("--zoom"), QStringLiteral("100"))).value_or(100);
    s.Zeichenfaktor = s.Zoomfaktor / 100;
    SetzeMarkierung(s);
    const QImage bild = zp::ZeichneSeitenbild(s);

    QSaveFile ziel(datei);
    QImageWriter schreiber(&ziel, "png");
    if (!ziel.open(QIODevice::WriteOnly) || !schreiber.write(bild) || !ziel.commit()) {
        lauf.Fehler(QStringLiteral("Das Seitenbild konnte nicht nach „%1“ geschrieben werden.").arg(datei));
        return false;
    }
    return true;
}

const bool png =
    zp::RegistriereOption({QStringLiteral("--png"), QStringLiteral("DATEI"),
                           QStringLiteral("das Seitenbild, wie der Bildschirm es zeigt, als PNG schreiben"),
                           zp::OptionArt::Aktion, SchreibePng});
const bool zoom =
    zp::RegistriereOption({QStringLiteral("--zoom"), QStringLiteral("N"),
                           QStringLiteral("der Zoom des Seitenbilds in Prozent (ohne Fenster 100)"),
                           zp::OptionArt::Einstellung, PruefeZoom});
} // namespace
