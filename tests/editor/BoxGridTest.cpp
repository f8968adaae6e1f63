#include "editor/BoxGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace landsmith {
namespace {

/// Searches at places drawn from `place`, each beside a look at all boxes.
void ExpectEveryMeeting(const BoxGrid& grid, const std::vector<GeoBox>& boxes, std::mt19937& random,
                        std::uniform_real_distribution<double> place) {
  for (int i = 0; i < 200; ++i) {
    const double lat = place(random), lon = place(random), size = i % 3 == 0 ? 15 : 0.5;
    const GeoBox area{lat + size, lat - size, lon - size, lon + size};
    std::vector<std::uint32_t> expected;
    for (std::uint32_t n = 0; n < boxes.size(); ++n) {
      if (boxes[n].Meets(area)) expected.push_back(n);
    }
    EXPECT_EQ(grid.Meeting(area), expected);
  }
}

TEST(BoxGrid, FindsWhatASearchOfAllFinds) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(-10, 10), small(0, 0.3);
  std::vector<GeoBox> boxes;
  for (int i = 0; i < 5000; ++i) {
    const double lat = place(random), lon = place(random);
    const double size = i % 100 == 0 ? 8 : small(random);
    boxes.push_back({lat + size, lat, lon, lon + size});
  }
  boxes.emplace_back();  // of an item without points
  const double none = std::numeric_limits<double>::quiet_NaN();
  boxes.push_back({none, none, none, none});
  ExpectEveryMeeting(BoxGrid(boxes), boxes, random, place);
}

// As an index follows edits: paths move about, beyond the first ones too, and new ones come behind them.
TEST(BoxGrid, FindsWhatWasPutInLater) {
  std::mt19937 random(8);
  std::uniform_real_distribution<double> place(-10, 10), far(-30, 30), small(0, 0.3);
  const auto boxIn = [&](std::uniform_real_distribution<double>& range, bool large) {
    const double lat = range(random), lon = range(random), size = large ? 8 : small(random);
    return GeoBox{lat + size, lat, lon, lon + size};
  };
  for (const int before : {0, 1000}) {
    std::vector<GeoBox> boxes;
    for (int i = 0; i < before; ++i)
      boxes.push_back(boxIn(place, i % 100 == 0));
    BoxGrid grid(boxes);
    for (int i = 0; i < 400; ++i) {
      const std::size_t number = i % 2 == 0 ? boxes.size() : random() % boxes.size();
      boxes.resize(std::max(boxes.size(), number + 1));
      boxes[number] = i % 50 == 1 ? GeoBox{} : boxIn(far, i % 20 == 0);  // some without points
      grid.Put(static_cast<std::uint32_t>(number), boxes[number]);
    }
    EXPECT_EQ(grid.Size(), boxes.size());
    ExpectEveryMeeting(grid, boxes, random, far);
  }
}

TEST(BoxGrid, HoldsNothingOrOnePlace) {
  EXPECT_TRUE(BoxGrid().Meeting({90, -90, -180, 180}).empty());
  const BoxGrid grid(std::vector<GeoBox>(3, GeoBox{1, 1, 2, 2}));
  EXPECT_EQ(grid.Meeting({1, 0, 2, 3}).size(), 3U) << "touching counts";
  EXPECT_TRUE(grid.Meeting({0.9, 0, 2, 3}).empty());
}

}  // namespace
}  // namespace landsmith
