#include "editor/StatusText.h"

#include "core/Color.h"
#include "core/CoordText.h"
#include "core/Grid.h"
#include "core/Numbers.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

constexpr std::int32_t VoidColor = 128;
constexpr std::int32_t HighestAltitude = 9000;

std::int32_t AltitudeOfColor(std::int32_t color, bool mesh8) {
  const auto [r, g, b] = SplitColor(color);
  std::int32_t altitude = -1;
  if (b == 255 && r == 0 && g == 0)
    altitude = 0;
  else if (b == 0)
    altitude = mesh8 ? RoundHalfEven(g / 8.0 + r * 32) : r * 256 + g;
  return altitude > HighestAltitude ? -1 : altitude;
}

std::string AltitudeText(const Session& session, LatLon at, std::int32_t pixelColor) {
  const auto holds = [&](const MapRec& map) {
    const MapLevel& mesh = map.Level[3];
    return GeoBox{mesh.NLat, mesh.SLat, mesh.WLon, mesh.ELon}.Holds(at);
  };
  const auto& maps = session.project.Maps;
  if (std::none_of(maps.begin(), maps.end(), holds)) return "Altitude = n.a.";
  if (pixelColor == VoidColor) return "Altitude = void";
  return "Altitude = " + std::to_string(AltitudeOfColor(pixelColor, session.settings.Mesh8));
}

std::string ClassText(std::string_view label, const ClassGrid& grid, const ClassTable& table,
                      const ClassWindow& window, LatLon at) {
  const double column = std::floor((at.lon - window.LandWest) / AreaWidth);
  const double row = std::floor((window.LandNorth - at.lat) / AreaHeight);
  std::uint8_t item = 0;
  if (column >= 0 && column < ClassGridSide && row >= 0 && row < ClassGridSide)
    item = grid.At(static_cast<std::int32_t>(column), static_cast<std::int32_t>(row)) & 0x7F;
  const std::string text = "  " + std::string(label) + " Class = ";
  return item == 0 ? text + "NONE" : text + std::to_string(table.Items[item].Code);
}

std::string ExtraText(const Session& session, LatLon at, std::int32_t pixelColor) {
  const ViewState& view = session.view;
  if (view.MapView == "Mesh") return AltitudeText(session, at, pixelColor);
  switch (session.tool.Mode) {
    case ModeId::Photo:
      return view.Shows(LayerKind::Photos) ? "  Custom = " + CustomTileName(at.lon, at.lat) : "";
    case ModeId::Land:
      if (!view.Shows(LayerKind::Lands)) return "";
      return ClassText("Land", session.project.Lands, session.lands, view.Classes, at);
    case ModeId::Water:
      if (!view.Shows(LayerKind::Waters)) return "";
      return ClassText("Water", session.project.Waters, session.waters, view.Classes, at);
    default:
      return "";
  }
}

std::string PairText(std::string_view label, std::int32_t x, std::int32_t y) {
  return " " + std::string(label) + " = " + std::to_string(x) + " " + std::to_string(y);
}

}  // namespace

std::string ZoomText(double zoom) {
  return "Zoom = " + NumberText(zoom);
}

StatusPanels ComposeStatusText(const Session& session, PixelOffset at, std::int32_t pixelColor) {
  const LatLon place = ToLatLon(session.view, at);
  const CoordForm form = session.settings.Form();
  const GridPosition grid = ComputeGridPosition(place.lat, place.lon);
  const Lod5Position lod5 = Lod5OfPosition(place.lat, place.lon);

  StatusPanels panels;
  panels.Lat = FormatLatText(place.lat, form);
  panels.Lon = FormatLonText(place.lon, form);
  panels.Lod5 = PairText("Lod5", lod5.Lod5X, lod5.Lod5Y);
  panels.Cell = PairText("Cell", grid.CellX, grid.CellY);
  panels.Area = PairText("Area", grid.AreaX, grid.AreaY);
  if (session.settings.AreaPoints) {
    panels.Point = PairText("Area Pt", grid.PointX, grid.PointY);
  } else {
    const CellPoint point = CellPointOfPosition(place.lat, place.lon, {grid.CellX, grid.CellY});
    panels.Point = PairText("Cell Pt", point.X, point.Y);
  }
  panels.Zoom = ZoomText(session.view.Zoom);
  panels.Extra = ExtraText(session, place, pixelColor);
  return panels;
}

}  // namespace landsmith
