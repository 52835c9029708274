#pragma once
// The picture dialog's commands: what its controls write into the work copy of a picture object,
// the frame taking the picture's shape, and Ok and Abbruch on the document.

#include "model/Klassen.h"

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// The seven sliders of corrections and effects, in the order of `Slider1(0)` to `Slider1(6)`.
enum class Bildregler { Helligkeit, Kontrast, Farbverschiebung, Farbintensitaet, Schaerfe, Pixel, Mosaik };
constexpr int BildreglerAnzahl = 7;

// A slider writes its value x 10 into its field.
void SetzeBildregler(ClassBild& bild, Bildregler regler, int sliderwert);
// The slider's position for a field on opening: the field / 10.
[[nodiscard]] int BildreglerStellung(const ClassBild& bild, Bildregler regler);

// `Slider2` turns the picture: its value x 100 is `Rotate`.
void SetzeDrehung(ClassBild& bild, int sliderwert);
// `Text1` shows `Rotate` / 100.
[[nodiscard]] QString WinkelText(const ClassBild& bild);

// A typed angle: a number from 0 to 360 becomes `Rotate` x 100; anything else puts `Text1` back to
// "0" and `Rotate` to 0. Returns the text the box is to show afterwards (the typed one if it stood).
QString WinkelGetippt(ClassBild& bild, const QString& text);

// A chosen file: `File` and the three names the dialog keeps of it.
void SetzeBilddatei(ClassBild& bild, const QString& pfad);
// The frame takes the picture's shape: its height becomes its width times height / width of the
// picture. A picture without a size leaves the frame as it is.
void RahmenNachBild(ClassRahmen& rahmen, int bildBreite, int bildHoehe);

// Ok: every field of the work copy goes to `Bildliste(BildNummer)`, and `rahmen` (the frame copy,
// perhaps reshaped) to the current frame. If the picture file does not exist, the user is told
// "Diese Bilddatei existiert nicht. Der Rahmen wird gelöscht!" and the frame is deleted. Returns
// false in that case.
bool BildUebernehmen(AppState& s, Oberflaeche& ui, const ClassBild& kopie, const ClassRahmen& rahmen);
// Abbruch: the document keeps its picture; a frame inserted just before the dialog opened is
// deleted again.
void BildAbbrechen(AppState& s, Oberflaeche& ui, bool rahmenNeu);

} // namespace zp
