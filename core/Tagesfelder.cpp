#include "Tagesfelder.h"

#include "AppState.h"

namespace zp {

namespace {

bool Gueltig(const QDate& d) {
    return d.isValid();
}

template <typename S> auto& Tabelle_(S& s, Tagesfarbe art) {
    switch (art) {
    case Tagesfarbe::TerminSchrift:
        return s.TerminSchrift;
    case Tagesfarbe::TerminBack:
        return s.TerminBack;
    case Tagesfarbe::FeiertagSchrift:
        return s.FeiertagSchrift;
    case Tagesfarbe::FeiertagBack:
        return s.FeiertagBack;
    }
    return s.TerminSchrift;
}

// The further days of a range: from the day after SelStart to the day of SelEnd, in the month of
// the selected day. A range over the end of a month therefore reaches no further slot.
template <typename F> void UeberBereich(const Tagesauswahl& a, F f) {
    if (!Gueltig(a.start) || !Gueltig(a.ende) || !Gueltig(a.aktuell)) return;
    if (a.ende.toJulianDay() - a.start.toJulianDay() <= 0) return;
    const int monat = a.aktuell.month();
    for (int tag = a.start.addDays(1).day(); tag <= a.ende.day(); ++tag)
        f(tag, monat);
}

} // namespace

void TerminEingabe(AppState& s, const Tagesauswahl& a, const QString& text) {
    if (!Gueltig(a.aktuell)) return;
    const int t = a.aktuell.day(), m = a.aktuell.month();
    if (s.Termine(t, m) != text) s.Termine(t, m) = text;
    auto leereFarben = [&](int tag, int monat) {
        s.TerminBack(tag, monat) = -1;
        s.TerminSchrift(tag, monat) = -1;
    };
    if (text.isEmpty()) leereFarben(t, m);
    UeberBereich(a, [&](int tag, int monat) {
        s.Termine(tag, monat) = text;
        if (text.isEmpty()) leereFarben(tag, monat);
    });
}

void FeiertagEingabe(AppState& s, const QDate& tag, const QString& text) {
    if (!Gueltig(tag)) return;
    const int t = tag.day(), m = tag.month();
    if (s.Feiertage(t, m) != text) s.Feiertage(t, m) = text;
    if (text.isEmpty()) {
        s.FeiertagBack(t, m) = -1;
        s.FeiertagSchrift(t, m) = -1;
    }
}

Farbe TagesfarbeLesen(const AppState& s, Tagesfarbe art, const QDate& tag) {
    if (!Gueltig(tag)) return -1;
    return Tabelle_(s, art)(tag.day(), tag.month());
}

void TagesfarbeSetzen(AppState& s, Tagesfarbe art, const Tagesauswahl& a, Farbe farbe) {
    if (!Gueltig(a.aktuell)) return;
    auto& t = Tabelle_(s, art);
    t(a.aktuell.day(), a.aktuell.month()) = farbe;
    if (art == Tagesfarbe::TerminSchrift || art == Tagesfarbe::TerminBack)
        UeberBereich(a, [&](int tag, int monat) { t(tag, monat) = farbe; });
}

QString TerminText(const AppState& s, const QDate& tag) {
    return Gueltig(tag) ? s.Termine(tag.day(), tag.month()) : QString();
}

QString FeiertagText(const AppState& s, const QDate& tag) {
    return Gueltig(tag) ? s.Feiertage(tag.day(), tag.month()) : QString();
}

} // namespace zp
