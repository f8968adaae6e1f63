#include "raster/CompileFills.h"
#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

TEST(CompileFills, NamesAFillThatNoStatementHas) {
  const struct {
    std::uint8_t size, type;
    const char* found;
  } rows[] = {{3, 0, "fill 2: a side of 3 Areas"}, {64, 0, "a side of 64 Areas"}, {4, 3, "the type 3"}};
  for (const auto& row : rows) {
    ProjectState project;
    project.Fills.emplace_back();
    FillRec& fill = project.Fills.emplace_back();
    fill.Selected = true;
    fill.Size = row.size;
    fill.Type = row.type;
    EXPECT_THAT(ErrorOf([&] { FillSource(project, {}); }), testing::HasSubstr(row.found));
  }
}

}  // namespace
}  // namespace landsmith::test
