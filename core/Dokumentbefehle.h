#pragma once
// The document commands of the main window: New, Open, Save, Save As (two filter orders), the
// design gallery of the business cards. No command asks whether to
// save: there is no modified state, and the end of the program writes everything by itself.

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

enum class Dateidialog { Oeffnen, SpeichernUnter, SpeichernUnter2 };

// The filter of the file dialog for the edition, as "Name (*.x)|*.x|..." pairs. The editions are
// tested in the order Briefkopf, Visitenkarte, Etikett, Kalender; the CD cover gets none.
[[nodiscard]] QString Dateifilter(const AppState& s, Dateidialog art);
// The same in the form of Qt's file dialog: "Name (*.x);;Name (*.y)".
[[nodiscard]] QString QtDateifilter(const QString& filter);

// A name typed without an ending takes the ending of the chosen filter entry, "Name (*.x)" or
// "*.x"; a name with an ending, or an entry without a pattern, leaves it as it is.
[[nodiscard]] QString MitFilterendung(const QString& name, const QString& filterEintrag);

// "Aktuelle Datei: " and the path, as the status bar shows it.
[[nodiscard]] QString StatusDateitext(const QString& pfad);

// mnuFileNew: asks, then loads the built-in new document, or in the calendar empties the day
// data. Returns false when the user said No.
bool BefehlNeu(AppState& s, Oberflaeche& ui);
// mnuFileOpen: asks for a file through the window, then loads it by the edition's rules.
// Returns false when nothing was chosen.
bool BefehlOeffnen(AppState& s, Oberflaeche& ui);
// mnuFileSave: the design, and in the calendar the day data. A failed write is told, never fatal.
bool BefehlSpeichern(AppState& s, Oberflaeche& ui);
// mnuFileSaveAs and mnuFileSaveAs2: they differ only in the order of the filter.
bool BefehlSpeichernUnter(AppState& s, Oberflaeche& ui, Dateidialog art);
// A click on gallery row `zeile` (from 0): loads daten/design<zeile + 1>.zpv as a template and
// keeps AktuelleDatei, so that the next Save doesn't overwrite the gallery file.
void GalerieLaden(AppState& s, Oberflaeche& ui, int zeile);

} // namespace zp
