#include "support/Builders.h"
#include "vector/LineOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::ALine;
using test::Lons;
using test::Widths;
using testing::ElementsAre;

/// A line along the equator with vertices at the longitudes 0, 1, 2, ...
LineRec EquatorLine(std::size_t vertices) {
  LineRec line;
  for (std::size_t i = 0; i < vertices; ++i)
    AppendPoint(line, {0, static_cast<double>(i)}, 10);
  return line;
}

TEST(LineDeletion, OfAVertexOfTwoTakesTheLine) {
  ProjectState project;
  project.Lines = {EquatorLine(3), EquatorLine(2)};
  EXPECT_FALSE(DeletePathPoint(project.Lines, 0, 2));
  EXPECT_EQ(project.Lines[0].Box.ELon, 1);
  EXPECT_TRUE(DeletePathPoint(project.Lines, 0, 0));
  EXPECT_EQ(project.Lines.size(), 1U);
}

TEST(LineDeletion, OfSelectedVerticesKeepsLinesOfTwo) {
  ProjectState project;
  project.Lines = {EquatorLine(4), EquatorLine(4), EquatorLine(2), EquatorLine(1)};
  Selection selection{6, true, false};
  project.Lines.Edit(0).Points[0].Selected = project.Lines.Edit(0).Points[3].Selected = true;  // two are left
  for (std::size_t k : {0U, 1U, 2U})
    project.Lines.Edit(1).Points[k].Selected = true;  // one would be left
  DeleteSelectedPathPoints(project.Lines, selection);
  ASSERT_EQ(project.Lines.size(), 3U);
  EXPECT_THAT(Lons(project.Lines[0]), ElementsAre(1, 2));
  EXPECT_EQ(project.Lines[0].Box.WLon, 1);
  EXPECT_EQ(project.Lines[2].Points.size(), 1U);  // nothing selected, nothing done
  EXPECT_EQ(selection.SelectedCount, 1);
}

TEST(LineDeletion, OfSelectedLinesKeepsOrderAndCount) {
  ProjectState project;
  for (const char* name : {"a", "b", "c", "d"})
    project.Lines.push_back(ALine().Named(name).Through({{0, 0}, {1, 1}}));
  project.Lines.Edit(0).Selected = project.Lines.Edit(2).Selected = true;
  Selection selection{2, true, false};
  DeleteSelectedPaths(project.Lines, selection);
  ASSERT_EQ(project.Lines.size(), 2U);
  EXPECT_EQ(project.Lines[0].Name, "b");
  EXPECT_EQ(project.Lines[1].Name, "d");
  EXPECT_EQ(selection, Selection{});
}

TEST(LineInsertion, TakesTheMeanWidthAndIsSelected) {
  ProjectState project;
  project.Lines = {EquatorLine(3)};
  project.Lines.Edit(0).Points[1].Wid = 25;
  Selection selection;
  ASSERT_TRUE(InsertPathPoint(project.Lines, {3, 0.5}, 0, 1, selection));
  EXPECT_THAT(Lons(project.Lines[0]), ElementsAre(0, 0.5, 1, 2));
  EXPECT_THAT(Widths(project.Lines[0]), ElementsAre(10, 17.5F, 25, 10));
  EXPECT_TRUE(project.Lines[0].Points[1].Selected);
  EXPECT_EQ(project.Lines[0].Box.NLat, 3);
  EXPECT_EQ(selection.SelectedCount, 1);
}

TEST(LineInsertion, IsRefusedOnlyNearOnBothAxes) {
  constexpr double nearLat = 2.1457672119140625e-05, nearLon = 2.86102294921875e-05;
  struct {
    double lat, lon;
    bool accepted;
  } const rows[] = {
      {0, 0, false}, {nearLat * 0.99, nearLon * 0.99, false}, {nearLat, 0, true}, {0, -nearLon, true}};
  for (const auto& row : rows) {
    ProjectState project;
    project.Lines = {EquatorLine(2)};
    Selection selection;
    EXPECT_EQ(InsertPathPoint(project.Lines, {row.lat, row.lon}, 0, 1, selection), row.accepted)
        << row.lat << " " << row.lon;
    EXPECT_EQ(selection.SelectedCount, row.accepted ? 1 : 0);
  }
}

TEST(LineSplit, BothPartsKeepTheVertex) {
  ProjectState project;
  LineRec road = EquatorLine(6);
  road.Name = "road";
  road.Type = "VTP//4//1//";
  road.Color = 77;
  road.Points[1].Selected = road.Points[3].Selected = road.Points[5].Selected = true;
  project.Lines = {EquatorLine(6), road};
  project.Lines.Edit(0).Points[1].Selected = true;  // one step from the end: no place to cut
  Selection selection{4, true, false};

  ASSERT_TRUE(SplitLine(project, selection));

  ASSERT_EQ(project.Lines.size(), 3U);
  EXPECT_THAT(Lons(project.Lines[1]), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(project.Lines[1].Box.ELon, 3);
  const LineRec& rest = project.Lines[2];
  EXPECT_THAT(Lons(rest), ElementsAre(3, 4, 5));
  EXPECT_EQ(rest.Box.WLon, 3);
  EXPECT_EQ(rest.Name + rest.Type, "roadVTP//4//1//");
  EXPECT_EQ(rest.Color, 77);
  EXPECT_TRUE(rest.Selected);
  for (const LinePoint& point : rest.Points)
    EXPECT_FALSE(point.Selected);
  EXPECT_EQ(selection.SelectedCount, 4);  // three vertices and the new line
  EXPECT_FALSE(SplitLine(project, selection)) << "the cut vertex is an end now";
}

TEST(LineWidth, GrowsAndShrinksTheFirstSelectedVertexWithinLimits) {
  ProjectState project;
  project.Lines = {EquatorLine(2), EquatorLine(2)};
  EXPECT_FALSE(GrowLinePoint(project));
  project.Lines.Edit(0).Selected = project.Lines.Edit(0).Points[0].Selected =
      true;  // whole lines do not take part
  LinePoint& point = project.Lines.Edit(1).Points[1];
  point.Selected = true;
  struct {
    float before, grown, shrunk;
  } const rows[] = {{10, 15, 10.0F / 1.5F}, {200, 255, 200.0F / 1.5F}, {1.2F, 1.2F * 1.5F, 1}, {0, 1, 1}};
  for (const auto& row : rows) {
    point.Wid = row.before;
    EXPECT_TRUE(GrowLinePoint(project));
    EXPECT_EQ(point.Wid, row.grown);
    point.Wid = row.before;
    EXPECT_TRUE(ShrinkLinePoint(project));
    EXPECT_EQ(point.Wid, row.shrunk);
  }
  EXPECT_EQ(project.Lines[0].Points[0].Wid, 10);
}

TEST(LineWidth, RunsFromFirstToLastByAddingTheStepInFloats) {
  LineRec line = EquatorLine(5);
  SetLineWidths(line, 10, 30);
  EXPECT_THAT(Widths(line), ElementsAre(10, 15, 20, 25, 30));
  EXPECT_EQ(MeanWidth(line), 20);

  line = EquatorLine(11);
  SetLineWidths(line, 0, 1);
  // Ten additions of the float 0.1 end one unit in the last place above 1.
  EXPECT_EQ(line.Points[10].Wid, 1.00000012F);

  line = EquatorLine(1);
  SetLineWidths(line, 4, 8);
  EXPECT_EQ(line.Points[0].Wid, 4);
}

TEST(LineToPoly, DropsTheLastVertexOfAClosedLineAlone) {
  LineRec line = ALine().Named("lake").Through({{0, 0}, {0, 1}, {1, 1}, {0, 0}});
  line.Points[3].Wid = 99;
  const PolyRec poly = MakePolyFromLine(line);
  EXPECT_EQ(poly.Points.size(), 3U);
  EXPECT_EQ(poly.Name, "");
  EXPECT_EQ(poly.Box, line.Box);
  line.Points[3].Lon = 0.001;
  EXPECT_EQ(MakePolyFromLine(line).Points.size(), 4U);
}

TEST(LineOrder, MovesARecordAndKeepsTheOthersInOrder) {
  struct {
    DrawingOrder order;
    std::size_t from, to;
    const char* names;
  } const rows[] = {
      {DrawingOrder::Top, 1, 3, "acdb"},    {DrawingOrder::Bottom, 2, 0, "cabd"},
      {DrawingOrder::Up, 1, 2, "acbd"},     {DrawingOrder::Down, 1, 0, "bacd"},
      {DrawingOrder::Top, 3, 3, "abcd"},    {DrawingOrder::Up, 3, 3, "abcd"},
      {DrawingOrder::Bottom, 0, 0, "abcd"}, {DrawingOrder::Down, 0, 0, "abcd"},
  };
  for (const auto& row : rows) {
    ProjectState project;
    for (const char* name : {"a", "b", "c", "d"})
      project.Lines.push_back(ALine().Named(name).Through({{0, 0}, {1, 1}}));
    EXPECT_EQ(ChangePathOrder(project.Lines, row.from, row.order), row.to) << row.names;
    std::string names;
    for (const LineRec& line : project.Lines)
      names += line.Name;
    EXPECT_EQ(names, row.names);
  }
}

}  // namespace
}  // namespace landsmith
