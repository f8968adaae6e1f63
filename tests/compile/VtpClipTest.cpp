#include "compile/VtpClip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace landsmith::test {
namespace {

// The slow way, word for word: every Cell of the line's box asks every vertex. Counts from 1.
class SlowClip {
public:
  explicit SlowClip(const std::vector<LinePoint>& points) : m_points(points) {}

  std::vector<LineRun> Runs() {
    double minLat = 90, maxLat = -90, minLon = 180, maxLon = -180;
    for (const LinePoint& point : m_points) {
      minLat = std::min(minLat, point.Lat);
      maxLat = std::max(maxLat, point.Lat);
      minLon = std::min(minLon, point.Lon);
      maxLon = std::max(maxLon, point.Lon);
    }
    const double h = 0.3515625, w = 0.46875;
    const double south = (std::floor(minLat / h) + 1) * h - 0.17578125;
    const double north = std::floor(maxLat / h) * h + 0.17578125;
    const double west = (std::floor(minLon / w) + 1) * w - 0.234375;
    const double east = std::floor(maxLon / w) * w + 0.234375;
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
    LineRun run;
    run.CellX = m_cell.CellX;
    run.CellY = m_cell.CellY;
    run.Points.emplace_back();
    for (std::size_t k = s; k <= e; ++k) {
      const CellPoint at = CellPointOfPosition(m_points[k - 1].Lat, m_points[k - 1].Lon, m_cell);
      RunPoint point;
      point.X = at.X;
      point.Y = at.Y;
      point.Wid = m_points[k - 1].Wid;
      run.Points.push_back(point);
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
    ASSERT_EQ(fast[i].CellX, slow[i].CellX) << what << ", run " << i;
    ASSERT_EQ(fast[i].CellY, slow[i].CellY) << what << ", run " << i;
    ASSERT_EQ(fast[i].Points, slow[i].Points) << what << ", run " << i;
    ASSERT_TRUE(fast[i].Name == "road" && fast[i].TexId == 3 && fast[i].Layer == 7) << what;
  }
}

struct Place {
  const char* name;
  double lat, lon;
};

/// Wanders from `start` with steps of up to `reach` Cells; every third coordinate or so lies on a border.
std::vector<LinePoint> RandomLine(std::mt19937& random, const Place& start, double reach) {
  std::uniform_real_distribution<double> step(-reach, reach);
  const std::size_t count = 2 + random() % 14;
  double lat = start.lat, lon = start.lon;
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
  const Place places[] = {{"north-east", 47.5, 8.1},  {"north-west", 40.1, -9.9},
                          {"south-west", -33.9, -70}, {"south-east", -33.9, 151.2},
                          {"equator", 0, 0},          {"date line", 10, 179.9},
                          {"west edge", -10, -179.9}, {"north pole", 89.9, 20}};
  std::mt19937 random(20041);
  for (const Place& place : places) {
    for (int i = 0; i < 200; ++i) {
      const double reach = i % 4 == 0 ? 0.2 : i % 4 == 1 ? 1.0 : i % 4 == 2 ? 3.0 : 9.0;
      const auto points = RandomLine(random, place, reach);
      const std::string what = std::string(place.name) + " " + std::to_string(i);
      ExpectSameRuns(points, what + ", as drawn");
      const auto snapped = SnapLinePoints(points);
      if (snapped.size() >= 2) ExpectSameRuns(snapped, what + ", snapped");
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
