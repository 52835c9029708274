#pragma once
// The print dialog's "Drucken", "als Bild speichern" and "in Word exportieren" as commands: the
// dialog and the command line hand over the same boxes, read here once.

#include "output/Druckauftrag.h"

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

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

// The first label of the sheet as the box reads: its number, at least 1.
[[nodiscard]] double ErstesEtikettAus(const QString& text);
// The boxes as the print run's request.
[[nodiscard]] Druckauftrag AlsDruckauftrag(const Druckdialogwerte& w);

// The file for the printer "PDF-Datei", asked through the window; ".pdf" is added when missing.
// Empty when the user cancelled.
[[nodiscard]] QString PdfDateiWaehlen(Oberflaeche& ui);

// "Drucken": the first label into the state, then the run on the chosen printer. For "PDF-Datei"
// without a file the user is asked for it. The pages go to a draft beside the file; only a whole
// job takes the user's name, so that a cancelled run leaves no half file and an older file stays.
Druckergebnis BefehlDrucken(AppState& s, Oberflaeche& ui, Druckdialogwerte w,
                            const Druckfortschritt& fortschritt = {});

// mnuBildSpeichern: the page as a BMP file in the export zoom. A failure is told.
bool BefehlBildSpeichern(AppState& s, Oberflaeche& ui, const QString& datei);

// mnuWord: the page in a text document at `ziel` (empty: asked, with a new name in the documents
// folder as the suggestion), opened on the desktop with `oeffnen`. Returns whether it was written.
bool BefehlWord(AppState& s, Oberflaeche& ui, QString ziel, bool oeffnen);

} // namespace zp
