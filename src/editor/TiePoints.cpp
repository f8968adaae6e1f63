#include "editor/TiePoints.h"

#include "core/Numbers.h"
#include "vector/PackedText.h"
#include "vector/PolyOperations.h"
#include "vector/PolyType.h"

#include <algorithm>
#include <cstdlib>

namespace landsmith {
namespace {

constexpr std::int32_t PixelsPerRaster = 2;
constexpr std::int32_t PictureWest = 12, PictureSouth = 524;
constexpr std::int32_t FarthestRaster = 1'000'000;  // keeps pixels far from the end of their numbers
constexpr std::int32_t Reach = 4;

std::optional<std::int32_t> ParseRaster(std::string_view text) {
  const auto value = ParseInt32(text);
  return value && *value >= -FarthestRaster && *value <= FarthestRaster ? value : std::nullopt;
}

std::optional<RasterPoint> ParsePair(std::string_view pair) {
  const std::size_t comma = pair.find(',');
  if (comma == std::string_view::npos) return {};
  const auto x = ParseRaster(pair.substr(0, comma));
  const auto y = ParseRaster(pair.substr(comma + 1));
  if (!x || !y) return {};
  return RasterPoint{*x, *y};
}

bool IsOnPicture(PixelPoint at) {
  const auto inside = [](std::int32_t pixel) { return pixel >= PictureFirst && pixel <= PictureLast; };
  return inside(at.x) && inside(at.y);
}

std::vector<PixelPoint> FreshPoints(PolyRec poly) {
  poly.Type = EncodePolyType(TexPolyType{});
  SetPathBounds(poly);
  SetTexCoords(poly, true);
  return *LoadTiePoints(std::get<TexPolyType>(DecodePolyType(poly.Type)).Pairs, poly.Points.size());
}

}  // namespace

PixelPoint ToPicture(RasterPoint point) {
  return {PictureWest + PixelsPerRaster * point.X, PictureSouth - PixelsPerRaster * point.Y};
}

RasterPoint ToRaster(PixelPoint at) {
  const auto half = [](std::int32_t pixels) {
    return RoundHalfEven(static_cast<double>(pixels) / PixelsPerRaster);
  };
  return {half(at.x - PictureWest), half(PictureSouth - at.y)};
}

std::optional<std::vector<PixelPoint>> LoadTiePoints(std::string_view pairs, std::size_t count) {
  std::vector<PixelPoint> points;
  while (!pairs.empty()) {
    const auto pair = ParsePair(TakePackedField(pairs));
    if (!pair) return {};
    points.push_back(ToPicture(*pair));
  }
  if (points.size() != count) return {};
  return points;
}

TiePoints::TiePoints(const PolyRec& poly, std::string_view pairs)
    : m_fresh(FreshPoints(poly)), m_points(LoadTiePoints(pairs, m_fresh.size()).value_or(m_fresh)) {}

RasterPoint TiePoints::Position() const {
  return ToRaster(m_points[m_current]);
}

void TiePoints::Press(PixelPoint at) {
  m_grip.reset();
  if (!IsOnPicture(at)) return;
  const auto hit = std::find_if(m_points.begin(), m_points.end(), [at](PixelPoint point) {
    return std::abs(point.x - at.x) < Reach && std::abs(point.y - at.y) < Reach;
  });
  if (hit == m_points.end()) return;
  m_current = static_cast<std::size_t>(hit - m_points.begin());
  m_grip = PixelPoint{hit->x - at.x, hit->y - at.y};
}

void TiePoints::Drag(PixelPoint at) {
  if (!m_grip) return;
  const PixelPoint southWest = ToPicture({0, 0});
  const PixelPoint northEast = ToPicture({RasterSide, RasterSide});
  m_points[m_current] = {std::clamp(at.x + m_grip->x, southWest.x, northEast.x),
                         std::clamp(at.y + m_grip->y, northEast.y, southWest.y)};
}

void TiePoints::MoveTo(RasterPoint at) {
  m_points[m_current] = ToPicture(
      {std::clamp(at.X, std::int32_t{0}, RasterSide), std::clamp(at.Y, std::int32_t{0}, RasterSide)});
}

void TiePoints::Nudge(std::int32_t east, std::int32_t north) {
  const RasterPoint from = Position();
  MoveTo({from.X + east, from.Y + north});
}

void TiePoints::ChooseNext() {
  m_grip.reset();
  m_current = (m_current + 1) % m_points.size();
}

void TiePoints::ChoosePrevious() {
  m_grip.reset();
  m_current = (m_current + m_points.size() - 1) % m_points.size();
}

std::string TiePoints::Pairs() const {
  std::string pairs;
  for (const PixelPoint& point : m_points) {
    const RasterPoint at = ToRaster(point);
    AddPackedField(pairs, std::to_string(at.X) + ',' + std::to_string(at.Y));
  }
  return pairs;
}

}  // namespace landsmith
