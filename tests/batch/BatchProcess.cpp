#include "BatchProcess.h"

#include "platform/Paths.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

namespace landsmith::test {

namespace {

constexpr const char* Program = LANDSMITH_BINARY_DIR "/bin/landsmith-batch";

void Redirect(int stream, const std::filesystem::path& file, int flags) {
  const int opened = open(file.c_str(), flags, 0600);
  if (opened < 0 || dup2(opened, stream) < 0) _exit(126);
}

[[noreturn]] void BecomeProgram(const std::filesystem::path& folder, std::vector<char*>& arguments,
                                const std::string& localeName) {
  Redirect(STDIN_FILENO, folder / "stdin", O_RDONLY);
  Redirect(STDOUT_FILENO, folder / "stdout", O_WRONLY | O_CREAT | O_TRUNC);
  Redirect(STDERR_FILENO, folder / "stderr", O_WRONLY | O_CREAT | O_TRUNC);
  if (chdir((folder / "here").c_str()) != 0) _exit(126);
  setenv("LC_ALL", localeName.c_str(), 1);
  setenv("XDG_DATA_HOME", (folder / "home").c_str(), 1);
  execv(Program, arguments.data());
  _exit(127);
}

}  // namespace

BatchResult RunBatchProgram(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                            const std::string& input, const std::string& localeName) {
  WriteWholeFile(folder / "stdin", input);
  std::vector<std::string> texts{Program};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);

  const pid_t child = fork();
  if (child == 0) BecomeProgram(folder, pointers, localeName);
  int status = -1;
  if (child < 0 || waitpid(child, &status, 0) != child) return {};
  BatchResult result;
  result.Exit = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  result.Out = ReadWholeFile(folder / "stdout");
  result.Err = ReadWholeFile(folder / "stderr");
  return result;
}

}  // namespace landsmith::test
