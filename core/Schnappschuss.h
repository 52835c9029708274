#pragma once
// The copy of the design that the side panel's card view reads: written as `test.zpb` into a
// folder of the program's own, while the user's file name stays current.

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

// Writes the document to `test.zpb` in `ordner` and puts AktuelleDatei back, also when the write
// fails. Returns the file written, or "" when nothing could be written.
QString Schnappschuss(AppState& s, Oberflaeche& ui, const QString& ordner);

} // namespace zp
