#include "core/runtime/TextDatei.h"

#include "core/runtime/Basic.h"
#include "core/runtime/Cp1252Codec.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace zp {

namespace {

enum class Kodierung { Ascii, Utf8, Fremd };

// What the bytes of one line are: plain ASCII, valid UTF-8 with a multi-byte character, or neither.
Kodierung PruefeUtf8(const char* p, qsizetype n) {
    bool mehrbyte = false;
    for (qsizetype i = 0; i < n;) {
        const auto c = static_cast<unsigned char>(p[i]);
        if (c < 0x80) {
            ++i;
            continue;
        }
        int folge = 0;
        uint32_t wert = 0;
        if (c >= 0xC2 && c <= 0xDF) {
            folge = 1;
            wert = c & 0x1F;
        } else if (c >= 0xE0 && c <= 0xEF) {
            folge = 2;
            wert = c & 0x0F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            folge = 3;
            wert = c & 0x07;
        } else {
            return Kodierung::Fremd;
        }
        if (i + folge >= n) return Kodierung::Fremd;
        for (int k = 1; k <= folge; ++k) {
            const auto f = static_cast<unsigned char>(p[i + k]);
            if ((f & 0xC0) != 0x80) return Kodierung::Fremd;
            wert = (wert << 6) | (f & 0x3F);
        }
        // Overlong forms, surrogates and values past U+10FFFF are not UTF-8.
        if ((folge == 2 && wert < 0x800) || (folge == 3 && (wert < 0x10000 || wert > 0x10FFFF)) ||
            (wert >= 0xD800 && wert <= 0xDFFF))
            return Kodierung::Fremd;
        mehrbyte = true;
        i += folge + 1;
    }
    return mehrbyte ? Kodierung::Utf8 : Kodierung::Ascii;
}

// The end of the line that starts at `pos`, and where the next one starts.
qsizetype Zeilenende(const QByteArray& bytes, qsizetype pos, qsizetype& naechste) {
    const char* p = bytes.constData();
    const qsizetype n = bytes.size();
    qsizetype e = pos;
    while (e < n && p[e] != '\r' && p[e] != '\n')
        ++e;
    naechste = e;
    if (e < n) naechste = (p[e] == '\r' && e + 1 < n && p[e + 1] == '\n') ? e + 2 : e + 1;
    return e;
}

} // namespace

ZeilenLeser::ZeilenLeser(const QByteArray& bytes) : m_bytes(bytes) {
    if (m_bytes.startsWith("\xEF\xBB\xBF")) {
        m_pos = 3;
        m_utf8 = true;
    }
    // One pass over the lines: how many there are, and which encoding holds them. Nothing is
    // copied; a line is decoded only when it is read.
    int erstFremd = 0;
    bool utf8Gesehen = false;
    for (qsizetype pos = m_pos, naechste = 0; pos < m_bytes.size(); pos = naechste) {
        const qsizetype ende = Zeilenende(m_bytes, pos, naechste);
        ++m_zeilenGesamt;
        const Kodierung k = PruefeUtf8(m_bytes.constData() + pos, ende - pos);
        if (k == Kodierung::Utf8) utf8Gesehen = true;
        if (k == Kodierung::Fremd && erstFremd == 0) erstFremd = static_cast<int>(m_zeilenGesamt);
    }
    if (utf8Gesehen) m_utf8 = true;
    if (m_utf8) m_fremdeZeile = erstFremd;
}

QString ZeilenLeser::ReadLine() {
    if (AtEndOfStream()) throw FormatFehler(Zeilennummer() + 1, QStringLiteral("Die Datei endet zu früh."));
    qsizetype naechste = 0;
    const qsizetype ende = Zeilenende(m_bytes, m_pos, naechste);
    const QByteArray zeile = QByteArray::fromRawData(m_bytes.constData() + m_pos, ende - m_pos);
    m_pos = naechste;
    ++m_zeile;
    // In a UTF-8 file a line that isn't valid UTF-8 is read as Windows-1252, so nothing is lost.
    if (m_utf8 && PruefeUtf8(zeile.constData(), zeile.size()) != Kodierung::Fremd)
        return QString::fromUtf8(zeile);
    return Cp1252Codec::decode(zeile);
}

QStringList ZeilenAusBytes(const QByteArray& bytes) {
    ZeilenLeser leser(bytes);
    QStringList lines;
    while (!leser.AtEndOfStream())
        lines << leser.ReadLine();
    return lines;
}

QByteArray BytesAusZeilen(const QStringList& lines) {
    QByteArray out;
    bool ok = true;
    for (const QString& line : lines) {
        if (!Cp1252Codec::encode(line, out)) {
            ok = false;
            break;
        }
        out += "\r\n";
    }
    if (ok) return out;
    out = QByteArray("\xEF\xBB\xBF");
    for (const QString& line : lines) {
        out += line.toUtf8();
        out += "\r\n";
    }
    return out;
}

std::optional<QByteArray> LeseDatei(const QString& path, qint64 hoechstens, QString* grund) {
    QFile f(path);
    const QFileInfo info(path);
    const auto mb = [](qint64 n) { return QLocale(QLocale::German).toString(n / 1048576.0, 'f', 1); };
    if (info.isDir()) {
        if (grund) *grund = QStringLiteral("Unter diesem Namen steht ein Ordner, keine Datei.");
        return std::nullopt;
    }
    if (!f.open(QIODevice::ReadOnly)) {
        if (grund)
            *grund = info.exists()
                         ? QStringLiteral("Die Datei kann nicht geöffnet werden: %1.").arg(f.errorString())
                         : QStringLiteral("Die Datei existiert nicht.");
        return std::nullopt;
    }
    // A file of the program's own kinds never comes near the limit; reading stops at it in case
    // the file grows meanwhile or reports no size.
    const qint64 groesse = f.size();
    QByteArray bytes = groesse <= hoechstens ? f.read(hoechstens + 1) : QByteArray();
    if (groesse > hoechstens || bytes.size() > hoechstens) {
        if (grund)
            *grund = QStringLiteral("Die Datei ist %1 MB groß; eine Datei dieser Art hat höchstens %2 MB. "
                                    "Sie wurde nicht gelesen.")
                         .arg(mb(std::max(groesse, static_cast<qint64>(bytes.size()))), mb(hoechstens));
        return std::nullopt;
    }
    if (f.error() != QFileDevice::NoError) {
        if (grund) *grund = QStringLiteral("Die Datei kann nicht gelesen werden: %1.").arg(f.errorString());
        return std::nullopt;
    }
    return bytes;
}

FormatFehler::FormatFehler(int z, const QString& g)
    : std::runtime_error(QStringLiteral("Zeile %1: %2").arg(z).arg(g).toStdString()), zeile(z), grund(g) {}

void ZeilenLeser::Fehler(const QString& grund) const {
    throw FormatFehler(Zeilennummer(), grund);
}

int16_t ZeilenLeser::LeseInt16() {
    const QString t = ReadLine();
    const auto v = basic::ParseInt16(t);
    if (!v) Fehler(QStringLiteral("\"%1\" ist keine ganze Zahl.").arg(t.left(40)));
    return *v;
}

int32_t ZeilenLeser::LeseInt32() {
    const QString t = ReadLine();
    const auto v = basic::ParseInt32(t);
    if (!v) Fehler(QStringLiteral("\"%1\" ist keine ganze Zahl.").arg(t.left(40)));
    return *v;
}

int16_t ZeilenLeser::LeseBool() {
    const QString t = ReadLine();
    const auto v = basic::ParseBool(t);
    if (!v) Fehler(QStringLiteral("\"%1\" ist kein Wahrheitswert.").arg(t.left(40)));
    return basic::AlsWahrheit(*v);
}

double ZeilenLeser::LeseDouble() {
    const QString t = ReadLine();
    const auto v = basic::ParseDouble(t);
    if (!v) Fehler(QStringLiteral("\"%1\" ist keine Zahl.").arg(t.left(40)));
    return *v;
}

float ZeilenLeser::LeseSingle() {
    const double d = LeseDouble();
    if (std::abs(d) > 3.4e38) Fehler(QStringLiteral("Die Zahl ist zu groß."));
    return static_cast<float>(d);
}

double ZeilenLeser::LeseVal() {
    return basic::Val(ReadLine());
}

int ZeilenLeser::LeseAnzahl(int zeilenJeEintrag, int hoechstens) {
    const double d = LeseDouble();
    if (d < 0 || d != std::floor(d)) Fehler(QStringLiteral("Die Anzahl %1 ist ungültig.").arg(d));
    if (d > hoechstens)
        Fehler(QStringLiteral("Die Anzahl %1 ist größer, als das Programm verwalten kann (höchstens %2).")
                   .arg(d, 0, 'f', 0)
                   .arg(hoechstens));
    if (zeilenJeEintrag > 0 && d * zeilenJeEintrag > static_cast<double>(Restzeilen()))
        Fehler(QStringLiteral("Die Anzahl %1 passt nicht zur Länge der Datei.").arg(d));
    return static_cast<int>(d);
}

void ZeilenSchreiber::WriteDouble(double value) {
    m_lines << basic::DoubleText(value);
}
void ZeilenSchreiber::WriteSingle(float value) {
    m_lines << basic::SingleText(value);
}

QString EinzeiligesFeld(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

} // namespace zp
