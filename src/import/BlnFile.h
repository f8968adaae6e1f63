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

/// Whether a point's third field is a width, or text that nobody looks at.
enum class BlnWidthField { Read, Ignore };

/// Reads the whole text. Blanks around numbers, LF line ends and blank lines at the end are accepted. Throws
/// RuntimeError with file and line: a header that is no number, a point without a separator, points missing.
/// An item may announce 0 points.
std::vector<BlnItem> ParseBln(std::string_view bytes, char separator, const std::string& file,
                              BlnWidthField widths = BlnWidthField::Read);

/// The character between fields, as the file holds it: character 9 for the word "tab", a comma where the
/// setting is empty.
char BlnSeparatorOf(const AppSettings& settings);

/// Appends the items to the project in the order of the file: closed ones as polygons (and, with BLNAutoLine,
/// lines), open ones as lines; items without points leave nothing. Reads everything before the project is
/// touched; Dirty is the caller's.
void ImportBLN(const std::filesystem::path& path, ProjectState& project, const AppSettings& settings);

}  // namespace landsmith
