// Where the program's own files lie, and where the simulator is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// `AppPath` is the program folder, without a separator at its end.
struct ProgramFolders {
  std::filesystem::path AppPath;
  std::filesystem::path FSPath;     ///< the simulator's folder; holds scenery.cfg
  bool SimulatorIsStandIn = false;  ///< FSPath is the minimal folder that the program ships

  // Each in whatever case it is there: a program folder may come from a system that ignores case.
  std::filesystem::path IniPath() const;
  std::filesystem::path Tools() const;
  std::filesystem::path Work() const;
  std::filesystem::path Bitmaps() const;
  std::filesystem::path Html() const;
  /// FSPath + "\SCENERY\WORLD\Texture".
  std::filesystem::path FSTexturePath() const;
};

/// The data that the build ships: the folder that holds `tools/`, `simulator/` and `samples/`; looked for
/// beside the program, in ../share/landsmith, and in the source tree the program was built from.
/// Throws RuntimeError when it is nowhere.
std::filesystem::path FindShippedData(const std::filesystem::path& programFile);

/// The program folder: that of the executable when it holds `tools/` or `Landsmith.ini` and can be written;
/// else the user's data folder (XDG data home "landsmith", or the local application data on Windows).
std::filesystem::path FindProgramFolder(const std::filesystem::path& programFile);

/// Copies into `appPath` what it lacks of the shipped `tools/`, `html/`, and makes `scenery/` and
/// `tools/work/`. A file that is there is never overwritten. True when something was copied.
bool FillProgramFolder(const std::filesystem::path& appPath, const std::filesystem::path& shippedData);

/// The simulator: on Windows as the registry says, elsewhere `configured` (the key FSPath of section Main);
/// the first that holds scenery.cfg counts, else the shipped minimal folder. Nothing when there is none.
/// `asStandIn` is set when the shipped folder serves.
std::optional<std::filesystem::path> FindSimulator(std::string_view configured,
                                                   const std::filesystem::path& shippedData, bool& asStandIn);

/// The running executable.
std::filesystem::path CurrentProgram();

}  // namespace landsmith
