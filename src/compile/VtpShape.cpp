#include "compile/VtpShape.h"

#include "core/Numbers.h"
#include "platform/RuntimeError.h"

#include <cmath>

namespace landsmith {
namespace {

/// Turns metres into half a width in points.
constexpr double HalfWidthPoints = 0.10425;
constexpr std::int32_t LongestStep = 1022;
constexpr std::size_t MostSteps = 7;
struct Across {
  std::int32_t a = 0, b = 0;
};

/// Half the strip's width at `at`, along (a) and across (b) the axes, for the direction `from` to `to`.
Across HalfAcross(const RunPoint& from, const RunPoint& to, float width) {
  const double dx = static_cast<float>(std::int64_t{to.X} - from.X);
  const double dy = static_cast<float>(std::int64_t{to.Y} - from.Y);
  const double length = std::sqrt(dx * dx + dy * dy);
  if (length == 0) return {};
  const double k = width * HalfWidthPoints;
  return {RoundHalfEven(k * dx / length), RoundHalfEven(k * dy / length)};
}

RunPoint Moved(RunPoint point, std::int32_t dx, std::int32_t dy) {
  point.X = RoundHalfEven(static_cast<double>(point.X) + dx);
  point.Y = RoundHalfEven(static_cast<double>(point.Y) + dy);
  return point;
}

std::uint8_t ByteWidth(float width) {
  try {
    return RoundToByte(width);
  } catch (const RuntimeError&) {
    throw RuntimeError("the width " + NumberText(width) + " is not from 0 to 255 metres");
  }
}

bool IsStep(std::int64_t distance) {
  return distance >= -LongestStep && distance <= LongestStep;
}

}  // namespace

void AddLineEnds(LineRun& run) {
  auto& points = run.Points;
  const RunPoint start = points[1];
  const Across first = HalfAcross(start, points[2], start.Wid);
  points[0] = Moved(start, -first.b, first.a);
  points[1] = Moved(start, first.b, -first.a);

  const std::size_t last = points.size() - 1;
  const RunPoint end = points[last - 1];
  const Across second = HalfAcross(points[last - 2], end, end.Wid);
  points[last] = Moved(end, second.b, -second.a);
  points[last - 1] = Moved(end, -second.b, second.a);
}

void PackRunPoints(LineRun& run) {
  auto& points = run.Points;
  std::uint8_t width = ByteWidth(points[0].Wid);
  points[0].WidthByte = width;
  points[0].Kind = 0;
  std::int32_t x = points[0].X, y = points[0].Y;
  std::size_t head = 0, steps = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    RunPoint& point = points[i];
    const std::uint8_t own = ByteWidth(point.Wid);
    point.WidthByte = own == width ? std::uint8_t{0} : own;
    width = own;
    const std::int64_t dx = std::int64_t{point.X} - x, dy = std::int64_t{point.Y} - y;
    x = point.X;
    y = point.Y;
    if (!IsStep(dx) || !IsStep(dy) || steps == MostSteps) {
      points[head].Kind = static_cast<std::uint8_t>(steps);
      head = i;
      steps = 0;
    } else {
      point.Kind = StepKind;
      point.X = static_cast<std::int32_t>(dx);
      point.Y = static_cast<std::int32_t>(dy);
      ++steps;
    }
  }
  points[head].Kind = static_cast<std::uint8_t>(steps);
}

}  // namespace landsmith
