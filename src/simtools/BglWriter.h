// The outer part of a BGL file: the header and, where there is scenery, the section table.
#pragma once

#include <cstdint>
#include <string>

namespace landsmith::simtools {

struct BglHeader {
  std::uint16_t World = 1;                                ///< first argument of the Header statement
  std::int32_t North = 0, South = 0, East = 0, West = 0;  ///< degrees
  bool HasBounds() const { return North > South && East > West; }
  bool operator==(const BglHeader&) const = default;
};

/// The blocks of a file; an empty one is no section.
struct BglBlocks {
  std::string Lwm;
  std::string Vtp;
};

constexpr std::uint8_t LowByte(std::uint32_t value) {
  return static_cast<std::uint8_t>(value & 255U);
}

/// A block of two parts: its head says where each begins.
std::string BlockOf(std::uint32_t format, const std::string& first, const std::string& second);

/// The whole file. Without any block the header names no section table.
std::string WriteBgl(const BglHeader& header, const BglBlocks& blocks);

}  // namespace landsmith::simtools
