#include "core/CoordText.h"

#include "core/Numbers.h"
#include "core/Text.h"

#include <cmath>
#include <optional>

namespace landsmith {

namespace {

constexpr std::string_view DegreeSign = "\u00B0";

/// The letters of the two hemispheres: what a negative value has and what a positive one has.
struct Letters {
  char negative;
  char positive;
};
constexpr Letters LatLetters{'S', 'N'};
constexpr Letters LonLetters{'W', 'E'};

std::optional<double> Piece(std::string_view text) {
  return ParseNumber(text, true);
}

std::string UpperLetter(std::string text, char letter) {
  const char lower = static_cast<char>(letter - 'A' + 'a');
  return ReplaceAll(std::move(text), {&lower, 1}, {&letter, 1});
}

/// True when there was one to remove.
bool RemoveAll(std::string& text, char letter) {
  if (text.find(letter) == std::string::npos) return false;
  text = ReplaceAll(std::move(text), {&letter, 1}, "");
  return true;
}

/// Degrees, minutes and seconds parted by single blanks.
std::optional<double> SumOfPieces(std::string_view text) {
  const std::size_t first = text.find(' ');
  if (first == std::string_view::npos) return Piece(text);
  const std::optional<double> degrees = Piece(text.substr(0, first));
  const std::size_t second = text.find(' ', first + 1);
  if (second == std::string_view::npos) {
    const std::optional<double> minutes = Piece(text.substr(first + 1));
    if (!degrees || !minutes) return std::nullopt;
    return *degrees + *minutes / 60;
  }
  const std::optional<double> minutes = Piece(text.substr(first + 1, second - first - 1));
  const std::optional<double> seconds = Piece(text.substr(second + 1));
  if (!degrees || !minutes || !seconds) return std::nullopt;
  return *degrees + *minutes / 60 + *seconds / 3600;
}

std::optional<double> Parse(std::string_view given, CoordForm form, Letters letters) {
  if (form == CoordForm::DecimalDegrees) return Piece(given);
  std::string text = UpperLetter(UpperLetter(std::string(given), letters.negative), letters.positive);
  const bool bySide = RemoveAll(text, letters.negative);
  const bool bySign = RemoveAll(text, '-');
  RemoveAll(text, letters.positive);
  for (const std::string_view mark : {std::string_view(":"), DegreeSign, std::string_view("'")})
    text = ReplaceAll(std::move(text), mark, " ");
  // Two passes: a long run of blanks may leave a pair, and the empty piece between is then no number.
  text = ReplaceAll(std::move(text), "   ", " ");
  text = ReplaceAll(std::move(text), "  ", " ");
  const std::optional<double> value = SumOfPieces(Trim(text));
  if (!value) return std::nullopt;
  return bySide || bySign ? *value * -1 : *value;
}

std::string Format(double degrees, CoordForm form, Letters letters) {
  if (form == CoordForm::DecimalDegrees) return FixedText(degrees, 7, 2);
  const char letter = degrees < 0 ? letters.negative : letters.positive;
  const double value = std::fabs(degrees);
  const double whole = std::floor(value);  // in doubles: the text may hold any number
  const double minutes = (value - whole) * 60;
  const double wholeMinutes = std::floor(minutes);
  std::string text = FixedText(whole, 0);
  text.append(DegreeSign).append(" ").append(FixedText(wholeMinutes, 0, 2)).append("' ");
  text.append(FixedText((minutes - wholeMinutes) * 60, 4, 2)).append("'' ");
  return text + letter;
}

}  // namespace

double ParseLatText(std::string_view text, CoordForm form) {
  return Parse(text, form, LatLetters).value_or(FailedLat);
}

double ParseLonText(std::string_view text, CoordForm form) {
  return Parse(text, form, LonLetters).value_or(FailedLon);
}

std::string FormatLatText(double degrees, CoordForm form) {
  return Format(degrees, form, LatLetters);
}

std::string FormatLonText(double degrees, CoordForm form) {
  return Format(degrees, form, LonLetters);
}

bool CheckLatLon(std::string_view latText, std::string_view lonText, CoordForm form) {
  const double lat = ParseLatText(latText, form);
  const double lon = ParseLonText(lonText, form);
  return lat >= -90 && lat <= 90 && lon >= -180 && lon <= 180;
}

}  // namespace landsmith
