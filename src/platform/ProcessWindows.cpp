#ifdef _WIN32

#include "platform/Paths.h"
#include "platform/Process.h"
#include "platform/RuntimeError.h"

// windows.h must come before the headers that build on it.
#include <windows.h>
// clang-format keeps this behind
#include <shellapi.h>

#include <string>
#include <vector>

namespace landsmith {

namespace {

constexpr DWORD PollMilliseconds = 20;

class Handle {
public:
  explicit Handle(HANDLE handle) : m_handle(handle) {}
  ~Handle() {
    if (m_handle != nullptr && m_handle != INVALID_HANDLE_VALUE) CloseHandle(m_handle);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  HANDLE Get() const { return m_handle; }

private:
  HANDLE m_handle;
};

std::string LastErrorText() {
  return "system error " + std::to_string(GetLastError());
}

/// One argument as the usual start-up code of a program takes it apart again.
std::string Quoted(const std::string& argument) {
  if (!argument.empty() && argument.find_first_of(" \t\"") == std::string::npos) return argument;
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char c : argument) {
    if (c == '"') text.append(backslashes + 1, '\\');  // a quote keeps those in front of it too
    backslashes = c == '\\' ? backslashes + 1 : 0;
    text += c;
  }
  return text.append(backslashes, '\\') + "\"";
}

std::string CommandLineOf(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments)
    line += (line.empty() ? "" : " ") + Quoted(argument);
  return line;
}

HANDLE OpenOutput(const std::filesystem::path& output) {
  SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  const std::string name = output.empty() ? "NUL" : output.string();
  return CreateFileA(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable,
                     output.empty() ? OPEN_EXISTING : CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

PROCESS_INFORMATION Create(const ProcessRequest& request) {
  std::string line = CommandLineOf(request.Command.Arguments);
  const std::string folder = request.WorkingFolder.string();
  const Handle output(OpenOutput(request.Output));
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = INVALID_HANDLE_VALUE;
  startup.hStdOutput = output.Get();
  startup.hStdError = output.Get();
  PROCESS_INFORMATION process{};
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS, nullptr,
                      folder.empty() ? nullptr : folder.c_str(), &startup, &process))
    throw RuntimeError::At("starting the program", line, "", LastErrorText());
  return process;
}

}  // namespace

int RunProcess(const ProcessRequest& request, Progress& progress) {
  const PROCESS_INFORMATION started = Create(request);
  const Handle process(started.hProcess);
  const Handle thread(started.hThread);
  while (WaitForSingleObject(process.Get(), PollMilliseconds) == WAIT_TIMEOUT) {
    if (progress.Wait()) continue;
    TerminateProcess(process.Get(), 1);
    WaitForSingleObject(process.Get(), INFINITE);
    return ProcessStopped;
  }
  DWORD code = 0;
  if (!GetExitCodeProcess(process.Get(), &code))
    throw RuntimeError::At("waiting for the program", request.Command.Arguments.front(), "", LastErrorText());
  // A crash leaves a code with the top bit set; it must not read as a success below 0.
  return code > 0x7FFFFFFFU ? 1 : static_cast<int>(code);
}

void StartProcess(const ProcessRequest& request) {
  const PROCESS_INFORMATION started = Create(request);
  const Handle process(started.hProcess);
  const Handle thread(started.hThread);
}

std::optional<std::filesystem::path> FindOnSearchPath(std::string_view program) {
  std::string found(MAX_PATH, '\0');
  const DWORD length = SearchPathA(nullptr, std::string(program).c_str(), ".exe",
                                   static_cast<DWORD>(found.size()), found.data(), nullptr);
  if (length == 0 || length >= found.size()) return std::nullopt;
  found.resize(length);
  return std::filesystem::path(found);
}

void OpenWithSystem(std::string_view pathOrAddress) {
  const std::string target(pathOrAddress);
  const HINSTANCE result = ShellExecuteA(nullptr, "open", target.c_str(), nullptr, "c:\\", SW_SHOWNORMAL);
  if (reinterpret_cast<INT_PTR>(result) <= 32)  // the documented border between handles and failures
    throw RuntimeError::At("opening", target, "", LastErrorText());
}

}  // namespace landsmith

#endif
