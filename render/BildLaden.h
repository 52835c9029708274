#pragma once
// Loads a picture object's file into an imaging control and applies its corrections and effects.

#include <QSize>

namespace zp {
struct AppState;
struct ClassBild;
class Lead;
class Canvas;

// On screen every call gives the finished bitmap (from the picture cache when the file and the
// corrections are unchanged); while printing, a call with the same file as the last one leaves the
// control as it is. A missing or empty file name leaves the control. A file that cannot be loaded
// is reported in a message box and the control keeps its former bitmap. LetztesBild takes File.
//
// `bildschirm`: the device size of the frame when the picture is only shown on a screen. A large
// photograph whose corrections work pixel by pixel is then decoded reduced to a little over twice
// that size and corrected there; the result looks as the full picture reduced to the frame.
void BildLaden(AppState& s, ClassBild& bild, Lead& lead, QSize bildschirm = {});

// The frame's size in device pixels on `ziel` when it is the screen or a preview and nothing is
// printed or exported; else empty, which asks for the full picture.
[[nodiscard]] QSize BildschirmGroesse(const AppState& s, const Canvas& ziel, double breiteTwips,
                                      double hoeheTwips);

// The corrections and effects of the pipeline, in their fixed order, on the bitmap the control
// holds: what BildLaden does after loading the file.
void BildKorrekturen(const ClassBild& bild, Lead& lead);

} // namespace zp
