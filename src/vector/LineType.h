// The packed `Type` text of a line: what the line is for.
#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace landsmith {

struct PlainLine {
  bool operator==(const PlainLine&) const = default;
};  ///< "": nothing compiles it
struct ObjectsLine {
  bool operator==(const ObjectsLine&) const = default;
};  ///< "Objects//"
struct PointsLine {
  bool operator==(const PointsLine&) const = default;
};  ///< "Points//"
/// "VTP//layer//texture//". Both stay text: the compiler converts the layer, and an author may have typed
/// anything.
struct VtpLine {
  std::string Layer = "7";
  std::string Texture;
  bool operator==(const VtpLine&) const = default;
};
/// Any other head; the text is kept as it stands.
struct UnknownLine {
  std::string Text;
  bool operator==(const UnknownLine&) const = default;
};

using LineType = std::variant<PlainLine, ObjectsLine, PointsLine, VtpLine, UnknownLine>;

/// Never fails. A VTP text with fewer fields has them empty; a layer that stands empty in the text stays so.
LineType DecodeLineType(std::string_view packed);
/// Encode(Decode(s)) == s for every text that this program writes. An empty layer is written as 7.
std::string EncodeLineType(const LineType& type);

/// The text up to the first "//", or the whole text: "VTP", "LWM", "Other", "TEX", "Objects". For polygons
/// too. Only a look, no allocation.
std::string_view TypeHead(std::string_view packed);

/// A texture field of fewer than 5 characters is a number of the simulator, a longer one a text of its own.
bool IsNumericTexture(std::string_view texture);

}  // namespace landsmith
