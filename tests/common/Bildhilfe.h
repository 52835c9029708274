#pragma once
// Pictures made in the tests and small measures of them.

#include <QColor>
#include <QDir>
#include <QImage>
#include <QString>
#include <cmath>

namespace zp::test {

// A colourful picture with soft gradients and a few hard edges.
inline QImage Testbild(int w = 64, int h = 48) {
    QImage q(w, h, QImage::Format_ARGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int r = 40 + 160 * x / w;
            const int g = 60 + 120 * y / h;
            const int b = ((x / 8 + y / 8) % 2) ? 180 : 70;
            q.setPixel(x, y, qRgb(r, g, b));
        }
    return q;
}

inline QImage Einfarbig(QRgb farbe, int w = 32, int h = 24) {
    QImage q(w, h, QImage::Format_ARGB32);
    q.fill(farbe);
    return q;
}

inline QString Speichere(const QImage& bild, const QDir& ordner, const QString& name) {
    const QString pfad = ordner.filePath(name);
    bild.save(pfad);
    return pfad;
}

// The mean of `wert` over every pixel.
template <typename F> double Mittel(const QImage& q, F wert) {
    double summe = 0;
    for (int y = 0; y < q.height(); ++y)
        for (int x = 0; x < q.width(); ++x)
            summe += wert(q.pixel(x, y));
    return summe / (q.width() * q.height());
}

inline double MittlereHelligkeit(const QImage& q) {
    return Mittel(q, [](QRgb p) { return qGray(p); });
}

inline double Streuung(const QImage& q) {
    const double m = MittlereHelligkeit(q);
    return std::sqrt(Mittel(q, [m](QRgb p) { return (qGray(p) - m) * (qGray(p) - m); }));
}

inline double MittlereSaettigung(const QImage& q) {
    return Mittel(q, [](QRgb p) { return QColor(p).hslSaturation(); });
}

// Sum of absolute differences between neighbours: grows with sharpness.
inline double Kantenenergie(const QImage& q) {
    double summe = 0;
    for (int y = 0; y < q.height(); ++y)
        for (int x = 1; x < q.width(); ++x)
            summe += std::abs(qGray(q.pixel(x, y)) - qGray(q.pixel(x - 1, y)));
    return summe;
}

inline bool IstWeiss(QRgb p) {
    return qRed(p) > 245 && qGreen(p) > 245 && qBlue(p) > 245;
}

} // namespace zp::test
