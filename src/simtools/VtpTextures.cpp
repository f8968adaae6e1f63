#include "simtools/BglLayout.h"
#include "simtools/StatementCheck.h"
#include "simtools/VtpChecker.h"

#include <string>

namespace landsmith::simtools {

namespace {

constexpr std::size_t EntryArguments = 5;     // name and four numbers
constexpr std::size_t LongestNumberName = 4;  // a longer name is a bitmap, with or without quotes
constexpr std::uint8_t UsualLastNumber = 4;

bool IsQuoted(std::string_view text) {
  return text.starts_with('"');
}

std::string WithoutQuotes(const std::string& text) {
  return IsQuoted(text) ? text.substr(1, text.size() - 2) : text;
}

bool IsBitmap(const std::string& name) {
  return IsQuoted(name) || name.size() > LongestNumberName;
}

/// A bitmap may stand alone on its line; it then has the numbers 0 0 0 4.
bool IsPlainName(const Statement& statement, std::size_t first) {
  const auto& lines = statement.ArgumentLines;
  return IsBitmap(statement.Arguments[first]) &&
         (first + 1 == lines.size() || lines[first + 1] != lines[first]);
}

VtpTextureEntry PlainEntry(const std::string& name) {
  VtpTextureEntry entry;
  entry.Name = WithoutQuotes(name);
  entry.Quoted = true;
  entry.U = UsualLastNumber;
  return entry;
}

/// The entry whose name is argument `first`; `first` moves behind it.
VtpTextureEntry ReadEntry(const Statement& statement, std::size_t& first, std::vector<ScmError>& errors) {
  VtpTextureEntry entry;
  const std::string& name = statement.Arguments[first];
  const std::size_t line = statement.ArgumentLines[first];
  entry.Name = WithoutQuotes(name);
  entry.Quoted = IsBitmap(name);
  const auto number = [&](std::size_t place, NumberRange range) {
    return static_cast<std::uint8_t>(NumberArgument(statement, first + place, range, errors).value_or(0));
  };
  entry.UV = number(1, {"the texture type", 0, 15});
  entry.Kind = number(2, {"the effect", 0, 15});
  FixedArgument(statement, first + 3, "the third number of a texture", 0, errors);
  entry.U = number(4, {"the last number of a texture", 0, 255});
  first += EntryArguments;
  if (entry.Kind != 1) return entry;
  if (!entry.Quoted)
    errors.push_back({line, "VTPTextureList: the texture " + name + " is no bitmap and has an effect"});
  if (first == statement.Arguments.size())
    errors.push_back({line, "VTPTextureList: the effect of " + name + " has no controller"});
  else
    entry.Controller = WithoutQuotes(statement.Arguments[first++]);
  return entry;
}

}  // namespace

std::vector<VtpTextureEntry> ReadTextureEntries(const Statement& statement, std::vector<ScmError>& errors) {
  std::vector<VtpTextureEntry> entries;
  const auto count =
      NumberArgument(statement, 0, {"the number of textures", 0, bgl::LargestCount + 1}, errors);
  if (!count) return entries;
  std::size_t next = 1;
  while (next < statement.Arguments.size() && entries.size() < static_cast<std::size_t>(*count)) {
    if (IsPlainName(statement, next)) {
      entries.push_back(PlainEntry(statement.Arguments[next++]));
      continue;
    }
    if (statement.Arguments.size() - next < EntryArguments) {
      errors.push_back({statement.ArgumentLines[next],
                        "VTPTextureList: the texture " + statement.Arguments[next] + " wants four numbers"});
      return entries;
    }
    entries.push_back(ReadEntry(statement, next, errors));
  }
  if (entries.size() != static_cast<std::size_t>(*count))
    errors.push_back({statement.Line, "VTPTextureList announces " + std::to_string(*count) + " textures, " +
                                          std::to_string(entries.size()) + " found"});
  else if (next < statement.Arguments.size())
    errors.push_back({statement.ArgumentLines[next], "VTPTextureList announces " + std::to_string(*count) +
                                                         " textures, but goes on with " +
                                                         statement.Arguments[next]});
  return entries;
}

}  // namespace landsmith::simtools
