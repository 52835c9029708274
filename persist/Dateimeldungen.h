#pragma once
// The messages that every file reader and writer gives, so that they read the same everywhere.

#include <QString>

namespace zp {

class Oberflaeche;

// Why a file could not be read: the line (1-based, 0 for the file as a whole) and the reason.
struct Lesefehler {
    int zeile = 0;
    QString grund;
};

// "Falsches Datenformat" titled "Warnung!", with the file and line in the detail.
void MeldeFalschesFormat(Oberflaeche& ui, const QString& datei, const Lesefehler& fehler);
// A file that could not be written.
void MeldeSchreibfehler(Oberflaeche& ui, const QString& datei, const QString& grund);

} // namespace zp
