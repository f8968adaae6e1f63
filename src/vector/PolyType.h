// The packed `Type` text of a polygon: what the polygon is for.
#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <variant>

namespace landsmith {

struct PlainPoly {
  bool operator==(const PlainPoly&) const = default;
};  ///< "": nothing compiles it

enum class LwmKind { Land, Water, Flatten };
/// "LWM//Land//highest//lowest//its vertex//its vertex//". The fields stay text: an author may have typed
/// anything, and the vertices' altitudes are what counts. Vertex numbers are 1-based.
struct LwmPolyType {
  LwmKind Kind = LwmKind::Land;
  std::string Highest, Lowest;
  std::string HighestPoint = "1", LowestPoint = "1";
  bool operator==(const LwmPolyType&) const = default;
};

/// "VTP//layer//texture//"; an empty layer is written as 4.
struct VtpPolyType {
  std::string Layer = "4";
  std::string Texture;
  bool operator==(const VtpPolyType&) const = default;
};

/// "Other//m1//m2//m3//m4//": the VTP layers, 1 to 100, that are left out under the polygon.
struct ExclusionPolyType {
  std::array<std::int32_t, 4> Masks{};
  bool operator==(const ExclusionPolyType&) const = default;
};

/// "TEX//name//priority//tileX//tileY//visibility//night//" and then "x,y//" for each vertex.
struct TexPolyType {
  std::string Name;
  std::string Priority = "4", TileX = "1", TileY = "1", V1 = "5000", Night = "0";
  std::string Pairs;  ///< texture coordinates of the vertices as they stand in the text, each ending "//"
  bool operator==(const TexPolyType&) const = default;
};

/// Any other text, or one of these heads with fields that are none of theirs; kept as it stands.
struct UnknownPolyType {
  std::string Text;
  bool operator==(const UnknownPolyType&) const = default;
};

using PolyType =
    std::variant<PlainPoly, LwmPolyType, VtpPolyType, ExclusionPolyType, TexPolyType, UnknownPolyType>;

/// Never fails.
PolyType DecodePolyType(std::string_view packed);
/// Encode(Decode(s)) == s for every text that this program writes.
std::string EncodePolyType(const PolyType& type);

/// Layers 1 to 100 and their four masks: layer L is bit (L - 1) mod 25 of mask (L - 1) div 25; each mask has
/// its highest bit set besides.
std::array<std::int32_t, 4> MasksOfLayers(const std::set<int>& layers);
std::set<int> LayersOfMasks(const std::array<std::int32_t, 4>& masks);

}  // namespace landsmith
