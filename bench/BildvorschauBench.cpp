// The picture dialog's preview with a 4000 x 3000 JPEG photograph: reading the reduced copy once
// on the file choice, and the redraw after a slider moved (brightness, contrast and saturation on
// the copy reduced to the 320 x 240 preview). The goal for a slider redraw is under 100 ms.
#include "render/Bildvorschau.h"
#include "render/Lead.h"

#include <QImage>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

struct Foto {
    QTemporaryDir ordner;
    QString datei;
    Foto() {
        QImage q(4000, 3000, QImage::Format_RGB32);
        for (int y = 0; y < q.height(); ++y) {
            auto* zeile = reinterpret_cast<QRgb*>(q.scanLine(y));
            for (int x = 0; x < q.width(); ++x)
                zeile[x] = qRgb((x * 255) / q.width(), (y * 255) / q.height(), ((x ^ y) & 63) + 100);
        }
        datei = ordner.filePath(QStringLiteral("foto.jpg"));
        q.save(datei, "JPG", 90);
    }
};

const Foto& Testfoto() {
    static const Foto foto;
    return foto;
}

void BildvorschauDateiwahl(benchmark::State& state) {
    const QString datei = Testfoto().datei;
    for (auto _ : state) {
        const zp::Vorschauvorlage v = zp::LadeVorschauvorlage(datei, QSize(320, 240));
        benchmark::DoNotOptimize(v.bild.constBits());
    }
}
BENCHMARK(BildvorschauDateiwahl)->Unit(benchmark::kMillisecond);

void BildvorschauRegler(benchmark::State& state) {
    const zp::Vorschauvorlage v = zp::LadeVorschauvorlage(Testfoto().datei, QSize(320, 240));
    zp::Lead lead;
    zp::ClassBild bild;
    bild.Kontrast = 200;
    bild.Farbintensität = 300;
    int schritt = 0;
    for (auto _ : state) {
        bild.Helligkeit = static_cast<int16_t>((schritt++ % 20) * 10); // a slider being moved
        zp::BildVorschau(bild, v, lead);
        benchmark::DoNotOptimize(lead.Bitmap().constBits());
    }
}
BENCHMARK(BildvorschauRegler)->Unit(benchmark::kMillisecond);

} // namespace
