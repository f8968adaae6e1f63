// Tools that do what a test tells them and keep what was asked for.
#pragma once

#include "platform/Tools.h"

#include <functional>
#include <string>
#include <vector>

namespace landsmith::test {

class RecordingTools final : public ToolRunner {
public:
  std::vector<std::string> ran, started, opened;
  std::filesystem::path folder;  ///< of the last run
  std::function<int(const std::string&)> answer = [](const std::string&) { return 0; };

  int RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                 Progress&) override {
    ran.emplace_back(commandLine);
    folder = workingFolder;
    return answer(ran.back());
  }
  bool Start(std::string_view commandLine, const std::filesystem::path&) override {
    started.emplace_back(commandLine);
    return true;
  }
  void OpenDocument(std::string_view address) override { opened.emplace_back(address); }
};

}  // namespace landsmith::test
