// What is known of a bitmap without decoding it: its size, and the data file beside it that says where on
// the earth it and its land and mesh bitmaps lie.
#pragma once

#include "core/Records.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

struct BitmapSize {
  std::int32_t Cols = 0;
  std::int32_t Rows = 0;
  bool operator==(const BitmapSize&) const = default;
};

/// Width and height by the header of a bitmap (.BMP) file; a height below 0, that of a picture stored from
/// the top, counts as the same height. Nothing for a file that is no bitmap or cannot be read.
std::optional<BitmapSize> ReadBitmapSize(const std::filesystem::path& file);

/// The sides of the box, in degrees, without a size in pixels.
struct MapDataSet {
  std::string File;  ///< of the land or mesh bitmap, without its folder
  GeoBox Box{0, 0, 0, 0};
  bool IsBox() const { return Box.NLat > Box.SLat && Box.ELon > Box.WLon; }
};

struct MapData {
  MapDataSet Main;  ///< its file is the one that the data file is named after
  MapDataSet Land, Mesh;
};

/// The bitmap's name with its last four characters replaced by ".TXT".
std::string MapDataName(std::string_view bitmap);

/// By the text of a data file, Windows-1252. A value that is missing or no number is 0.
MapData ParseMapData(std::string_view text);
/// The whole file, Windows-1252, with decimal degrees in their shortest form.
std::string MapDataText(const MapData& data);

}  // namespace landsmith
