#pragma once
// The print dialog's values as the command line gives them (--kopien, --adressen, --abgleich ...).

#include "core/Druckbefehle.h"
#include "output/PrintDocument.h"

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

// The print dialog's boxes as the print options of a run give them; the values that the dialog
// writes into the state at once (marks, corrections) go there.
[[nodiscard]] Druckdialogwerte DruckwerteAusOptionen(const Batchlauf& lauf);

} // namespace zp
