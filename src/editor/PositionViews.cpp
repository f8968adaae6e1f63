#include "editor/PositionViews.h"

#include "core/Grid.h"
#include "core/Numbers.h"

#include <initializer_list>

namespace landsmith {

namespace {

/// A box with a whole number: its text, where the number goes, its name in messages and its range.
struct NumberBox {
  const std::string& Text;
  std::int32_t& Value;
  const char* Name;
  std::int32_t Least, Greatest;
};

/// The message for the first box of a block that is refused, or an empty text.
std::string ReadBlock(const char* block, std::initializer_list<NumberBox> boxes) {
  for (const NumberBox& box : boxes) {
    const auto value = ParseInt32(box.Text);
    if (!value) return std::string("Invalid value(s) in ") + block + " block!";
    if (*value < box.Least || *value > box.Greatest)
      return std::string(box.Name) + " is outside " + std::to_string(box.Least) + " and " +
             std::to_string(box.Greatest) + "!";
    box.Value = *value;
  }
  return {};
}

constexpr std::int32_t LastCellX = 767, LastCellY = 511, LastArea = 31, LastPoint = 255;
constexpr const char* CellAreaBlock = "Cell/Area";

}  // namespace

PositionTexts TextsOf(LatLon at, CoordForm form) {
  const GridPosition area = ComputeGridPosition(at.lat, at.lon);
  const GridPositionCell cell = GridPositionToCellPoint(at.lat, at.lon);
  return {FormatLatText(at.lat, form), FormatLonText(at.lon, form), std::to_string(area.CellX),
          std::to_string(area.CellY),  std::to_string(area.AreaX),  std::to_string(area.AreaY),
          std::to_string(area.PointX), std::to_string(area.PointY), std::to_string(cell.PointX),
          std::to_string(cell.PointY)};
}

ReadPosition ReadLatLon(const PositionTexts& texts, LatLon shown, CoordForm form) {
  ReadPosition read{shown, {}};
  if (texts.Lat != FormatLatText(shown.lat, form)) read.At.lat = ParseLatText(texts.Lat, form);
  if (texts.Lon != FormatLonText(shown.lon, form)) read.At.lon = ParseLonText(texts.Lon, form);
  constexpr GeoBox world{90, -90, -180, 180};
  if (!world.Holds(read.At)) read = {shown, "Check Latitude and longitude!"};
  return read;
}

ReadPosition ReadAreaPoint(const PositionTexts& texts) {
  GridPosition place;
  std::string refusal = ReadBlock(CellAreaBlock, {{texts.AX, place.AreaX, "Area X", 0, LastArea},
                                                  {texts.AY, place.AreaY, "Area Y", 0, LastArea},
                                                  {texts.CX, place.CellX, "Cell X", 0, LastCellX},
                                                  {texts.CY, place.CellY, "Cell Y", 0, LastCellY}});
  if (refusal.empty())
    refusal = ReadBlock("Point in Area", {{texts.PtAX, place.PointX, "Area Point X", 0, LastPoint},
                                          {texts.PtAY, place.PointY, "Area Point Y", 0, LastPoint}});
  if (!refusal.empty()) return {{}, refusal};
  return {PointInAreaToLatLon(place), {}};
}

ReadPosition ReadCellPoint(const PositionTexts& texts) {
  GridPositionCell place;
  std::string refusal = ReadBlock(CellAreaBlock, {{texts.CX, place.CellX, "Cell X", 0, LastCellX},
                                                  {texts.CY, place.CellY, "Cell Y", 0, LastCellY}});
  if (refusal.empty())
    refusal =
        ReadBlock("Point in Cell", {{texts.PtCX, place.PointX, "Cell Point X", CellPointMin, CellPointMax},
                                    {texts.PtCY, place.PointY, "Cell Point Y", CellPointMin, CellPointMax}});
  if (!refusal.empty()) return {{}, refusal};
  return {PointInCellToLatLon(place), {}};
}

ReadPosition ReadEdited(const PositionTexts& texts, LatLon shown, CoordForm form) {
  const PositionTexts before = TextsOf(shown, form);
  const auto differs = [&](std::initializer_list<std::string PositionTexts::*> boxes) {
    for (const auto box : boxes)
      if (texts.*box != before.*box) return true;
    return false;
  };
  if (differs({&PositionTexts::Lat, &PositionTexts::Lon})) return ReadLatLon(texts, shown, form);
  const bool area =
      differs({&PositionTexts::AX, &PositionTexts::AY, &PositionTexts::PtAX, &PositionTexts::PtAY});
  if (!area && differs({&PositionTexts::PtCX, &PositionTexts::PtCY})) return ReadCellPoint(texts);
  if (area || differs({&PositionTexts::CX, &PositionTexts::CY})) return ReadAreaPoint(texts);
  return {shown, {}};
}

}  // namespace landsmith
