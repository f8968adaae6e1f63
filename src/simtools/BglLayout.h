// The container that the stand-in compiler writes and that the importers of this system read. All numbers
// are little-endian.
//
// File header, 128 bytes:
//     0  u16  first argument of the Header statement
//     2  i32  northern bound, 1/111000 degree       6  i32  southern bound
//    10  u32  eastern bound, a circle is 2^32      14  u32  western bound; west of Greenwich counts from 2^32
//    54  i32  section table from the start of the file, 0: there is none
//   118  u32  magic number
//
// Section table, 100 bytes: the first word is its own size; then one word a kind of section, the place of
// its block counted from the table's start, 0: there is none. Masks stand at +56, vector terrain at +60.
//
// Vector terrain block, 20 bytes:
//    0  u32  its own size, 20
//    4  u32  format word, the argument of VTPFileHeader
//    8  i32  cell head from the block        12  i32  texture head from the block
//   16  u32  0
// Cell head and texture head, 16 bytes each:
//    0  u32  its own size, 16                 4  u32  number of entries
//    8  i32  first entry from the head       12  i32  data from the head
//
// Cell entry, 12 bytes: u32 column << 12 | row << 22; i32 start in the cell data; i32 length there.
// Columns and rows are those of the 768 by 512 Cells of the world, from the north-west.
//
// Texture entry, 8 bytes: u32 start in the texture data; u32 length there. The data: the name, a byte 0, a
// byte UV | kind << 4, a byte u, and for kind 1 a second name and a byte 0. A length of 7 or less means that
// the name is a number of the simulator's own textures, so a shorter quoted name is padded to 8.
//
// Data of a cell: one record after the other.
//   record    u16 layers (5 bits) | whole Cell << 5 | x << 6 | y << 11; then its layers
//   layer     u8 number (6 bits) | replaces << 6; count of textures; the textures
//   texture   count: place in the texture list from 0; count of features; the features
//   feature   u8 points (5 bits) | kind << 5; 31 points mean that a u16 with the points above 31 follows
//   count     u8 below 128; otherwise u8 low 7 bits | 128, u8 the rest
// Kind 1 is a line. Its points, in steps of which 8160 span the Cell, 4080 lying on its north and west side:
//   absolute  u32 x (14 bits) | width follows << 14 | y (14 bits) << 15 | steps that follow (3 bits) << 29
//   step      u24 width follows | dx (11 bits) << 1 | dy (11 bits) << 13; two's complement, bit 12 is 0
//   width     u8 in metres; without one the last width goes on, 0 at the start of a line
// A vertex far from the Cell may want an absolute point that 14 bits cannot hold: x and y are then held to
// 0..16383, each for itself. The steps behind such a point stay as they are, so whoever reads the file gets
// them moved by as much as the point was: both corners of a strip's end move together and keep its width.
#pragma once

#include <cstdint>

namespace landsmith::simtools::bgl {

inline constexpr std::uint32_t HeaderSize = 128;
inline constexpr std::uint32_t SectionPointer = 54;
inline constexpr std::uint32_t MagicPlace = 118;
inline constexpr std::uint32_t Magic = 0x87654321;
inline constexpr std::int32_t LatitudeUnits = 111000;  ///< in a degree

inline constexpr std::uint32_t SectionTableSize = 100;
inline constexpr std::uint32_t VtpSection = 60;

inline constexpr std::uint32_t VtpBlockSize = 20;
inline constexpr std::uint32_t ListHeadSize = 16;
inline constexpr std::uint32_t CellEntrySize = 12;
inline constexpr std::uint32_t TextureEntrySize = 8;
inline constexpr std::uint32_t LongestNumberEntry = 7;

inline constexpr std::uint32_t MostLayers = 31;
inline constexpr std::uint32_t LastLayer = 63;
inline constexpr std::uint32_t LargestCount = 32767;
inline constexpr std::uint32_t PointsEscape = 31;
inline constexpr std::uint32_t MostPoints = PointsEscape + 65535;
inline constexpr std::int32_t LargestPoint = 16383;
inline constexpr std::int32_t LargestStep = 1022;
inline constexpr std::uint32_t MostSteps = 7;

inline constexpr std::uint32_t LineFeature = 1;

}  // namespace landsmith::simtools::bgl
