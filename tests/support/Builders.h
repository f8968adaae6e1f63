// Short ways to records for tests, which keep a case to what matters in it.
#pragma once

#include "core/Project.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace landsmith::test {

class ALine {
public:
  ALine& Named(std::string name) {
    m_line.Name = std::move(name);
    return *this;
  }
  ALine& Vtp(const std::string& layer, const std::string& texture) {
    m_line.Type = "VTP//" + layer + "//" + texture + "//";
    return *this;
  }
  ALine& Through(std::initializer_list<LatLon> points, float width = 10) {
    for (const LatLon& at : points)
      m_line.Points.push_back({at.lon, at.lat, width, false});
    return *this;
  }
  ALine& Selected() {
    m_line.Selected = true;
    return *this;
  }
  operator LineRec() const {  // NOLINT(google-explicit-constructor): a builder stands for its line
    LineRec line = m_line;
    SetPathBounds(line);
    return line;
  }

private:
  LineRec m_line;
};

template <class Path>
std::vector<double> Lons(const Path& path) {
  std::vector<double> lons;
  for (const auto& point : path.Points)
    lons.push_back(point.Lon);
  return lons;
}

inline std::vector<float> Widths(const LineRec& line) {
  std::vector<float> widths;
  for (const LinePoint& point : line.Points)
    widths.push_back(point.Wid);
  return widths;
}

}  // namespace landsmith::test
