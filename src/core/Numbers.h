// Numbers and their text, the same on every machine: no locale, ties to even, the shortest forms.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

inline constexpr double Pi = 3.14159265358979;  // the literal that every formula here uses

/// Nearest integer, halves to even. Throws RuntimeError when the value does not fit 32 bits.
std::int32_t RoundHalfEven(double value);
/// The same for one byte, 0 to 255: "Overflow" is a RuntimeError.
std::uint8_t RoundToByte(double value);
/// Largest integer not above the value, as a 32-bit integer. Throws RuntimeError when it does not fit.
std::int32_t Floor(double value);
/// Remainder with the sign of the dividend.
inline std::int32_t Mod(std::int32_t value, std::int32_t divisor) {
  return value % divisor;
}

/// Shortest text: at most 15 (float: 7) significant digits, trailing zeros dropped. Plain while at most
/// 15 (7) digits stand before the point and at most 15 (7) behind it, zeros behind the point counted;
/// otherwise "1.5E+20", "1.464844E-02". Zero is "0".
std::string NumberText(double value);
std::string NumberText(float value);

/// The mask "0.000" (3 decimals, 1 integer digit) or "00" (0 decimals, 2 integer digits): nearest of the
/// exact value, ties to even; a result of zero has no sign.
std::string FixedText(double value, int decimals, int minIntegerDigits = 1);

/// The trimmed text must be a number as a whole: digits, a point, an optional exponent; `acceptComma` takes a
/// comma for the point. Nothing otherwise, also for infinities and hexadecimal.
std::optional<double> ParseNumber(std::string_view text, bool acceptComma = false);
/// A number rounded half to even that must fit the type; nothing otherwise.
std::optional<std::int16_t> ParseInt16(std::string_view text);
std::optional<std::int32_t> ParseInt32(std::string_view text);
std::optional<std::uint8_t> ParseByte(std::string_view text);
std::optional<float> ParseFloat(std::string_view text);

}  // namespace landsmith
