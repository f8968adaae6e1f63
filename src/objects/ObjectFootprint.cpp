#include "objects/ObjectFootprint.h"

#include "core/Numbers.h"

#include <cmath>
#include <cstdint>

namespace landsmith {
namespace {

struct HalfSize {
  double width;
  double length;
};

/// Symbols have a size of their own, whatever the record says.
HalfSize HalfSizeOf(const ObjectRec& object) {
  constexpr std::int32_t sign = 8;  // kinds above it are effects, beacons and windsocks
  if (object.Type > sign) return {3, 3};
  if (object.Type == sign) return {1.5, 3};
  return {static_cast<double>(object.Width) / 2, static_cast<double>(object.Length) / 2};
}

}  // namespace

void ComputeObjectFootprint(ObjectRec& object, const ViewScale& scale) {
  const HalfSize half = HalfSizeOf(object);
  const double radians = static_cast<double>(object.Heading) * Pi / 180;
  const double c = std::cos(radians), s = std::sin(radians);
  const auto rotate = [c, s](double x, double y, float& toX, float& toY) {
    toX = static_cast<float>(s * y + c * x);
    toY = static_cast<float>(c * y - s * x);
  };
  rotate(-half.width, half.length, object.X1, object.Y1);
  rotate(half.width, half.length, object.X2, object.Y2);
  rotate(half.width, -half.length, object.X3, object.Y3);
  rotate(-half.width, -half.length, object.X4, object.Y4);
  rotate(0, half.length, object.NoseX, object.NoseY);

  object.Box = GeoBox{};
  const auto add = [&object, &scale](float x, float y) {
    object.Box.Add(object.Lat + static_cast<double>(y) * scale.PixelsPerMeter / scale.PixelsPerDegLat,
                   object.Lon + static_cast<double>(x) * scale.PixelsPerMeter / scale.PixelsPerDegLon);
  };
  add(object.X1, object.Y1);
  add(object.X2, object.Y2);
  add(object.X3, object.Y3);
  add(object.X4, object.Y4);
}

}  // namespace landsmith
