#include "core/Numbers.h"

#include "core/Text.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace landsmith {

namespace {

/// The value as Int; `value` is whole. NaN fits nowhere.
template <class Int>
std::optional<Int> Fit(double value) {
  if (!(value >= static_cast<double>(std::numeric_limits<Int>::min()) &&
        value <= static_cast<double>(std::numeric_limits<Int>::max())))
    return std::nullopt;
  return static_cast<Int>(value);
}

template <class Int>
Int FitOrThrow(double value) {
  const std::optional<Int> fitting = Fit<Int>(value);
  if (!fitting) throw RuntimeError("Overflow: " + NumberText(value));
  return *fitting;
}

template <class Int>
std::optional<Int> ParseRounded(std::string_view text) {
  const std::optional<double> value = ParseNumber(text);
  if (!value) return std::nullopt;
  return Fit<Int>(std::nearbyint(*value));
}

/// "-1.2345e+05" cut up. `exponent` is that of the first digit; `digits` has no zeros at its end.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

template <class Real>
Decimal SplitDecimal(Real value, int significant) {
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::scientific, significant - 1)
                       .ptr;
  std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  Decimal result;
  result.negative = text.front() == '-';
  if (result.negative) text.remove_prefix(1);
  const std::size_t e = text.find('e');
  result.digits = text.substr(0, 1);
  if (e > 2) result.digits += text.substr(2, e - 2);
  const std::size_t last = result.digits.find_last_not_of('0');
  result.digits.resize(last == std::string::npos ? 1 : last + 1);
  const std::size_t sign = text[e + 1] == '+' ? 1 : 0;
  std::from_chars(text.data() + e + 1 + sign, text.data() + text.size(), result.exponent);
  return result;
}

template <class Real>
std::string ShortText(Real value, int significant) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  if (value == 0) return "0";
  const Decimal decimal = SplitDecimal(value, significant);
  const int count = static_cast<int>(decimal.digits.size());
  const int exponent = decimal.exponent;
  std::string text = decimal.negative ? "-" : "";
  if (exponent + 1 > significant || count - 1 - exponent > significant) {
    text += decimal.digits[0];
    if (count > 1) text += "." + decimal.digits.substr(1);
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
  }
  if (exponent < 0)
    return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + decimal.digits;
  const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
  if (decimal.digits.size() <= whole)
    return text + decimal.digits + std::string(whole - decimal.digits.size(), '0');
  return text + decimal.digits.substr(0, whole) + "." + decimal.digits.substr(whole);
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && text[at] >= '0' && text[at] <= '9')
    ++at;
  return at;
}

/// Digits with at most one point among them, then perhaps an exponent.
bool IsPlainNumber(std::string_view text) {
  std::size_t at = SkipDigits(text, 0);
  std::size_t digits = at;
  if (at < text.size() && text[at] == '.') {
    const std::size_t end = SkipDigits(text, at + 1);
    digits += end - at - 1;
    at = end;
  }
  if (digits == 0) return false;
  if (at == text.size()) return true;
  if (text[at] != 'e' && text[at] != 'E') return false;
  ++at;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  return at < text.size() && SkipDigits(text, at) == text.size();
}

}  // namespace

std::int32_t RoundHalfEven(double value) {
  return FitOrThrow<std::int32_t>(std::nearbyint(value));
}

std::uint8_t RoundToByte(double value) {
  return FitOrThrow<std::uint8_t>(std::nearbyint(value));
}

std::int32_t Floor(double value) {
  return FitOrThrow<std::int32_t>(std::floor(value));
}

std::string NumberText(double value) {
  return ShortText(value, 15);
}

std::string NumberText(float value) {
  return ShortText(value, 7);
}

std::string FixedText(double value, int decimals, int minIntegerDigits) {
  if (!std::isfinite(value)) return NumberText(value);
  std::array<char, 400> buffer{};  // the largest double has 309 digits before the point
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::fixed, std::min(decimals, 60))
                       .ptr;
  std::string text(buffer.data(), end);
  const bool negative = text.front() == '-';
  if (negative) text.erase(0, 1);
  const std::size_t whole = std::min(text.find('.'), text.size());
  const auto wanted = static_cast<std::size_t>(minIntegerDigits);
  if (whole < wanted) text.insert(0, wanted - whole, '0');
  const bool zero = text.find_first_not_of("0.") == std::string::npos;
  return negative && !zero ? "-" + text : text;
}

std::optional<double> ParseNumber(std::string_view text, bool acceptComma) {
  std::string number(Trim(text));
  if (acceptComma) std::replace(number.begin(), number.end(), ',', '.');
  const bool negative = number.starts_with('-');
  if (negative || number.starts_with('+')) number.erase(0, 1);
  if (!IsPlainNumber(number)) return std::nullopt;
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (number.find("e-") == std::string::npos && number.find("E-") == std::string::npos) return std::nullopt;
    value = 0;  // too small for a double, which is no failure
  }
  return negative ? -value : value;
}

std::optional<std::int16_t> ParseInt16(std::string_view text) {
  return ParseRounded<std::int16_t>(text);
}

std::optional<std::int32_t> ParseInt32(std::string_view text) {
  return ParseRounded<std::int32_t>(text);
}

std::optional<std::uint8_t> ParseByte(std::string_view text) {
  return ParseRounded<std::uint8_t>(text);
}

std::optional<float> ParseFloat(std::string_view text) {
  const std::optional<double> value = ParseNumber(text);
  if (!value) return std::nullopt;
  const auto single = static_cast<float>(*value);
  if (std::isinf(single)) return std::nullopt;
  return single;
}

}  // namespace landsmith
