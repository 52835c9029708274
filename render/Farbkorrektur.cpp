#include "Farbkorrektur.h"

#include <algorithm>
#include <cmath>

namespace zp {

namespace {

constexpr double Vollaussteuerung = 65535.0; // the library works at 16 bits per channel
constexpr double Kehrwert = 1.0 / Vollaussteuerung;

// The library's rounding of a level to 16 bits.
double AufSechzehnBit(double wert) {
    if (wert <= 0.0) return 0.0;
    if (wert >= Vollaussteuerung) return Vollaussteuerung;
    return std::floor(wert + 0.5);
}

// One brightness/contrast curve on a 16-bit level: v * slope + intercept, in full-scale units.
struct Gerade {
    double steigung = 1.0;
    double achse = 0.0;

    static Gerade Aus(double helligkeitProzent, double kontrastProzent) {
        Gerade g;
        g.steigung = std::tan(M_PI * (kontrastProzent / 100.0 + 1.0) / 4.0);
        if (g.steigung < 0.0) g.steigung = 0.0;
        g.achse = helligkeitProzent / 100.0 + ((100 - helligkeitProzent) / 200.0) * (1.0 - g.steigung);
        return g;
    }
    // In the library's order of operations, so that halves round the same way.
    [[nodiscard]] double Auf(double stufe) const {
        return AufSechzehnBit((steigung * Kehrwert * stufe + achse) * Vollaussteuerung);
    }
};

// 16 bits back to 8, as the library hands its pixels out.
uint8_t AufAchtBit(double stufe) {
    const auto q = static_cast<unsigned long>(stufe);
    return static_cast<uint8_t>(((q + 128UL) - ((q + 128UL) >> 8)) >> 8);
}

int Kanal(double c, double grau, double faktor) {
    return static_cast<int>(std::clamp(grau + (c - grau) * faktor, 0.0, 255.0) + 0.5);
}

} // namespace

Farbwerte Begrenzt(Farbwerte w) {
    w.Helligkeit = std::clamp(w.Helligkeit, -1000, 1000);
    // At +-100 % the slope runs to infinity or zero; 99 % is already all or nothing.
    w.Kontrast = std::clamp(w.Kontrast, -990, 990);
    w.Farbintensitaet = std::clamp(w.Farbintensitaet, -1000, 1000);
    return w;
}

std::array<uint8_t, 256> Tonkurve(int helligkeit, int kontrast) {
    std::array<uint8_t, 256> kurve{};
    const Gerade hell = Gerade::Aus(helligkeit / 10.0, 0.0);
    const Gerade steil = Gerade::Aus(0.0, kontrast / 10.0);
    for (int i = 0; i < 256; ++i) {
        double stufe = i * 257.0;
        if (helligkeit != 0) stufe = hell.Auf(stufe);
        if (kontrast != 0) stufe = steil.Auf(stufe);
        kurve[static_cast<size_t>(i)] = AufAchtBit(stufe);
    }
    return kurve;
}

QRgb Gesaettigt(QRgb p, int farbintensitaet) {
    const double faktor = 1.0 + farbintensitaet / 1000.0;
    const double grau = 0.299 * qRed(p) + 0.587 * qGreen(p) + 0.114 * qBlue(p);
    return qRgb(Kanal(qRed(p), grau, faktor), Kanal(qGreen(p), grau, faktor), Kanal(qBlue(p), grau, faktor));
}

void Farbkorrektur(QImage& bild, Farbwerte werte) {
    werte = Begrenzt(werte);
    if (werte.Neutral() || bild.isNull()) return;
    if (bild.format() != QImage::Format_ARGB32) bild = bild.convertToFormat(QImage::Format_ARGB32);
    const bool kurve = werte.Helligkeit != 0 || werte.Kontrast != 0;
    const std::array<uint8_t, 256> t = Tonkurve(werte.Helligkeit, werte.Kontrast);
    for (int y = 0; y < bild.height(); ++y) {
        auto* zeile = reinterpret_cast<QRgb*>(bild.scanLine(y));
        for (int x = 0; x < bild.width(); ++x) {
            QRgb p = zeile[x];
            if (kurve) p = qRgb(t[qRed(p)], t[qGreen(p)], t[qBlue(p)]);
            if (werte.Farbintensitaet != 0) p = Gesaettigt(p, werte.Farbintensitaet);
            zeile[x] = p;
        }
    }
}

} // namespace zp
