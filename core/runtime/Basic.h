#pragma once
// The few conversions of the BASIC runtime whose exact behaviour the file formats depend on.

#include <QDate>
#include <QString>
#include <QStringView>
#include <cstdint>
#include <optional>

namespace zp::basic {

// BASIC `Val`: numeric prefix. Leading blanks are skipped, a point is the only decimal separator,
// parsing stops at the first character that can't continue a number; no number gives 0.
[[nodiscard]] double Val(QStringView text);

// BASIC `Str`: point as separator, a leading blank for a value that isn't negative ("Str(0)" is " 0").
[[nodiscard]] QString Str(double value);

// The regional text of a double as the German settings write it: shortest form, decimal comma,
// at most 15 significant digits ("12,5", "-0,25", "2100").
[[nodiscard]] QString DoubleText(double value);
// The same for a single-precision value (at most 7 significant digits).
[[nodiscard]] QString SingleText(float value);

// Regional whole-text conversion to a double (`CDbl`): comma or point as separator, blanks around
// the number allowed. Anything else is no number.
[[nodiscard]] std::optional<double> ParseDouble(QStringView text);

// Rounding of the runtime's integer conversions: half to even (2.5 -> 2, 3.5 -> 4).
[[nodiscard]] double RoundHalfEven(double value);

// `CInt`/`CLng`: regional conversion, rounded half to even, range-checked. std::nullopt on failure.
[[nodiscard]] std::optional<int16_t> ParseInt16(QStringView text);
[[nodiscard]] std::optional<int32_t> ParseInt32(QStringView text);
// `CBool`: a number (non-zero is true) or the words True/False, Wahr/Falsch.
[[nodiscard]] std::optional<bool> ParseBool(QStringView text);

// Truth values as the runtime stores them: -1 and 0.
constexpr int16_t Wahr = -1;
constexpr int16_t Falsch = 0;
[[nodiscard]] constexpr int16_t AlsWahrheit(bool b) {
    return b ? Wahr : Falsch;
}

// Date arithmetic with the runtime's roll-over: DateSerial(2004, 3, 0) is 29 February 2004,
// DateSerial(2004, 13, 1) is 1 January 2005.
[[nodiscard]] QDate DateSerial(int year, int month, int day);
// Weekday with Sunday = 1 ... Saturday = 7.
[[nodiscard]] int Weekday(const QDate& date);

// RGB() of the runtime: 0x00BBGGRR.
[[nodiscard]] constexpr int32_t RGB(int r, int g, int b) {
    return static_cast<int32_t>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}

} // namespace zp::basic
