// Running the simulator community's tools. A command line is the documented one ("scasm work\X.scm -s -l"),
// run from the tools folder; which program answers to the name depends on the machine: the Windows program
// itself, the same through Wine, or the stand-in of that name that was built with this system.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Progress.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

class ToolRunner {
public:
  virtual ~ToolRunner() = default;

  /// Runs `commandLine` in `workingFolder`, waits for its end and returns its exit code. `progress.Wait` is
  /// called while it runs; when that says stop, the program is ended and the result is -1. A tool that
  /// cannot be found or started is told to the user, and the result is `ToolMissing`.
  virtual int RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                         Progress& progress) = 0;

  /// Starts a program without waiting for it. False, after an error box, when it cannot be started.
  virtual bool Start(std::string_view commandLine, const std::filesystem::path& workingFolder) = 0;

  /// Opens a document or web address with the program that the system has for it.
  virtual void OpenDocument(std::string_view pathOrAddress) = 0;
};

/// Exit code of a tool that is not there; above 0, as any failure is.
inline constexpr int ToolMissing = 9009;

/// How a command line is carried out on this machine.
struct ResolvedCommand {
  std::vector<std::string> Arguments;    ///< program first
  std::vector<std::string> Environment;  ///< "NAME=value" to add
};

/// Splits a command line at blanks, a quoted piece being one argument without its quotes.
std::vector<std::string> SplitCommandLine(std::string_view commandLine);

/// Finds the tool a command line names: on Windows the program in the tools folder; elsewhere that Windows
/// program through `wine` where both are there; then the stand-in of that name in `standIns`. Nothing when
/// there is none. Backslashes in the arguments become slashes for stand-ins.
std::optional<ResolvedCommand> ResolveTool(std::string_view commandLine,
                                           const std::filesystem::path& toolsFolder,
                                           const std::filesystem::path& standIns);

/// The runner of a real machine. "notepad FILE" is shown through `dialogs.ShowText` where there is no
/// notepad.
class SystemToolRunner final : public ToolRunner {
public:
  /// `standIns`: the folder of the stand-ins, usually that of the running program.
  SystemToolRunner(std::filesystem::path toolsFolder, std::filesystem::path standIns, Dialogs& dialogs);

  int RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                 Progress& progress) override;
  bool Start(std::string_view commandLine, const std::filesystem::path& workingFolder) override;
  void OpenDocument(std::string_view pathOrAddress) override;

private:
  std::filesystem::path m_toolsFolder;
  std::filesystem::path m_standIns;
  Dialogs& m_dialogs;
};

}  // namespace landsmith
