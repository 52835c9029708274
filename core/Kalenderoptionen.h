#pragma once
// Commands of the calendar's options and template editing that the window and the command line
// call alike.

#include "calendar/data/Geburtstage.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace zp {
struct AppState;
class Oberflaeche;

// "Kalender Editieren": toggles KalenderBearbeiten (template frames drawn once at their places, so
// that they can be picked up) and returns whether it is now on. The page isn't redrawn here.
bool KalenderEditieren(AppState& s);

// The design dialog ("Kalenderdesign"): the captions of its seven text rows (tab "Schrift") and
// seven shape rows (tab "Rahmen"). Text row i is frame i, shape row i is frame 31 + i.
[[nodiscard]] const QStringList& KalenderdesignTexte();
[[nodiscard]] const QStringList& KalenderdesignRahmen();
// Command1(index): text role index + 1 becomes SchriftNummer and RahmenNummer. Command2(index):
// shape role index (at least 1) becomes LinieNummer, frame 31 + it RahmenNummer. Each returns the
// frame that the property dialog opens on, or 0 when the design has no such frame.
int KalenderdesignTextWaehlen(AppState& s, int index);
int KalenderdesignRahmenWaehlen(AppState& s, int index);
// Command2(6), the week line, is enabled only for the types with such a line: 1, 2 and 7.
[[nodiscard]] bool WochenlinieAenderbar(const AppState& s);

// Where the address records of the business card edition are looked for: the folder "Visitenkarte"
// beside the program folder (the per-user layout zp/<Edition>), else the per-user folder itself.
[[nodiscard]] QString GeburtstagsdateiVorschlag(const AppState& s);

// "Geburtstage übernehmen": reads the records file `pfad` (empty: the suggestion, or the file
// dialog when there is none) and writes the birthdays into the appointments. A file that can't be
// read, isn't a records file or holds no dates is told in German and nothing changes; std::nullopt
// then, or when the user cancelled the file dialog.
std::optional<Geburtstagsbilanz> GeburtstageUebernehmen(AppState& s, Oberflaeche& ui, QString pfad = {});

} // namespace zp
