// grid and coord: positions on the scenery grid, coordinate text.
#include "batch/Commands.h"
#include "batch/JsonWriter.h"
#include "core/CoordText.h"
#include "core/Grid.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/RuntimeError.h"

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

namespace {

std::optional<LatLon> ParsePosition(std::string_view text) {
  const std::string_view line = Trim(text);
  const std::size_t blank = line.find_first_of(" \t");
  if (blank == std::string_view::npos) return {};
  const auto lat = ParseNumber(line.substr(0, blank));
  const auto lon = ParseNumber(line.substr(blank));
  if (!lat || !lon) return {};
  return LatLon{*lat, *lon};
}

void PutSides(JsonWriter& json, std::string_view name, const GeoBox& box) {
  json.Key(name).BeginArray();
  json.Value(box.NLat).Value(box.WLon).Value(box.SLat).Value(box.ELon).EndArray();
}

std::string GridJson(LatLon at) {
  const GridPosition position = ComputeGridPosition(at.lat, at.lon);
  const GridPositionCell inCell = GridPositionToCellPoint(at.lat, at.lon);
  const Lod5Position lod5 = Lod5OfPosition(at.lat, at.lon);
  JsonWriter json;
  json.BeginObject()
      .Member("CellX", position.CellX)
      .Member("CellY", position.CellY)
      .Member("AreaX", position.AreaX)
      .Member("AreaY", position.AreaY)
      .Member("PointX", position.PointX)
      .Member("PointY", position.PointY)
      .Member("CellPointX", inCell.PointX)
      .Member("CellPointY", inCell.PointY)
      .Member("Lod5X", lod5.Lod5X)
      .Member("Lod5Y", lod5.Lod5Y)
      .Member("AreaInLod5X", lod5.AreaInLod5X)
      .Member("AreaInLod5Y", lod5.AreaInLod5Y)
      .Member("CustomTileName", CustomTileName(at.lon, at.lat));
  PutSides(json, "AreaBox", AreaBox(at.lat, at.lon));
  PutSides(json, "CellBox", CellBox(at.lat, at.lon));
  return json.EndObject().Take();
}

void Grid(BatchRun& run) {
  std::string line;
  for (int number = 1; std::getline(run.in, line); ++number) {
    if (Trim(line).empty()) continue;
    const auto at = ParsePosition(line);
    const auto fail = [&](const std::string& found) {
      throw RuntimeError::At("reading positions", "standard input", "line " + std::to_string(number), found);
    };
    if (!at) fail("\"" + std::string(Trim(line)) + "\" is no latitude and longitude");
    try {
      run.out << GridJson(*at);
    } catch (const RuntimeError& overflow) {
      fail(overflow.what());
    }
  }
}

using Parse = double (*)(std::string_view, CoordForm);
using Format = std::string (*)(double, CoordForm);

/// 17 significant digits: enough to read back the same value.
std::string DegreesText(double degrees) {
  std::array<char, 32> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), degrees, std::chars_format::general, 17)
          .ptr;
  return {digits.data(), end};
}

void Coord(BatchRun& run, Parse parse, Format format) {
  const CoordForm form = run.settings.Form();
  std::string line;
  while (std::getline(run.in, line)) {
    if (line.ends_with('\r')) line.pop_back();
    const double degrees = parse(line, form);
    run.out << DegreesText(degrees) << '\t' << format(degrees, form) << '\n';
  }
}

}  // namespace

void AddGridCommands(CLI::App& app, Command& chosen) {
  app.add_subcommand("grid", "reads LAT LON lines, prints their places on the grid as JSON")
      ->callback([&chosen] { chosen = Grid; });
  auto* coord = app.add_subcommand("coord", "reads coordinate texts, prints degrees and text");
  coord->require_subcommand(1);
  coord->add_subcommand("lat", "latitudes")->callback([&chosen] {
    chosen = [](BatchRun& run) { Coord(run, ParseLatText, FormatLatText); };
  });
  coord->add_subcommand("lon", "longitudes")->callback([&chosen] {
    chosen = [](BatchRun& run) { Coord(run, ParseLonText, FormatLonText); };
  });
}

}  // namespace landsmith
