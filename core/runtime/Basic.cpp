#include "core/runtime/Basic.h"

#include <cmath>
#include <limits>

namespace zp::basic {

double Val(QStringView text) {
    qsizetype i = 0;
    const qsizetype n = text.size();
    auto isBlank = [](QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; };
    while (i < n && isBlank(text[i]))
        ++i;
    QString number;
    if (i < n && (text[i] == u'-' || text[i] == u'+')) {
        number += text[i];
        ++i;
    }
    bool digits = false;
    while (i < n && text[i].isDigit() && text[i].unicode() < 128) {
        number += text[i++];
        digits = true;
    }
    if (i < n && text[i] == u'.') {
        number += u'.';
        ++i;
        while (i < n && text[i].isDigit() && text[i].unicode() < 128) {
            number += text[i++];
            digits = true;
        }
    }
    if (!digits) return 0.0;
    // An exponent only counts when at least one digit follows it.
    if (i < n && (text[i] == u'e' || text[i] == u'E' || text[i] == u'd' || text[i] == u'D')) {
        qsizetype j = i + 1;
        QString exponent = QStringLiteral("e");
        if (j < n && (text[j] == u'-' || text[j] == u'+')) exponent += text[j++];
        bool expDigits = false;
        while (j < n && text[j].isDigit() && text[j].unicode() < 128) {
            exponent += text[j++];
            expDigits = true;
        }
        if (expDigits) number += exponent;
    }
    bool ok = false;
    const double v = number.toDouble(&ok);
    return ok && std::isfinite(v) ? v : 0.0;
}

namespace {

// Shortest text with at most `digits` significant digits, point separator, runtime exponent form.
QString shortestText(double value, int digits) {
    if (value == 0.0) return QStringLiteral("0");
    QString t = QString::number(value, 'g', digits);
    const qsizetype e = t.indexOf(u'e');
    if (e < 0) return t;
    // Qt writes "1e+20", the runtime "1E+20"; two exponent digits at least.
    QString mantissa = t.left(e);
    QString exponent = t.mid(e + 1);
    QChar sign = u'+';
    if (exponent.startsWith(u'-') || exponent.startsWith(u'+')) {
        sign = exponent[0];
        exponent = exponent.mid(1);
    }
    while (exponent.size() < 2)
        exponent.prepend(u'0');
    return mantissa + u'E' + sign + exponent;
}

} // namespace

QString Str(double value) {
    QString t = shortestText(value, 15);
    if (t.startsWith(u"0."))
        t = t.mid(1); // the runtime writes ".5", not "0.5"
    else if (t.startsWith(u"-0."))
        t = u'-' + t.mid(2);
    return value < 0 ? t : u' ' + t;
}

QString DoubleText(double value) {
    QString t = shortestText(value, 15);
    t.replace(u'.', u',');
    return t;
}

QString SingleText(float value) {
    QString t = shortestText(static_cast<double>(value), 7);
    t.replace(u'.', u',');
    return t;
}

std::optional<double> ParseDouble(QStringView text) {
    QString t = text.trimmed().toString();
    if (t.isEmpty()) return std::nullopt;
    // German regional rules: the comma is the separator; a point is accepted as well, so that
    // files written on systems without regional settings still read.
    if (t.contains(u',') && t.contains(u'.')) t.remove(u'.'); // "1.234,5": the point groups thousands
    t.replace(u',', u'.');
    bool ok = false;
    const double v = t.toDouble(&ok);
    if (!ok || !std::isfinite(v)) return std::nullopt;
    return v;
}

double RoundHalfEven(double value) {
    return std::nearbyint(value);
}

namespace {
template <typename T> std::optional<T> parseInteger(QStringView text) {
    std::optional<double> d;
    const QString t = text.trimmed().toString();
    if (t.compare(u"True", Qt::CaseInsensitive) == 0 || t.compare(u"Wahr", Qt::CaseInsensitive) == 0)
        d = -1.0;
    else if (t.compare(u"False", Qt::CaseInsensitive) == 0 || t.compare(u"Falsch", Qt::CaseInsensitive) == 0)
        d = 0.0;
    else
        d = ParseDouble(t);
    if (!d) return std::nullopt;
    const double r = RoundHalfEven(*d);
    if (r < static_cast<double>(std::numeric_limits<T>::min()) ||
        r > static_cast<double>(std::numeric_limits<T>::max()))
        return std::nullopt;
    return static_cast<T>(r);
}
} // namespace

std::optional<int16_t> ParseInt16(QStringView text) {
    return parseInteger<int16_t>(text);
}
std::optional<int32_t> ParseInt32(QStringView text) {
    return parseInteger<int32_t>(text);
}

std::optional<bool> ParseBool(QStringView text) {
    const QString t = text.trimmed().toString();
    if (t.compare(u"True", Qt::CaseInsensitive) == 0 || t.compare(u"Wahr", Qt::CaseInsensitive) == 0)
        return true;
    if (t.compare(u"False", Qt::CaseInsensitive) == 0 || t.compare(u"Falsch", Qt::CaseInsensitive) == 0)
        return false;
    const auto d = ParseDouble(t);
    if (!d) return std::nullopt;
    return *d != 0.0;
}

QDate DateSerial(int year, int month, int day) {
    int m0 = month - 1;
    int y = year + (m0 >= 0 ? m0 / 12 : -((11 - m0) / 12));
    int m = ((m0 % 12) + 12) % 12 + 1;
    return QDate(y, m, 1).addDays(static_cast<qint64>(day) - 1);
}

int Weekday(const QDate& date) {
    return date.dayOfWeek() % 7 + 1;
}

} // namespace zp::basic
