#include "compile/VtpShape.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace landsmith::test {
namespace {

LineRun RunThrough(std::vector<CellPoint> vertices, std::vector<float> widths) {
  LineRun run;
  run.Points.emplace_back();
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    RunPoint point;
    point.X = vertices[i].X;
    point.Y = vertices[i].Y;
    point.Wid = widths[i % widths.size()];
    run.Points.push_back(point);
  }
  run.Points.emplace_back();
  return run;
}

struct EndsRow {
  const char* name;
  std::vector<CellPoint> vertices;
  float width;
  std::vector<CellPoint> corners;  ///< first, second, last but one, last
};

class LineEnds : public testing::TestWithParam<EndsRow> {};

// k = width * 0.10425; a = k * dx / length, b = k * dy / length, worked out by hand.
TEST_P(LineEnds, StandAcrossTheStrip) {
  LineRun run = RunThrough(GetParam().vertices, {GetParam().width});
  AddLineEnds(run);
  const auto& points = run.Points;
  const std::size_t n = points.size();
  const std::size_t places[] = {0, 1, n - 2, n - 1};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(points[places[i]].X, GetParam().corners[i].X) << i;
    EXPECT_EQ(points[places[i]].Y, GetParam().corners[i].Y) << i;
    EXPECT_EQ(points[places[i]].Wid, GetParam().width);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, LineEnds,
                         testing::Values(
                             // k = 10.425: 6.255 and 8.34 at both ends
                             EndsRow{"three_vertices",
                                     {{5000, 6000}, {5300, 6400}, {5600, 6800}},
                                     100,
                                     {{4992, 6006}, {5008, 5994}, {5592, 6806}, {5608, 6794}}},
                             EndsRow{"westward",
                                     {{5000, 6000}, {4000, 6000}, {3000, 6000}},
                                     100,
                                     {{5000, 5990}, {5000, 6010}, {3000, 5990}, {3000, 6010}}},
                             // the corner at (5003, 5997) gives the far end 2 instead of 3
                             EndsRow{"two_vertices",
                                     {{5000, 6000}, {5300, 6400}},
                                     40,
                                     {{4997, 6003}, {5003, 5997}, {5297, 6402}, {5303, 6398}}},
                             EndsRow{"no_length",
                                     {{4080, 9000}, {4080, 9000}},
                                     40,
                                     {{4080, 9000}, {4080, 9000}, {4080, 9000}, {4080, 9000}}},
                             EndsRow{"no_width",
                                     {{5000, 6000}, {5000, 7000}, {5000, 8000}},
                                     0,
                                     {{5000, 6000}, {5000, 6000}, {5000, 8000}, {5000, 8000}}}),
                         [](const auto& row) { return row.param.name; });

/// "6000,0 k3 w10 | +100,0 ...": absolute points with their count, steps with a sign.
std::string Packed(const LineRun& run) {
  std::string text;
  for (const RunPoint& point : run.Points) {
    if (!text.empty()) text += " | ";
    text += point.Kind == StepKind ? "step " : "at ";
    text += std::to_string(point.X) + "," + std::to_string(point.Y);
    if (point.Kind != StepKind) text += " n" + std::to_string(point.Kind);
    if (point.WidthByte != 0) text += " w" + std::to_string(point.WidthByte);
  }
  return text;
}

LineRun RunOf(std::vector<RunPoint> points) {
  LineRun run;
  run.Points = std::move(points);
  return run;
}

TEST(PackRunPoints, StepsReach1022EachWay) {
  LineRun run = RunOf({{0, 0, 7}, {1022, -1022, 7}, {-1, -1022, 7}, {-1, 0, 7}, {-1, 1023, 7}});
  PackRunPoints(run);
  EXPECT_EQ(Packed(run), "at 0,0 n1 w7 | step 1022,-1022 | at -1,-1022 n1 | step 0,1022 | at -1,1023 n0");
}

TEST(PackRunPoints, SevenStepsFillAGroup) {
  std::vector<RunPoint> points(9);
  for (std::int32_t i = 0; i < 9; ++i)
    points[static_cast<std::size_t>(i)].X = 100 * i;
  LineRun nine = RunOf(points);
  PackRunPoints(nine);
  EXPECT_EQ(nine.Points[0].Kind, 7);
  EXPECT_EQ(nine.Points[7].Kind, StepKind);
  EXPECT_EQ(nine.Points[8].Kind, 0);
  EXPECT_EQ(nine.Points[8].X, 800);

  points.pop_back();
  LineRun eight = RunOf(points);
  PackRunPoints(eight);
  EXPECT_EQ(eight.Points[0].Kind, 7);
  EXPECT_EQ(eight.Points[7].X, 100);
}

TEST(PackRunPoints, WidthsStandWhereTheyChange) {
  LineRun run = RunOf({{0, 0, 2.5F}, {1, 0, 2}, {2, 0, 3.5F}, {3, 0, 0.5F}, {4, 0, 0}, {5, 0, 255.4F}});
  PackRunPoints(run);
  EXPECT_EQ(Packed(run), "at 0,0 n5 w2 | step 1,0 | step 1,0 w4 | step 1,0 | step 1,0 | step 1,0 w255");
}

TEST(PackRunPoints, RefusesAWidthThatIsNoByte) {
  for (const float width : {255.5F, 256.0F, -0.6F, 1e20F}) {
    LineRun run = RunOf({{0, 0, 1}, {1, 0, width}});
    EXPECT_THROW(PackRunPoints(run), RuntimeError) << width;
  }
}

}  // namespace
}  // namespace landsmith::test
