#include "editor/PolyTypeChoice.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "vector/LineType.h"
#include "vector/PolyOperations.h"

#include <algorithm>

namespace landsmith {
namespace {

std::string OrDefault(std::string_view text, std::string_view fallback) {
  const std::string_view trimmed = Trim(text);
  return std::string(trimmed.empty() ? fallback : trimmed);
}

TexPolyType WithDefaults(TexPolyType tex) {
  const TexPolyType standard;
  tex.Priority = OrDefault(tex.Priority, standard.Priority);
  tex.TileX = OrDefault(tex.TileX, standard.TileX);
  tex.TileY = OrDefault(tex.TileY, standard.TileY);
  tex.V1 = OrDefault(tex.V1, standard.V1);
  return tex;
}

std::string AltitudeText(std::string_view typed) {
  const std::optional<float> altitude = ParseFloat(typed);
  return altitude ? NumberText(*altitude) : std::string(Trim(typed));
}

const std::string& TextureOfChoice(const PolyTypeChoice& choice) {
  switch (choice.Texture) {
    case PolyTexture::Class:
      return choice.ClassTexture;
    case PolyTexture::Assembled:
      return choice.AssembledTexture;
    case PolyTexture::Named:
      break;
  }
  return choice.NamedTexture;
}

std::optional<PolyOption> OptionOfHead(std::string_view head) {
  if (head.empty()) return PolyOption::None;
  if (head == "LWM") return PolyOption::Lwm;
  if (head == "Other") return PolyOption::Other;
  if (head == "VTP") return PolyOption::Vtp;
  if (head == "TEX") return PolyOption::Tex;
  return {};
}

void TakeTexture(PolyTypeChoice& choice, std::string_view texture) {
  choice.Texture = TextureOfText(texture);
  std::string text(Trim(texture));
  switch (choice.Texture) {
    case PolyTexture::Class:
      choice.ClassTexture = std::move(text);
      break;
    case PolyTexture::Assembled:
      choice.AssembledTexture = std::move(text);
      break;
    case PolyTexture::Named:
      choice.NamedTexture = std::move(text);
      break;
  }
}

PolyType DecodedType(const PolyTypeChoice& choice) {
  switch (choice.Option.value_or(PolyOption::None)) {
    case PolyOption::None:
      break;
    case PolyOption::Lwm: {
      const std::string altitude = AltitudeText(choice.Altitude);
      return LwmPolyType{choice.Kind, altitude, altitude};
    }
    case PolyOption::Other:
      return ExclusionPolyType{MasksOfLayers(choice.Layers)};
    case PolyOption::Vtp:
      return VtpPolyType{std::string(Trim(choice.Layer)), std::string(Trim(TextureOfChoice(choice)))};
    case PolyOption::Tex:
      return WithDefaults(choice.Tex);
  }
  return PlainPoly{};
}

void ApplyLwm(PolyRec& poly, const PolyTypeChoice& choice) {
  const AltitudeSpan span = AltitudesOf(poly);
  const std::optional<float> altitude = ParseFloat(choice.Altitude);
  if (!altitude) {
    const std::string own = NumberText(span.Highest);
    poly.Type = EncodePolyType(LwmPolyType{choice.Kind, own, own});
  } else if (span.Highest == span.Lowest) {
    SetPolyAltitude(poly, *altitude);
  }
  UpdateLWMType(poly);
}

// The pairs belong to the vertices of each polygon.
void ApplyTex(PolyRec& poly, const PolyTypeChoice& choice, const PolyType& before) {
  TexPolyType tex = WithDefaults(choice.Tex);
  const auto* own = std::get_if<TexPolyType>(&before);
  tex.Pairs = choice.TiedPairs.value_or(own ? own->Pairs : std::string());
  poly.Type = EncodePolyType(tex);
  SetTexCoords(poly, false);
}

/// Changes the fields of an LWM type; other polygons have only their vertices' altitudes.
template <class Change>
void ChangeLwm(PolyRec& poly, Change change) {
  PolyType type = DecodePolyType(poly.Type);
  auto* lwm = std::get_if<LwmPolyType>(&type);
  if (lwm == nullptr) return;
  change(*lwm);
  poly.Type = EncodePolyType(type);
}

}  // namespace

PolyTexture TextureOfText(std::string_view texture) {
  constexpr std::size_t catalogueNumber = 4;
  const std::string_view text = Trim(texture);
  if (!IsNumericTexture(text)) return PolyTexture::Named;
  return text.size() < catalogueNumber ? PolyTexture::Class : PolyTexture::Assembled;
}

PolyTypeChoice ChoiceOfType(std::string_view type) {
  PolyTypeChoice choice;
  choice.Option = OptionOfHead(TypeHead(type));
  const PolyType decoded = DecodePolyType(type);
  if (const auto* lwm = std::get_if<LwmPolyType>(&decoded)) {
    choice.Kind = lwm->Kind;
    choice.Altitude = lwm->Highest;
  } else if (const auto* vtp = std::get_if<VtpPolyType>(&decoded)) {
    choice.Layer = vtp->Layer;
    TakeTexture(choice, vtp->Texture);
  } else if (const auto* exclusion = std::get_if<ExclusionPolyType>(&decoded)) {
    choice.Layers = LayersOfMasks(exclusion->Masks);
  } else if (const auto* tex = std::get_if<TexPolyType>(&decoded)) {
    choice.Tex = *tex;
  }
  return choice;
}

std::string TypeOfChoice(const PolyTypeChoice& choice) {
  return EncodePolyType(DecodedType(choice));
}

void ApplyPolyType(PolyRec& poly, const PolyTypeChoice& choice, std::int32_t color) {
  const PolyType before = DecodePolyType(poly.Type);
  poly.Type = TypeOfChoice(choice);
  poly.Color = color;
  if (choice.Option == PolyOption::Lwm) ApplyLwm(poly, choice);
  if (choice.Option == PolyOption::Tex) ApplyTex(poly, choice, before);
}

AltitudeSpan AltitudesOf(const PolyRec& poly) {
  AltitudeSpan span;
  if (poly.Points.empty()) return span;
  const auto lower = [](const PolyPoint& a, const PolyPoint& b) { return a.Alt < b.Alt; };
  const auto highest = std::max_element(poly.Points.begin(), poly.Points.end(), lower);
  const auto lowest = std::min_element(poly.Points.begin(), poly.Points.end(), lower);
  span.Highest = highest->Alt;
  span.Lowest = lowest->Alt;
  span.HighestPoint = static_cast<std::size_t>(highest - poly.Points.begin()) + 1;
  span.LowestPoint = static_cast<std::size_t>(lowest - poly.Points.begin()) + 1;
  return span;
}

void LevelPoly(PolyRec& poly, float altitude) {
  SetPolyAltitude(poly, altitude);
  ChangeLwm(poly, [&](LwmPolyType& lwm) { lwm.Highest = lwm.Lowest = NumberText(altitude); });
}

bool SlopePoly(PolyRec& poly, std::size_t point1, std::size_t point2, float altitude1, float altitude2) {
  const std::size_t count = poly.Points.size();
  if (point1 < 1 || point2 < 1 || point1 > count || point2 > count) return false;
  const PolyPoint& from = poly.Points[point1 - 1];
  const PolyPoint& to = poly.Points[point2 - 1];
  if (from.Lon == to.Lon && from.Lat == to.Lat && altitude1 != altitude2) return false;
  SetPolyPlane(poly, point1 - 1, point2 - 1, altitude1, altitude2);
  ChangeLwm(poly, [&](LwmPolyType& lwm) {
    lwm.Highest = NumberText(altitude1);
    lwm.Lowest = NumberText(altitude2);
    lwm.HighestPoint = std::to_string(point1);
    lwm.LowestPoint = std::to_string(point2);
  });
  return true;
}

std::string LayerTitle(int layer) {
  return "Layer " + FixedText(layer, 0, 3);
}

std::optional<std::vector<int>> ParseLayers(std::string_view reply) {
  constexpr std::size_t atOneStroke = 5;
  std::vector<int> layers;
  std::string_view rest = Trim(reply);
  while (!rest.empty() && layers.size() < atOneStroke) {
    const std::size_t end = rest.find(' ');
    const std::optional<std::int16_t> layer = ParseInt16(rest.substr(0, end));
    if (!layer || *layer < 1 || *layer > LastLayer) return {};
    layers.push_back(*layer);
    rest = end == std::string_view::npos ? std::string_view() : Trim(rest.substr(end));
  }
  return layers;
}

}  // namespace landsmith
