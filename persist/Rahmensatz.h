#pragma once
// The frame record of the design and layout files: ten lines (size, object, type, visibility,
// proportion, anchor, position, stacking level), and from file version 800 on an eleventh with the
// picture data. Layouts keep the ten-line record of version 700.

namespace zp {
struct ClassRahmen;
class ZeilenLeser;
class ZeilenSchreiber;

// Files up to this version have no picture-data line in their frame records.
constexpr double LetzteVersionOhneBilddaten = 799;

// Reads one record; throws FormatFehler on a line that isn't what the record needs.
[[nodiscard]] ClassRahmen LeseRahmensatz(ZeilenLeser& in, double version);
// Writes one record; size and position go cut down to whole tenths of a millimetre.
void SchreibeRahmensatz(ZeilenSchreiber& out, const ClassRahmen& r, double version);

} // namespace zp
