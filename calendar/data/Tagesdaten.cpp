#include "calendar/data/Tagesdaten.h"

#include "calendar/data/Feiertage.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

#include <QFileInfo>

#include <cmath>

namespace zp {

using basic::DateSerial;

namespace {

constexpr Farbe kWeiss = 0xFFFFFF;

Farbe OderWeiss(Farbe f) {
    return f == -1 ? kWeiss : f;
}

// Day and month of a view's current date; false when the view has none (no year chosen yet).
bool GewaehlterTag(const Monatsansicht& v, int& tag, int& monat) {
    if (!v.Value.isValid()) return false;
    tag = v.Value.day();
    monat = v.Value.month();
    return true;
}

// Days SelStart + 1 .. SelEnd of a range selection, by day number in the selected month.
template <typename F> void UeberAuswahl(const Monatsansicht& v, int monat, F&& f) {
    if (!v.SelStart.isValid() || !v.SelEnd.isValid() || v.SelStart.daysTo(v.SelEnd) <= 0) return;
    for (int tag = v.SelStart.day() + 1; tag <= v.SelEnd.day() && tag <= 31; ++tag)
        f(tag, monat);
}

void MarkenSetzen(Monatsansicht& v, int jahr, int monat, const Tabelle<QString>& tabelle) {
    if (!JahrGueltig(jahr) || monat < 1 || monat > 12) return;
    for (int tag = 1; tag <= 31; ++tag) {
        const QDate datum = DateSerial(jahr, monat, tag);
        if (tabelle(tag, monat).isEmpty())
            v.Fett.remove(datum);
        else
            v.Fett.insert(datum);
    }
}

QDate ImJahr(const QDate& d, int jahr) {
    if (!d.isValid()) return DateSerial(jahr, 1, 1);
    // 29 February of a leap year becomes 28 February.
    return QDate(jahr, d.month(), std::min(d.day(), LetzterTag(jahr, d.month())));
}

} // namespace

int LetzterTag(int jahr, int monat) {
    return DateSerial(jahr, monat + 1, 0).day();
}

void TagesdatenLeeren(AppState& s) {
    s.Termine.Fuelle(QString());
    s.TerminSchrift.Fuelle(-1);
    s.TerminBack.Fuelle(-1);
    s.Feiertage.Fuelle(QString());
    s.FeiertagSchrift.Fuelle(-1);
    s.FeiertagBack.Fuelle(-1);
    for (int m = 1; m <= 12; ++m) {
        s.Monatsbilder(m).clear();
        s.Monatsbildtexte(m).clear();
    }
}

bool KalenderdatenNeu(AppState& s, Oberflaeche& ui) {
    if (!ui.Frage(QStringLiteral("Sollen die aktuellen Daten gelöscht werden?"), QStringLiteral("Neu")))
        return false;
    // A new calendar keeps its month pictures and their captions: only the day data go.
    const Liste<QString> bilder = s.Monatsbilder;
    const Liste<QString> bildtexte = s.Monatsbildtexte;
    TagesdatenLeeren(s);
    s.Monatsbilder = bilder;
    s.Monatsbildtexte = bildtexte;
    Seitenleiste& p = s.Panel;
    p.TextTitel.clear();
    p.TextUnterschrift.clear();
    p.TextTermin.clear();
    p.TextFeiertag.clear();
    p.PictureTextfarbe = p.PictureHintergrundfarbe = kWeiss;
    p.PictureFeiertagSchrift = p.PictureFeiertagBack = kWeiss;
    s.Datendatei = s.Programmpfad + QStringLiteral("neu.zpd");
    TagesmarkenAufbauen(s);
    ui.PanelAktualisieren();
    ui.StatusDatei(s.Datendatei);
    return true;
}

void TerminAnzeigen(AppState& s) {
    int tag, monat;
    if (!GewaehlterTag(s.Panel.MonthView1, tag, monat)) return;
    s.Panel.TextTermin = s.Termine(tag, monat);
    s.Panel.PictureTextfarbe = OderWeiss(s.TerminSchrift(tag, monat));
    s.Panel.PictureHintergrundfarbe = OderWeiss(s.TerminBack(tag, monat));
}

void FeiertagAnzeigen(AppState& s) {
    Monatsansicht& v = s.Panel.MonthView2;
    int tag, monat;
    if (!GewaehlterTag(v, tag, monat)) return;
    s.Panel.TextFeiertag = s.Feiertage(tag, monat);
    s.Panel.PictureFeiertagSchrift = OderWeiss(s.FeiertagSchrift(tag, monat));
    s.Panel.PictureFeiertagBack = OderWeiss(s.FeiertagBack(tag, monat));
    MarkenSetzen(v, v.Value.year(), monat, s.Feiertage);
}

void TextTerminGeaendert(AppState& s, const QString& text) {
    Monatsansicht& v = s.Panel.MonthView1;
    int tag, monat;
    if (!GewaehlterTag(v, tag, monat)) return;
    s.Panel.TextTermin = text;
    s.Termine(tag, monat) = text;
    if (text.isEmpty()) {
        s.TerminBack(tag, monat) = -1;
        s.TerminSchrift(tag, monat) = -1;
        s.Panel.PictureHintergrundfarbe = s.Panel.PictureTextfarbe = kWeiss;
    }
    UeberAuswahl(v, monat, [&](int t, int m) {
        s.Termine(t, m) = text;
        if (text.isEmpty()) s.TerminBack(t, m) = s.TerminSchrift(t, m) = -1;
    });
    MarkenSetzen(v, v.Value.year(), monat, s.Termine);
}

void TextFeiertagGeaendert(AppState& s, const QString& text) {
    Monatsansicht& v = s.Panel.MonthView2;
    int tag, monat;
    if (!GewaehlterTag(v, tag, monat)) return;
    s.Panel.TextFeiertag = text;
    s.Feiertage(tag, monat) = text;
    if (text.isEmpty()) {
        s.FeiertagBack(tag, monat) = -1;
        s.FeiertagSchrift(tag, monat) = -1;
        s.Panel.PictureFeiertagBack = s.Panel.PictureFeiertagSchrift = kWeiss;
    }
    MarkenSetzen(v, v.Value.year(), monat, s.Feiertage);
}

namespace {
Tabelle<Farbe>& FarbTabelle(AppState& s, Tagesfarbe art) {
    switch (art) {
    case Tagesfarbe::TerminSchrift:
        return s.TerminSchrift;
    case Tagesfarbe::TerminBack:
        return s.TerminBack;
    case Tagesfarbe::FeiertagSchrift:
        return s.FeiertagSchrift;
    case Tagesfarbe::FeiertagBack:
        break;
    }
    return s.FeiertagBack;
}
Farbe& FarbKasten(Seitenleiste& p, Tagesfarbe art) {
    switch (art) {
    case Tagesfarbe::TerminSchrift:
        return p.PictureTextfarbe;
    case Tagesfarbe::TerminBack:
        return p.PictureHintergrundfarbe;
    case Tagesfarbe::FeiertagSchrift:
        return p.PictureFeiertagSchrift;
    case Tagesfarbe::FeiertagBack:
        break;
    }
    return p.PictureFeiertagBack;
}
bool IstTermin(Tagesfarbe art) {
    return art == Tagesfarbe::TerminSchrift || art == Tagesfarbe::TerminBack;
}
} // namespace

Farbe TagesfarbeStart(const AppState& s, Tagesfarbe art) {
    const Monatsansicht& v = IstTermin(art) ? s.Panel.MonthView1 : s.Panel.MonthView2;
    int tag, monat;
    if (!GewaehlterTag(v, tag, monat)) return kWeiss;
    return OderWeiss(FarbTabelle(const_cast<AppState&>(s), art)(tag, monat));
}

void TagesfarbeGewaehlt(AppState& s, Tagesfarbe art, Farbe farbe) {
    const Monatsansicht& v = IstTermin(art) ? s.Panel.MonthView1 : s.Panel.MonthView2;
    int tag, monat;
    if (!GewaehlterTag(v, tag, monat)) return;
    Tabelle<Farbe>& tabelle = FarbTabelle(s, art);
    tabelle(tag, monat) = farbe;
    if (IstTermin(art)) UeberAuswahl(v, monat, [&](int t, int m) { tabelle(t, m) = farbe; });
    FarbKasten(s.Panel, art) = farbe;
}

std::vector<bool> FettAnfrage(const AppState& s, bool feiertage, const QDate& start, int anzahl) {
    std::vector<bool> zustand(static_cast<size_t>(std::max(anzahl, 0)) + 1, false);
    const Tabelle<QString>& tabelle = feiertage ? s.Feiertage : s.Termine;
    for (int i = 1; i <= anzahl; ++i) {
        const QDate datum = start.addDays(i);
        if (!datum.isValid()) break;
        zustand[static_cast<size_t>(i)] = !tabelle(datum.day(), datum.month()).isEmpty();
    }
    return zustand;
}

void TagesmarkenAufbauen(AppState& s) {
    const QDate& v2 = s.Panel.MonthView2.Value;
    if (!v2.isValid()) return;
    MarkenSetzen(s.Panel.MonthView2, v2.year(), v2.month(), s.Feiertage);
    MarkenSetzen(s.Panel.MonthView1, v2.year(), v2.month(), s.Termine);
}

void MonatsbildWaehlen(AppState& s, int listenindex) {
    if (listenindex < 0 || listenindex > 11) return;
    s.Panel.ComboMonat = listenindex;
    s.Panel.Textbilddatei = s.Monatsbilder(listenindex + 1);
    s.Panel.TextBildbeschreibung = s.Monatsbildtexte(listenindex + 1);
}

void BildbeschreibungGeaendert(AppState& s, const QString& text) {
    s.Panel.TextBildbeschreibung = text;
    s.Monatsbildtexte(s.Panel.ComboMonat + 1) = text;
}

bool BilddateiGeaendert(AppState& s, const QString& pfad) {
    s.Panel.Textbilddatei = pfad;
    s.Monatsbilder(s.Panel.ComboMonat + 1) = pfad;
    // The January page is the one on screen after most changes; others show at the next redraw.
    return s.Panel.ComboMonat == 0 && !pfad.isEmpty() && QFileInfo::exists(pfad);
}

QString Monatsbildpfad(const AppState& s, const QString& datei) {
    if (datei.isEmpty() || QFileInfo(datei).isAbsolute() || QFileInfo::exists(datei)) return datei;
    const QString imOrdner = s.Programmpfad + datei;
    return QFileInfo::exists(imOrdner) ? imOrdner : datei;
}

void MonatsansichtenAufJahr(AppState& s, int jahr) {
    if (!JahrGueltig(jahr)) return;
    for (Monatsansicht* v : {&s.Panel.MonthView1, &s.Panel.MonthView2}) {
        v->MinDate = QDate(jahr, 1, 1);
        v->MaxDate = QDate(jahr, 12, 31);
        v->Value = ImJahr(v->Value, jahr);
        v->SelStart = ImJahr(v->SelStart.isValid() ? v->SelStart : v->Value, jahr);
        v->SelEnd = ImJahr(v->SelEnd.isValid() ? v->SelEnd : v->Value, jahr);
        v->Fett.clear();
    }
}

namespace {
void MeldeJahr(Oberflaeche& ui) {
    ui.Meldung(QStringLiteral("Bitte geben Sie ein Jahr zwischen 1 und 9999 ein."),
               QStringLiteral("Warnung!"));
}
} // namespace

bool JahrGewaehlt(AppState& s, Oberflaeche& ui, int jahr) {
    if (!JahrGueltig(jahr)) {
        MeldeJahr(ui);
        return false;
    }
    s.Kalenderjahr = jahr;
    if (s.LadeSperre == 0 &&
        ui.Frage(QStringLiteral("Sollen die Feiertage neu berechnet werden?"), QStringLiteral("Feiertage")))
        BerechneFeiertage(s);
    MonatsansichtenAufJahr(s, jahr);
    TerminAnzeigen(s);
    FeiertagAnzeigen(s);
    TagesmarkenAufbauen(s);
    ui.PanelAktualisieren();
    ui.Neuzeichnen();
    return true;
}

bool JahrGetippt(AppState& s, Oberflaeche& ui, const QString& text) {
    const auto wert = basic::ParseDouble(text);
    if (!wert || *wert != std::floor(*wert) || !JahrGueltig(static_cast<int>(*wert))) {
        MeldeJahr(ui);
        return false;
    }
    s.Kalenderjahr = *wert;
    return true;
}

bool JahrBestaetigt(AppState& s, Oberflaeche& ui, const QString& text) {
    if (!JahrGetippt(s, ui, text)) return false;
    const int jahr = static_cast<int>(s.Kalenderjahr);
    if (s.Panel.MonthView1.MinDate.isValid() && s.Panel.MonthView1.MinDate.year() == jahr) return true;
    return JahrGewaehlt(s, ui, jahr);
}

void MonatGeblaettert(AppState& s, bool feiertage, int jahr, int monat) {
    if (feiertage)
        MarkenSetzen(s.Panel.MonthView2, jahr, monat, s.Feiertage);
    else
        MarkenSetzen(s.Panel.MonthView1, jahr, monat, s.Termine);
}

} // namespace zp
