#pragma once
// Keywords of a text frame that are replaced at every draw: "#Datum", "#Zeit", "#Seriennummer"
// and "#Feld" with the number of a side panel box.

#include <QDateTime>
#include <QString>

namespace zp {
struct AppState;

// The working string with its keywords replaced, at the moment `jetzt`. The text of the last
// field read stays in the state's Feldtext for the next field keyword.
[[nodiscard]] QString ErsetzePlatzhalter(AppState& s, QString text, const QDateTime& jetzt);
[[nodiscard]] QString ErsetzePlatzhalter(AppState& s, QString text);
} // namespace zp
