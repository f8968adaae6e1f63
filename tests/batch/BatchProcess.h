// Runs the built landsmith-batch in a folder and catches what it prints.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace landsmith::test {

struct BatchResult {
  int Exit = -1;
  std::string Out;
  std::string Err;
};

/// `localeName`: the value of LC_ALL. The user's data folder is `folder`/home.
BatchResult RunBatchProgram(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                            const std::string& input, const std::string& localeName);

}  // namespace landsmith::test
