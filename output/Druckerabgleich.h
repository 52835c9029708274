#pragma once
// Printer calibration: the shift of the print measured on a test sheet, kept per printer name in a
// file of its own beside the settings, so that each printer gets its own `AbgleichX`/`AbgleichY`.

#include <QByteArray>
#include <QMap>
#include <QString>

namespace zp {

struct AppState;
class Canvas;
class Oberflaeche;

struct Abgleichwerte {
    double x = 0; // tenths of a millimetre, added to the first label's place when printing
    double y = 0;
    bool operator==(const Abgleichwerte&) const = default;
};
using Druckerabgleiche = QMap<QString, Abgleichwerte>;

// `<Programmpfad>druckerabgleich.ini`: one line per printer, its name, x and y separated by tabs.
[[nodiscard]] QString DruckerabgleichDatei(const AppState& s);
// Lines that can't be read are passed over; a name may hold any character but a tab.
[[nodiscard]] Druckerabgleiche LeseDruckerabgleiche(const QByteArray& bytes);
[[nodiscard]] QByteArray SchreibeDruckerabgleiche(const Druckerabgleiche& werte);

// Keeps the offsets of `drucker` (file replaced whole); the current printer takes them at once.
bool SpeichereDruckerabgleich(AppState& s, Oberflaeche& ui, const QString& drucker, Abgleichwerte werte);
// A printer chosen for printing: its kept offsets become `AbgleichX`/`AbgleichY`. A printer without
// an entry leaves them as they are. Returns whether an entry was found.
bool WendeDruckerabgleichAn(AppState& s, const QString& drucker);

// The test sheet on a printer canvas: a cross at each corner of every label of the sheet and a
// ruler in millimetres along the top and the left edge of the paper, drawn without any offset.
void ZeichneTestbogen(const AppState& s, Canvas& drucker);
// Prints the test sheet to `drucker` (a queue or "PDF-Datei" with `pdfDatei`). Tells the user why
// it failed.
bool DruckeTestbogen(const AppState& s, Oberflaeche& ui, const QString& drucker, const QString& pdfDatei);

} // namespace zp
