// What the polygon dialog offers to say about a polygon's type: from the packed text to its fields, and from
// the fields, as the author left them, to the type, the colour and the altitudes of a polygon.
#pragma once

#include "core/Records.h"
#include "vector/PolyType.h"
#include "vector/TextureCatalog.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

enum class PolyOption { None, Lwm, Other, Vtp, Tex };

/// How a VTP polygon names its texture: by the number of a land class, by a catalogue entry, by a text.
enum class PolyTexture { Class, Assembled, Named };
/// By the length of the trimmed text: under 4 characters a class, 4 a catalogue entry, more a text.
PolyTexture TextureOfText(std::string_view texture);

/// The fields of every option, as text where the author types it; those of the options that are not chosen
/// keep what they would start with.
struct PolyTypeChoice {
  std::optional<PolyOption> Option;  ///< nothing: several types, or one that the dialog does not know
  LwmKind Kind = LwmKind::Land;
  std::string Altitude = "0";  ///< highest of the polygon
  std::string Layer = "4";
  PolyTexture Texture = PolyTexture::Assembled;
  std::string ClassTexture, AssembledTexture, NamedTexture;
  std::set<int> Layers;  ///< of an exclusion
  TexPolyType Tex;
  /// Texture pairs that the author has set; without them each polygon keeps its own.
  std::optional<std::string> TiedPairs;
  bool operator==(const PolyTypeChoice&) const = default;
};

PolyTypeChoice ChoiceOfType(std::string_view type);

/// The type of a polygon without vertices, such as a template of imported ones: of the two altitudes of an
/// LWM type both are the one chosen. Empty fields take their defaults. "" without an option.
std::string TypeOfChoice(const PolyTypeChoice& choice);

/// Gives the polygon the chosen type and colour. What its vertices decide is brought up to date: the
/// altitudes of an LWM type, one pair of texture coordinates for each vertex. The vertices of a level LWM
/// polygon get the chosen altitude, unless it is no number; a sloped one keeps its slope.
void ApplyPolyType(PolyRec& poly, const PolyTypeChoice& choice, std::int32_t color);

/// Highest and lowest altitude of the vertices and the first vertex of each, 1-based.
struct AltitudeSpan {
  float Highest = 0, Lowest = 0;
  std::size_t HighestPoint = 1, LowestPoint = 1;
};
AltitudeSpan AltitudesOf(const PolyRec& poly);

/// One altitude for all vertices; an LWM type takes it twice and keeps its vertex numbers.
void LevelPoly(PolyRec& poly, float altitude);
/// A slope from vertex `point1` to vertex `point2`, 1-based; an LWM type takes the altitudes and the numbers.
/// False, and nothing has changed, when a vertex is missing or both lie at one place and are to differ.
bool SlopePoly(PolyRec& poly, std::size_t point1, std::size_t point2, float altitude1, float altitude2);

/// "Layer 007".
std::string LayerTitle(int layer);
/// Up to five layers of a reply such as "2 3 4 5"; what stands behind them is not looked at. Nothing when one
/// is no number from 1 to 100.
std::optional<std::vector<int>> ParseLayers(std::string_view reply);
inline constexpr int LastLayer = 100;

}  // namespace landsmith
