// The bytes of a BGL file as the importers go through them: little-endian numbers, and the way from the file
// header to a section's block. Written from the format's description, sharing nothing with the compiler.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace landsmith::test {

/// Readers throw std::out_of_range for a place behind the end, std::runtime_error for what the format
/// forbids.
class BglBytes {
public:
  explicit BglBytes(std::string_view bytes) : m_bytes(bytes) {}

  static void Require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
  }

  unsigned U8(std::size_t pos) const { return static_cast<unsigned char>(m_bytes.at(pos)); }
  unsigned U16(std::size_t pos) const { return U8(pos) + U8(pos + 1) * 256; }
  int I16(std::size_t pos) const { return static_cast<std::int16_t>(U16(pos)); }
  std::uint32_t U32(std::size_t pos) const { return U16(pos) + U16(pos + 2) * 65536U; }
  std::int32_t I32(std::size_t pos) const { return static_cast<std::int32_t>(U32(pos)); }
  /// A whole part of 16 bits and a signed byte of 1/128.
  double Fixed(std::size_t pos) const { return I16(pos) + static_cast<std::int8_t>(U8(pos + 2)) / 128.0; }
  std::size_t Size() const { return m_bytes.size(); }

  double LatCenter() const { return (double(I32(2)) + I32(6)) / 2.0 / 1850 / 60; }
  double LonCenter() const {
    const double lon = (double(U32(10)) + double(U32(14))) * 180 / 4294967296.0;
    return lon > 180 ? lon - 360 : lon;
  }

  /// The block whose word stands at `place` in the section table: 56 masks, 60 vector terrain.
  std::size_t Block(std::size_t place) const {
    Require(U32(118) == 0x87654321, "magic");
    const std::size_t section = U32(54);
    Require(section != 0 && U32(section) == 100, "section table");
    Require(I32(section + place) != 0, "the section is missing");
    const std::size_t block = section + U32(section + place);
    Require(U32(block) == 20, "block");
    return block;
  }

  struct CellEntry {
    int CellCol = 0, CellRow = 0, FillType = 0;
    std::size_t Begin = 0, End = 0;  ///< in the file
  };
  /// The entry of 12 bytes at `pos`, whose data count from `data`.
  CellEntry Cell(std::size_t pos, std::size_t data) const {
    const unsigned b1 = U8(pos + 1), b2 = U8(pos + 2), b3 = U8(pos + 3);
    Require(I32(pos + 4) >= 0 && I32(pos + 8) >= 0, "place of a cell");
    const std::size_t begin = data + U32(pos + 4), end = begin + U32(pos + 8);
    Require(end <= Size(), "length of a cell");
    return {int(b1 / 16 + (b2 & 63) * 16), int(b2 / 64 + b3 * 4), int((b1 & 15) / 4), begin, end};
  }

private:
  std::string_view m_bytes;
};

}  // namespace landsmith::test
