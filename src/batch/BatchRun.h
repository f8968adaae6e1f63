// What every command of one run shares: streams, messages, folders, settings.
#pragma once

#include "batch/BatchDialogs.h"
#include "core/Project.h"
#include "core/Settings.h"
#include "platform/ProgramFolders.h"

#include <filesystem>
#include <functional>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// The options in front of the command, as typed.
struct BatchOptions {
  std::string App;
  std::string Fs;
  std::vector<std::string> Settings;  ///< "KEY=VALUE"
  bool Yes = false;
};

struct BatchRun {
  std::istream& in;
  std::ostream& out;
  BatchDialogs& dialogs;
  ProgramFolders folders;
  std::filesystem::path shippedData;
  AppSettings settings;
};

using Command = std::function<void(BatchRun&)>;

/// The command line asks for something that does not exist: exit status 2.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The command cannot go on, and its user has been told why: exit status 1.
struct CommandEnded {};

/// Finds and fills the program folder, loads the settings, applies `--set`. Throws UsageError for a setting
/// that does not exist or takes no such value; RuntimeError for a settings file with a bad number.
void PrepareRun(BatchRun& run, const BatchOptions& options);

/// Opens a project as the Open command does. Throws CommandEnded when that fails.
ProjectState OpenForCommand(BatchRun& run, std::string_view path);
/// Throws RuntimeError; the file that was there is then whole.
void SaveForCommand(BatchRun& run, ProjectState& project, std::string_view path);

/// Selects every item but maps, as a whole, and every cell of the class grids.
void SelectAllButMaps(ProjectState& project);

/// Shows the refusal of what the command line knows and this version does not do, and ends the command.
[[noreturn]] void RefuseUnsupported(BatchRun& run, std::string_view what);

/// Numbers of the command line, a decimal point alone. Throws UsageError that names the option.
double NumberArgument(std::string_view option, std::string_view text);
int IntegerArgument(std::string_view option, std::string_view text);
/// Two of them, latitude first, within -90..90 and -180..180.
LatLon PositionArgument(std::string_view option, const std::vector<std::string>& texts);

/// The pieces between the separators; none for an empty text.
std::vector<std::string> SplitAt(std::string_view text, char separator);

}  // namespace landsmith
