#pragma once
// The print run: works out how many pieces to print, walks the label positions of a sheet, steps
// through address records and calendar pages, and composes each piece on the printer.

#include <QString>
#include <functional>

namespace zp {
struct AppState;
class Canvas;
class Druckausgabe;
class Oberflaeche;

// Which addresses a run prints ("Aktive Adresse drucken" ... "Alle Adressen drucken").
enum class Adresswahl { Aktiv = 1, Bereich = 2, Kategorie = 3, Alle = 4 };

// What the run reads from the print dialog's boxes, as the user typed them.
struct Druckwahl {
    QString Kopien = QStringLiteral("1");       // "Kopien"
    QString Seriennummer = QStringLiteral("1"); // "Erste Seriennummer"
    bool SeiteDrucken = false;                  // "Seite drucken": copies count whole sheets
    Adresswahl Adressen = Adresswahl::Aktiv;
    QString Von, Bis;  // "Adressenbereich drucken": from and to
    QString Kategorie; // "Nur eine Kategorie drucken"
};

// The routines a run calls. Tests put a recording composition here; the program wires the central
// composition and the record panel.
struct Druckhilfen {
    // Composes one piece on the printer canvas (the central redraw while DruckenAktiv is set).
    std::function<void(AppState&, Canvas&)> Komposition;
    // Loads record DatensatzNummer into the side panel (Text1(21) ... Text1(30)).
    std::function<void(AppState&)> ZeigeDatensatz;
    // After every piece: pages begun so far. Returning false cancels the run after that piece.
    std::function<bool(int seiten)> Fortschritt;
};

enum class Druckergebnis { Gedruckt, Abgebrochen, Fehler };

Druckergebnis PrintDocument(AppState& s, Oberflaeche& o, Druckausgabe& ausgabe, const Druckwahl& wahl,
                            const Druckhilfen& hilfen);

// The origin shift that the composition makes at its start on the printer: the window origin moves
// by -DruckversatzX/Y converted to device pixels, each truncated.
void WendeDruckversatzAn(const AppState& s, Canvas& c);

// Pages of a calendar type: Halbjahr 2, Jahr A5 and Tasche 1, Monat 12, Woche 53, Planer 4.
[[nodiscard]] int SeitenanzahlDesTyps(int kalendertyp);

// Week counters of the Woche calendar: WocheTag/WocheMonat for page `seite` of Kalenderjahr,
// counted from day 0 of January, the first page ending on the first Sunday of the year.
void WocheAufSeite(AppState& s, int seite);
// One page on: the counters move from the start of page `seite` to that of the next page.
void WocheWeiter(AppState& s, int seite);

} // namespace zp
