#pragma once
// The bitmap export: the page composed into the export surface Lead2 and saved as BMP
// (mnuBildSpeichern without its dialog; the word processor export uses the same bitmap).

#include <QImage>
#include <QSizeF>
#include <QString>
#include <functional>

namespace zp {
struct AppState;
struct Zeichenziele;

// The composition that draws into the export surface; ZeichneSeite in the program.
using Komposition = std::function<void(AppState&, Zeichenziele&)>;

// Twips per pixel of the export bitmap: the screen's 96 dpi.
inline constexpr double ExportTwipsProPixel = 15;

// The size of Lead2 in twips: the label's width and height x Geraetefaktor x ZoomExport.
[[nodiscard]] QSizeF Lead2Groesse(const AppState& s);

// Composes the page with ExportAktiv set into Lead2 and returns the bitmap. A null image and a
// German text in `fehler` when the bitmap would be empty or too large. ExportAktiv is cleared
// again in every case.
[[nodiscard]] QImage ExportBild(AppState& s, Zeichenziele& ziele, const Komposition& zeichne,
                                QString* fehler = nullptr);

// ExportBild, then Lead2 saves it under `datei` as BMP. False with a German text on failure.
bool BildSpeichern(AppState& s, Zeichenziele& ziele, const QString& datei, const Komposition& zeichne,
                   QString* fehler = nullptr);

} // namespace zp
