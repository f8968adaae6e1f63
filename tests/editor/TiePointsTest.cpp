#include "core/Project.h"
#include "editor/TiePoints.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

PolyRec Square() {
  PolyRec poly;
  poly.Points = {{1, 1}, {1, 2}, {2, 2}, {2, 1}};
  SetPathBounds(poly);
  return poly;
}
constexpr const char* Whole = "0,0//0,256//256,256//256,0//";

TEST(TiePoints, PairsThatDoNotFitTheVerticesAreMadeAnew) {
  for (const char* pairs : {"", "1,1//2,2//3,3//", "1,1//2,2//3//4,4//", "1,1//2,2//3,3//4,y//",
                            "1,1//2,2//3,3//4,2000000000//", "1,1//2,2//3,3//4,4//5,5//"})
    EXPECT_EQ(TiePoints(Square(), pairs).Pairs(), Whole) << pairs;
  TiePoints points(Square(), "9,8//-7,300//5,5//5,5//");
  EXPECT_EQ(points.Pairs(), "9,8//-7,300//5,5//5,5//");
  EXPECT_EQ(points.Points()[0], (PixelPoint{30, 508}));
  points.Reset();
  EXPECT_EQ(points.Pairs(), Whole);
}

TEST(TiePoints, APressTakesTheFirstPointLessThanFourPixelsAway) {
  struct Row {
    PixelPoint at;
    std::size_t current;
  };
  // Points at (212, 324), (218, 324), (524, 12), (12, 12); without a hit the second stays.
  const Row rows[] = {{{215, 327}, 0}, {{216, 324}, 1}, {{212, 328}, 1}, {{208, 324}, 1},
                      {{526, 15}, 2},  {{527, 12}, 1},  {{10, 10}, 3},   {{12, 9}, 1}};
  for (const Row& row : rows) {
    TiePoints points(Square(), "100,100//103,100//256,256//0,256//");
    points.ChooseNext();
    points.Press(row.at);
    EXPECT_EQ(points.CurrentTiePoint(), row.current) << row.at.x << " " << row.at.y;
  }
}

// A press beside the point's middle must not make it jump, and pixels between two raster points go to the
// even one.
TEST(TiePoints, AHeldPointFollowsTheMouseWithinTheRaster) {
  TiePoints points(Square(), Whole);
  points.Press({14, 521});
  EXPECT_EQ(points.Pairs(), Whole);
  points.Drag({15, 520});
  EXPECT_EQ(points.Position(), (RasterPoint{0, 0}));
  points.Drag({17, 518});
  EXPECT_EQ(points.Position(), (RasterPoint{2, 2}));
  points.Drag({-50, 9999});
  EXPECT_EQ(points.Position(), (RasterPoint{0, 0}));
  points.Drag({600, 300});
  points.Release();
  points.Drag({100, 100});
  EXPECT_EQ(points.Position(), (RasterPoint{256, 110}));
  points.Nudge(1, -111);
  EXPECT_EQ(points.Pairs(), "256,0//0,256//256,256//256,0//");
}

}  // namespace
}  // namespace landsmith::test
