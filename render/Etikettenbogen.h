#pragma once
// The page dialog's sheet preview `Picture1`: the labels of a sheet as the copies describe them.

namespace zp {
struct ClassSeite;
struct ClassEtikett;
class Canvas;

// Clears the box and draws every label of the sheet in red with a black outline; round labels
// (`Form` 1) as circles of half the label's width about its middle. One unit of the box's twips
// stands for a tenth of a millimetre. Labels that lie wholly beyond the box are left out, so that
// a sheet of absurd counts still draws at once.
void ZeichneEtikettenbogen(Canvas& box, const ClassSeite& seite, const ClassEtikett& etikett);

} // namespace zp
