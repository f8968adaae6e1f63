// The small text form of lines that the golden cases and their reference share.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "core/Settings.h"
#include "core/Text.h"

#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace landsmith::test {

struct GoldenLines {
  ProjectState project;
  AppSettings settings;
};

inline void ReadSetting(AppSettings& settings, const std::string& key, std::istringstream& rest) {
  if (key == "VTPShiftNS")
    rest >> settings.VTPShiftNS;
  else if (key == "VTPShiftWE")
    rest >> settings.VTPShiftWE;
  else
    rest >> settings.VTPReplace;
}

/// `at CELLX CELLY X Y WIDTH` or `LAT LON WIDTH`.
inline LinePoint ReadVertex(const std::string& first, std::istringstream& rest) {
  LinePoint point;
  if (first == "at") {
    GridPositionCell position;
    rest >> position.CellX >> position.CellY >> position.PointX >> position.PointY >> point.Wid;
    const LatLon at = PointInCellToLatLon(position);
    point.Lat = at.lat;
    point.Lon = at.lon;
  } else {
    point.Lat = std::stod(first);
    rest >> point.Lon >> point.Wid;
  }
  if (!rest) throw std::runtime_error("a vertex that cannot be read: " + first);
  return point;
}

inline GoldenLines ReadGoldenLines(std::string_view text) {
  GoldenLines result;
  auto& lines = result.project.Lines;
  for (const std::string_view view : SplitLines(text)) {
    std::istringstream words{std::string(view)};
    std::string first;
    words >> first;
    const std::string rest(view.substr(std::min(view.size(), first.size() + 1)));
    if (first.empty() || first.front() == '#') continue;
    if (first.starts_with("VTP")) {
      ReadSetting(result.settings, first, words);
    } else if (first == "line") {
      lines.emplace_back().Selected = rest == "selected";
    } else if (first == "name") {
      lines.back().Name = rest;
    } else if (first == "type") {
      lines.back().Type = rest;
    } else {
      lines.back().Points.push_back(ReadVertex(first, words));
    }
  }
  return result;
}

}  // namespace landsmith::test
