// Reads a vector terrain file as the importers understand the format, written from the format's description
// and sharing nothing with the compiler.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools::test {

struct LinePointRead {
  int X = 0, Y = 0, Width = 0;
  bool operator==(const LinePointRead&) const = default;
};

inline void PrintTo(const LinePointRead& point, std::ostream* out) {
  *out << "(" << point.X << " " << point.Y << " " << point.Width << ")";
}

struct FeatureRead {
  int CellCol = 0, CellRow = 0, Group = 0, Kind = 0;
  std::string TexText;
  std::vector<LinePointRead> Points;
};

struct VtpFileRead {
  double LatCenter = 0, LonCenter = 0;
  std::vector<std::string> TexNames;
  std::vector<FeatureRead> Features;
};

/// Throws std::out_of_range or std::runtime_error for a file that is not of the format.
VtpFileRead ReadVtpFile(std::string_view bytes);

}  // namespace landsmith::simtools::test
