// Surfer BLN text: items of a header line and point lines, longitude first.
#pragma once

#include "core/Project.h"
#include "core/Settings.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

struct BlnPoint {
  double Lon = 0, Lat = 0;
  float Wid = 0;  ///< the third field, 0 where there is none
};
struct BlnItem {
  std::string Name;
  std::vector<BlnPoint> Points;
};

/// Reads the whole text. Blanks around numbers, LF line ends and blank lines at the end are accepted. Throws
/// RuntimeError with file and line: a header that is no number, a point without a separator, points missing.
std::vector<BlnItem> ParseBln(std::string_view bytes, char separator, const std::string& file);

/// Appends the items to the project: closed ones as polygons (and, with BLNAutoLine, lines), open ones as
/// lines. Reads everything before the project is touched.
void ImportBLN(const std::filesystem::path& path, ProjectState& project, const AppSettings& settings);

}  // namespace landsmith
