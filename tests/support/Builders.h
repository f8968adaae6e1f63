// Short ways to records for tests, which keep a case to what matters in it.
#pragma once

#include "core/Project.h"

#include <initializer_list>
#include <string>

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

}  // namespace landsmith::test
