#include "CaseFile.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace landsmith::test {

namespace {

constexpr std::array<std::string_view, 13> Words{"write",  "bytes",  "run",    "stdin", "stdout",
                                                 "stderr", "exit",   "json",   "file",  "same",
                                                 "differ", "absent", "picture"};

[[noreturn]] void Fail(const std::filesystem::path& file, int number, const std::string& reason) {
  throw std::runtime_error(file.filename().string() + ":" + std::to_string(number) + ": " + reason);
}

void TakeEntry(std::vector<BatchCase>& cases, const std::filesystem::path& file, int number,
               const std::string& line) {
  const std::size_t blank = line.find(' ');
  const std::size_t rest = line.find_first_not_of(' ', blank);
  CaseEntry entry{line.substr(0, blank), rest == std::string::npos ? "" : line.substr(rest), {}, number};
  if (entry.Word == "case") {
    cases.push_back({entry.Rest, file.stem().string(), {}});
    return;
  }
  if (cases.empty()) Fail(file, number, "a line before the first case");
  if (std::find(Words.begin(), Words.end(), entry.Word) == Words.end())
    Fail(file, number, "unknown word " + entry.Word);
  cases.back().Entries.push_back(std::move(entry));
}

void LoadFile(std::vector<BatchCase>& cases, const std::filesystem::path& file) {
  std::ifstream in(file);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    if (line.front() != '|')
      TakeEntry(cases, file, number, line);
    else if (cases.empty() || cases.back().Entries.empty())
      Fail(file, number, "text that belongs to nothing");
    else
      cases.back().Entries.back().Lines.push_back(line.size() > 2 ? line.substr(2) : "");
  }
}

}  // namespace

std::vector<BatchCase> LoadCases(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  std::vector<BatchCase> cases;
  for (const auto& file : files)
    LoadFile(cases, file);
  return cases;
}

bool FitsPattern(std::string_view text, std::string_view pattern) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) return text == pattern;
  if (!text.starts_with(pattern.substr(0, star))) return false;
  text.remove_prefix(star);
  pattern.remove_prefix(star + 1);
  for (std::size_t at = 0; at <= text.size(); ++at)
    if (FitsPattern(text.substr(at), pattern)) return true;
  return false;
}

}  // namespace landsmith::test
