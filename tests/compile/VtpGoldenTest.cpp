#include "GoldenLines.h"
#include "compile/VtpLines.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace landsmith::test {
namespace {

const std::filesystem::path CasesFolder = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden/vtp";

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(CasesFolder))
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

class VtpGolden : public testing::TestWithParam<std::string> {};

TEST_P(VtpGolden, IsByteForByteWhatTheReferenceWrote) {
  const auto folder = CasesFolder / GetParam();
  const GoldenLines input = ReadGoldenLines(ReadWholeFile(folder / "lines.txt"));
  const auto source = VtpLineSource(input.project, input.settings);
  ASSERT_TRUE(source.has_value());
  EXPECT_EQ(ToWindows1252(*source), ReadWholeFile(folder / "expected.scm"))
      << ReadWholeFile(folder / "about.txt");
}

INSTANTIATE_TEST_SUITE_P(Cases, VtpGolden, testing::ValuesIn(CaseNames()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace landsmith::test
