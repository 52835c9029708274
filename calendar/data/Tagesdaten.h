#pragma once
// The day data of the calendar and the edit rules of the side panel: appointments and holidays by
// day and month (no year), their colours, the month pictures. The window binds its controls to
// these functions; they change the state and the panel fields, and the window mirrors them.

#include "model/Klassen.h"

#include <QDate>
#include <QString>
#include <vector>

namespace zp {
struct AppState;
class Oberflaeche;

// Years the date arithmetic can hold.
[[nodiscard]] constexpr bool JahrGueltig(int jahr) {
    return jahr >= 1 && jahr <= 9999;
}
// Last day of month m of the year (rolled over like the dates, so month 13 is next January).
[[nodiscard]] int LetzterTag(int jahr, int monat);

// All six day tables empty, month pictures and captions too (start-up and "Neu").
void TagesdatenLeeren(AppState& s);
// mnuFileNew of the calendar: asks, then clears tables, title and footer boxes, colour boxes, and
// names the data file "neu.zpd" in the program folder. Returns whether it cleared.
bool KalenderdatenNeu(AppState& s, Oberflaeche& ui);

// MonthView1 click: TextTermin and its colour boxes show the selected day.
void TerminAnzeigen(AppState& s);
// MonthView2 click: TextFeiertag and its colour boxes show the selected day; marks rebuilt.
void FeiertagAnzeigen(AppState& s);

// TextTermin changed: the text goes to the selected day and, with a range selected, to every day
// of it; an emptied text clears the colours of those days. Marks rebuilt.
void TextTerminGeaendert(AppState& s, const QString& text);
// TextFeiertag changed: the same for the selected day only (no range for holidays).
void TextFeiertagGeaendert(AppState& s, const QString& text);

// The four colour boxes of the panel.
enum class Tagesfarbe { TerminSchrift, TerminBack, FeiertagSchrift, FeiertagBack };
// Start colour of the colour dialog: the selected day's colour, white for none.
[[nodiscard]] Farbe TagesfarbeStart(const AppState& s, Tagesfarbe art);
// A colour chosen in the dialog: stored for the selected day (appointment colours for the whole
// range). The caller redraws the page. A cancelled dialog doesn't call this.
void TagesfarbeGewaehlt(AppState& s, Tagesfarbe art, Farbe farbe);

// The bold request of a month view: for i = 1..anzahl the date start + i (so the first date asked
// for is never looked at). Appointments for MonthView1, holidays for MonthView2.
[[nodiscard]] std::vector<bool> FettAnfrage(const AppState& s, bool feiertage, const QDate& start,
                                            int anzahl);
// 31 marks per view for the month shown, dates of short months rolling over into the next month.
// MonthView1 takes year and month from MonthView2, as it always has.
void TagesmarkenAufbauen(AppState& s);

// Month pictures: ComboMonat click (list index), caption and file changes. The file change returns
// whether the page is to be redrawn now: only for January and a file that exists.
void MonatsbildWaehlen(AppState& s, int listenindex);
void BildbeschreibungGeaendert(AppState& s, const QString& text);
bool BilddateiGeaendert(AppState& s, const QString& pfad);

// The file of a month picture as the drawing loads it: a relative name (the sample data's
// "daten/bilder/...") is looked for in the program folder when it isn't found as it stands.
[[nodiscard]] QString Monatsbildpfad(const AppState& s, const QString& datei);

// A click on a year in ComboJahr. A year the date arithmetic can't hold is refused with a message
// and changes nothing. Otherwise Kalenderjahr takes it, the user is asked whether the holidays are
// to be calculated anew (not while a design loads), the month views move to the year, and the
// panel shows the selected days. The caller redraws. Returns false when refused.
bool JahrGewaehlt(AppState& s, Oberflaeche& ui, int jahr);
// A year typed into ComboJahr: stored, nothing else; refused like a click when out of range.
bool JahrGetippt(AppState& s, Oberflaeche& ui, const QString& text);
// Enter in ComboJahr, or leaving it: a typed year that the month views don't show yet acts as a
// pick from the list. False for a text that is no year (told).
bool JahrBestaetigt(AppState& s, Oberflaeche& ui, const QString& text);
// A month view paged to another month: the bold marks of that month; the selected day stays, so
// that the boxes keep showing the day they belong to.
void MonatGeblaettert(AppState& s, bool feiertage, int jahr, int monat);
// The month views' range and selection set to the year (start-up, after a year change).
void MonatsansichtenAufJahr(AppState& s, int jahr);

} // namespace zp
