#include "vector/PolyType.h"

#include "core/Numbers.h"
#include "vector/PackedText.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace landsmith {
namespace {

constexpr std::string_view DefaultLayer = "4";
constexpr std::array<std::string_view, 3> LwmKindNames{"Land", "Water", "Flatten"};  // as in LwmKind

constexpr int LayersOfAMask = 25;
constexpr int MostLayers = 100;

/// Fields that a text of a few words lacks keep the value that a fresh polygon has.
void TakeInto(std::string& field, std::string_view& rest) {
  if (!rest.empty()) field = TakePackedField(rest);
}

/// The first letter alone tells the kind.
std::optional<LwmPolyType> DecodeLwm(std::string_view rest) {
  const std::string_view name = TakePackedField(rest);
  const auto kind = std::find_if(LwmKindNames.begin(), LwmKindNames.end(), [&](std::string_view known) {
    return name.substr(0, 1) == known.substr(0, 1);
  });
  if (kind == LwmKindNames.end()) return {};
  LwmPolyType lwm;
  lwm.Kind = static_cast<LwmKind>(kind - LwmKindNames.begin());
  TakeInto(lwm.Highest, rest);
  TakeInto(lwm.Lowest, rest);
  TakeInto(lwm.HighestPoint, rest);
  TakeInto(lwm.LowestPoint, rest);
  return lwm;
}

std::optional<ExclusionPolyType> DecodeExclusion(std::string_view rest) {
  ExclusionPolyType exclusion;
  for (std::int32_t& mask : exclusion.Masks) {
    const std::optional<std::int32_t> number = ParseInt32(TakePackedField(rest));
    if (!number) return {};
    mask = *number;
  }
  return exclusion;
}

VtpPolyType DecodeVtp(std::string_view rest) {
  VtpPolyType vtp;
  vtp.Layer = TakePackedField(rest);
  vtp.Texture = TakePackedField(rest);
  return vtp;
}

TexPolyType DecodeTex(std::string_view rest) {
  TexPolyType tex;
  for (std::string* field : {&tex.Name, &tex.Priority, &tex.TileX, &tex.TileY, &tex.V1, &tex.Night})
    TakeInto(*field, rest);
  tex.Pairs = rest;
  return tex;
}

std::string Packed(std::initializer_list<std::string_view> fields) {
  std::string packed;
  for (const std::string_view field : fields)
    AddPackedField(packed, field);
  return packed;
}

struct PolyEncoder {
  std::string operator()(const PlainPoly&) const { return {}; }
  std::string operator()(const LwmPolyType& lwm) const {
    return Packed({"LWM", LwmKindNames[static_cast<std::size_t>(lwm.Kind)], lwm.Highest, lwm.Lowest,
                   lwm.HighestPoint, lwm.LowestPoint});
  }
  std::string operator()(const VtpPolyType& vtp) const {
    return Packed({"VTP", vtp.Layer.empty() ? DefaultLayer : std::string_view(vtp.Layer), vtp.Texture});
  }
  std::string operator()(const ExclusionPolyType& exclusion) const {
    std::string packed = Packed({"Other"});
    for (const std::int32_t mask : exclusion.Masks)
      AddPackedField(packed, std::to_string(mask));
    return packed;
  }
  std::string operator()(const TexPolyType& tex) const {
    return Packed({"TEX", tex.Name, tex.Priority, tex.TileX, tex.TileY, tex.V1, tex.Night}) + tex.Pairs;
  }
  std::string operator()(const UnknownPolyType& unknown) const { return unknown.Text; }
};

std::uint32_t LayerBit(int layer) {
  return std::uint32_t{1} << ((layer - 1) % LayersOfAMask);
}
std::size_t MaskOfLayer(int layer) {
  return static_cast<std::size_t>((layer - 1) / LayersOfAMask);
}

}  // namespace

PolyType DecodePolyType(std::string_view packed) {
  if (packed.empty()) return PlainPoly{};
  std::string_view rest = packed;
  const std::string_view head = TakePackedField(rest);
  if (head == "VTP") return DecodeVtp(rest);
  if (head == "TEX") return DecodeTex(rest);
  if (head == "LWM") {
    if (auto lwm = DecodeLwm(rest)) return *std::move(lwm);
  } else if (head == "Other") {
    if (const auto exclusion = DecodeExclusion(rest)) return *exclusion;
  }
  return UnknownPolyType{std::string(packed)};
}

std::string EncodePolyType(const PolyType& type) {
  return std::visit(PolyEncoder{}, type);
}

std::array<std::int32_t, 4> MasksOfLayers(const std::set<int>& layers) {
  std::array<std::uint32_t, 4> bits;
  bits.fill(0x80000000U);
  for (const int layer : layers)
    if (layer >= 1 && layer <= MostLayers) bits[MaskOfLayer(layer)] |= LayerBit(layer);
  std::array<std::int32_t, 4> masks{};
  std::transform(bits.begin(), bits.end(), masks.begin(),
                 [](std::uint32_t mask) { return static_cast<std::int32_t>(mask); });
  return masks;
}

std::set<int> LayersOfMasks(const std::array<std::int32_t, 4>& masks) {
  std::set<int> layers;
  for (int layer = 1; layer <= MostLayers; ++layer)
    if ((static_cast<std::uint32_t>(masks[MaskOfLayer(layer)]) & LayerBit(layer)) != 0) layers.insert(layer);
  return layers;
}

}  // namespace landsmith
