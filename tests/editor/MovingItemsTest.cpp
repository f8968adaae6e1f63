#include "editor/MovingItems.h"
#include "support/Builders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

using testing::ElementsAre;

TEST(MovingLines, AreThoseSelectedOrWithSelectedVerticesThatAreDrawn) {
  ProjectState project;
  project.Lines = {ALine().Through({{0, 0}, {0, 1}}).Selected(), ALine().Through({{0, 0}, {0, 1}, {0, 2}}),
                   ALine().Through({{0, 0}, {0, 1}}).Selected()};
  project.Lines.Edit(1).Points[2].Selected = true;
  ViewState view;
  view.Scale = {1, 1, 1};
  const auto move = [&](double dx, double dy) {
    MoveSelection(project, CollectMoving(project, GeometryIndex(project), view, ModeId::Line), view, dx, dy);
  };
  view.LinesDrawn = {1, 1, 0};
  move(10, 2);
  EXPECT_THAT(Lons(project.Lines[0]), ElementsAre(10, 11));
  EXPECT_EQ(project.Lines[0].Box, (GeoBox{-2, -2, 10, 11}));
  EXPECT_THAT(Lons(project.Lines[1]), ElementsAre(0, 1, 12));
  EXPECT_EQ(project.Lines[1].Box, (GeoBox{0, -2, 0, 12}));
  EXPECT_THAT(Lons(project.Lines[2]), ElementsAre(0, 1));
  view.LinesDrawn.clear();  // nothing painted yet
  move(10, 0);
  EXPECT_THAT(Lons(project.Lines[2]), ElementsAre(10, 11));
}

}  // namespace
}  // namespace landsmith::test
