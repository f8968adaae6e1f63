#include "core/IniFile.h"

#include "core/Text.h"
#include "platform/Paths.h"

#include <system_error>

namespace landsmith {

namespace {

constexpr std::size_t MostEntries = 30;
constexpr std::string_view LineEnd = "\r\n";

std::string Bracketed(std::string_view section) {
  return "[" + std::string(section) + "]";
}

std::string Entry(std::string_view key, std::string_view value) {
  return std::string(key) + "=" + std::string(value);
}

bool BeginsIgnoringCase(std::string_view line, std::string_view start) {
  return EqualsIgnoringCase(line.substr(0, start.size()), start);
}

/// Line feeds and carriage returns that stand alone, as other editors write them, become full line ends.
std::string WithFullLineEnds(std::string text) {
  text = ReplaceAll(std::move(text), LineEnd, "\n");
  return ReplaceAll(ReplaceAll(std::move(text), "\r", "\n"), "\n", LineEnd);
}

/// At most one empty line in a row, nothing but text at both ends, and one line end behind all.
std::string Tidied(std::string text) {
  constexpr std::string_view triple = "\r\n\r\n\r\n";
  while (text.find(triple) != std::string::npos)
    text = ReplaceAll(std::move(text), triple, "\r\n\r\n");
  const auto isText = [](char c) { return static_cast<unsigned char>(c) > '\r'; };
  std::size_t first = 0;
  std::size_t last = text.size();
  while (first < last && !isText(text[first]))
    ++first;
  while (last > first && !isText(text[last - 1]))
    --last;
  return text.substr(first, last - first).append(LineEnd);
}

}  // namespace

std::string FindIniKey(std::string_view text, std::string_view section, std::string_view key) {
  const std::string header = Bracketed(section);
  const std::string start = Entry(key, "");
  bool inside = false;
  for (const std::string_view line : SplitLines(text)) {
    if (line.find('[') != std::string_view::npos)
      inside = EqualsIgnoringCase(line, header);
    else if (inside && BeginsIgnoringCase(line, start))
      return std::string(line.substr(start.size()));
  }
  return {};
}

std::string WithIniKey(std::string text, std::string_view section, std::string_view key,
                       std::string_view value) {
  // A line end before the first section and a bracket behind the last key, so that neither is special.
  std::string padded = std::string(LineEnd) + WithFullLineEnds(std::move(text));
  const std::string lower = ToLower(padded) + "[]";
  const std::string marker = std::string(LineEnd) + ToLower(Bracketed(section)) + std::string(LineEnd);
  const std::size_t found = lower.find(marker);
  if (found == std::string::npos) {
    padded.append(LineEnd)
        .append(LineEnd)
        .append(Bracketed(section))
        .append(LineEnd)
        .append(Entry(key, value));
    return Tidied(std::move(padded));
  }
  const std::size_t firstKey = found + marker.size();
  const std::size_t next = lower.find('[', firstKey);
  const std::size_t old = lower.find("\n" + ToLower(Entry(key, "")), found);
  if (old == std::string::npos || old > next) {
    padded.insert(firstKey, Entry(key, value).append(LineEnd));
  } else {
    const std::size_t end = std::min(padded.find('\r', old), padded.size());
    padded.replace(old + 1, end - old - 1, Entry(key, value));
  }
  return Tidied(std::move(padded));
}

std::string ReadIniText(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) WriteWholeFile(file, "");
  std::filesystem::permissions(file, std::filesystem::perms::owner_write, std::filesystem::perm_options::add,
                               error);
  return ReadWholeFile(file);
}

std::string ReadIniKey(const std::filesystem::path& file, std::string_view section, std::string_view key) {
  return FromWindows1252(FindIniKey(ReadIniText(file), ToWindows1252(section), ToWindows1252(key)));
}

void WriteIniKey(const std::filesystem::path& file, std::string_view section, std::string_view key,
                 std::string_view value) {
  WriteWholeFile(
      file, WithIniKey(ReadIniText(file), ToWindows1252(section), ToWindows1252(key), ToWindows1252(value)));
}

std::vector<std::pair<std::string, std::string>> ReadIniSection(const std::filesystem::path& file,
                                                                std::string_view section) {
  const std::string text = ReadIniText(file);
  const std::string header = Bracketed(ToWindows1252(section));
  std::vector<std::pair<std::string, std::string>> entries;
  bool inside = false;
  for (const std::string_view line : SplitLines(text)) {
    // Only a line that begins with a bracket ends a section here: paths may hold brackets.
    if (line.starts_with('[')) {
      inside = EqualsIgnoringCase(line, header);
      continue;
    }
    const std::size_t equals = line.find('=');
    if (!inside || equals == std::string_view::npos || entries.size() == MostEntries) continue;
    entries.emplace_back(FromWindows1252(line.substr(0, equals)), FromWindows1252(line.substr(equals + 1)));
  }
  return entries;
}

}  // namespace landsmith
