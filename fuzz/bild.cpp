// The picture loader: Qt's readers for the header, Magick++ for the pixels. Any bytes under any of
// the accepted endings end in a picture or LeadFehler, never in a crash or an allocation past the
// pixel limit. With ZP_BILDSAAT set to a folder, a small picture of every format is written there
// first, as seeds.
#include "FuzzHilfe.h"
#include "render/Lead.h"

#include <Magick++.h>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

const char* const Endungen[] = {"bmp", "jpg", "png", "pcx", "wmf", "jpeg"};

void SchreibeSaat(const QString& ordner) {
    QImage bild(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            bild.setPixel(x, y, qRgba(x * 36, y * 50, 128, x == 0 ? 0 : 255));
    for (const char* format : {"BMP", "JPG", "PNG"})
        bild.save(ordner + QStringLiteral("/saat.") + QString::fromLatin1(format).toLower(), format);
    // PCX only through Magick++; its 8-bit palette form too.
    for (const char* format : {"PCX", "GIF", "TIFF"}) {
        Magick::Image m(Magick::Geometry(7, 5), Magick::Color("orange"));
        m.magick(format);
        m.write((ordner + QStringLiteral("/saat.") + QString::fromLatin1(format).toLower()).toStdString());
    }
    Magick::Image m(Magick::Geometry(9, 4), Magick::Color("blue"));
    m.type(Magick::PaletteType);
    m.magick("PCX");
    m.write((ordner + QStringLiteral("/saat8.pcx")).toStdString());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    if (const char* saat = std::getenv("ZP_BILDSAAT")) SchreibeSaat(QString::fromLocal8Bit(saat));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static QTemporaryDir ordner;
    // The length chooses the ending, so that the whole input is the file and formats without a
    // signature are tried too.
    const QString datei = ordner.filePath(QStringLiteral("bild.") + QString::fromLatin1(Endungen[size % 6]));
    {
        QFile f(datei);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    }
    zp::Lead lead;
    lead.Bildpunktgrenze = 2'000'000; // small pictures keep the runs fast; the limit is what is tested
    try {
        lead.Load(datei);
        if (!lead.HatBild()) __builtin_trap();
        const QImage bild = lead.Bitmap();
        if (static_cast<qint64>(bild.width()) * bild.height() > 2 * lead.Bildpunktgrenze) __builtin_trap();
    } catch (const zp::LeadFehler&) {
    }
    QFile::remove(datei);
    return 0;
}
