#include "calendar/data/Geburtstage.h"

#include "core/state/AppState.h"
#include "persist/Datensaetze.h"

#include <QDate>
#include <QRegularExpression>

namespace zp {

std::optional<Geburtsdatum> LeseGeburtsdatum(const QString& feld) {
    static const QRegularExpression muster(QStringLiteral(R"(^\s*(\d{1,2})\.(\d{1,2})\.(\d{4})?\s*$)"));
    const auto treffer = muster.match(feld);
    if (!treffer.hasMatch()) return std::nullopt;
    Geburtsdatum g{treffer.captured(1).toInt(), treffer.captured(2).toInt(), treffer.captured(3).toInt()};
    // Without a year the day must exist in some year: 29.02. does, 31.02. doesn't.
    if (!QDate::isValid(g.jahr > 0 ? g.jahr : 2000, g.monat, g.tag)) return std::nullopt;
    return g;
}

namespace {

// Whether the text looks like a day and month at all, so that 31.02. counts as a faulty date
// rather than as some other text.
bool SiehtAusWieDatum(const QString& feld) {
    static const QRegularExpression muster(QStringLiteral(R"(^\s*\d{1,2}\.\d{1,2}\.(\d{4})?\s*$)"));
    return muster.match(feld).hasMatch();
}

bool ZeileSteht(const QString& termin, const QString& zeile) {
    return termin.split(QStringLiteral("\r\n")).contains(zeile);
}

} // namespace

Geburtstagsbilanz GeburtstageEintragen(AppState& s, const Datenbank& db) {
    Geburtstagsbilanz b;
    const int jahr = static_cast<int>(s.Kalenderjahr);
    const int felder = db.Datensaetze.Obergrenze1();
    for (int r = 1; r <= db.DatensatzAnzahl && db.Datensaetze.Gueltig(1, r); ++r) {
        QString name = db.Datensaetze(1, r).trimmed();
        if (name.isEmpty()) name = QStringLiteral("Geburtstag");
        for (int f = 2; f <= felder; ++f) {
            const QString& feld = db.Datensaetze(f, r);
            const auto datum = LeseGeburtsdatum(feld);
            if (!datum) {
                if (SiehtAusWieDatum(feld)) ++b.unmoeglich;
                continue;
            }
            if (datum->jahr > jahr) {
                ++b.inZukunft;
                continue;
            }
            QString zeile = name;
            if (datum->jahr > 0) zeile += QStringLiteral(" (%1)").arg(jahr - datum->jahr);
            int tag = datum->tag;
            if (datum->monat == 2 && tag == 29 && !QDate::isLeapYear(jahr)) tag = 28;

            QString& termin = s.Termine(tag, datum->monat);
            if (ZeileSteht(termin, zeile)) {
                ++b.schonDa;
                continue;
            }
            termin = termin.isEmpty() ? zeile : termin + QStringLiteral("\r\n") + zeile;
            ++b.uebernommen;
        }
    }
    return b;
}

QString Bilanztext(const Geburtstagsbilanz& b) {
    QString text = b.uebernommen == 1 ? QStringLiteral("1 Geburtstag übernommen.")
                                      : QStringLiteral("%1 Geburtstage übernommen.").arg(b.uebernommen);
    if (b.schonDa == 1) text += QStringLiteral(" 1 stand schon im Kalender.");
    if (b.schonDa > 1) text += QStringLiteral(" %1 standen schon im Kalender.").arg(b.schonDa);
    if (b.inZukunft > 0)
        text +=
            QStringLiteral(" %1 mit einem Geburtsjahr nach dem Kalenderjahr ausgelassen.").arg(b.inZukunft);
    if (b.unmoeglich == 1) text += QStringLiteral(" 1 ungültiges Datum ausgelassen.");
    if (b.unmoeglich > 1) text += QStringLiteral(" %1 ungültige Daten ausgelassen.").arg(b.unmoeglich);
    return text;
}

} // namespace zp
