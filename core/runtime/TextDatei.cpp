#include "core/runtime/TextDatei.h"

#include "core/runtime/Basic.h"
#include "core/runtime/Cp1252Codec.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <cmath>

namespace zp {

namespace {
bool hasMultibyteUtf8(const QByteArray& bytes) {
    for (const char c : bytes)
        if (static_cast<unsigned char>(c) >= 0x80) return true;
    return false;
}

QString decodeBytes(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) return QString::fromUtf8(bytes.constData() + 3, bytes.size() - 3);
    if (hasMultibyteUtf8(bytes)) {
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        QString text = utf8.decode(bytes);
        if (!utf8.hasError()) return text;
    }
    return Cp1252Codec::decode(bytes);
}
} // namespace

QStringList ZeilenAusBytes(const QByteArray& bytes) {
    const QString text = decodeBytes(bytes);
    QStringList lines;
    QString current;
    bool open = false; // a line has begun that no line end has closed yet
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\r' || c == u'\n') {
            lines << current;
            current.clear();
            open = false;
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
        } else {
            current += c;
            open = true;
        }
    }
    if (open) lines << current;
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

std::optional<QByteArray> LeseDatei(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return std::nullopt;
    return f.readAll();
}

bool SchreibeDateiAtomar(const QString& path, const QByteArray& bytes, QString* fehler) {
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.commit()) {
        if (fehler) *fehler = f.errorString();
        return false;
    }
    return true;
}

FormatFehler::FormatFehler(int z, const QString& g)
    : std::runtime_error(QStringLiteral("Zeile %1: %2").arg(z).arg(g).toStdString()), zeile(z), grund(g) {}

void ZeilenLeser::Fehler(const QString& grund) const {
    throw FormatFehler(Zeilennummer(), grund);
}

QString ZeilenLeser::ReadLine() {
    if (AtEndOfStream()) throw FormatFehler(Zeilennummer() + 1, QStringLiteral("Die Datei endet zu früh."));
    return m_lines[m_next++];
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

int ZeilenLeser::LeseAnzahl(int zeilenJeEintrag) {
    const double d = LeseDouble();
    if (d < 0 || d != std::floor(d)) Fehler(QStringLiteral("Die Anzahl %1 ist ungültig.").arg(d));
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
