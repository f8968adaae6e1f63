// What lines and polygons of vector terrain have in common before they are cut: which of them are taken,
// their layers and textures, and the shift that the author has set for all of them.
#pragma once

#include "compile/ItemFailure.h"
#include "core/RecordList.h"
#include "core/Settings.h"
#include "vector/LineType.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace landsmith {

/// The distinct texture fields in order of first use.
class TextureNames {
public:
  std::int32_t Add(const std::string& text);  ///< its place, from 0
  const std::vector<std::string>& Names() const { return m_names; }

private:
  std::vector<std::string> m_names;
  std::unordered_map<std::string, std::int32_t> m_places;
};

/// One line or polygon that is compiled.
struct VtpItem {
  std::size_t Index = 0;  ///< in its list, from 0
  std::int32_t Layer = 0, TexId = 0;
};

template <class Path>
bool IsVtpItem(const Path& path) {
  return path.Selected && TypeHead(path.Type) == "VTP";
}

/// The layer field as a number. Throws RuntimeError that says what is wrong with it, not whose it is.
std::int32_t VtpLayerNumber(const std::string& field);

/// The selected items of head "VTP", in their order. `fieldsOf` decodes a Type text of that head to something
/// with `Layer` and `Texture`. Throws RuntimeError that names the item for a layer that is no 16-bit number
/// and for a texture of several lines.
template <class Path, class FieldsOf>
std::vector<VtpItem> CollectVtpItems(const RecordList<Path>& paths, FieldsOf fieldsOf, const ItemWords& words,
                                     TextureNames& textures) {
  std::vector<VtpItem> items;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!IsVtpItem(paths[i])) continue;
    const auto fields = fieldsOf(paths[i].Type);
    try {
      const std::int32_t layer = VtpLayerNumber(fields.Layer);
      RequireOneLine(fields.Texture);
      items.push_back({i, layer, textures.Add(fields.Texture)});
    } catch (const RuntimeError& failure) {
      throw ItemFailure(words, i, paths[i].Name, failure.what());
    }
  }
  return items;
}

/// The settings VTPShiftNS (southward) and VTPShiftWE count 1/8192 of a Cell.
inline constexpr double ShiftUnitLat = 4.291534423828125e-05, ShiftUnitLon = 5.7220458984375e-05;

template <class Point>
std::vector<Point> ShiftedVtp(std::vector<Point> points, const AppSettings& settings) {
  if (settings.VTPShiftNS != 0) {
    const double dLat = -static_cast<double>(settings.VTPShiftNS) * ShiftUnitLat;
    for (Point& point : points)
      point.Lat += dLat;
  }
  if (settings.VTPShiftWE != 0) {
    const double dLon = settings.VTPShiftWE * ShiftUnitLon;
    for (Point& point : points)
      point.Lon += dLon;
  }
  return points;
}

}  // namespace landsmith
