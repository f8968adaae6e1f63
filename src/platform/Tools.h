// Running the simulator community's tools. A command line is the documented one ("scasm work\X.scm -s -l"),
// run from the tools folder; which program answers to the name depends on the machine: the Windows program
// itself, the same through Wine, or the stand-in of that name that was built with this system.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Progress.h"

#include <filesystem>
#include <functional>
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
/// there is none. Names are looked up without regard to case, with and without ".exe"; a name with folders
/// is looked up there instead of in the tools folder. Backslashes in the arguments become slashes for
/// stand-ins.
std::optional<ResolvedCommand> ResolveTool(std::string_view commandLine,
                                           const std::filesystem::path& toolsFolder,
                                           const std::filesystem::path& standIns);

/// The name a tool goes by: the last component of the first word, without ".exe", in small letters.
std::string ToolName(std::string_view program);

/// The runner of a real machine. What a tool prints goes to work/NAME.log below the working folder, or
/// nowhere without such a folder. Two kinds of command need no tool:
/// - "notepad FILE" is shown through `dialogs.ShowText` where there is no notepad;
/// - "NAME.bat" is run line by line, each line as RunAndWait would, "del FILE" and "copy FROM TO" done here.
///   Its result is the first failure, else 0; a missing tool or a stop by the user ends it.
class SystemToolRunner final : public ToolRunner {
public:
  /// Turns the bytes of a report into UTF-8; none leaves them as they are.
  using Decoder = std::function<std::string(std::string_view)>;

  /// `standIns`: the folder of the stand-ins, usually that of the running program.
  SystemToolRunner(std::filesystem::path toolsFolder, std::filesystem::path standIns, Dialogs& dialogs,
                   Decoder decode = {});

  int RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                 Progress& progress) override;
  bool Start(std::string_view commandLine, const std::filesystem::path& workingFolder) override;
  void OpenDocument(std::string_view pathOrAddress) override;

private:
  int RunTool(std::string_view commandLine, const std::filesystem::path& workingFolder, Progress& progress);
  int RunBatch(const std::string& fileName, const std::filesystem::path& workingFolder, Progress& progress);
  int ShowReport(const std::string& fileName, const std::filesystem::path& workingFolder);
  std::optional<ResolvedCommand> Resolve(std::string_view commandLine);

  std::filesystem::path m_toolsFolder;
  std::filesystem::path m_standIns;
  Dialogs& m_dialogs;
  Decoder m_decode;
};

}  // namespace landsmith
