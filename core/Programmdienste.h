#pragma once
// The document commands' table of functions, bound to what this build has.

#include "core/Dokumentdienste.h"

namespace zp {
[[nodiscard]] Dokumentdienste ProgrammDienste();
// The file for the printer "PDF-Datei", asked through the window; ".pdf" is added when missing.
// Empty when the user cancelled.
[[nodiscard]] QString PdfDateiWaehlen(Oberflaeche& ui);
} // namespace zp
