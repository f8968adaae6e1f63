#include "platform/Tools.h"

#include "platform/Paths.h"
#include "platform/Process.h"

#include <algorithm>
#include <utility>

namespace landsmith {

namespace {

#ifdef _WIN32
constexpr bool RunsWindowsPrograms = true;
#else
constexpr bool RunsWindowsPrograms = false;
#endif

constexpr std::string_view ProgramEnding = ".exe";

std::string SmallLetters(std::string_view text) {
  std::string small(text);
  for (char& c : small)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return small;
}

std::size_t LastComponentStart(std::string_view program) {
  const std::size_t separator = program.find_last_of("\\/");
  return separator == std::string_view::npos ? 0 : separator + 1;
}

/// The Windows program that `program` names: in its own folder when it names one, else in the tools folder.
std::optional<std::filesystem::path> FindWindowsProgram(std::string_view program,
                                                        const std::filesystem::path& toolsFolder) {
  const std::size_t start = LastComponentStart(program);
  const std::string fileName = ToolName(program) + std::string(ProgramEnding);
  if (start == 0) return FindInFolder(toolsFolder, fileName);
  return FindExisting(PathText(MapPathIn(toolsFolder, std::string(program.substr(0, start)) + fileName)));
}

std::optional<std::filesystem::path> FindStandIn(std::string_view program,
                                                 const std::filesystem::path& standIns) {
  std::string name = ToolName(program);
  if (RunsWindowsPrograms) name += ProgramEnding;
  auto found = FindInFolder(standIns, name);
  if (found && !std::filesystem::is_regular_file(*found)) found.reset();
  return found;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine) {
  std::vector<std::string> arguments;
  bool inArgument = false;
  bool quoted = false;
  for (const char c : commandLine) {
    if (!quoted && (c == ' ' || c == '\t')) {
      inArgument = false;
      continue;
    }
    if (!inArgument) arguments.emplace_back();
    inArgument = true;
    if (c == '"')
      quoted = !quoted;
    else
      arguments.back() += c;
  }
  return arguments;
}

std::string ToolName(std::string_view program) {
  std::string name = SmallLetters(program.substr(LastComponentStart(program)));
  if (name.ends_with(ProgramEnding)) name.resize(name.size() - ProgramEnding.size());
  return name;
}

std::optional<ResolvedCommand> ResolveTool(std::string_view commandLine,
                                           const std::filesystem::path& toolsFolder,
                                           const std::filesystem::path& standIns) {
  ResolvedCommand command{SplitCommandLine(commandLine), {}};
  if (command.Arguments.empty()) return std::nullopt;
  std::string& program = command.Arguments.front();

  if (const auto windowsProgram = FindWindowsProgram(program, toolsFolder)) {
    if (RunsWindowsPrograms) {
      program = PathText(*windowsProgram);
      return command;
    }
    if (const auto wine = FindOnSearchPath("wine")) {
      program = PathText(*windowsProgram);
      command.Arguments.insert(command.Arguments.begin(), PathText(*wine));
      // Without these a crashed tool exits 0 and waits for a debugger nobody sees.
      command.Environment = {"WINEDEBUG=-all", "WINEDLLOVERRIDES=mscoree,mshtml=;winedbg.exe=d"};
      return command;
    }
  }
  const auto standIn = FindStandIn(program, standIns);
  if (!standIn) return std::nullopt;
  program = PathText(*standIn);
  for (auto argument = command.Arguments.begin() + 1; argument != command.Arguments.end(); ++argument)
    std::replace(argument->begin(), argument->end(), '\\', '/');
  return command;
}

}  // namespace landsmith
