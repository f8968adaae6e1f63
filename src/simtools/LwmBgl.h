// Land and water masks as values, and as the block of a BGL file that holds them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace landsmith::simtools {

/// Altitudes are counted in 1/128 metre, as the file holds them.
struct LwmPoint {
  std::uint8_t X = 0, Y = 0;
  std::uint8_t Altitude = 0;  ///< 0: the polygon's `AltAt0`, 255: its `AltAt255`; of format 768 alone
  bool operator==(const LwmPoint&) const = default;
};

struct LwmPoly {
  bool IsLand = false;
  std::int32_t AltAt0 = 0, AltAt255 = 0;  ///< the second of format 768 alone
  std::vector<LwmPoint> Points;
  bool operator==(const LwmPoly&) const = default;
};

/// A fill, or the polygons of one Area.
struct LwmItem {
  std::uint32_t Type = 0;  ///< of a fill 0 water, 1 land, 2 flatten; of polygons 2 flatten, 3 water or land
  std::uint32_t FillSize = 0;  ///< Areas; 0: no fill
  bool AsPolys = false;        ///< a fill that becomes a polygon for each of its Areas, in format 0 alone
  std::uint32_t X = 0, Y = 0;  ///< the Area; of a fill, its north-western one
  std::int32_t Height = 0;     ///< of a fill that is not land
  std::vector<LwmPoly> Polys;
  bool operator==(const LwmItem&) const = default;
};

struct LwmCell {
  std::uint32_t CellX = 0, CellY = 0;
  std::uint32_t Type = 3;  ///< 0 to 2 as of a fill: all of the Cell; otherwise 3
  std::vector<LwmItem> Items;
  bool operator==(const LwmCell&) const = default;
};

struct LwmFile {
  std::uint32_t Format = 0;
  std::vector<LwmCell> Cells;
  bool operator==(const LwmFile&) const = default;
};

/// The block of masks with its cells. Every value must lie in the range that BglLayout.h gives it: CheckScm
/// sees to that.
std::string LwmBlock(const LwmFile& file);

}  // namespace landsmith::simtools
