// Makes the pattern pictures behind cards and labels (daten/must1.jpg ... must14.jpg): paper,
// linen, cork, marble, wood, granite, soft gradients, dots, stripes, checks and waves. Every
// pattern is computed from a fixed seed, so the files come out the same on every run.
//
//   zp_muster <folder>

#include <Magick++.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int Breite = 640;
constexpr int Hoehe = 420;

struct Farbe {
    double r, g, b; // 0..1
};

Farbe Mische(Farbe a, Farbe b, double t) {
    t = std::clamp(t, 0.0, 1.0);
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

Farbe Hex(uint32_t rgb) {
    return {((rgb >> 16) & 0xFF) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
}

// Value noise on an integer lattice with smooth interpolation; `saat` picks the lattice.
double Gitterwert(int x, int y, uint32_t saat) {
    uint32_t h =
        static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u + saat * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h ^= h >> 16;
    return (h & 0xFFFFFF) / static_cast<double>(0xFFFFFF);
}

double Rauschen(double x, double y, uint32_t saat) {
    const int x0 = static_cast<int>(std::floor(x)), y0 = static_cast<int>(std::floor(y));
    const double fx = x - x0, fy = y - y0;
    const double sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
    const double a = Gitterwert(x0, y0, saat), b = Gitterwert(x0 + 1, y0, saat);
    const double c = Gitterwert(x0, y0 + 1, saat), d = Gitterwert(x0 + 1, y0 + 1, saat);
    return (a + (b - a) * sx) + ((c + (d - c) * sx) - (a + (b - a) * sx)) * sy;
}

// Fractal noise of several octaves, 0..1.
double Fraktal(double x, double y, uint32_t saat, int oktaven = 5) {
    double summe = 0, amplitude = 0.5, gesamt = 0;
    for (int i = 0; i < oktaven; ++i) {
        summe += amplitude * Rauschen(x, y, saat + static_cast<uint32_t>(i) * 101u);
        gesamt += amplitude;
        x *= 2.03;
        y *= 2.03;
        amplitude *= 0.5;
    }
    return summe / gesamt;
}

using Musterfunktion = std::function<Farbe(double x, double y)>;

struct Muster {
    const char* name;
    Musterfunktion farbe;
    double weichzeichnen; // sigma of a final blur, 0 for none
};

std::vector<Muster> AlleMuster() {
    return {
        {"Papier",
         [](double x, double y) {
             const double fasern =
                 Fraktal(x / 3.0, y / 40.0, 11, 3) * 0.5 + Fraktal(x / 90, y / 90, 12) * 0.5;
             const double korn = Gitterwert(static_cast<int>(x), static_cast<int>(y), 13);
             return Mische(Hex(0xF3EBDD), Hex(0xE4D8C2), fasern * 0.8 + korn * 0.15);
         },
         0.4},
        {"Leinen",
         [](double x, double y) {
             const double faden_x = 0.5 + 0.5 * std::sin(x * 1.9 + Fraktal(x / 20, y / 2, 21, 2) * 3);
             const double faden_y = 0.5 + 0.5 * std::sin(y * 1.9 + Fraktal(x / 2, y / 20, 22, 2) * 3);
             const double flecken = Fraktal(x / 60, y / 60, 23);
             return Mische(Hex(0xE9E2D0), Hex(0xC9BEA4), 0.35 * faden_x + 0.35 * faden_y + 0.3 * flecken);
         },
         0.5},
        {"Kork",
         [](double x, double y) {
             const double grob = Fraktal(x / 6, y / 6, 31, 4);
             const double punkte = Gitterwert(static_cast<int>(x / 2), static_cast<int>(y / 2), 32);
             Farbe f = Mische(Hex(0xC89B62), Hex(0x8A5A2B), grob * 1.2 - 0.1);
             if (punkte > 0.93) f = Mische(f, Hex(0x5A3515), 0.7);
             return f;
         },
         0.6},
        {"Marmor",
         [](double x, double y) {
             const double wirbel = Fraktal(x / 120, y / 120, 41, 6) * 9;
             const double ader = std::pow(std::abs(std::sin((x + y * 0.6) / 45 + wirbel)), 0.25);
             return Mische(Hex(0x8E8A86), Hex(0xF4F2EE), ader * 0.9 + Fraktal(x / 30, y / 30, 42) * 0.1);
         },
         0.7},
        {"Holz",
         [](double x, double y) {
             const double verzug = Fraktal(x / 200, y / 50, 51, 4) * 14;
             const double ringe =
                 0.5 + 0.5 * std::sin((y + verzug * 6) / 7.0 + Fraktal(x / 80, y / 10, 52) * 4);
             const double maser = Fraktal(x / 2, y / 25, 53, 3);
             return Mische(Hex(0xD9A86C), Hex(0x9C6635), ringe * 0.75 + maser * 0.25);
         },
         0.5},
        {"Verlauf Himmel",
         [](double x, double y) {
             const double t = y / Hoehe + 0.08 * std::sin(x / Breite * 3.1);
             return Mische(Hex(0xCFE6F7), Hex(0x6FA8DC), t);
         },
         2.0},
        {"Verlauf Abendrot",
         [](double x, double y) {
             const double t = (x / Breite) * 0.35 + (y / Hoehe) * 0.65;
             return t < 0.5 ? Mische(Hex(0xFFF1C9), Hex(0xF7B58A), t * 2)
                            : Mische(Hex(0xF7B58A), Hex(0xD98BA8), t * 2 - 1);
         },
         2.0},
        {"Punkte",
         [](double x, double y) {
             const double rx = std::fmod(x, 28.0) - 14,
                          ry = std::fmod(y + (static_cast<int>(x / 28) % 2) * 14, 28.0) - 14;
             const double abstand = std::sqrt(rx * rx + ry * ry);
             return Mische(Hex(0xA9C8E8), Hex(0xF6F9FC), std::clamp((abstand - 5) / 1.5, 0.0, 1.0));
         },
         0.6},
        {"Streifen",
         [](double x, double y) {
             const double s = std::fmod(x + y, 40.0);
             const Farbe grund = Hex(0xF5F0E6);
             if (s < 14) return Mische(grund, Hex(0xB5D3B0), 0.85);
             if (s >= 20 && s < 23) return Mische(grund, Hex(0x8FB98A), 0.6);
             return grund;
         },
         0.6},
        {"Verlauf Gruen",
         [](double x, double y) {
             const double dx = x / Breite - 0.3, dy = y / Hoehe - 0.3;
             return Mische(Hex(0xF1F8E6), Hex(0x9BC88B), std::sqrt(dx * dx + dy * dy) * 1.3);
         },
         2.0},
        {"Karo",
         [](double x, double y) {
             const bool sx = std::fmod(x, 48.0) < 24, sy = std::fmod(y, 48.0) < 24;
             const double faden = 0.08 * std::sin(x * 2.2) * std::sin(y * 2.2);
             const Farbe grund = Hex(0xFBF7F2), band = Hex(0xE7A9A9);
             const double t = (sx ? 0.45 : 0.0) + (sy ? 0.45 : 0.0) + faden;
             return Mische(grund, band, t);
         },
         0.5},
        {"Wellen",
         [](double x, double y) {
             const double w = std::sin(y / 11.0 + std::sin(x / 45.0) * 2.2);
             return Mische(Hex(0xE3F1F4), Hex(0x9ACBD6), 0.5 + 0.5 * w);
         },
         0.8},
        {"Granit",
         [](double x, double y) {
             const double g = Fraktal(x / 4, y / 4, 131, 3);
             const double k = Gitterwert(static_cast<int>(x / 1.5), static_cast<int>(y / 1.5), 132);
             Farbe f = Mische(Hex(0xB8B4AE), Hex(0x77736E), g);
             if (k > 0.96) f = Hex(0x2E2C2A);
             if (k < 0.03) f = Hex(0xEDE9E4);
             return f;
         },
         0.4},
        {"Pergament",
         [](double x, double y) {
             const double wolken = Fraktal(x / 70, y / 70, 141, 6);
             const double dx = x / Breite - 0.5, dy = y / Hoehe - 0.5;
             const double rand = std::clamp((dx * dx + dy * dy) * 2.2, 0.0, 1.0);
             return Mische(Hex(0xF6E7C1), Hex(0xC9A46A), wolken * 0.45 + rand * 0.55);
         },
         1.0},
    };
}

bool Schreibe(const Muster& m, const std::string& datei) {
    std::vector<unsigned char> rgb(static_cast<size_t>(Breite) * Hoehe * 3);
    for (int y = 0; y < Hoehe; ++y)
        for (int x = 0; x < Breite; ++x) {
            const Farbe f = m.farbe(x, y);
            unsigned char* p = &rgb[(static_cast<size_t>(y) * Breite + x) * 3];
            p[0] = static_cast<unsigned char>(std::lround(std::clamp(f.r, 0.0, 1.0) * 255));
            p[1] = static_cast<unsigned char>(std::lround(std::clamp(f.g, 0.0, 1.0) * 255));
            p[2] = static_cast<unsigned char>(std::lround(std::clamp(f.b, 0.0, 1.0) * 255));
        }
    try {
        Magick::Image bild(Breite, Hoehe, "RGB", Magick::CharPixel, rgb.data());
        if (m.weichzeichnen > 0) bild.gaussianBlur(0, m.weichzeichnen);
        bild.quality(88);
        bild.strip(); // no dates in the file: a rerun gives the same bytes
        bild.magick("JPEG");
        bild.write(datei);
    } catch (const Magick::Exception& e) {
        std::fprintf(stderr, "zp_muster: %s: %s\n", datei.c_str(), e.what());
        return false;
    }
    std::printf("%s  %s\n", datei.c_str(), m.name);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "Aufruf: zp_muster <Ordner>\n");
        return 1;
    }
    Magick::InitializeMagick(argv[0]);
    const std::string ordner = argv[1];
    const auto muster = AlleMuster();
    bool gut = true;
    for (size_t i = 0; i < muster.size(); ++i)
        gut &= Schreibe(muster[i], ordner + "/must" + std::to_string(i + 1) + ".jpg");
    return gut ? 0 : 1;
}
