// The records of a project, as files hold them but for three things: flags are `bool`, text is UTF-8, and
// arrays are vectors whose size is the count. Fields keep the documented names.
#pragma once

#include "core/GeoTypes.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace landsmith {

/// One calibrated level of a bitmap.
struct MapLevel {
  std::int32_t COLS = 0;
  std::int32_t ROWS = 0;
  double NLat = 0, SLat = 0, WLon = 0, ELon = 0;
  bool operator==(const MapLevel&) const = default;
};

struct MapRec {
  std::string Name;
  bool Selected = false;
  std::array<MapLevel, 4> Level;  ///< 0 is the display's working copy; 1 main, 2 land, 3 mesh set
  std::string BMPSu, BMPWi, BMPFa, BMPSp, BMPHw, BMPLm, BMPAl, BMPLC, BMPME;
  bool operator==(const MapRec&) const = default;
};

struct LinePoint {
  double Lon = 0;
  double Lat = 0;
  float Wid = 0;  ///< metres
  bool Selected = false;
  bool operator==(const LinePoint&) const = default;
};

struct PolyPoint {
  double Lon = 0;
  double Lat = 0;
  float Alt = 0;  ///< metres
  bool Selected = false;
  bool operator==(const PolyPoint&) const = default;
};

/// What lines and polygons have in common.
template <class PointType>
struct PathRec {
  using Point = PointType;
  std::string Name;
  std::string Type;  ///< packed; vector/LineType.h and vector/PolyType.h read and write it
  std::int32_t Color = 0;
  bool Selected = false;
  std::vector<PointType> Points;
  GeoBox Box;
  std::int16_t Flag = 0;  ///< drawn on screen; working data that files keep as it stands
  bool operator==(const PathRec&) const = default;
};

using LineRec = PathRec<LinePoint>;
using PolyRec = PathRec<PolyPoint>;  ///< the ring is implicit: the last vertex is not repeated

struct FillRec {
  bool Selected = false;
  std::uint8_t Size = 1;  ///< side in Areas: 1, 2, 4, 8, 16, 32
  std::uint8_t Type = 0;  ///< 0 water, 1 land, 2 flatten
  std::uint8_t Col = 0, Row = 0;
  float Height = 0;
  std::int32_t CellX = 0, CellY = 0;
  GeoBox Box;
  bool operator==(const FillRec&) const = default;
};

struct ExcludeRec {
  std::int32_t Flag = 0;
  bool Selected = false;
  GeoBox Box;
  std::int32_t Corner = 0;  ///< working data that files keep as it stands
  bool operator==(const ExcludeRec&) const = default;
};

struct PhotoRec {
  bool Selected = false;
  std::int32_t CX = 0, CY = 0, AX = 0, AY = 0;
  GeoBox Box;
  bool operator==(const PhotoRec&) const = default;
};

struct MeshRec {
  bool Selected = false;
  std::int32_t Map = 0;  ///< working data that files keep as it stands
  std::int32_t X = 0, Y = 0;
  GeoBox Box;
  bool operator==(const MeshRec&) const = default;
};

struct ObjectRec {
  std::int32_t Type = 0;
  std::string Description;
  bool Selected = false;
  float Width = 0, Length = 0, Heading = 0, Pitch = 0, Bank = 0, BiasX = 0, BiasY = 0, BiasZ = 0;
  double Lat = 0, Lon = 0;
  float Altitude = 0;
  std::int32_t AGL = 0;
  std::int32_t Complexity = 0;
  GeoBox Box;
  float NoseX = 0, NoseY = 0;  ///< metres, rotated
  float Y1 = 0, X1 = 0, Y2 = 0, X2 = 0, Y3 = 0, X3 = 0, Y4 = 0, X4 = 0;
  bool operator==(const ObjectRec&) const = default;
};

/// One entry of the class map legend.
struct ClassItemRec {
  std::string Text;  ///< "101 102 103 City Textures"
  std::uint8_t Class1 = 0, Class2 = 0, Class3 = 0;
  std::int32_t R = 0, G = 0, B = 0;
  std::int32_t Key = 0;  ///< (R * 256 + G) * 256 + B
  bool operator==(const ClassItemRec&) const = default;
};

}  // namespace landsmith
