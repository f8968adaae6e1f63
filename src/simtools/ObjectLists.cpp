// What a version lists and draws.
#include "core/Text.h"
#include "simtools/ObjectChecker.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace landsmith::simtools {

namespace {

constexpr std::size_t TextureWords = 8;      // use, colour key, red, green, blue, 0, range, file
constexpr std::size_t MaterialNumbers = 13;  // diffuse, ambient and specular light of 4 numbers each, power
constexpr std::size_t VertexNumbers = 8;     // place, normal, place in the texture
constexpr double AnySize = 1e9;

bool IsHexByte(std::string_view text) {
  unsigned value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  return failure == std::errc() && end == text.data() + text.size() && value <= 255;
}

bool IsBitmapName(std::string_view name) {
  constexpr std::string_view ending = ".bmp";
  return name.size() > ending.size() && EqualsIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

}  // namespace

bool ObjectChecker::ExpectVersion(const Statement& statement) {
  if (!m_version) Fail(statement, " stands outside of a BGLVersion");
  return m_version.has_value();
}

/// True when `statement` may be this list of the version, which is then there, empty so far.
bool ObjectChecker::ExpectList(const Statement& statement, std::optional<std::size_t> OpenVersion::*list) {
  if (!ExpectVersion(statement)) return false;
  if (*m_version.*list) Fail(statement, " stands twice in its version");
  *m_version.*list = 0;
  return true;
}

/// The entries of `words` words behind the first number of a list, which is the place of its first entry.
/// Nothing, after an error, when the words do not come out even or there are fewer than `least` entries.
std::optional<std::size_t> ObjectChecker::Entries(const Statement& statement, std::size_t words,
                                                  std::string_view entry, std::size_t least) {
  FixedArgument(statement, 0, "the first number", 0, m_errors);
  const std::size_t follow = statement.Arguments.size() - 1;
  if (follow % words != 0)
    Fail(statement, ": " + std::string(entry) + " has " + std::to_string(words) + " words, " +
                        std::to_string(follow) + " follow in all");
  else if (follow / words < least)
    Fail(statement, ": " + std::to_string(least) + " times " + std::string(entry) +
                        " is the least, there is " + std::to_string(follow / words));
  else
    return follow / words;
  return std::nullopt;
}

void ObjectChecker::TextureList(const Statement& statement, bool complete) {
  if (!ExpectList(statement, &OpenVersion::Textures) || !complete) return;
  const auto entries = Entries(statement, TextureWords, "a texture", 1);
  m_version->Textures = entries;
  for (std::size_t entry = 0; entry < entries.value_or(0); ++entry)
    CheckTexture(statement, 1 + TextureWords * entry);
}

void ObjectChecker::CheckTexture(const Statement& statement, std::size_t first) {
  const auto& words = statement.Arguments;
  NumberArgument(statement, first, {"the use of a texture", 0, 0xFFFF}, m_errors);
  if (!IsHexByte(words[first + 1]))
    m_errors.push_back(
        {statement.ArgumentLines[first + 1], "TextureList: " + words[first + 1] + " is no hexadecimal byte"});
  for (std::size_t colour = 2; colour < 5; ++colour)
    NumberArgument(statement, first + colour, {"the colour of a texture", 0, 255}, m_errors);
  FixedArgument(statement, first + 5, "the sixth word of a texture", 0, m_errors);
  RealArgument(statement, first + 6, {"the range of a texture", 0, AnySize}, m_errors);
  if (!IsBitmapName(words[first + 7]))
    m_errors.push_back(
        {statement.ArgumentLines[first + 7], "TextureList: " + words[first + 7] + " is no bitmap"});
}

void ObjectChecker::MaterialList(const Statement& statement, bool complete) {
  if (!ExpectList(statement, &OpenVersion::Materials) || !complete) return;
  const auto entries = Entries(statement, MaterialNumbers, "a material", 1);
  m_version->Materials = entries;
  for (std::size_t number = 0; number < entries.value_or(0) * MaterialNumbers; ++number) {
    const bool isPower = number % MaterialNumbers == MaterialNumbers - 1;
    RealArgument(statement, 1 + number,
                 isPower ? RealRange{"the power of a material", 0, AnySize}
                         : RealRange{"a colour of a material", 0, 1},
                 m_errors);
  }
}

void ObjectChecker::VertexList(const Statement& statement, bool complete) {
  if (!ExpectList(statement, &OpenVersion::Vertices) || !complete) return;
  const auto entries = Entries(statement, VertexNumbers, "a vertex", 3);
  m_version->Vertices = entries;
  for (std::size_t number = 0; number < entries.value_or(0) * VertexNumbers; ++number)
    RealArgument(statement, 1 + number, {"a number of a vertex", -AnySize, AnySize}, m_errors);
}

void ObjectChecker::SetMaterial(const Statement& statement, bool complete) {
  if (!ExpectVersion(statement)) return;
  m_version->HasMaterial = true;
  if (!complete) return;
  const auto place = [&](std::size_t index, std::string_view what, std::int64_t least,
                         std::optional<std::size_t> entries) {
    const auto last = static_cast<std::int64_t>(entries.value_or(0)) - 1;
    const auto number = ParseWholeNumber(statement.Arguments[index]);
    if (!number)
      NumberArgument(statement, index, {what, least, last}, m_errors);
    else if (*number < least || *number > last)
      Fail(statement, ": there is no " + std::string(what) + " " + statement.Arguments[index]);
    return number.value_or(least);
  };
  place(0, "material", 0, m_version->Materials);
  if (place(1, "texture", -1, m_version->Textures) >= 0) m_version->HasTexture = true;
}

void ObjectChecker::DrawTriList(const Statement& statement, bool complete) {
  if (!ExpectVersion(statement)) return;
  m_area->HasTriangles = true;
  if (!m_version->HasMaterial) Fail(statement, " stands in front of SetMaterial");
  if (!m_version->Vertices) Fail(statement, " stands in front of VertexList");
  if (!complete) return;
  const auto triangles = Entries(statement, 3, "a triangle", 1);
  const std::size_t vertices = m_version->Vertices.value_or(0);
  if (!triangles || vertices == 0) return;
  for (std::size_t triangle = 0; triangle < *triangles; ++triangle) {
    const std::size_t first = 1 + 3 * triangle;
    const NumberRange range{"a corner", 0, static_cast<std::int64_t>(vertices) - 1};
    std::array<std::optional<std::int64_t>, 3> corners;
    for (std::size_t corner = 0; corner < 3; ++corner)
      corners[corner] = NumberArgument(statement, first + corner, range, m_errors);
    const bool all = corners[0] && corners[1] && corners[2];
    if (all && (corners[0] == corners[1] || corners[1] == corners[2] || corners[2] == corners[0]))
      m_errors.push_back({statement.ArgumentLines[first], "DrawTriList: a triangle has one corner twice"});
  }
}

}  // namespace landsmith::simtools
