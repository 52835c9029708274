#pragma once
// The calendar's day data file (.zpd): six day tables by month and day, the twelve month pictures
// with captions, title and footer, one value a line and no keys; `neu.zpd` and `auto.zpd` are
// files of this kind in the program folder.

#include "core/runtime/Liste.h"
#include "model/Klassen.h"

#include <QByteArray>
#include <QString>

namespace zp {
struct AppState;

// Everything a .zpd holds, read into new tables before any of the document is replaced.
struct Kalenderdaten {
    Tabelle<QString> Termine{31, 12};
    Tabelle<Farbe> TerminSchrift{31, 12, -1};
    Tabelle<Farbe> TerminBack{31, 12, -1};
    Tabelle<QString> Feiertage{31, 12};
    Tabelle<Farbe> FeiertagSchrift{31, 12, -1};
    Tabelle<Farbe> FeiertagBack{31, 12, -1};
    Liste<QString> Monatsbilder{12};
    Liste<QString> Monatsbildtexte{12};
    QString TextTitel;
    QString TextUnterschrift;
};

[[nodiscard]] Kalenderdaten KalenderdatenAus(const AppState& s);
void KalenderdatenUebernehmen(AppState& s, Kalenderdaten daten);

// The file's bytes: Windows-1252, CR LF. An appointment of several lines is written as it stands
// and ended by a line "-1"; an empty document gives 2630 lines.
[[nodiscard]] QByteArray ZpdBytes(const Kalenderdaten& daten);
// Parses a whole file. Throws FormatFehler (line number and reason) for a file cut short, a
// number line that holds no number, or trailing lines that show the records were shifted.
[[nodiscard]] Kalenderdaten ZpdLesen(const QByteArray& bytes);

} // namespace zp
