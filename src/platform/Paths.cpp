#include "platform/Paths.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace landsmith {

namespace fs = std::filesystem;

namespace {

fs::path PathFromText(std::string_view utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char left, char right) { return LowerLetter(left) == LowerLetter(right); });
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

/// Where a write to `path` lands: the file behind a link, so that the link itself stays.
fs::path WriteTarget(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target;
}

void WriteTo(const fs::path& path, std::string_view content, const fs::path& named) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw RuntimeError::At("writing a file", PathText(named), "", "it cannot be made here");
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  if (!file) throw RuntimeError::At("writing a file", PathText(named), "", "not all of it could be written");
}

}  // namespace

fs::path MapPath(std::string_view stored) {
#ifdef _WIN32
  return PathFromText(stored).make_preferred();
#else
  std::string slashed(stored);
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  fs::path whole = PathFromText(slashed);
  if (NamesForeignDrive(stored) || Exists(whole)) return whole;
  fs::path found;
  bool missing = false;
  for (const fs::path& piece : whole) {
    const fs::path folder = found.empty() ? fs::path(".") : found;
    const std::optional<fs::path> entry =
        missing || piece.empty() ? std::nullopt : FindInFolder(folder, PathText(piece));
    if (piece.is_absolute()) {
      found = piece;
    } else if (entry) {
      found /= entry->filename();
    } else {
      missing = missing || !piece.empty();
      found /= piece;
    }
  }
  return found;
#endif
}

fs::path MapPathIn(const fs::path& folder, std::string_view stored) {
  fs::path alone = MapPath(stored);
  if (alone.is_absolute() || NamesForeignDrive(stored)) return alone;
  return MapPath(PathText(folder) + "/" + std::string(stored));
}

bool NamesForeignDrive([[maybe_unused]] std::string_view stored) {
#ifdef _WIN32
  return false;
#else
  if (stored.size() < 2 || stored[1] != ':') return false;
  const char letter = LowerLetter(stored[0]);
  return letter >= 'a' && letter <= 'z';
#endif
}

std::optional<fs::path> FindExisting(std::string_view stored) {
  if (stored.empty() || NamesForeignDrive(stored)) return std::nullopt;
  fs::path path = MapPath(stored);
  if (!Exists(path)) return std::nullopt;
  return path;
}

std::optional<fs::path> FindInFolder(const fs::path& folder, std::string_view name) {
  if (name.empty()) return std::nullopt;
  fs::path exact = folder / PathFromText(name);
  if (Exists(exact)) return exact;
  std::optional<fs::path> best;  // of several that differ in case alone, always the same one
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (!SameName(PathText(entry->path().filename()), name)) continue;
    if (!best || entry->path() < *best) best = entry->path();
  }
  return best;
}

std::string PathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::string ReadWholeFile(const fs::path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error) throw RuntimeError::At("reading a file", PathText(path), "", error.message());
  std::ifstream file(path, std::ios::binary);
  if (!file) throw RuntimeError::At("reading a file", PathText(path), "", "it cannot be opened");
  std::string content(size, '\0');
  file.read(content.data(), static_cast<std::streamsize>(size));
  if (static_cast<std::uintmax_t>(file.gcount()) != size)
    throw RuntimeError::At("reading a file", PathText(path), "offset " + std::to_string(file.gcount()),
                           "it ends before its size of " + std::to_string(size));
  return content;
}

void WriteWholeFile(const fs::path& path, std::string_view content) {
  const fs::path target = WriteTarget(path);
  std::error_code error;
  const fs::file_status before = fs::status(target, error);
  // Devices and the like are written to, never replaced.
  if (fs::exists(before) && !fs::is_regular_file(before)) return WriteTo(target, content, path);
  if (fs::exists(before) && (before.permissions() & fs::perms::owner_write) == fs::perms::none)
    throw RuntimeError::At("writing a file", PathText(path), "", "the file is read-only");

  fs::path beside = target;
  beside += ".landsmith-new";
  try {
    WriteTo(beside, content, path);
    if (fs::exists(before)) fs::permissions(beside, before.permissions(), error);
    fs::rename(beside, target, error);
    if (error) throw RuntimeError::At("writing a file", PathText(path), "", error.message());
  } catch (...) {
    fs::remove(beside, error);
    throw;
  }
}

}  // namespace landsmith
