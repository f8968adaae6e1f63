// The fields of a packed `Type` text, each ending "//".
#pragma once

#include <string>
#include <string_view>

namespace landsmith {

inline constexpr std::string_view PackedFieldEnd = "//";

/// Takes the text up to the next "//", or all of it, off the front of `rest`, and the mark with it.
inline std::string_view TakePackedField(std::string_view& rest) {
  const std::size_t end = rest.find(PackedFieldEnd);
  const std::string_view field = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + PackedFieldEnd.size());
  return field;
}

inline void AddPackedField(std::string& packed, std::string_view field) {
  packed += field;
  packed += PackedFieldEnd;
}

}  // namespace landsmith
