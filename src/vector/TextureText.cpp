#include "vector/TextureText.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "vector/LineType.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace landsmith {
namespace {

bool IsDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The next word or quoted name; nothing at the end or for quotes that do not close.
std::optional<std::string_view> TakeWord(std::string_view& rest) {
  rest = Trim(rest);
  if (rest.empty()) return {};
  const bool quoted = rest.front() == '"';
  if (quoted) rest.remove_prefix(1);
  std::size_t end = rest.find_first_of(quoted ? "\"" : " \t");
  if (quoted && end == std::string_view::npos) return {};
  end = std::min(end, rest.size());
  const std::string_view word = rest.substr(0, end);
  rest.remove_prefix(std::min(end + (quoted ? 1U : 0U), rest.size()));
  return word;
}

bool IsName(std::optional<std::string_view> word) {
  return word && !word->empty() && word->find_first_of("\"\r\n") == std::string_view::npos;
}

/// The numbers behind a name, with the largest that each may be.
bool IsTextureTail(std::string_view rest) {
  constexpr std::array<std::int32_t, 4> largest{15, 15, 0, 255};
  constexpr std::size_t effect = 1;
  bool hasController = false;
  for (std::size_t i = 0; i < largest.size(); ++i) {
    const auto word = TakeWord(rest);
    if (!word || !IsDigits(*word)) return false;
    const auto number = ParseInt32(*word);
    if (!number || *number > largest.at(i)) return false;
    if (i == effect) hasController = *number == 1;
  }
  if (hasController && !IsName(TakeWord(rest))) return false;
  return Trim(rest).empty();
}

}  // namespace

TextureField JudgeTextureField(std::string_view field) {
  std::string_view rest = field;
  const auto name = TakeWord(rest);
  if (!IsName(name)) return TextureField::Unreadable;
  const bool isAlone = Trim(rest).empty();
  const bool isQuoted = Trim(field).starts_with('"');
  // Without quotes these end a list or begin a comment.
  if (!isQuoted && name->find_first_of("();") != std::string_view::npos) return TextureField::Unreadable;
  if (IsNumericTexture(field)) {
    if (!isAlone) return TextureField::Unreadable;
    return isQuoted || IsDigits(Trim(field)) ? TextureField::Good : TextureField::Strange;
  }
  if (!isAlone && !IsTextureTail(rest)) return TextureField::Unreadable;
  const bool isFile = isQuoted || field.find('.') != std::string_view::npos;
  return isFile ? TextureField::Good : TextureField::Strange;
}

}  // namespace landsmith
