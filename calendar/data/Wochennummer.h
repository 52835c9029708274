#pragma once
// Week numbers after DIN/ISO 8601: weeks run Monday to Sunday, and week 1 is the week that holds
// the year's first Thursday. A choice beside the calendar's own count of Mondays.

namespace zp {

// The ISO week of a date, 1 to 53. Early January days may belong to week 52 or 53 of the year
// before, late December days to week 1 of the next.
[[nodiscard]] int IsoWoche(int jahr, int monat, int tag);

} // namespace zp
