#include "core/Settings.h"
#include "support/Builders.h"
#include "vector/LineJoin.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::ALine;
using test::Lons;

// Every vertex lies on the equator: the longitudes tell the line.

LineRec Other(double from, double to, const char* name = "") {
  LineRec line = ALine().Named(name).Through({{0, from}, {0, to}});
  line.Color = 1;
  return line;
}
LineRec Fresh(double from, double to, const char* name = "") {
  LineRec line = ALine().Named(name).Through({{0, from}, {0, to}});
  line.Color = 2;
  return line;
}
LineRec OfType(LineRec line) {
  line.Type = "Points//";
  return line;
}

TEST(JoinTwoLines, JoinsWhereTheGapIsShorterThanASegmentBesideIt) {
  const LineRec onePoint = ALine().Through({{0, 1}});
  struct {
    const char* name;
    LineRec a, b;
    std::vector<double> joined;  // empty: refused
    const char* kept;
  } const rows[] = {
      {"a then b, the vertex of a stays", Other(0, 10, "a"), Other(11, 20, "b"), {0, 10, 20}, "a"},
      {"b then a, b is kept", Other(11, 20, "a"), Other(0, 10, "b"), {0, 10, 20}, "b"},
      {"gap equal to both segments", Other(0, 10, "a"), Other(20, 30, "b"), {}, ""},
      {"one long segment is enough", Other(9.5, 10, "a"), Other(12, 20, "b"), {9.5, 10, 20}, "a"},
      {"single points have no segment", onePoint, onePoint, {}, ""},
  };
  for (const auto& row : rows) {
    ProjectState project;
    project.Lines = {ALine().Named("other").Through({{0, 10}, {0, 11}}), row.a, row.b};
    project.Lines.Edit(1).Selected = project.Lines.Edit(2).Selected = true;
    const ProjectState before = project;
    Selection selection{2, true, false};
    const std::string message = JoinLines(project, selection);
    if (row.joined.empty()) {
      EXPECT_EQ(message, "Could not join the lines!") << row.name;
      EXPECT_EQ(project, before) << row.name;
      EXPECT_EQ(selection.SelectedCount, 2);
      continue;
    }
    EXPECT_EQ(message, "") << row.name;
    ASSERT_EQ(project.Lines.size(), 2U);
    EXPECT_EQ(Lons(project.Lines[1]), row.joined) << row.name;
    EXPECT_EQ(project.Lines[1].Name, row.kept);
    EXPECT_EQ(project.Lines[1].Box.ELon, row.joined.back());
    EXPECT_TRUE(project.Lines[1].Selected);
    EXPECT_EQ(selection.SelectedCount, 1);
  }
}

TEST(JoinTwoLines, NeedsTwoSelected) {
  ProjectState project;
  project.Lines = {ALine().Through({{0, 0}, {0, 1}}).Selected(), ALine().Through({{0, 1}, {0, 2}})};
  Selection selection{1, true, false};
  EXPECT_EQ(JoinLines(project, selection), "Could not find 2 lines to join!");
}

TEST(AutoJoin, MeetsCloseEnds) {
  const struct {
    const char* name;
    LineRec other, fresh;
    bool dirJoin, nameJoin;
    std::vector<double> joined;  // empty: no join
    const char* kept;
  } rows[] = {{"newThenOther", Other(10, 20), Fresh(0, 10), true, true, {0, 10, 20}, "new"},
              {"otherThenNew", Other(0, 10), Fresh(10, 20), true, true, {0, 10, 20}, "other"},
              {"endsMeetIsRefusedByDirection", Other(20, 10), Fresh(0, 10), true, true, {}, ""},
              {"endsMeet", Other(20, 10), Fresh(0, 10), false, true, {0, 10, 20}, "new"},
              {"startsMeet", Other(10, 20), Fresh(10, 0), false, true, {0, 10, 20}, "new"},
              {"otherName", Other(10, 20, "x"), Fresh(0, 10, "y"), true, true, {}, ""},
              {"otherNameIgnored", Other(10, 20, "x"), Fresh(0, 10, "y"), true, false, {0, 10, 20}, "new"},
              {"otherType", Other(10, 20), OfType(Fresh(0, 10)), true, false, {}, ""},
              {"withinAStep", Other(10.00005, 20), Fresh(0, 10), true, true, {0, 10, 20}, "new"},
              {"beyondAStep", Other(10.00006, 20), Fresh(0, 10), true, true, {}, ""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ProjectState project;
    project.Lines = {ALine().Named("far").Through({{0, 50}, {0, 60}}), row.other, row.fresh};
    AppSettings settings;
    settings.DisplayJoin = false;
    settings.DirJoin = row.dirJoin;
    settings.NameJoin = row.nameJoin;
    const bool joined = TryAutoJoin(project, 2, settings, ViewScale{1, 1, 1});
    EXPECT_EQ(joined, !row.joined.empty());
    ASSERT_EQ(project.Lines.size(), joined ? 2U : 3U);
    if (!joined) continue;
    EXPECT_TRUE(project.Lines[1].Selected);
    EXPECT_EQ(Lons(project.Lines[1]), row.joined);
    EXPECT_EQ(project.Lines[1].Color, std::string_view(row.kept) == "new" ? 2 : 1);
  }
}

TEST(AutoJoinOnScreen, ReachesThreePixels) {
  constexpr ViewScale scale{1024, 512, 1};
  AppSettings settings;
  for (const double pixels : {3.0, 3.1}) {
    ProjectState project;
    project.Lines = {Other(10 + pixels / scale.PixelsPerDegLon, 20), Fresh(0, 10)};
    EXPECT_EQ(TryAutoJoin(project, 1, settings, scale), pixels == 3.0) << pixels;
  }
}

}  // namespace
}  // namespace landsmith
