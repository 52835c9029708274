#pragma once
// What the headless core asks of the user interface: questions, messages and the window updates
// that follow a change of state. The main window implements it; the batch run and the tests use
// the quiet default, which answers questions with a preset answer.

#include <QString>

namespace zp {

// What changed in the state, for the window to show.
struct Aenderung {
    enum : unsigned {
        Seite = 1,        // the page picture
        Auswahl = 2,      // the marker around the current frame
        Zoom = 4,         // zoom and rulers
        Seitentitel = 8,  // the calendar's page number and count
        Panel = 16,       // the side panels' boxes
        Datensatz = 32,   // the record on show
        Kalendertyp = 64, // the calendar type's button
        Dateiliste = 128, // recent files and window caption
    };
};

class Oberflaeche {
public:
    virtual ~Oberflaeche() = default;

    // A Yes/No question. The default answers with `standardAntwort`.
    virtual bool Frage(const QString& text, const QString& titel) {
        (void)text, (void)titel;
        return standardAntwort;
    }
    // A message box. `detail` carries what a user needs to find the fault (file, line).
    virtual void Meldung(const QString& text, const QString& titel, const QString& detail = {}) {
        (void)text, (void)titel, (void)detail;
    }

    // What changed in the state, for the window to show; a notice carries any combination of
    // Aenderung flags. The headless core has no window to update.
    virtual void Geaendert(unsigned was) { (void)was; }

    // The usual notices by name.
    void Neuzeichnen() { Geaendert(Aenderung::Seite); }            // ZeichneSeite on the page view
    void AuswahlAktualisieren() { Geaendert(Aenderung::Auswahl); } // marker (UpdateSelection)
    void ZoomAktualisieren() { Geaendert(Aenderung::Zoom); }       // zoom and rulers
    void SeitentitelAktualisieren() { Geaendert(Aenderung::Seitentitel); }
    void TypKnopfHervorheben(int, bool) { Geaendert(Aenderung::Kalendertyp); }
    void DateilisteAktualisieren() { Geaendert(Aenderung::Dateiliste); }
    void PanelAktualisieren() { Geaendert(Aenderung::Panel); }
    void DatensatzAnzeigen() { Geaendert(Aenderung::Datensatz); }

    virtual void StatusDatei(const QString&) {} // status panel 1: "Aktuelle Datei: " and this path
    // The main window's mouse pointer: 11 hourglass, 2 crosshair, 0 default (composition).
    virtual void Mauszeiger(int zeiger) { (void)zeiger; }
    virtual void Statusmeldung(const QString&) {} // a note in the status bar, no answer needed
    virtual void FokusFeldbox(int i) { (void)i; } // keyboard focus to the panel box Text1(i)
    virtual void FormatleisteAktualisieren() {}   // the format bar from the current text

    // The property dialogs on the current frame, opened at page `seite` (1 first); each hands its
    // result to its own command. The headless core has none to open.
    virtual void SchriftdialogZeigen(int seite) { (void)seite; }
    virtual void LiniendialogZeigen(int seite) { (void)seite; }
    virtual void BilddialogZeigen() {}
    virtual void PositionsdialogZeigen() {}
    virtual void RahmenLoeschen() {} // the current frame deleted, as the editing rules say

    // The file dialog: returns the chosen path, or "" when the user cancelled. `filter` is in the
    // form "Name (*.x)|*.x|...". The default answers with `vorgabeDatei`.
    virtual QString DateiWaehlen(const QString& titel, const QString& filter, bool speichern) {
        (void)titel, (void)filter, (void)speichern;
        return vorgabeDatei;
    }

    // The same for saving, with a suggested name; the default answers with `vorgabeDatei`, else
    // with the suggestion.
    virtual QString SpeicherDateiWaehlen(const QString& titel, const QString& filter,
                                         const QString& vorschlag) {
        (void)titel, (void)filter;
        return vorgabeDatei.isEmpty() ? vorschlag : vorgabeDatei;
    }

    bool standardAntwort = true;
    QString vorgabeDatei;
};

} // namespace zp
