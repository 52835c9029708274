#pragma once
// The functions of the other areas that the window's commands call: design and day-data files,
// settings, catalogues, records, holidays, printing. The commands go through this table so that
// an entry whose function isn't part of the build yet can be shown disabled instead of doing
// nothing, and so that tests can watch the calls.

#include <QString>
#include <functional>

class QImage;

namespace zp {
struct AppState;
class Oberflaeche;

// A file or state operation on the application state. Returns false when it failed; the
// operation itself has told the user why.
using Dienst = std::function<bool(AppState&, Oberflaeche&)>;

// What the print dialog frmDrucken hands to the print run: its boxes as the user left them. The
// print run repairs what is out of range.
struct Druckdialogwerte {
    QString Drucker;        // device name from Combo1; "" for the default
    QString PdfDatei;       // the file of "PDF-Datei", asked before anything else; "" to ask then
    QString Kopien;         // Text1
    QString TextDruckStart; // first and last calendar page
    QString TextDruckEnde;
    QString TextProzent; // print size of a calendar, percent
    QString TextStart;   // first label of the sheet to print on
    QString TextSeriennummer;
    int Adressen = 1;      // Option1 ... Option4: active record, range, category, all
    QString Von, Bis;      // Text2, Text3: the record range
    QString Kategorie;     // Text4
    bool EineKarte = true; // Option5 "Eine Karte drucken", else Option6 "Seite drucken"
};

struct Dokumentdienste {
    Dienst LoadDesign;     // reads AktuelleDatei, or the built-in document when Ladevorgabe is "neu"
    Dienst SaveDesign;     // writes AktuelleDatei
    Dienst LadeDaten;      // reads the calendar's day data from Datendatei
    Dienst SpeichereDaten; // writes them to Datendatei
    Dienst ImportKal;      // reads an old calendar file named by Datendatei

    Dienst LadeDatensaetze; // daten.dat, read at start of the business cards

    Dienst SaveSettings;         // zp.ini
    Dienst SaveKalenderIni;      // kalender.ini
    Dienst SaveKartenformate;    // etikett.ini
    Dienst SpeichereDatensaetze; // daten.dat
    Dienst SitzungSichern;       // the last session, for the next start

    Dienst CommandBerechnen; // holidays of Kalenderjahr into the day tables
    Dienst KalenderNeu;      // the calendar's New: asks, then empties the day data

    // The print run of frmDrucken's "Drucken"; the last argument learns the pages printed and
    // expected, and stops the run by returning false.
    std::function<bool(AppState&, Oberflaeche&, const Druckdialogwerte&,
                       const std::function<bool(int, int)>&)>
        Drucken;

    // The page picture as the view shows it, composed at the present zoom. Unset, the view shows
    // the bare sheet.
    std::function<QImage(AppState&)> Seitenbild;
    // mnuBildSpeichern: the page as a BMP file under the given name.
    std::function<bool(AppState&, Oberflaeche&, const QString&)> BildSpeichern;
    // mnuWord: the page in a new text document, opened on the desktop.
    Dienst Word;
};

// Runs one operation if it is bound. An exception from it is told to the user and never ends the
// program; the result is then false.
bool DienstAusfuehren(const Dienst& dienst, AppState& s, Oberflaeche& ui);

} // namespace zp
