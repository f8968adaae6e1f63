#include "compile/ItemFindings.h"
#include "compile/LineGaps.h"
#include "compile/VtpClip.h"
#include "compile/VtpItems.h"
#include "core/Numbers.h"
#include "vector/LineType.h"
#include "vector/TextureText.h"

#include <variant>

namespace landsmith {
namespace {

/// What a VTPLayer statement takes.
constexpr std::int16_t LastVtpLayer = 63;
constexpr float LargestWidth = 255;

std::vector<LinePoint> MovedBy(LatLon shift, std::vector<LinePoint> points) {
  if (shift == LatLon{}) return points;
  for (LinePoint& point : points) {
    point.Lat += shift.lat;
    point.Lon += shift.lon;
  }
  return points;
}

LatLon WithoutShift(LatLon at, LatLon shift) {
  return {at.lat - shift.lat, at.lon - shift.lon};
}

/// A width is written as a byte, so a little above the largest one is still rounded down.
bool FailsAsWidth(float width) {
  return !(width >= -0.5F && width < LargestWidth + 0.5F);
}

void CheckWidths(const std::vector<LinePoint>& points, LatLon shift, ItemFindings& found) {
  std::size_t odd = 0;
  bool fails = false;
  LatLon first;
  for (const LinePoint& point : points) {
    if (point.Wid >= 0 && point.Wid <= LargestWidth) continue;
    if (odd++ == 0) first = WithoutShift({point.Lat, point.Lon}, shift);
    fails = fails || FailsAsWidth(point.Wid);
  }
  if (odd == 0) return;
  const std::string text =
      odd == 1 ? "A vertex has a width that is not from 0 to 255 metres."
               : std::to_string(odd) + " vertices have widths that are not from 0 to 255 metres.";
  if (fails)
    found.Error(first, text);
  else
    found.Warn(first, text);
}

void CheckGaps(const std::vector<LinePoint>& points, LatLon shift, ItemFindings& found) {
  const LineGaps gaps = FindLineGaps(points);
  if (gaps.Count == 0) return;
  const std::string cells = gaps.Count == 1 ? "a Cell without a vertex in it."
                                            : std::to_string(gaps.Count) + " Cells without a vertex in them.";
  found.Warn(WithoutShift(gaps.First, shift), "The line has gaps, since it crosses " + cells);
}

void CheckTexture(const std::string& texture, LatLon at, ItemFindings& found) {
  if (texture.empty()) return found.Error(at, "No texture is chosen.");
  const std::string text =
      "The texture \"" + texture + "\" is neither a number nor bitmaps with their numbers.";
  switch (JudgeTextureField(texture)) {
    case TextureField::Good:
      return;
    case TextureField::Strange:
      return found.Warn(at, text);
    case TextureField::Unreadable:
      return found.Error(at, text);
  }
}

}  // namespace

LatLon VtpShift(const AppSettings& settings) {
  return {-static_cast<double>(settings.VTPShiftNS) * ShiftUnitLat, settings.VTPShiftWE * ShiftUnitLon};
}

void CheckVtpFields(const std::string& layer, const std::string& texture, LatLon at, ItemFindings& found) {
  const auto number = ParseInt16(layer);
  if (!number)
    found.Error(at, "The layer \"" + layer + "\" is no whole number.");
  else if (*number < 0 || *number > LastVtpLayer)
    found.Error(at, "The layer " + layer + " is none of 0 to " + std::to_string(LastVtpLayer) + ".");
  CheckTexture(texture, at, found);
}

void CheckItem(const LineRec& line, LatLon shift, ItemFindings& found) {
  const LineType type = DecodeLineType(line.Type);
  const auto* vtp = std::get_if<VtpLine>(&type);
  if (!vtp) return;
  const LatLon at = PlaceOf(line.Points);
  CheckVtpFields(vtp->Layer, vtp->Texture, at, found);
  if (!CheckPlaces(line.Points, shift, found)) return;
  const std::vector<LinePoint> points = SnapLinePoints(MovedBy(shift, line.Points));
  if (points.size() < 2) {
    found.Warn(at, "The line has no two different vertices on the grid: nothing is compiled of it.");
    return;
  }
  CheckWidths(points, shift, found);
  CheckGaps(points, shift, found);
}

}  // namespace landsmith
