#include "editor/QuadRaster.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace landsmith {
namespace {

std::set<std::pair<int, int>> Pixels(const PixelQuad& quad) {
  std::vector<PixelSpan> spans;
  EXPECT_TRUE(AppendQuad(quad, spans));
  std::set<std::pair<int, int>> pixels;
  for (const PixelSpan& span : spans)
    for (int x = span.left; x < span.right; ++x)
      pixels.insert({x, span.y});
  return pixels;
}

TEST(QuadRaster, ABoxCoversBothItsBorders) {
  const auto pixels = Pixels({{{10, 20}, {14, 20}, {14, 23}, {10, 23}}});
  EXPECT_EQ(pixels.size(), 5U * 4U);
  EXPECT_TRUE(pixels.contains({14, 23}));
}

TEST(QuadRaster, AStrokeWithoutWidthIsAsLongAsItsEnds) {
  EXPECT_EQ(Pixels({{{3, 3}, {3, 3}, {7, 3}, {7, 3}}}),
            (std::set<std::pair<int, int>>{{3, 3}, {4, 3}, {5, 3}, {6, 3}, {7, 3}}));
  EXPECT_EQ(Pixels({{{5, 9}, {5, 9}, {5, 7}, {5, 7}}}),
            (std::set<std::pair<int, int>>{{5, 7}, {5, 8}, {5, 9}}));
}

TEST(QuadRaster, LeavesToAPainterWhatItCannotDo) {
  std::vector<PixelSpan> spans;
  EXPECT_FALSE(AppendQuad({{{0, 0}, {70, 0}, {70, 3}, {0, 3}}}, spans)) << "too wide";
  EXPECT_FALSE(AppendQuad({{{0, 0}, {5, 0}, {5, 3}, {0, 0}}}, spans)) << "ends where it begins";
  EXPECT_TRUE(spans.empty());
}

}  // namespace
}  // namespace landsmith
