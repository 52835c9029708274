#pragma once
// The shipped calendar designs, built in code so that they can be remade: for each type and
// variant the template frames that the walks repeat. Frames 1 to 8 are the text roles, 9 to 30
// free texts (labels), 31 the letter body (unused), 32 to 39 the shape roles, 40 the month picture
// of the month designs. Variant 1 is classic (navy and grey), variant 2 modern (teal and coral).

namespace zp {
struct AppState;

// Replaces the document of `s` with the standard design of `kalendertyp` (1..7) and `variante`
// (1 or 2) and sets Kalendertyp. Page size and holidays aren't part of a design.
void BaueStandarddesign(AppState& s, int kalendertyp, int variante);

} // namespace zp
