#include "compile/VtpClip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace landsmith::test {
namespace {

// The slow way, word for word: every Cell of the line's box asks every vertex. Counts from 1.
class SlowClip {
public:
  explicit SlowClip(const std::vector<LinePoint>& points) : m_points(points) {}

  std::vector<LineRun> Runs() {
    GeoBox box;
    for (const LinePoint& point : m_points)
      box.Add(point.Lat, point.Lon);
    const double h = 0.3515625, w = 0.46875;
    const double south = (std::floor(box.SLat / h) + 1) * h - 0.17578125;
    const double north = std::floor(box.NLat / h) * h + 0.17578125;
    const double west = (std::floor(box.WLon / w) + 1) * w - 0.234375;
    const double east = std::floor(box.ELon / w) * w + 0.234375;
    // Every position on the way is a whole number of 1/256 degrees, so adding up steps is exact.
    for (double lat = north; lat >= south; lat -= h)  // NOLINT(cert-flp30-c)
      for (double lon = west; lon <= east; lon += w)  // NOLINT(cert-flp30-c)
        ClipToCell(lat, lon);
    return m_runs;
  }

private:
  bool Inside(std::size_t k) const {
    const LinePoint& point = m_points[k - 1];
    return m_south <= point.Lat && point.Lat <= m_north && m_west <= point.Lon && point.Lon <= m_east;
  }

  void ClipToCell(double lat, double lon) {
    m_cell.CellX = static_cast<std::int32_t>(std::floor((lon + 180) / 0.46875));
    m_cell.CellY = static_cast<std::int32_t>(std::floor((90 - lat) / 0.3515625));
    m_west = std::floor((lon + 180) / 0.46875) * 0.46875 - 180;
    m_east = m_west + 0.46875;
    m_north = 90 - std::floor((90 - lat) / 0.3515625) * 0.3515625;
    m_south = m_north - 0.3515625;
    const std::size_t n = m_points.size();
    std::size_t inside = 0;
    for (std::size_t k = 1; k <= n; ++k)
      inside += Inside(k) ? 1U : 0U;
    if (inside == 0) return;
    if (inside == n || n == 2)
      Add(1, n);
    else
      Fall(n);
  }

  void Fall(std::size_t n) {
    for (std::size_t s = 1;;) {
      while (!Inside(s) && s < n)
        ++s;
      std::size_t e = s;
      while (Inside(e) && e < n)
        ++e;
      if (s > 1) --s;
      if (s < n - 1) Add(s, e);
      if (e == n) return;
      s = e + 1;
    }
  }

  void Add(std::size_t s, std::size_t e) {
    LineRun run{"road", 3, 7, m_cell.CellX, m_cell.CellY, {{}}};
    for (std::size_t k = s; k <= e; ++k) {
      const LinePoint& point = m_points[k - 1];
      const CellPoint at = CellPointOfPosition(point.Lat, point.Lon, m_cell);
      run.Points.push_back({at.X, at.Y, point.Wid});
    }
    run.Points.emplace_back();
    m_runs.push_back(run);
  }

  const std::vector<LinePoint>& m_points;
  std::vector<LineRun> m_runs;
  CellIndex m_cell;
  double m_north = 0, m_south = 0, m_west = 0, m_east = 0;
};

void ExpectSameRuns(const std::vector<LinePoint>& points, const std::string& what) {
  const auto fast = ClipLineToCells(points, "road", 3, 7);
  const auto slow = SlowClip(points).Runs();
  ASSERT_EQ(fast.size(), slow.size()) << what;
  for (std::size_t i = 0; i < slow.size(); ++i) {
    const auto head = [](const LineRun& run) {
      return std::tuple(run.Name, run.TexId, run.Layer, run.CellX, run.CellY);
    };
    ASSERT_EQ(head(fast[i]), head(slow[i])) << what << ", run " << i;
    ASSERT_EQ(fast[i].Points, slow[i].Points) << what << ", run " << i;
  }
}

/// Wanders from `start` with steps of up to `reach` Cells; every third coordinate or so lies on a border.
std::vector<LinePoint> RandomLine(std::mt19937& random, LatLon start, double reach) {
  std::uniform_real_distribution<double> step(-reach, reach);
  const std::size_t count = 2 + random() % 14;
  auto [lat, lon] = start;
  std::vector<LinePoint> points;
  for (std::size_t i = 0; i < count; ++i) {
    lat += step(random) * CellHeight;
    lon += step(random) * CellWidth;
    if (random() % 3 == 0) lat = std::round(lat / CellHeight) * CellHeight;
    if (random() % 3 == 0) lon = std::round(lon / CellWidth) * CellWidth;
    points.push_back({lon, lat, static_cast<float>(random() % 50), false});
  }
  return points;
}

TEST(ClipLineToCells, AgreesWithAskingEveryVertexInEveryCell) {
  const std::pair<const char*, LatLon> places[] = {
      {"north-east", {47.5, 8.1}},    {"north-west", {40.1, -9.9}}, {"south-west", {-33.9, -70}},
      {"south-east", {-33.9, 151.2}}, {"equator", {0, 0}},          {"date line", {10, 179.9}},
      {"west edge", {-10, -179.9}},   {"north pole", {89.9, 20}}};
  std::mt19937 random(20041);
  for (const auto& [name, place] : places) {
    for (int i = 0; i < 200; ++i) {
      const double reach = i % 4 == 0 ? 0.2 : i % 4 == 1 ? 1.0 : i % 4 == 2 ? 3.0 : 9.0;
      const auto points = RandomLine(random, place, reach);
      ExpectSameRuns(points, name + (" " + std::to_string(i)));
      const auto snapped = SnapLinePoints(points);
      if (snapped.size() >= 2) ExpectSameRuns(snapped, name + (" snapped " + std::to_string(i)));
    }
  }
}

// A latitude just below a border whose quotient rounds up to the border's number.
TEST(ClipLineToCells, VisitsTheCellsThatTheQuotientsName) {
  for (int row = 1; row < 256; ++row) {
    const double border = row * CellHeight;
    ExpectSameRuns({{8.1, std::nextafter(border, 0), 5, false}, {8.2, border + 0.1, 5, false}}, "below");
    ExpectSameRuns({{8.1, std::nextafter(-border, 0), 5, false}, {8.2, -border - 0.1, 5, false}}, "above");
    ExpectSameRuns({{8.1, border, 5, false}, {8.2, border, 5, false}, {8.3, border, 5, false}}, "on");
  }
}

TEST(SnapLinePoints, DropsRepeatsOnTheLatticeAndKeepsTheFirstWidth) {
  const LatLon at = PointInCellToLatLon({5000, 6000, 0, 0, 400, 100});
  const auto snapped = SnapLinePoints({{at.lon, at.lat, 5, false},
                                       {at.lon + StepLon / 3, at.lat - StepLat / 3, 9, false},
                                       {at.lon + StepLon * 2 / 3, at.lat, 7, false},
                                       {at.lon, at.lat, 8, false}});
  ASSERT_EQ(snapped.size(), 3U);
  EXPECT_EQ(snapped[0].Lat, at.lat);
  EXPECT_EQ(snapped[0].Wid, 5);
  EXPECT_NEAR(snapped[1].Lon, at.lon + StepLon, 1e-12);
  EXPECT_EQ(snapped[1].Wid, 7);
  EXPECT_EQ(snapped[2].Lon, at.lon) << "coming back is no repeat";
}

}  // namespace
}  // namespace landsmith::test
