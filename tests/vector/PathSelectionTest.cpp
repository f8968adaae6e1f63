#include "support/Builders.h"
#include "vector/PathSelection.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::ALine;

/// Powers of two, so that a distance of 5 pixels is exact.
constexpr ViewScale Scale{64, 32, 0.001};

WorldPixel PixelOf(double lon, double lat, double east = 0, double north = 0) {
  return {Scale.PixelsPerDegLon * lon + east, Scale.PixelsPerDegLat * lat + north};
}

ProjectState TwoRoads() {
  ProjectState project;
  project.Lines = {ALine().Through({{0, 0}, {0, 10}}), ALine().Through({{-1, 5}, {0, 5}, {1, 5}})};
  return project;
}

TEST(NearPointTest, ReachesFivePixelsOnBothAxes) {
  EXPECT_TRUE(NearPoint(8, 47, PixelOf(8, 47, 5, -5), Scale));
  EXPECT_FALSE(NearPoint(8, 47, PixelOf(8, 47, 5.001, 0), Scale));
  EXPECT_FALSE(NearPoint(8, 47, PixelOf(8, 47, 0, -5.001), Scale));
}

TEST(NearSegmentTest, MeasuresAcrossTheLongerAxis) {
  struct {
    const char* name;
    double lon1, lat1, lon2, lat2;
    WorldPixel at;
    bool hit;
  } const rows[] = {
      {"above the middle of a level one", 0, 0, 10, 0, PixelOf(5, 0, 0, 5), true},
      {"too far above", 0, 0, 10, 0, PixelOf(5, 0, 0, 5.001), false},
      {"beyond its end, in reach", 0, 0, 10, 0, PixelOf(10, 0, 5, 0), true},
      {"beyond its end, out of reach", 0, 0, 10, 0, PixelOf(10, 0, 5.001, 0), false},
      {"before its start, drawn westward", 10, 0, 0, 0, PixelOf(0, 0, -5, 0), true},
      {"beside an upright one", 3, 0, 3, 4, PixelOf(3, 2, -5, 0), true},
      {"too far beside", 3, 0, 3, 4, PixelOf(3, 2, -5.001, 0), false},
      {"below an upright one, in reach", 3, 0, 3, 4, PixelOf(3, 0, 0, -5), true},
      {"steep: across means along x", 0, 0, 1, 4, PixelOf(0.5, 2, 5, 0), true},
      {"both ends one point", 3, 3, 3, 3, PixelOf(3, 3), false},
  };
  for (const auto& row : rows)
    EXPECT_EQ(NearSegment(row.lon1, row.lat1, row.lon2, row.lat2, row.at, Scale), row.hit) << row.name;
}

TEST(FindLine, FirstInOrderWins) {
  ProjectState project = TwoRoads();
  const auto crossing = FindSegmentAt(project.Lines, WholePieces(project.Lines), PixelOf(5, 0), Scale);
  ASSERT_TRUE(crossing);
  EXPECT_EQ(crossing->item, 0U);
  EXPECT_EQ(crossing->point, 1U);
  const auto vertex = FindPointAt(project.Lines, WholePieces(project.Lines), PixelOf(5, 0, 1, 1), Scale);
  ASSERT_TRUE(vertex);
  EXPECT_EQ(vertex->item, 1U);
  EXPECT_EQ(vertex->point, 1U);
  const auto segment = FindSegmentAt(project.Lines, WholePieces(project.Lines), PixelOf(5, 0.5), Scale);
  ASSERT_TRUE(segment);
  EXPECT_EQ(segment->item, 1U);
  EXPECT_EQ(segment->point, 2U);
  EXPECT_FALSE(FindSegmentAt(project.Lines, WholePieces(project.Lines), PixelOf(8, 0.5), Scale));
}

TEST(FindLine, OutsideItsBoxIsNotLookedFor) {
  ProjectState project = TwoRoads();
  project.Lines.Edit(0).Box = GeoBox{};
  EXPECT_FALSE(FindSegmentAt(project.Lines, WholePieces(project.Lines), PixelOf(2, 0), Scale));
  EXPECT_FALSE(FindPointAt(project.Lines, WholePieces(project.Lines), PixelOf(0, 0), Scale));
}

TEST(HitLines, KeepLineAndVertexMarksApart) {
  ProjectState project = TwoRoads();
  const std::vector<PathPiece> pieces = WholePieces(project.Lines);
  const LineRec& road = project.Lines[1];
  Selection selection;

  ASSERT_TRUE(HitPoint(project.Lines, pieces, PixelOf(5, 1), Scale, selection));
  ASSERT_TRUE(HitPoint(project.Lines, pieces, PixelOf(5, 1), Scale, selection)) << "again: counted once";
  ASSERT_TRUE(HitPoint(project.Lines, pieces, PixelOf(5, -1), Scale, selection));
  EXPECT_TRUE(road.Points[0].Selected && road.Points[2].Selected && !road.Selected);
  EXPECT_EQ(selection.SelectedCount, 2);

  EXPECT_EQ(HitPath(project.Lines, pieces, PixelOf(5, 0.5), Scale, selection), 1U);
  EXPECT_TRUE(road.Selected && !road.Points[0].Selected && !road.Points[2].Selected);
  EXPECT_EQ(selection.SelectedCount, 1);

  ASSERT_TRUE(HitPoint(project.Lines, pieces, PixelOf(5, 1), Scale, selection));
  EXPECT_TRUE(road.Points[2].Selected && !road.Selected);
  EXPECT_EQ(selection.SelectedCount, 1) << "the line's place in the count went to the vertex";
  EXPECT_FALSE(HitPath(project.Lines, pieces, PixelOf(20, 20), Scale, selection));
}

TEST(SelectLines, BoxMustHoldThemStrictly) {
  const struct {
    const char* name;
    GeoBox box;
    bool selected;
  } rows[] = {{"around", {2, -2, -1, 11}, true},
              {"touching the north", {1, -2, -1, 11}, false},
              {"touching the south", {2, -1, -1, 11}, false},
              {"touching the west", {2, -2, 5, 11}, false},
              {"touching the east", {2, -2, -1, 5}, false}};
  for (const auto& row : rows) {
    ProjectState project;
    project.Lines = {ALine().Through({{-1, 5}, {1, 5}}), LineRec{}};
    const std::vector<std::uint32_t> everyLine{0, 1};
    Selection selection;
    SelectPathsInBox(project.Lines, everyLine, row.box, selection);
    SelectPathsInBox(project.Lines, everyLine, row.box, selection);
    EXPECT_EQ(project.Lines[0].Selected, row.selected) << row.name;
    EXPECT_FALSE(project.Lines[1].Selected) << "a line without vertices is nowhere";
    EXPECT_EQ(selection.SelectedCount, row.selected ? 1 : 0) << row.name;
  }
}

TEST(SelectLines, AllAndInvertedKeepTheCount) {
  ProjectState project = TwoRoads();
  project.Lines.push_back(ALine().Through({{7, 7}, {8, 8}}));
  project.Lines.Edit(1).Points[0].Selected = true;
  project.Lines.Edit(2).Selected = true;
  Selection selection{2, true, false};

  InvertPathSelection(project.Lines, selection);
  EXPECT_TRUE(project.Lines[0].Selected);
  EXPECT_FALSE(project.Lines[1].Selected) << "has a selected vertex";
  EXPECT_FALSE(project.Lines[2].Selected);
  EXPECT_EQ(selection.SelectedCount, 2);

  SelectAllPaths(project.Lines, true, selection);
  EXPECT_EQ(selection.SelectedCount, 3);
  EXPECT_FALSE(project.Lines[1].Points[0].Selected);
  SelectAllPaths(project.Lines, false, selection);
  EXPECT_EQ(selection, Selection{});
}

}  // namespace
}  // namespace landsmith
