#ifndef _WIN32

#include "platform/Paths.h"
#include "platform/Process.h"
#include "platform/RuntimeError.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

extern char** environ;

namespace landsmith {

namespace {

using namespace std::chrono_literals;

constexpr auto LongestPause = 20ms;
constexpr auto GraceBeforeKill = 2000ms;

/// What posix_spawn wants released again.
class SpawnPlan {
public:
  explicit SpawnPlan(const ProcessRequest& request) {
    posix_spawn_file_actions_init(&m_actions);
    posix_spawnattr_init(&m_attributes);
    // A group of its own, so that a stop also reaches what the program started.
    posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&m_attributes, 0);
    const std::string output = request.Output.empty() ? "/dev/null" : request.Output.string();
    posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0644);
    posix_spawn_file_actions_adddup2(&m_actions, STDOUT_FILENO, STDERR_FILENO);
    if (!request.WorkingFolder.empty())
      posix_spawn_file_actions_addchdir_np(&m_actions, request.WorkingFolder.c_str());
  }
  ~SpawnPlan() {
    posix_spawn_file_actions_destroy(&m_actions);
    posix_spawnattr_destroy(&m_attributes);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  posix_spawn_file_actions_t* Actions() { return &m_actions; }
  posix_spawnattr_t* Attributes() { return &m_attributes; }

private:
  posix_spawn_file_actions_t m_actions{};
  posix_spawnattr_t m_attributes{};
};

/// The environment of this program with `added` in place of variables of the same name.
std::vector<std::string> EnvironmentWith(const std::vector<std::string>& added) {
  std::vector<std::string> all = added;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view variable = *entry;
    const std::string_view name = variable.substr(0, variable.find('=') + 1);
    const bool replaced = std::any_of(added.begin(), added.end(),
                                      [&](const std::string& own) { return own.starts_with(name); });
    if (!replaced) all.emplace_back(variable);
  }
  return all;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

pid_t Spawn(const ProcessRequest& request) {
  std::vector<std::string> arguments = request.Command.Arguments;
  if (arguments.empty()) throw RuntimeError::At("starting a program", "", "", "no program is named");
  // The working folder changes before the program is looked up, so its own path must not depend on it.
  const std::string program = std::filesystem::absolute(arguments.front()).string();
  std::vector<std::string> environment = EnvironmentWith(request.Command.Environment);
  SpawnPlan plan(request);
  pid_t child = 0;
  const int failure = posix_spawn(&child, program.c_str(), plan.Actions(), plan.Attributes(),
                                  Pointers(arguments).data(), Pointers(environment).data());
  if (failure != 0) throw RuntimeError::At("starting the program", program, "", std::strerror(failure));
  return child;
}

int ExitCode(int status) {
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// True when the child is gone, with its state in `status`.
bool HasEnded(pid_t child, int& status) {
  pid_t result = 0;
  do {
    result = waitpid(child, &status, WNOHANG);
  } while (result < 0 && errno == EINTR);
  if (result < 0)
    throw RuntimeError::At("waiting for a program", "", "process " + std::to_string(child),
                           std::strerror(errno));
  return result == child;
}

void EndGroup(pid_t child) {
  kill(-child, SIGTERM);
  int status = 0;
  const auto deadline = std::chrono::steady_clock::now() + GraceBeforeKill;
  while (!HasEnded(child, status)) {
    if (std::chrono::steady_clock::now() > deadline) kill(-child, SIGKILL);
    std::this_thread::sleep_for(LongestPause);
  }
}

}  // namespace

int RunProcess(const ProcessRequest& request, Progress& progress) {
  const pid_t child = Spawn(request);
  auto pause = 1ms;  // many tools are done at once; the pause grows while one is not
  int status = 0;
  while (!HasEnded(child, status)) {
    if (!progress.Wait()) {
      EndGroup(child);
      return ProcessStopped;
    }
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, std::chrono::milliseconds(LongestPause));
  }
  return ExitCode(status);
}

void StartProcess(const ProcessRequest& request) {
  // The shell puts the program into the background and ends, so nobody here has to collect it later.
  ProcessRequest viaShell = request;
  std::vector<std::string>& arguments = viaShell.Command.Arguments;
  if (arguments.empty()) throw RuntimeError::At("starting a program", "", "", "no program is named");
  if (access(arguments.front().c_str(), X_OK) != 0)
    throw RuntimeError::At("starting the program", arguments.front(), "", std::strerror(errno));
  arguments.front() = std::filesystem::absolute(arguments.front()).string();
  const std::vector<std::string> shell{"/bin/sh", "-c", "\"$@\" &", "sh"};
  arguments.insert(arguments.begin(), shell.begin(), shell.end());
  NoProgress silent;
  RunProcess(viaShell, silent);
}

std::optional<std::filesystem::path> FindOnSearchPath(std::string_view program) {
  const char* folders = std::getenv("PATH");
  if (folders == nullptr) return std::nullopt;
  std::string_view rest = folders;
  while (!rest.empty()) {
    const std::string_view folder = rest.substr(0, rest.find(':'));
    rest.remove_prefix(std::min(folder.size() + 1, rest.size()));
    if (folder.empty()) continue;
    std::filesystem::path candidate = std::filesystem::path(folder) / program;
    std::error_code ignored;
    if (std::filesystem::is_regular_file(candidate, ignored) && access(candidate.c_str(), X_OK) == 0)
      return candidate;
  }
  return std::nullopt;
}

void OpenWithSystem(std::string_view pathOrAddress) {
  const auto opener = FindOnSearchPath("xdg-open");
  if (!opener)
    throw RuntimeError::At("opening", std::string(pathOrAddress), "", "this system has no program xdg-open");
  StartProcess({{{opener->string(), std::string(pathOrAddress)}, {}}, {}, {}});
}

}  // namespace landsmith

#endif
