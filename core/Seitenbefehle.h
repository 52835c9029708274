#pragma once
// The page dialog's commands on the copies `SeiteKopie` and `EtikettKopie`: the label boxes with
// their catalogue columns, the round form, the raster, the background, Ok and Abbruch.

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

namespace zp {

struct AppState;
class Oberflaeche;
enum class Edition;

// The captions of the page dialog per edition: its four tabs (format, design, card sheet, raster),
// which of them show, and the labels of the sheet boxes. Where the card tab is hidden, the group
// of labels stands on the format tab.
struct Seitendialogtexte {
    std::array<QString, 4> tabs;
    std::array<bool, 4> sichtbar{true, true, true, true};
    bool etikettenAufFormat = false;
    QString Kartenformat, Kartenbreite, Kartenhoehe, AbstandX, AbstandY;
};
[[nodiscard]] Seitendialogtexte SeitendialogTexte(Edition e);

// The eight label boxes in the order a catalogue row fills them.
enum class Kartenfeld { Seitelinks, SeiteOben, Breite, Hoehe, AnzahlX, AnzahlY, AbstandX, AbstandY };
constexpr int KartenfeldAnzahl = 8;
// The catalogue column behind a box: 7, 8, 1, 2, 3, 4, 5, 6.
[[nodiscard]] int KatalogSpalte(Kartenfeld feld);
// The box's value in the copies.
[[nodiscard]] int32_t Kartenwert(const AppState& s, Kartenfeld feld);

// Opening: the copies take every field of the page and the sheet. Outside the label edition the
// catalogue is read for the dialog's list when nothing of it is loaded yet (the CD and card
// sheets come from it too).
void SeiteDialogOeffnen(AppState& s, Oberflaeche& ui);

// What a catalogue row puts into the boxes, in box order, and whether `CheckKreis` is checked.
struct Kartenboxen {
    std::array<QString, KartenfeldAnzahl> texte;
    bool kreis = false;
};
// A click on `ComboKartenformat` entry `zeile`: the copies take the row, the boxes get their texts.
// Entry 0 ("Vorgaben") and a row that doesn't exist change nothing and give no boxes.
[[nodiscard]] std::optional<Kartenboxen> KartenformatGewaehlt(AppState& s, int zeile);

// A label box typed into: its numeric prefix, rounded, goes to the copy; with catalogue entry 1 to 5
// chosen the row remembers it too.
void KartenfeldGetippt(AppState& s, Kartenfeld feld, const QString& text, int zeile);
// `CheckKreis`: `Form` 1 or 0, with the same write-back into column 9.
void KreisGesetzt(AppState& s, bool rund, int zeile);

// The paper boxes. A named paper sets its size (`WendePapierAn`); typing a size makes it
// "Benutzerdefiniert". The margins take the numeric prefix.
bool PapierGewaehlt(AppState& s, const QString& papier);
void PapiergroesseGetippt(AppState& s, bool breite, const QString& text);
enum class Seitenrand { Links, Rechts, Oben, Unten };
void RandGetippt(AppState& s, Seitenrand rand, const QString& text);

// The background group: kind, colours, picture, pattern and design band of `EtikettKopie`.
// The options in the dialog's order map onto the kinds 0, 1, 4, 5, 3, 2.
[[nodiscard]] QStringList Hintergrundarten();
[[nodiscard]] int HintergrundartVonOption(int option);
[[nodiscard]] int OptionVonHintergrundart(int art);
void HintergrundartGewaehlt(AppState& s, int option);
// The colour the row of small pictures shows the design bands in while the design colour is white.
constexpr int32_t Designfarbe = 0x804000; // a dark blue, 0x00BBGGRR
// A design band chosen (0 none, 1 to 13). A sheet's design colour starts white, in which a band
// would not show on a white card: the band then takes the colour its small picture showed.
void DesignGewaehlt(AppState& s, int design);

// The values of the boxes that only Ok reads.
struct Seitendialogwerte {
    QString TextExport;
    QString Textrasterx;
    QString Textrastery;
};
// Ok: checks the raster, the export zoom, the paper's size and, where a sheet of labels or cards is
// printed, that a label has a size and a count and fits on the paper from its place; with a fault
// the user is told and false returned, the dialog stays open and nothing is written. Otherwise the page and
// the sheet take the copies field by field, the raster (with `GitterX`/`GitterY`) and the export zoom are
// set, and the page is redrawn.
bool SeiteUebernehmen(AppState& s, Oberflaeche& ui, const Seitendialogwerte& werte);

// Catalogue rows (from 1) whose name contains `suche`, or whose label size matches a size typed as
// "70 x 37" (millimetres, comma or point, within half a millimetre). An empty search gives every row.
[[nodiscard]] QList<int> SucheKartenformate(const AppState& s, const QString& suche);

} // namespace zp
