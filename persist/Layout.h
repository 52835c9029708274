#pragma once
// Layouts: stored arrangements of a page's frames and texts (`Layout1.lay` ... `Layout5.lay`).
// Applying one moves and sizes the frames and sets the texts' arrangement (angle, alignment, size,
// position); what the texts say, their font and colours stay, so the same address takes a new look.

#include <QByteArray>
#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

enum class LayoutLesung { Gelesen, FremderKopf };

// Applies the layout `bytes` to the document of `s`. `dateiname` (the bare name, such as
// "Layout4.lay") selects the fitting of the shipped layouts to the card or label at hand. The whole
// file is read before the document changes: a damaged file throws FormatFehler, a foreign first
// line gives FremderKopf, and `s` is untouched in both cases.
LayoutLesung WendeLayoutAn(AppState& s, const QByteArray& bytes, const QString& dateiname);

// `LadeLayout`: applies the file named by `Ladevorgabe`, clears `Ladevorgabe`, selects the first
// frame and redraws. A missing, foreign or damaged file is told in a warning; returns success.
bool LadeLayout(AppState& s, Oberflaeche& ui);

// The current arrangement as a layout file: the design file's head marked as a template, frame
// records of ten lines and the text records, so that the shipped layouts can be made from a document.
[[nodiscard]] QByteArray SchreibeLayout(const AppState& s);

} // namespace zp
