// The settings file as text: sections in brackets, key=value lines, CR LF. Keys and sections are compared
// without regard to case. Values are UTF-8 here, Windows-1252 in the file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace landsmith {

/// The text of the key, or empty; an empty value and an absent key cannot be told apart. Makes the file when
/// it is missing. A line that holds "[" anywhere ends the current section.
std::string ReadIniKey(const std::filesystem::path& file, std::string_view section, std::string_view key);

/// Rewrites the whole file. A new key comes first in its section, a new section last in the file.
void WriteIniKey(const std::filesystem::path& file, std::string_view section, std::string_view key,
                 std::string_view value);

/// Keys and values of a section in file order, at most 30.
std::vector<std::pair<std::string, std::string>> ReadIniSection(const std::filesystem::path& file,
                                                                std::string_view section);

/// The whole file as it stands; made when it is missing, and made writable.
std::string ReadIniText(const std::filesystem::path& file);

/// The same on the text alone. Text, names and values are Windows-1252 bytes, as the file holds them: whoever
/// looks many keys up, or changes many, reads and writes the file once.
std::string FindIniKey(std::string_view text, std::string_view section, std::string_view key);
std::string WithIniKey(std::string text, std::string_view section, std::string_view key,
                       std::string_view value);

}  // namespace landsmith
