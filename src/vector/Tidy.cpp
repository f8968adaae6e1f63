#include "vector/Tidy.h"

#include "core/Grid.h"
#include "core/Project.h"
#include "vector/PathOperations.h"

#include <cmath>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

constexpr double NearlyStraight = 0.995;  ///< cosine of the turn
constexpr double VerySharp = -0.25;

struct DegreeVector {
  double Lon = 0, Lat = 0;
};

DegreeVector UnitVector(DegreeVector v) {
  const double length = std::hypot(v.Lon, v.Lat);
  if (length == 0) return {};
  return {v.Lon / length, v.Lat / length};
}

/// Measures one path: metres of a degree of longitude are taken once.
class Ruler {
public:
  explicit Ruler(const TidyScale& scale)
      : m_metresLon(MetersPerDegreeLon(scale.CenterLat)),
        m_limit2(static_cast<double>(scale.DistanceMetres) * static_cast<double>(scale.DistanceMetres)) {}

  template <class Point>
  bool IsBeyond(const Point& a, const Point& b) const {
    const double x = (a.Lon - b.Lon) * m_metresLon;
    const double y = (a.Lat - b.Lat) * MetersPerDegreeLat;
    return x * x + y * y > m_limit2;
  }

private:
  double m_metresLon;
  double m_limit2;
};

/// The vertices that stay.
template <class Path>
std::vector<typename Path::Point> Simplified(const Path& path, const TidyScale& scale) {
  const auto& points = path.Points;
  if (points.size() < 3) return points;
  const Ruler ruler(scale);
  std::vector<typename Path::Point> kept{points.front()};
  for (std::size_t k = 1; k + 1 < points.size(); ++k)
    if (ruler.IsBeyond(points[k + 1], kept.back())) kept.push_back(points[k]);
  kept.push_back(points.back());
  return kept;
}

template <class Path>
void ReplacePoints(Path& path, std::vector<typename Path::Point> points) {
  const bool otherCount = points.size() != path.Points.size();
  path.Points = std::move(points);
  SetPathBounds(path);
  if (otherCount) PointsChanged(path);
}

/// How a path turns at a vertex, and on which sides of it there is room for a new one.
struct Corner {
  DegreeVector Before, After;  ///< directions of the two segments
  double LengthBefore = 0, LengthAfter = 0;
  bool ShortBefore = false, ShortAfter = false;
};

template <class Point>
Corner CornerAt(const Point& before, const Point& at, const Point& after, const Ruler& ruler,
                bool keepSharp) {
  const DegreeVector to{at.Lon - before.Lon, at.Lat - before.Lat};
  const DegreeVector from{after.Lon - at.Lon, after.Lat - at.Lat};
  Corner corner{UnitVector(to),
                UnitVector(from),
                std::hypot(to.Lon, to.Lat),
                std::hypot(from.Lon, from.Lat),
                !ruler.IsBeyond(at, before),
                !ruler.IsBeyond(after, at)};
  const double cosine = corner.Before.Lon * corner.After.Lon + corner.Before.Lat * corner.After.Lat;
  if (cosine > NearlyStraight || (keepSharp && cosine < VerySharp))
    corner.ShortBefore = corner.ShortAfter = true;
  return corner;
}

/// A third of `length` away from `at`, in the direction of 3 * `along` + `across`; its width or altitude lies
/// a third of the way to the neighbour's.
template <class Path>
typename Path::Point PointBeside(const typename Path::Point& at, const typename Path::Point& neighbour,
                                 DegreeVector along, DegreeVector across, double length) {
  constexpr auto third = PathTraits<Path>::Third;
  const DegreeVector direction = UnitVector({3 * along.Lon + across.Lon, 3 * along.Lat + across.Lat});
  typename Path::Point added;
  added.Lon = at.Lon + length / 3 * direction.Lon;
  added.Lat = at.Lat + length / 3 * direction.Lat;
  added.*third = (2 * (at.*third) + neighbour.*third) / 3;
  return added;
}

DegreeVector Backward(DegreeVector v) {
  return {-v.Lon, -v.Lat};
}

template <class Path>
void SmoothPath(Path& path, const TidyScale& scale, const SmoothOptions& options) {
  const auto& points = path.Points;
  const std::size_t count = points.size();
  if (count < 3) return;
  const Ruler ruler(scale);
  const std::size_t first = PathTraits<Path>::IsRing ? 0 : 1;
  const std::size_t end = PathTraits<Path>::IsRing ? count : count - 1;
  std::vector<typename Path::Point> smooth;
  smooth.reserve(3 * count);
  smooth.assign(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(first));
  for (std::size_t k = first; k < end; ++k) {
    const auto& before = points[(k + count - 1) % count];
    const auto& after = points[(k + 1) % count];
    Corner corner = CornerAt(before, points[k], after, ruler, options.SmoothSharp);
    if (options.KeepEnds && k == first) corner.ShortBefore = true;
    if (options.KeepEnds && k + 1 == end) corner.ShortAfter = true;
    if (!corner.ShortBefore)
      smooth.push_back(PointBeside<Path>(points[k], before, Backward(corner.Before), Backward(corner.After),
                                         corner.LengthBefore));
    smooth.push_back(points[k]);
    if (!corner.ShortAfter)
      smooth.push_back(PointBeside<Path>(points[k], after, corner.After, corner.Before, corner.LengthAfter));
  }
  smooth.insert(smooth.end(), points.begin() + static_cast<std::ptrdiff_t>(end), points.end());
  ReplacePoints(path, std::move(smooth));
}

}  // namespace

std::size_t SimplifyLine(LineRec& line, const TidyScale& scale) {
  const std::size_t count = line.Points.size();
  ReplacePoints(line, Simplified(line, scale));
  return count - line.Points.size();
}

bool SimplifyPoly(PolyRec& poly, const TidyScale& scale) {
  std::vector<PolyPoint> kept = Simplified(poly, scale);
  if (kept.size() < PathTraits<PolyRec>::LeastPoints) return false;
  ReplacePoints(poly, std::move(kept));
  return true;
}

void SmoothLine(LineRec& line, const TidyScale& scale, const SmoothOptions& options) {
  SmoothPath(line, scale, options);
}

void SmoothPoly(PolyRec& poly, const TidyScale& scale, const SmoothOptions& options) {
  SmoothPath(poly, scale, options);
}

}  // namespace landsmith
