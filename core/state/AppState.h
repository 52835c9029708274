#pragma once
// The application state: one record that the application owns and passes by reference.
// Lists are numbered from 1 with index 0 empty; counters are doubles; flags are -1/0.
// Nothing here is a widget: texts of the side panel that the document depends on are held in
// `Panel`, and the main window mirrors them.

#include "core/runtime/Liste.h"
#include "core/state/Massstab.h"
#include "core/state/Verlauf.h"
#include "model/Klassen.h"
#include "model/SeiteEtikett.h"

#include <QDate>
#include <QSet>
#include <QString>
#include <cstdint>
#include <memory>

namespace zp {

class Bildwerk; // render/Bildwerk.h

// The side panel's texts that the document reads: `Text1(1)` ... `Text1(30)` and the calendar's
// title and footer boxes. Held here so that the headless core composes what the window shows.
// A month view of the calendar panel, as far as the day data depend on it: the current date, the
// selected range (SelStart..SelEnd), the year range and the bold marks. The month shown is that
// of `Value`.
struct Monatsansicht {
    QDate Value;
    QDate SelStart;
    QDate SelEnd;
    QDate MinDate;
    QDate MaxDate;
    QSet<QDate> Fett; // days marked bold
};

struct Seitenleiste {
    Liste<QString> Text1{30};
    QString TextTitel;
    QString TextUnterschrift;
    QString TextTermin;
    QString TextFeiertag;
    QString Textbilddatei;
    QString TextBildbeschreibung;
    // Calendar panel: the two month views (appointments, holidays), their colour boxes (white
    // stands for "no colour of its own") and the month chosen in ComboMonat (list index).
    Monatsansicht MonthView1;
    Monatsansicht MonthView2;
    Farbe PictureTextfarbe = 0xFFFFFF;
    Farbe PictureHintergrundfarbe = 0xFFFFFF;
    Farbe PictureFeiertagSchrift = 0xFFFFFF;
    Farbe PictureFeiertagBack = 0xFFFFFF;
    int ComboMonat = 0;
    QString TextBild; // picture of the current address record (its column 21)
};

struct AppState {
    // ---- Document lists -------------------------------------------------------------------
    Liste<ClassRahmen> Rahmenliste{31};
    Liste<ClassSchrift> Schriftliste{30};
    Liste<ClassBild> Bildliste{1};
    Liste<ClassLinie> Linienliste{1};
    Liste<QString> RTFliste{1};
    ClassSeite AktuelleSeite;
    ClassEtikett AktuellesEtikett;
    Tabelle<QString> Datensaetze{10, 20}; // (field, record)
    Liste<Farbe> Farbtabelle{60};
    Tabelle<QString> KartenformatWerte{10, 400}; // (column, row), kept as the text read
    Liste<QString> KartenformatNamen{400};
    double KartenformatAnzahl = 0; // rows of the label catalogue read from etikett.ini
    Liste<QString> Dateiliste{3};  // recent files

    // ---- Day tables: (day 1..31, month 1..12) ---------------------------------------------
    Tabelle<QString> Termine{31, 12};
    Tabelle<Farbe> TerminSchrift{31, 12, -1};
    Tabelle<Farbe> TerminBack{31, 12, -1};
    Tabelle<QString> Feiertage{31, 12};
    Tabelle<Farbe> FeiertagSchrift{31, 12, -1};
    Tabelle<Farbe> FeiertagBack{31, 12, -1};
    Liste<int16_t> FeiertagWahl{30};
    Liste<QString> Monatsnamen{12};
    Liste<QString> Wochentagsnamen{8}; // 1 and 8 are both Sunday
    Liste<QString> Monatsbilder{12};
    Liste<QString> Monatsbildtexte{12};

    // ---- Counts and current indexes --------------------------------------------------------
    double RahmenAnzahl = 0;
    double SchriftMax = 30;
    double BildAnzahl = 0;
    double LinieAnzahl = 1;
    double RTFAnzahl = 1;
    double FesteRahmen = 31;
    double RahmenNummer = 1;
    double SchriftNummer = 1;
    double BildNummer = 0;
    double LinieNummer = 0;
    double RTFNummer = 1;
    double Auswahlmodus = 0; // 0 idle, 1 a new frame waits to be drawn, 2 it is being drawn
    double DatensatzNummer = 1;
    double DatensatzAnzahl = 10;
    double Seitennummer = 1;
    double Seitenanzahl = 2;

    // ---- View and grid ------------------------------------------------------------------------
    double Zoomfaktor = 150;
    double Zeichenfaktor = 1.5;
    double Rasterbreite = 100;
    double Rasterhoehe = 100;
    double GitterX = 100;
    double GitterY = 50;
    float GitterAn = 0;
    float GridAn = -1; // the composition compares it with exactly -1
    float HilfsbereicheAn = 0;
    float RahmenAnzeigen = 0;
    float MMGenau = 0;
    double ZoomExport = 0;

    // ---- Composition context ------------------------------------------------------------------
    float DruckenAktiv = 0;
    float ExportAktiv = 0;
    double Geraetefaktor = TwipsJeZehntelmm;
    double TwipsProPixelX = 15;
    double TwipsProPixelY = 15;
    double BildschirmBreite = 0; // screen size, twips
    double BildschirmHoehe = 0;
    double DruckversatzX = 0;
    double DruckversatzY = 0;
    double Druckzoom = 100;
    intptr_t Druckerkontext = 0;
    Farbe Farbvorgabe = -1;    // one-shot colour for the next text drawn
    double Winkelvorgabe = -1; // one-shot angle for the next object drawn
    uint8_t LadeSperre = 0;    // 255 while controls are filled: change handlers return at once
    double WocheTag = 0;
    double WocheMonat = 1;
    float NeuzeichnenOffen = 0;

    // ---- Printing ---------------------------------------------------------------------------
    double AbgleichX = 0; // printer corrections, tenths of a millimetre
    double AbgleichY = 0;
    QString Druckername; // current printer's device name; empty: the system's default
    double Seriennummer = 0;
    double ErstesEtikett = 1; // first label position of a sheet to print, 1-based
    float NurEineKarte = 0;   // the sheet loop stops after one piece
    double DruckVon = 1;      // calendar pages to print
    double DruckBis = 1;
    double EtikettX = 0; // place of the label being printed on the sheet, tenths of a millimetre
    double EtikettY = 0;

    // ---- Files and names ----------------------------------------------------------------------
    QString Programmpfad; // ends with "/"
    QString Programmversion = QStringLiteral("8.02");
    QString Programmname;
    float IstKalender = 0;
    float IstVisitenkarte = 0;
    float IstBriefkopf = 0;
    float IstEtikett = 0;
    float IstCDHuelle = 0;
    QString AktuelleDatei;
    QString Datendatei;
    QString Ladevorgabe;
    QString Designvariante;
    QString Startdatei;
    QString Sprache;
    QString Hilfedatei;
    Liste<QString> Schriftenliste{1000}; // installed font families, end mark "-1"
    Liste<int16_t> SchriftSkalierbar{1000};
    Liste<uint8_t> Schriftzeichensatz{1000}; // character set byte of each row of Schriftenliste

    // ---- Calendar values ---------------------------------------------------------------------
    double Kalenderjahr = 2002;
    double Kalendertyp = 1;
    Farbe FarbeSamstag = 0;
    Farbe FarbeSonntag = 0x0000FF;
    Farbe FarbeFeiertag = 0x00FF00;
    Farbe FarbeTermin = 0;
    QString Kalendertitel = QStringLiteral("Testkalender");
    QString Kalenderunterschrift = QStringLiteral("Text unter dem Kalender");
    double Spaltenabstand = 0;    // steps of the calendar walks, shared between walks and kept
    double Zeilenabstand = 0;     // from one call to the next
    float KalenderBearbeiten = 0; // template frames drawn once at their places, not walked
    double NaechsteWocheTag = 0;  // where the day numbers of a week page ended
    double NaechsteWocheMonat = 1;
    // Beyond zp.ini, kept in zusatz.ini: week numbers after DIN/ISO 8601 instead of the count of
    // Mondays, and the state whose public holidays the options last preset.
    bool WochennummernIso = false;
    QString Bundesland;

    // ---- Dialog colours ----------------------------------------------------------------------
    Farbe Dialogfarbe1 = 0, Dialogfarbe2 = 0, Dialogfarbe3 = 0, Dialogfarbe4 = 0, Dialogfarbe5 = 0;

    // ---- Drawing ------------------------------------------------------------------------------
    float Vorschaumodus = 0;        // -1 while a property dialog paints its preview
    int32_t Verlaufsschritte = 100; // steps of soft shadows and gradients
    QString LetzterText;            // the expanded string of the text drawn last
    QString Feldtext;               // the "#Feld" text read last; kept from one text to the next
    // The selection marker on the page picture, twips (Left, Top, Width, Height).
    struct Markierung {
        double Left = 0, Top = 0, Width = 0, Height = 0;
    } Rahmen;

    // ---- Mouse editing on the page, twips of the page picture -----------------------------
    double Griff = 0;      // the handle under the pointer: 0 none, 10 inside, 1 to 8 the edges
    float ZiehenAktiv = 0; // 1 while a move or resize drag runs
    double BoxLinks = 0, BoxRechts = 0, BoxOben = 0, BoxUnten = 0; // the drag's outline
    double ZiehenX = 0, ZiehenY = 0;                               // last pointer of the drag
    double StartX = 0, StartY = 0; // where a new frame's box was first pressed
    Markierung Startbox;           // the marker at that moment
    double Seitenverhaeltnis = 1;  // marker width by height at the press, for proportional frames
    double Hilfswert = 0;          // scratch number; 9999 lets the deletion skip its question

    // ---- Undo and redo of the edits ----------------------------------------------------------
    Bearbeitungsverlauf Verlauf;

    // ---- Work objects: never members of the lists ------------------------------------------
    ClassRahmen AktuellerRahmen;
    ClassSchrift AktuelleSchrift;
    ClassBild AktuellesBild;
    ClassLinie AktuelleLinie;
    ClassSeite SeiteKopie;
    ClassEtikett EtikettKopie;

    // ---- Side panel texts (see Seitenleiste) ----------------------------------------------
    Seitenleiste Panel;

    // ---- Pictures -------------------------------------------------------------------------------
    QString LetztesBild; // File of the last BildLaden; while printing, a repeated name loads once
    std::shared_ptr<Bildwerk> Bilder; // imaging controls and picture cache; BildwerkVon makes it
};

} // namespace zp
