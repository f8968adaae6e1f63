// The outer part of a BGL file: the header and, where there is scenery, the section table.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace landsmith::simtools {

struct BglHeader {
  std::uint16_t World = 1;                                ///< first argument of the Header statement
  std::int32_t North = 0, South = 0, East = 0, West = 0;  ///< degrees
  bool operator==(const BglHeader&) const = default;
};

/// The whole file. An empty `vtpBlock` gives a header that names no section.
std::string WriteBgl(const BglHeader& header, std::string_view vtpBlock);

}  // namespace landsmith::simtools
