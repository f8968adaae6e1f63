#include "platform/Paths.h"
#include "platform/Process.h"
#include "platform/RuntimeError.h"
#include "platform/Tools.h"

#include <utility>

namespace landsmith {

namespace {

std::filesystem::path LogOfTool(std::string_view program, const std::filesystem::path& workingFolder) {
  const auto work = FindInFolder(workingFolder, "work");
  std::error_code ignored;
  if (!work || !std::filesystem::is_directory(*work, ignored)) return {};
  return *work / (ToolName(program) + ".log");
}

/// "del FILE ...": a file that is not there is no failure, as in the command shell.
int DeleteFiles(const std::vector<std::string>& arguments, const std::filesystem::path& workingFolder) {
  int result = 0;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    std::error_code failure;
    std::filesystem::remove(MapPathIn(workingFolder, arguments[i]), failure);
    if (failure) result = 1;
  }
  return result;
}

/// "copy FROM TO", TO being a file or a folder.
int CopyOneFile(const std::vector<std::string>& arguments, const std::filesystem::path& workingFolder) {
  if (arguments.size() != 3) return 1;
  const std::filesystem::path from = MapPathIn(workingFolder, arguments[1]);
  std::filesystem::path to = MapPathIn(workingFolder, arguments[2]);
  std::error_code failure;
  if (std::filesystem::is_directory(to, failure)) to /= from.filename();
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, failure);
  return failure ? 1 : 0;
}

/// The next line of `rest`, without its end and the blanks around it, and "@" in front of it.
std::string TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  const std::size_t first = line.find_first_not_of(" \t\r@");
  if (first == std::string_view::npos) return {};
  line = line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
  return std::string(line);
}

}  // namespace

SystemToolRunner::SystemToolRunner(std::filesystem::path toolsFolder, std::filesystem::path standIns,
                                   Dialogs& dialogs, Decoder decode)
    : m_toolsFolder(std::move(toolsFolder)),
      m_standIns(std::move(standIns)),
      m_dialogs(dialogs),
      m_decode(std::move(decode)) {}

int SystemToolRunner::RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                                 Progress& progress) {
  try {
    const std::vector<std::string> arguments = SplitCommandLine(commandLine);
    if (!arguments.empty()) {
      const std::string name = ToolName(arguments.front());
      if (name == "notepad" && arguments.size() == 2 && !FindOnSearchPath("notepad.exe"))
        return ShowReport(arguments[1], workingFolder);
      if (name.ends_with(".bat")) return RunBatch(arguments.front(), workingFolder, progress);
    }
    return RunTool(commandLine, workingFolder, progress);
  } catch (const RuntimeError& error) {
    m_dialogs.Message(MessageKind::Error, error.what());
    return ToolMissing;
  }
}

bool SystemToolRunner::Start(std::string_view commandLine, const std::filesystem::path& workingFolder) {
  try {
    const auto command = Resolve(commandLine);
    if (command) StartProcess({*command, workingFolder, {}});
    return command.has_value();
  } catch (const RuntimeError& error) {
    m_dialogs.Message(MessageKind::Error, error.what());
    return false;
  }
}

void SystemToolRunner::OpenDocument(std::string_view pathOrAddress) {
  try {
    OpenWithSystem(pathOrAddress);
  } catch (const RuntimeError& error) {
    m_dialogs.Message(MessageKind::Error, error.what());
  }
}

std::optional<ResolvedCommand> SystemToolRunner::Resolve(std::string_view commandLine) {
  auto command = ResolveTool(commandLine, m_toolsFolder, m_standIns);
  if (command) return command;
  const std::vector<std::string> arguments = SplitCommandLine(commandLine);
  const std::string program = arguments.empty() ? std::string() : arguments.front();
  // Programs of the system itself, such as its notepad, need no place in the tools folder.
  if (const auto found = ToolName(program) == "notepad" ? FindOnSearchPath("notepad.exe") : std::nullopt) {
    command = ResolvedCommand{arguments, {}};
    command->Arguments.front() = PathText(*found);
    return command;
  }
  m_dialogs.Message(MessageKind::Error, "The tool \"" + program + "\" was not found!\nIt should be in " +
                                            PathText(m_toolsFolder) + ".");
  return std::nullopt;
}

int SystemToolRunner::RunTool(std::string_view commandLine, const std::filesystem::path& workingFolder,
                              Progress& progress) {
  const auto command = Resolve(commandLine);
  if (!command) return ToolMissing;
  const std::string program = SplitCommandLine(commandLine).front();
  return RunProcess({*command, workingFolder, LogOfTool(program, workingFolder)}, progress);
}

int SystemToolRunner::RunBatch(const std::string& fileName, const std::filesystem::path& workingFolder,
                               Progress& progress) {
  const std::string content = ReadWholeFile(MapPathIn(workingFolder, fileName));
  std::string_view rest = content;
  int result = 0;
  while (!rest.empty()) {
    const std::string line = TakeLine(rest);
    const std::vector<std::string> arguments = SplitCommandLine(line);
    if (arguments.empty()) continue;
    const std::string name = ToolName(arguments.front());
    int code = 0;
    if (name == "del")
      code = DeleteFiles(arguments, workingFolder);
    else if (name == "copy")
      code = CopyOneFile(arguments, workingFolder);
    else
      code = RunTool(line, workingFolder, progress);
    if (result == 0) result = code;
    if (code == ToolMissing || code == ProcessStopped) return code;
  }
  return result;
}

int SystemToolRunner::ShowReport(const std::string& fileName, const std::filesystem::path& workingFolder) {
  const std::string bytes = ReadWholeFile(MapPathIn(workingFolder, fileName));
  m_dialogs.ShowText(fileName, m_decode ? m_decode(bytes) : bytes);
  return 0;
}

}  // namespace landsmith
