#include "compile/TexSurface.h"

#include "core/Grid.h"
#include "core/Numbers.h"
#include "platform/RuntimeError.h"
#include "vector/PackedText.h"
#include "vector/RingOrder.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace landsmith {
namespace {

constexpr double TextureSide = 256;
constexpr double RadiusMarginMetres = 20;

/// A vertex and the point of the texture's raster that lies on it.
struct TiedPoint {
  double Lon = 0, Lat = 0, Alt = 0;
  std::int32_t PairX = 0, PairY = 0;
};

std::int32_t WholeNumber(std::string_view text, const std::string& what) {
  const auto number = ParseInt32(text);
  if (!number) throw RuntimeError(what + " \"" + std::string(text) + "\" is no whole number");
  return *number;
}

/// A NaN fails as well.
void RequireInWorld(const PolyPoint& point, std::size_t index) {
  if (std::fabs(point.Lat) <= 90 && std::fabs(point.Lon) <= 180 && IsTexAltitude(point.Alt)) return;
  throw RuntimeError("vertex " + std::to_string(index + 1) + " at " + NumberText(point.Lat) + " " +
                     NumberText(point.Lon) + " with the altitude " + NumberText(point.Alt) +
                     " lies nowhere in the world");
}

std::vector<TiedPoint> Tied(const std::vector<PolyPoint>& points, std::string_view pairs) {
  std::vector<TiedPoint> tied;
  for (const PolyPoint& point : points) {
    const std::string_view pair = TakePackedField(pairs);
    const std::size_t comma = pair.find(',');
    const std::string owner = "the texture pair of vertex " + std::to_string(tied.size() + 1) + ",";
    if (comma == std::string_view::npos)
      throw RuntimeError(owner + " \"" + std::string(pair) + "\", has no comma");
    tied.push_back({point.Lon, point.Lat, static_cast<double>(point.Alt),
                    WholeNumber(pair.substr(0, comma), owner), WholeNumber(pair.substr(comma + 1), owner)});
  }
  return tied;
}

TiedPoint MeanOf(const std::vector<TiedPoint>& points) {
  TiedPoint mean;
  for (const TiedPoint& point : points) {
    mean.Lon += point.Lon;
    mean.Lat += point.Lat;
    mean.Alt += point.Alt;
  }
  const auto count = static_cast<double>(points.size());
  mean.Lon /= count;
  mean.Lat /= count;
  mean.Alt /= count;
  return mean;
}

/// The farthest on each axis counts by itself: three different vertices may give it.
std::int32_t RadiusOf(const std::vector<TexVertex>& vertices) {
  double x = 0;
  double y = 0;
  double z = 0;
  for (const TexVertex& vertex : vertices) {
    x = std::max(x, std::fabs(vertex.X));
    y = std::max(y, std::fabs(vertex.Y));
    z = std::max(z, std::fabs(vertex.Z));
  }
  return Floor(std::sqrt(x * x + z * z + y * y) + RadiusMarginMetres);
}

}  // namespace

bool IsTexAltitude(float metres) {
  constexpr float farthest = 100'000;
  return std::fabs(metres) <= farthest;
}

TexSurface MakeTexSurface(const std::vector<PolyPoint>& points, const TexPolyType& type) {
  for (std::size_t i = 0; i < points.size(); ++i)
    RequireInWorld(points[i], i);
  const std::int32_t tileX = WholeNumber(type.TileX, "TileX");
  const std::int32_t tileY = WholeNumber(type.TileY, "TileY");
  std::vector<TiedPoint> ring = Tied(points, type.Pairs);
  const TiedPoint middle = MeanOf(ring);
  OrientPoly(ring);

  TexSurface surface;
  surface.Middle = {middle.Lat, middle.Lon};
  surface.MiddleAlt = middle.Alt;
  const double metersPerDegreeLon = MetersPerDegreeLon(middle.Lat);
  const auto onTexture = [](std::int32_t pair, std::int32_t tile) {
    return static_cast<float>(static_cast<double>(pair) * tile / TextureSide);
  };
  for (const TiedPoint& point : ring)
    surface.Vertices.push_back({(point.Lon - middle.Lon) * metersPerDegreeLon, point.Alt - middle.Alt,
                                (point.Lat - middle.Lat) * MetersPerDegreeLat, onTexture(point.PairX, tileX),
                                onTexture(point.PairY, tileY)});
  surface.RadiusMetres = RadiusOf(surface.Vertices);

  std::vector<LatLon> places;
  std::transform(ring.begin(), ring.end(), std::back_inserter(places), [](const TiedPoint& point) {
    return LatLon{point.Lat, point.Lon};
  });
  surface.Parts = TriangulateRing(places);
  return surface;
}

}  // namespace landsmith
