#include "vector/LineType.h"

#include "vector/PackedText.h"

#include <algorithm>

namespace landsmith {
namespace {

constexpr std::string_view DefaultLayer = "7";

struct Encoder {
  std::string operator()(const PlainLine&) const { return {}; }
  std::string operator()(const ObjectsLine&) const { return "Objects//"; }
  std::string operator()(const PointsLine&) const { return "Points//"; }
  std::string operator()(const VtpLine& line) const {
    std::string packed = "VTP//";
    AddPackedField(packed, line.Layer.empty() ? DefaultLayer : std::string_view(line.Layer));
    AddPackedField(packed, line.Texture);
    return packed;
  }
  std::string operator()(const UnknownLine& line) const { return line.Text; }
};

}  // namespace

LineType DecodeLineType(std::string_view packed) {
  if (packed.empty()) return PlainLine{};
  std::string_view rest = packed;
  const std::string_view head = TakePackedField(rest);
  if (head == "Objects") return ObjectsLine{};
  if (head == "Points") return PointsLine{};
  if (head == "VTP") {
    VtpLine line;
    line.Layer = TakePackedField(rest);
    line.Texture = TakePackedField(rest);
    return line;
  }
  return UnknownLine{std::string(packed)};
}

std::string EncodeLineType(const LineType& type) {
  return std::visit(Encoder{}, type);
}

std::string_view TypeHead(std::string_view packed) {
  return TakePackedField(packed);
}

bool IsNumericTexture(std::string_view texture) {
  constexpr std::ptrdiff_t leastOwnText = 5;
  // Every UTF-8 character has one byte that is no continuation.
  const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
  return std::count_if(texture.begin(), texture.end(), begins) < leastOwnText;
}

}  // namespace landsmith
