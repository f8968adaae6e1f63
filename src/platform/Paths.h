// Stored folder and file texts keep the backslashes they were written with; these functions turn them
// into paths of the machine at hand.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// The path that `stored` names on this machine. Backslash and slash both separate. Each component whose
/// exact name is missing is looked up without regard to case; one that is missing in any case is kept as
/// it stands, so that the result can be created. `stored` is UTF-8.
std::filesystem::path MapPath(std::string_view stored);

/// The same for a text that counts from `folder` unless it is absolute.
std::filesystem::path MapPathIn(const std::filesystem::path& folder, std::string_view stored);

/// True when the text begins with a drive letter on a system that has no drives: such a path is missing.
bool NamesForeignDrive(std::string_view stored);

/// `MapPath(stored)` when something exists there, else nothing.
std::optional<std::filesystem::path> FindExisting(std::string_view stored);

/// The same look-up for one name inside a folder that exists; nothing when no entry fits.
std::optional<std::filesystem::path> FindInFolder(const std::filesystem::path& folder, std::string_view name);

/// A path as UTF-8 text, separators as the system writes them.
std::string PathText(const std::filesystem::path& path);

/// The whole content of a file. Throws RuntimeError that names the file when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& path);

/// Writes beside the file and renames, so that a failure leaves the old file whole. Makes no folders.
/// Throws RuntimeError that names the file.
void WriteWholeFile(const std::filesystem::path& path, std::string_view content);

}  // namespace landsmith
