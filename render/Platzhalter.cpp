#include "render/Platzhalter.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

namespace zp {

namespace {
// Replaces the first occurrence of `wort` by `ersatz` and keeps what stands behind it.
void ErsetzeErstes(QString& s, QStringView wort, const QString& ersatz) {
    const qsizetype p = s.indexOf(wort); // case-sensitive, as typed
    if (p < 0) return;
    s = s.left(p) + ersatz + s.mid(p + wort.size());
}
} // namespace

QString ErsetzePlatzhalter(AppState& s, QString text, const QDateTime& jetzt) {
    if (!text.contains(QLatin1Char('#'))) return text;
    ErsetzeErstes(text, u"#Datum", jetzt.date().toString(QStringLiteral("dd.MM.yyyy")));
    ErsetzeErstes(text, u"#Zeit", jetzt.time().toString(QStringLiteral("HH:mm:ss")));
    ErsetzeErstes(text, u"#Seriennummer", basic::DoubleText(s.Seriennummer).trimmed());

    // Every "#Feld" with two characters behind it takes the text of that panel box; the keyword
    // and its two characters always give way, whatever they hold. A field text that brings the
    // keyword again is expanded in turn, up to 99 passes.
    int zaehler = 1;
    qsizetype p = 1;
    while (p > 0 && zaehler < 100) {
        p = text.indexOf(u"#Feld") + 1; // 1-based, 0 for none
        ++zaehler;
        if (p == 0) continue;
        const double n = basic::Val(QStringView(text).mid(p + 4, 2));
        const int box = static_cast<int>(basic::RoundHalfEven(n));
        if (n > 0 && n < 31 && box >= 1 && box <= s.Panel.Text1.Obergrenze()) s.Feldtext = s.Panel.Text1(box);
        const qsizetype rest = text.size() - p - 6;
        if (rest >= 0) text = text.left(p - 1) + s.Feldtext + text.right(rest);
    }
    return text;
}

QString ErsetzePlatzhalter(AppState& s, QString text) {
    if (!text.contains(QLatin1Char('#'))) return text; // no keyword: spare asking for the clock
    return ErsetzePlatzhalter(s, std::move(text), QDateTime::currentDateTime());
}

} // namespace zp
