#pragma once
// Loads a picture object's file into an imaging control and applies its corrections and effects.

namespace zp {
struct AppState;
struct ClassBild;
class Lead;

// On screen every call gives the finished bitmap (from the picture cache when the file and the
// corrections are unchanged); while printing, a call with the same file as the last one leaves the
// control as it is. A missing or empty file name leaves the control. A file that cannot be loaded
// is reported in a message box and the control keeps its former bitmap. LetztesBild takes File.
void BildLaden(AppState& s, ClassBild& bild, Lead& lead);

} // namespace zp
