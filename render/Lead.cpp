// The imaging control over Magick++. The bitmap lives as a Magick image while corrections run and
// as an ARGB32 QImage once it is painted; each form is made from the other on demand.
#include "render/Lead.h"

#include "core/runtime/TextDatei.h"
#include "render/Farbkorrektur.h"

#include <Magick++.h>
// The library's deprecated pixel macro of this name would hide the control's operation.
#undef Intensity

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <list>
#include <mutex>
#include <optional>
#include <random>

namespace zp {

namespace {

// The library wants one initialisation per process before the first image.
void MagickStarten() {
    static std::once_flag einmal;
    std::call_once(einmal, [] { Magick::InitializeMagick(nullptr); });
}

Magick::Color MagickFarbe(QRgb farbe) {
    return Magick::ColorRGB(qRed(farbe) / 255.0, qGreen(farbe) / 255.0, qBlue(farbe) / 255.0);
}

QString MagickText(const std::exception& e) {
    return QString::fromLocal8Bit(e.what());
}

// The library's own size limits (its security policy) refuse a picture with an error of the image
// class; only its text tells it from a damaged file.
bool IstGroessengrenze(const std::exception& e) {
    return MagickText(e).contains(QStringLiteral("exceeds limit"));
}

// The library keeps page offsets after rotate and shear; the bitmap starts at 0, 0.
void SeiteZuruecksetzen(Magick::Image& bild) {
    bild.page(Magick::Geometry(0, 0, 0, 0));
}

// Turning and shearing enlarge the bitmap; beyond twice the load limit they are refused.
void PruefeWachstum(double breite, double hoehe, qint64 grenze) {
    if (breite * hoehe > 2.0 * static_cast<double>(grenze))
        throw LeadFehler(
            QStringLiteral("Das gedrehte oder verzerrte Bild wäre mit %1 x %2 Bildpunkten zu groß.")
                .arg(std::ceil(breite), 0, 'f', 0)
                .arg(std::ceil(hoehe), 0, 'f', 0));
}

} // namespace

struct Lead::Daten {
    std::optional<Magick::Image> magick; // the working form while corrections run
    mutable QImage bitmap;               // the painted form; null while `magick` is newer
    QSize vollgroesse;                   // the file's size behind a reduced bitmap
    // The last reductions for Render, newest first: the page's control paints several pictures
    // in turn (background, frames), each at its own size.
    struct Reduktion {
        qint64 von = 0; // cacheKey of the bitmap it was made from
        QSize groesse;
        QImage bild;
    };
    mutable std::list<Reduktion> reduktionen;
    static constexpr size_t MaxReduktionen = 8;

    Magick::Image& Arbeitsbild() {
        if (!magick) {
            MagickStarten();
            if (bitmap.isNull()) throw LeadFehler(QStringLiteral("Es ist kein Bild geladen."));
            const QImage q = bitmap.convertToFormat(QImage::Format_ARGB32);
            Magick::Image m(static_cast<size_t>(q.width()), static_cast<size_t>(q.height()), "BGRA",
                            Magick::CharPixel, q.constBits());
            m.matte(false);
            magick = std::move(m);
        }
        bitmap = QImage();
        return *magick;
    }

    const QImage& Fertig() const {
        if (bitmap.isNull() && magick) {
            Magick::Image& m = const_cast<Magick::Image&>(*magick);
            const int w = static_cast<int>(m.columns());
            const int h = static_cast<int>(m.rows());
            if (w > 0 && h > 0) {
                QImage q(w, h, QImage::Format_ARGB32);
                m.write(0, 0, static_cast<size_t>(w), static_cast<size_t>(h), "BGRA", Magick::CharPixel,
                        q.bits());
                bitmap = std::move(q);
            }
        }
        return bitmap;
    }

    // The effects that work pixel by pixel run on the QImage form.
    QImage Pixelbild() {
        QImage q = Fertig().convertToFormat(QImage::Format_ARGB32);
        magick.reset();
        bitmap = QImage();
        return q;
    }
};

QStringList Bildmuster() {
    MagickStarten();
    QStringList muster;
    for (const char* endung : {"bmp", "jpg", "jpeg", "png", "pcx", "wmf"}) {
        bool lesbar = false;
        try {
            lesbar = Magick::CoderInfo(QByteArray(endung).toUpper().toStdString()).isReadable();
        } catch (const Magick::Exception&) {
            // no such coder in this build of the library
        }
        if (lesbar) muster << QStringLiteral("*.") + QLatin1String(endung);
    }
    return muster;
}

QString BildmusterText() {
    QStringList muster = Bildmuster();
    muster.removeAll(QStringLiteral("*.jpeg"));
    return muster.join(QStringLiteral(", "));
}

Lead::Lead() : d(std::make_unique<Daten>()) {}
Lead::~Lead() = default;

bool Lead::HatBild() const {
    return d->magick.has_value() || !d->bitmap.isNull();
}

void Lead::Load(const QString& datei) {
    QString grund;
    const std::optional<QByteArray> gelesen = LeseDatei(datei, GroessteBilddatei, &grund);
    if (!gelesen)
        throw LeadFehler(
            QStringLiteral("Die Bilddatei \"%1\" kann nicht gelesen werden. %2").arg(datei, grund));
    const QByteArray& bytes = *gelesen;
    if (bytes.isEmpty()) throw LeadFehler(QStringLiteral("Die Bilddatei \"%1\" ist leer.").arg(datei));

    MagickStarten();
    const Magick::Blob blob(bytes.constData(), static_cast<size_t>(bytes.size()));
    // Only the header first: the size decides whether the picture fits the memory budget.
    // Formats that carry no signature (WMF without its header) are named by the file's suffix.
    const QString endung = QFileInfo(datei).suffix().toUpper();
    Magick::Image kopf;
    kopf.quiet(true);
    const QString zuGross = QStringLiteral("Das Bild \"%1\" ist zu groß. Es können höchstens %2 Millionen "
                                           "Bildpunkte geladen werden.")
                                .arg(datei)
                                .arg(QLocale(QLocale::German).toString(Bildpunktgrenze / 1e6, 'g', 3));
    {
        // Qt reads the size from the header of the common formats without decoding a pixel.
        QBuffer puffer;
        puffer.setData(bytes);
        QImageReader leser(&puffer);
        const QSize groesse = leser.size();
        if (groesse.isValid() && static_cast<qint64>(groesse.width()) * groesse.height() > Bildpunktgrenze)
            throw LeadFehler(zuGross);
    }
    try {
        kopf.ping(blob);
    } catch (const Magick::ErrorResourceLimit&) {
        throw LeadFehler(zuGross);
    } catch (const Magick::ErrorCache&) {
        // The library's own limits refuse the header before we can see the size.
        throw LeadFehler(zuGross);
    } catch (const Magick::Error& e) {
        if (IstGroessengrenze(e)) throw LeadFehler(zuGross);
        static const QStringList bekannt{"BMP", "JPG", "JPEG", "PNG", "PCX", "WMF"};
        if (!bekannt.contains(endung))
            throw LeadFehler(QStringLiteral("Die Bilddatei \"%1\" kann nicht geladen werden: %2")
                                 .arg(datei, MagickText(e)));
        try {
            kopf.magick(endung.toStdString());
            kopf.ping(blob);
        } catch (const Magick::Error& e2) {
            if (IstGroessengrenze(e2)) throw LeadFehler(zuGross);
            throw LeadFehler(QStringLiteral("Die Bilddatei \"%1\" kann nicht geladen werden: %2")
                                 .arg(datei, MagickText(e2)));
        }
    }
    const qint64 breite = static_cast<qint64>(kopf.columns());
    const qint64 hoehe = static_cast<qint64>(kopf.rows());
    if (breite <= 0 || hoehe <= 0)
        throw LeadFehler(QStringLiteral("Die Datei \"%1\" enthält kein Bild.").arg(datei));
    if (breite * hoehe > Bildpunktgrenze)
        throw LeadFehler(zuGross + QStringLiteral(" (%1 x %2 Bildpunkte)").arg(breite).arg(hoehe));

    Magick::Image bild;
    bild.quiet(true); // a truncated JPEG is a warning: what could be read is shown
    try {
        if (!kopf.magick().empty()) bild.magick(kopf.magick());
        bild.read(blob);
    } catch (const Magick::ErrorResourceLimit&) {
        throw LeadFehler(zuGross);
    } catch (const Magick::ErrorCache&) {
        throw LeadFehler(zuGross);
    } catch (const Magick::Error& e) {
        if (IstGroessengrenze(e)) throw LeadFehler(zuGross);
        throw LeadFehler(
            QStringLiteral("Die Bilddatei \"%1\" kann nicht geladen werden: %2").arg(datei, MagickText(e)));
    }
    if (bild.columns() == 0 || bild.rows() == 0)
        throw LeadFehler(QStringLiteral("Die Datei \"%1\" enthält kein Bild.").arg(datei));

    if (bild.colorSpace() == Magick::CMYKColorspace) bild.colorSpace(Magick::sRGBColorspace);
    if (bild.matte()) {
        // Transparent parts show the white of the paper.
        Magick::Image weiss(Magick::Geometry(bild.columns(), bild.rows()), Magick::Color("white"));
        weiss.composite(bild, 0, 0, Magick::OverCompositeOp);
        weiss.matte(false);
        bild = weiss;
    }
    SeiteZuruecksetzen(bild);
    d->magick = std::move(bild);
    d->bitmap = QImage();
    d->vollgroesse = QSize();
}

bool Lead::LadeVerkleinert(const QString& datei, QSize geraet) {
    if (geraet.width() < 1 || geraet.height() < 1) return false;
    QImageReader leser(datei);
    if (leser.format() != "jpeg") return false;
    const QSize voll = leser.size();
    if (!voll.isValid() || static_cast<qint64>(voll.width()) * voll.height() > Bildpunktgrenze) return false;
    // The decoder's own reductions; the first that stays above twice the device size.
    QSize klein;
    for (const int teiler : {8, 4, 2}) {
        const QSize s((voll.width() + teiler - 1) / teiler, (voll.height() + teiler - 1) / teiler);
        if (s.width() > 2 * geraet.width() && s.height() > 2 * geraet.height()) {
            klein = s;
            break;
        }
    }
    if (!klein.isValid()) return false;
    leser.setScaledSize(klein);
    QImage q = leser.read();
    if (q.isNull()) return false; // a damaged file: the full load reports it
    SetzeBitmap(q, voll);
    return true;
}

void Lead::SetzeBitmap(const QImage& bild, QSize vollgroesse) {
    d->magick.reset();
    d->bitmap = bild.format() == QImage::Format_ARGB32 ? bild : bild.convertToFormat(QImage::Format_ARGB32);
    d->vollgroesse = vollgroesse;
}

void Lead::Leeren(int breite, int hoehe) {
    QImage q(std::max(1, breite), std::max(1, hoehe), QImage::Format_ARGB32);
    q.fill(Qt::white);
    SetzeBitmap(q);
}

void Lead::Rotate(int hundertstelGrad, bool vergroessern, QRgb fuellfarbe) {
    const int winkel = hundertstelGrad % 36000;
    if (winkel == 0 || !HatBild()) return;
    Magick::Image& m = d->Arbeitsbild();
    d->vollgroesse = QSize(); // the turned picture's size is the bitmap's own
    const size_t w = m.columns(), h = m.rows();
    const double bogen = winkel / 100.0 * M_PI / 180.0;
    if (vergroessern)
        PruefeWachstum(w * std::abs(std::cos(bogen)) + h * std::abs(std::sin(bogen)),
                       w * std::abs(std::sin(bogen)) + h * std::abs(std::cos(bogen)), Bildpunktgrenze);
    m.backgroundColor(MagickFarbe(fuellfarbe));
    m.rotate(winkel / 100.0);
    SeiteZuruecksetzen(m);
    if (!vergroessern) {
        // The turned picture cut to the old size around its middle.
        m.crop(Magick::Geometry(w, h, static_cast<ssize_t>((m.columns() - w) / 2),
                                static_cast<ssize_t>((m.rows() - h) / 2)));
        SeiteZuruecksetzen(m);
    }
}

void Lead::Intensity(int wert) {
    wert = Begrenzt({wert, 0, 0}).Helligkeit;
    if (wert == 0 || !HatBild()) return;
    d->Arbeitsbild().brightnessContrast(wert / 10.0, 0.0);
}

void Lead::Contrast(int wert) {
    wert = Begrenzt({0, wert, 0}).Kontrast;
    if (wert == 0 || !HatBild()) return;
    d->Arbeitsbild().brightnessContrast(0.0, wert / 10.0);
}

void Lead::Saturation(int wert) {
    Farbkorrektur({0, 0, wert});
}

void Lead::Farbkorrektur(Farbwerte werte) {
    werte = Begrenzt(werte);
    if (werte.Neutral() || !HatBild()) return;
    // On the 8-bit pixels, with the levels the library's two curves give at 16 bits: its own steps
    // would take three passes and a fresh pixel cache for each on a photograph of many megapixels.
    QImage q = d->Pixelbild();
    zp::Farbkorrektur(q, werte);
    d->bitmap = std::move(q);
}

void Lead::Hue(int grad) {
    grad %= 360;
    if (grad > 180) grad -= 360;
    if (grad < -180) grad += 360;
    if (grad == 0 || !HatBild()) return;
    // The library's hue percentage: 100 is no turn, 200 half a turn.
    d->Arbeitsbild().modulate(100.0, 100.0, 100.0 + grad / 1.8);
}

void Lead::Sharpen(int wert) {
    wert = std::clamp(wert, -1000, 1000);
    if (wert == 0 || !HatBild()) return;
    Magick::Image& m = d->Arbeitsbild();
    if (wert > 0)
        m.unsharpmask(0.0, 1.0, wert / 250.0, 0.0); // up to four times the edge contrast
    else
        m.blur(0.0, -wert / 400.0); // softer, up to a blur of 2.5 pixels
}

void Lead::AddNoise(int bereich, int kanal) {
    bereich = std::clamp(bereich, 0, 1000);
    if (bereich == 0 || !HatBild()) return;
    QImage q = d->Pixelbild();
    const double amplitude = bereich / 1000.0 * 255.0 / 2.0;
    std::mt19937 zufall(0x5A50u); // fixed: the same picture gets the same noise on each redraw
    std::uniform_real_distribution<double> verteilung(-amplitude, amplitude);
    auto neu = [](int wert, double delta) {
        return std::clamp(static_cast<int>(std::lround(wert + delta)), 0, 255);
    };
    for (int y = 0; y < q.height(); ++y) {
        auto* zeile = reinterpret_cast<QRgb*>(q.scanLine(y));
        for (int x = 0; x < q.width(); ++x) {
            const QRgb p = zeile[x];
            int r = qRed(p), g = qGreen(p), b = qBlue(p);
            const double delta = verteilung(zufall);
            if (kanal == 0 || kanal == 1) r = neu(r, delta);
            if (kanal == 0 || kanal == 2) g = neu(g, delta);
            if (kanal == 0 || kanal == 3) b = neu(b, delta);
            zeile[x] = qRgb(r, g, b);
        }
    }
    d->bitmap = std::move(q);
}

void Lead::Mosaic(int kachel) {
    if (kachel <= 1 || !HatBild()) return;
    QImage q = d->Pixelbild();
    kachel = std::min(kachel, std::max(q.width(), q.height()));
    // Every tile of kachel x kachel pixels (smaller at the right and bottom edge) takes its mean.
    for (int ty = 0; ty < q.height(); ty += kachel) {
        const int hy = std::min(kachel, q.height() - ty);
        for (int tx = 0; tx < q.width(); tx += kachel) {
            const int wx = std::min(kachel, q.width() - tx);
            qint64 r = 0, g = 0, b = 0;
            for (int y = ty; y < ty + hy; ++y) {
                const auto* zeile = reinterpret_cast<const QRgb*>(q.constScanLine(y));
                for (int x = tx; x < tx + wx; ++x) {
                    r += qRed(zeile[x]);
                    g += qGreen(zeile[x]);
                    b += qBlue(zeile[x]);
                }
            }
            const qint64 n = static_cast<qint64>(wx) * hy;
            const QRgb mittel = qRgb(static_cast<int>((r + n / 2) / n), static_cast<int>((g + n / 2) / n),
                                     static_cast<int>((b + n / 2) / n));
            for (int y = ty; y < ty + hy; ++y) {
                auto* zeile = reinterpret_cast<QRgb*>(q.scanLine(y));
                std::fill(zeile + tx, zeile + tx + wx, mittel);
            }
        }
    }
    d->bitmap = std::move(q);
}

void Lead::Shear(int grad, bool horizontal, QRgb fuellfarbe) {
    grad = std::clamp(grad, -45, 45);
    if (grad == 0 || !HatBild()) return;
    Magick::Image& m = d->Arbeitsbild();
    d->vollgroesse = QSize();
    const double schraeg = std::abs(std::tan(grad * M_PI / 180.0));
    if (horizontal)
        PruefeWachstum(m.columns() + m.rows() * schraeg, m.rows(), Bildpunktgrenze);
    else
        PruefeWachstum(m.columns(), m.rows() + m.columns() * schraeg, Bildpunktgrenze);
    m.backgroundColor(MagickFarbe(fuellfarbe));
    if (horizontal)
        m.shear(grad, 0.0);
    else
        m.shear(0.0, grad);
    SeiteZuruecksetzen(m);
}

void Lead::Invert() {
    if (!HatBild()) return;
    d->Arbeitsbild().negate();
}

void Lead::Grayscale() {
    if (!HatBild()) return;
    d->Arbeitsbild().grayscale(MagickCore::Rec601LumaPixelIntensityMethod);
}

QSize Lead::Vollgroesse() const {
    return d->vollgroesse;
}

int Lead::BitmapWidth() const {
    if (d->vollgroesse.isValid()) return d->vollgroesse.width();
    if (d->magick) return static_cast<int>(d->magick->columns());
    return d->bitmap.width();
}

int Lead::BitmapHeight() const {
    if (d->vollgroesse.isValid()) return d->vollgroesse.height();
    if (d->magick) return static_cast<int>(d->magick->rows());
    return d->bitmap.height();
}

QImage Lead::Bitmap() const {
    return d->Fertig();
}

void Lead::Render(Canvas& ziel, const QRectF& twips) const {
    const QImage& bild = d->Fertig();
    if (bild.isNull() || twips.width() <= 0 || twips.height() <= 0) return;
    const double tppX = ziel.TwipsPerPixelX() > 0 ? ziel.TwipsPerPixelX() : 15.0;
    const double tppY = ziel.TwipsPerPixelY() > 0 ? ziel.TwipsPerPixelY() : 15.0;
    const QSize geraet(std::max(1, static_cast<int>(std::ceil(twips.width() / tppX))),
                       std::max(1, static_cast<int>(std::ceil(twips.height() / tppY))));
    if (bild.width() <= 2 * geraet.width() || bild.height() <= 2 * geraet.height()) {
        ziel.RenderBild(bild, twips);
        return;
    }
    auto& liste = d->reduktionen;
    for (auto it = liste.begin(); it != liste.end(); ++it) {
        if (it->von == bild.cacheKey() && it->groesse == geraet) {
            liste.splice(liste.begin(), liste, it);
            ziel.RenderBild(liste.front().bild, twips);
            return;
        }
    }
    liste.push_front(
        {bild.cacheKey(), geraet, bild.scaled(geraet, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)});
    if (liste.size() > Daten::MaxReduktionen) liste.pop_back();
    ziel.RenderBild(liste.front().bild, twips);
}

bool Lead::SaveBmp(const QString& datei, QString* fehler) const {
    const QImage& bild = d->Fertig();
    if (bild.isNull()) {
        if (fehler) *fehler = QStringLiteral("Es ist kein Bild zum Speichern vorhanden.");
        return false;
    }
    MagickStarten();
    Magick::Blob blob;
    try {
        const QImage q = bild.convertToFormat(QImage::Format_ARGB32);
        Magick::Image m(static_cast<size_t>(q.width()), static_cast<size_t>(q.height()), "BGRA",
                        Magick::CharPixel, q.constBits());
        m.matte(false);
        m.type(Magick::TrueColorType); // 24 bits per pixel, also for a grey page
        m.magick("BMP3");
        m.write(&blob);
    } catch (const Magick::Exception& e) {
        if (fehler) *fehler = QStringLiteral("Das Bild kann nicht gespeichert werden: %1").arg(MagickText(e));
        return false;
    }
    const QByteArray bytes(static_cast<const char*>(blob.data()), static_cast<qsizetype>(blob.length()));
    QString grund;
    if (SchreibeDateiAtomar(datei, bytes, &grund)) return true;
    if (fehler)
        *fehler = QStringLiteral("Das Bild kann nicht unter „%1“ gespeichert werden (%2).").arg(datei, grund);
    return false;
}

} // namespace zp
