#include "core/RecentFiles.h"

#include "core/IniFile.h"
#include "core/Text.h"
#include "platform/Paths.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr std::string_view Section = "Recent Files";
constexpr std::string_view Separators = "\\/";

std::string KeyOf(std::size_t slot) {
  return "RecentFile" + std::to_string(slot + 1);
}

bool BeginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

std::size_t CharacterCount(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), BeginsCharacter));
}

/// Bytes that the first `count` characters take.
std::size_t BytesOf(std::string_view utf8, std::size_t count) {
  std::size_t at = 0;
  while (at < utf8.size() && (count > 0 || !BeginsCharacter(utf8[at]))) {
    if (BeginsCharacter(utf8[at])) --count;
    ++at;
  }
  return at;
}

}  // namespace

RecentFiles LoadRecentFiles(const std::filesystem::path& iniFile) {
  const auto entries = ReadIniSection(iniFile, Section);
  RecentFiles recent;
  std::size_t used = 0;
  for (std::size_t slot = 0; slot < recent.size(); ++slot) {
    const auto entry = std::find_if(entries.begin(), entries.end(), [&](const auto& candidate) {
      return EqualsIgnoringCase(candidate.first, KeyOf(slot));
    });
    if (entry != entries.end() && !entry->second.empty()) recent[used++] = entry->second;
    if (used == 0) break;  // without the first there is no list
  }
  return recent;
}

void PushRecentFile(RecentFiles& recent, std::string_view path, const std::filesystem::path& iniFile) {
  if (path.empty() || std::find(recent.begin(), recent.end(), path) != recent.end()) return;
  std::move_backward(recent.begin(), recent.end() - 1, recent.end());
  recent[0] = path;
  std::string text = ReadIniText(iniFile);
  for (std::size_t slot = recent.size(); slot-- > 0;)
    if (!recent[slot].empty())
      text = WithIniKey(std::move(text), Section, KeyOf(slot), ToWindows1252(recent[slot]));
  WriteWholeFile(iniFile, text);
}

std::string ShortenPath(std::string_view path, std::size_t n) {
  const std::size_t length = CharacterCount(path);
  const std::size_t last = path.find_last_of(Separators);
  if (length <= n || last == std::string_view::npos) return std::string(path);
  const std::size_t first = path.find_first_of(Separators, BytesOf(path, 3));
  // The head that stays: the drive and its first folder, or without room for that the drive alone.
  const std::size_t head = first == std::string_view::npos ? 0 : first + 1;
  const std::size_t tail = length - CharacterCount(path.substr(0, last + 1));
  const bool driveAlone = n < CharacterCount(path.substr(0, head)) + tail;
  const std::string_view kept = path.substr(0, driveAlone ? BytesOf(path, 3) : head);
  return std::string(kept) + ".." + std::string(path.substr(last));
}

}  // namespace landsmith
