#pragma once
// The imaging control: one bitmap with the load, correction and effect operations that the
// picture pipeline asks for, its own display rectangle, painting onto a Canvas and saving as BMP.
// One class stands for every instance (Lead on the page, Lead1 in the picture dialog, Lead2 of the
// bitmap export, LeadKalender of the calendar pictures).
//
// Value ranges follow the control's published interface: Intensity, Contrast, Saturation and
// Sharpen take -1000..1000 in tenths of a percent, Hue degrees, AddNoise a range in tenths of a
// percent of full scale, Mosaic a tile size in pixels, Shear -45..45 degrees, Rotate hundredths of a
// degree. Out-of-range values are clamped; a value of 0 leaves every pixel as it was.
//
// Failures (unreadable file, not a picture, too large) throw LeadFehler with a German text.

#include "compose/canvas/canvas.h"
#include "render/Farbkorrektur.h"

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <memory>
#include <stdexcept>

namespace zp {

class LeadFehler : public std::runtime_error {
public:
    explicit LeadFehler(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    [[nodiscard]] const QString& Text() const { return m_text; }

private:
    QString m_text;
};

// The picture files the control reads on this system, as name patterns: "*.bmp", "*.jpg", "*.jpeg"
// and "*.png" always, "*.pcx" and "*.wmf" where the picture library has a reader for them.
[[nodiscard]] QStringList Bildmuster();
// The same for the dialogs' label: "*.bmp, *.jpg, *.png, *.pcx, *.wmf" (".jpeg" goes with ".jpg").
[[nodiscard]] QString BildmusterText();

class Lead {
public:
    Lead();
    ~Lead();
    Lead(const Lead&) = delete;
    Lead& operator=(const Lead&) = delete;

    // The largest picture accepted, in pixels. A 40-megapixel picture takes about half a gigabyte
    // while it is corrected; larger ones are refused with a message, and rotation and shear may
    // at most double it.
    static constexpr qint64 MaxBildpunkte = 40'000'000;
    qint64 Bildpunktgrenze = MaxBildpunkte;

    // Reads the first frame of a BMP, JPEG, PNG, PCX or WMF file. A picture with transparency is
    // laid on white. On failure the control keeps its former bitmap.
    void Load(const QString& datei);
    // For the screen only: a JPEG more than twice as large as `geraet` (device pixels) in both
    // directions is decoded reduced, by 1/2, 1/4 or 1/8, to the smallest size still above twice
    // `geraet`. False, with the control unchanged, when the file is no such picture; the full
    // Load() then decides. BitmapWidth() and BitmapHeight() keep telling the picture's own size.
    bool LadeVerkleinert(const QString& datei, QSize geraet);
    // Takes a finished bitmap (from the picture cache or a drawing); `vollgroesse` is the size of
    // the picture a reduced bitmap stands for.
    void SetzeBitmap(const QImage& bild, QSize vollgroesse = {});
    // Makes an empty white bitmap of the given size (the export surface before the composition).
    void Leeren(int breite, int hoehe);
    [[nodiscard]] bool HatBild() const;

    void Rotate(int hundertstelGrad, bool vergroessern, QRgb fuellfarbe);
    void Intensity(int wert);
    void Contrast(int wert);
    void Saturation(int wert);
    // Intensity, Contrast and Saturation one after the other, in one pass over the pixels, with the
    // very levels of the three single steps.
    void Farbkorrektur(Farbwerte werte);
    void Hue(int grad);
    void Sharpen(int wert);
    // Noise of up to +-range/2 tenths of a percent of full scale; channel 0 gives every colour the
    // same change (brightness noise), 1, 2, 3 only red, green or blue. The pattern is the same on
    // every call, so that a redrawn page does not flicker.
    void AddNoise(int bereich, int kanal);
    void Mosaic(int kachel);
    void Shear(int grad, bool horizontal, QRgb fuellfarbe);
    void Invert();
    void Grayscale();

    // The picture's size: that of the bitmap, or of the file a reduced bitmap was decoded from.
    [[nodiscard]] int BitmapWidth() const;
    [[nodiscard]] int BitmapHeight() const;
    // The size of the file's picture behind a reduced bitmap; invalid when the bitmap is full size.
    [[nodiscard]] QSize Vollgroesse() const;
    // The finished bitmap (ARGB32, opaque); null when nothing is loaded.
    [[nodiscard]] QImage Bitmap() const;

    // The control's own display rectangle, twips.
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    // Paints the bitmap stretched to the rectangle (twips) on the canvas. A bitmap much larger than
    // the device rectangle is handed over reduced (and the reduction is kept for the next paint),
    // so that a redraw does not scale a photograph of many megapixels each time.
    void Render(Canvas& ziel, const QRectF& twips) const;

    // Saves the bitmap as a Windows BMP (24 bits). False with a German text on failure.
    bool SaveBmp(const QString& datei, QString* fehler = nullptr) const;

private:
    struct Daten;
    std::unique_ptr<Daten> d;
};

} // namespace zp
