#include "platform/ProgramFolders.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>

namespace landsmith {

namespace {

constexpr std::string_view SettingsFile = "Landsmith.ini";

/// The entry `name` of `folder` in the case that it has there, or as it would be made.
std::filesystem::path In(const std::filesystem::path& folder, std::string_view name) {
  return FindInFolder(folder, name).value_or(folder / name);
}

bool HoldsFolder(const std::filesystem::path& folder, std::string_view name) {
  const auto found = FindInFolder(folder, name);
  std::error_code ignored;
  return found && std::filesystem::is_directory(*found, ignored);
}

/// Tried rather than asked: access rights say little on network drives and on Windows.
bool CanBeWritten(const std::filesystem::path& folder) {
  const std::filesystem::path probe = folder / ".landsmith-probe";
  const bool written = std::ofstream(probe).is_open();
  std::error_code ignored;
  if (written) std::filesystem::remove(probe, ignored);
  return written;
}

/// The folder `name` inside `parent`, in whatever case it is there, made when it is not.
std::filesystem::path EnsureFolder(const std::filesystem::path& parent, const std::string& name) {
  std::error_code failure;
  std::filesystem::create_directories(parent, failure);
  if (!failure) {
    if (const auto found = FindInFolder(parent, name)) return *found;
    std::filesystem::create_directory(parent / name, failure);
  }
  if (failure) throw RuntimeError::At("making the folder", PathText(parent / name), "", failure.message());
  return parent / name;
}

/// Copies what `target` lacks of `source`; true when that was anything.
bool CopyMissing(const std::filesystem::path& source, const std::filesystem::path& target) {
  bool copied = false;
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(source, failure)) {
    const std::string name = PathText(entry.path().filename());
    if (entry.is_directory()) {
      copied |= CopyMissing(entry.path(), EnsureFolder(target, name));
    } else if (!FindInFolder(target, name)) {
      WriteWholeFile(target / name, ReadWholeFile(entry.path()));
      copied = true;
    }
  }
  if (failure) throw RuntimeError::At("reading the folder", PathText(source), "", failure.message());
  return copied;
}

/// Where the system keeps a user's data of programs.
std::filesystem::path UserDataFolder() {
#ifdef _WIN32
  if (const char* local = std::getenv("LOCALAPPDATA"); local != nullptr && *local != '\0')
    return std::filesystem::path(local) / "Landsmith";
  throw RuntimeError::At("looking for the user's data folder", "", "", "LOCALAPPDATA is not set");
#else
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/')
    return std::filesystem::path(data) / "landsmith";
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
    return std::filesystem::path(home) / ".local" / "share" / "landsmith";
  throw RuntimeError::At("looking for the user's data folder", "", "", "HOME is not set");
#endif
}

}  // namespace

std::filesystem::path ProgramFolders::IniPath() const {
  return In(AppPath, SettingsFile);
}

std::filesystem::path ProgramFolders::Tools() const {
  return In(AppPath, "tools");
}

std::filesystem::path ProgramFolders::Work() const {
  return In(Tools(), "work");
}

std::filesystem::path ProgramFolders::Bitmaps() const {
  return In(Tools(), "bmps");
}

std::filesystem::path ProgramFolders::Html() const {
  return In(AppPath, "html");
}

std::filesystem::path ProgramFolders::FSTexturePath() const {
  return MapPath(PathText(FSPath) + "\\SCENERY\\WORLD\\Texture");
}

std::filesystem::path FindShippedData(const std::filesystem::path& programFile) {
  const std::filesystem::path folder = programFile.parent_path();
  const std::array<std::filesystem::path, 4> places{
      folder / "data", folder, folder.parent_path() / "share" / "landsmith", LANDSMITH_SHIPPED_DATA};
  for (const std::filesystem::path& place : places)
    if (HoldsFolder(place, "tools") && HoldsFolder(place, "simulator")) return place;
  throw RuntimeError::At(
      "looking for the installed data", PathText(programFile), "",
      "there is no folder with tools and simulator in it beside the program or in " + PathText(places[2]));
}

std::filesystem::path FindProgramFolder(const std::filesystem::path& programFile) {
  const std::filesystem::path folder = programFile.parent_path();
  const bool portable = HoldsFolder(folder, "tools") || FindInFolder(folder, SettingsFile);
  return portable && CanBeWritten(folder) ? folder : UserDataFolder();
}

bool FillProgramFolder(const std::filesystem::path& appPath, const std::filesystem::path& shippedData) {
  const std::filesystem::path tools = EnsureFolder(appPath, "tools");
  EnsureFolder(tools, "work");
  EnsureFolder(appPath, "scenery");
  bool copied = false;
  for (const char* name : {"tools", "html"}) {
    const auto source = FindInFolder(shippedData, name);
    if (!source) continue;
    const std::filesystem::path target = EnsureFolder(appPath, name);
    std::error_code ignored;
    if (!std::filesystem::equivalent(*source, target, ignored)) copied |= CopyMissing(*source, target);
  }
  return copied;
}

}  // namespace landsmith
