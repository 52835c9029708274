#pragma once
// The print dialog's values as the command line gives them (--kopien, --adressen, --abgleich ...).

#include "output/Druckauftrag.h"

#include <QString>
#include <optional>

namespace zp {
struct AppState;
struct Batchlauf;

// "aktiv", "alle", "VON-BIS" or "kategorie:TEXT" into the address choice of `wahl`.
[[nodiscard]] bool LeseAdressen(const QString& text, Druckwahl& wahl, QString& fehler);
// "X,Y" in tenths of a millimetre (a point as decimal separator); std::nullopt on a fault.
[[nodiscard]] std::optional<std::pair<double, double>> LeseAbgleich(const QString& text);
// A whole number as the boxes take it; std::nullopt for anything else.
[[nodiscard]] std::optional<double> LeseZahl(const QString& text);

// The request of the print options of a run; the values that the dialog writes into the state at
// once (first label, marks, corrections) go there.
[[nodiscard]] Druckauftrag DruckauftragAusOptionen(const Batchlauf& lauf);

} // namespace zp
