// The four most recent projects.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace landsmith {

using RecentFiles = std::array<std::string, 4>;  ///< UTF-8 paths, empty slots last

RecentFiles LoadRecentFiles(const std::filesystem::path& iniFile);

/// A path that is in the list already changes nothing; otherwise it comes first, the others move down, and
/// the settings file is brought up to date.
void PushRecentFile(RecentFiles& recent, std::string_view path, const std::filesystem::path& iniFile);

/// Fits a path to `n` characters for a menu: "C:\first\..\file" forms. Slash and backslash both separate.
std::string ShortenPath(std::string_view path, std::size_t n);

}  // namespace landsmith
