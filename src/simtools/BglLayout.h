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
// Masks block, 20 bytes:
//    0  u32  its own size, 20
//    4  u32  format word, the argument of LWMFileHeader; 768 gives polygons an altitude at each point
//    8  i32  cell table from the block       12  i32  cell data from the block
//   16  u32  0
// Cell table, 12 bytes:
//    0  u32  its own size, 12                 4  u32  number of entries
//    8  i32  first entry from the table
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
// Cell entry, 12 bytes: u32 type << 10 | column << 12 | row << 22; i32 start in the cell data; i32 length
// there. Columns and rows are those of the 768 by 512 Cells of the world, from the north-west. The type of a
// cell of masks is 0 to 2 when all of it is water, land or flatten, otherwise 3; in vector terrain it is 0.
//
// Texture entry, 8 bytes: u32 start in the texture data; u32 length there. The data: the name, a byte 0, a
// byte UV | kind << 4, a byte u, and for kind 1 a second name and a byte 0. A length of 7 or less means that
// the name is a number of the simulator's own textures, so a shorter quoted name is padded to 8.
//
// Data of a cell of masks: one item after the other. x and y count its 32 by 32 Areas from the north-west.
//   item      u16 polygons (3 bits) | type << 3 | fill of size 1 << 5 | x << 6 | y << 11; 7 polygons mean
//             that a u8 with the polygons above 7 follows; then the polygons
//   fill      an item of 0 polygons; the type is 0 water, 1 land, 2 flatten, and an altitude follows unless
//   it
//             is land. Sizes above 1 are told by the lowest bit that is set in x, which is half the size
//   polygon   u8 points (6 bits) | land << 7; an altitude, in format 768 two, of the altitude bytes 0 and
//   255;
//             63 points mean that a u8 with the points above 63 follows. Flatten polygons are in items of
//             type 2, water and land in those of type 3
//   point     u8 x, u8 y, from the Area's north-west corner, 255 to the next; in format 768 a u8 altitude
//   altitude  i16 whole metres, rounded down; u8 1/128 metre above them, 0 to 127, so -3.5 is -4 and 64
// A fill of size 32 has no bit in x of its own, since readers know five sizes: it is written as four fills of
// size 16. A fill that the source wants as polygons becomes a polygon of the four corners for each Area.
//
// Data of a cell of vector terrain: one record after the other.
//   record    u16 layers (5 bits) | whole Cell << 5 | x << 6 | y << 11; then its layers. An Area or Cell of
//   more
//             than 31 layers takes several records
//   layer     u8 low 6 bits of the number | replaces << 6 | 7th bit of the number << 7; count of textures;
//   the
//             textures. Readers of features take 6 bits for the number, so a layer above 63 has no textures
//   texture   count: place in the texture list from 0; count of features; the features
//   feature   u8 points (5 bits) | kind << 5; 31 points mean that a u16 with the points above 31 follows
//   count     u8 below 128; otherwise u8 low 7 bits | 128, u8 the rest
// Kind 0 is a convex polygon, its points are u16 x, u16 y. Kind 1 is a line. The points of both count in
// steps of which 8160 span the Cell, 4080 lying on its north and west side. Those of lines:
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
inline constexpr std::uint32_t LwmSection = 56;
inline constexpr std::uint32_t VtpSection = 60;

inline constexpr std::uint32_t BlockSize = 20;
inline constexpr std::uint32_t CellTableSize = 12;
inline constexpr std::uint32_t ListHeadSize = 16;
inline constexpr std::uint32_t CellEntrySize = 12;
inline constexpr std::uint32_t TextureEntrySize = 8;
inline constexpr std::uint32_t LongestNumberEntry = 7;

inline constexpr std::int64_t LastColumn = 768;  ///< a position on the border of the world counts in it
inline constexpr std::int64_t LastRow = 512;
inline constexpr std::int64_t LastArea = 31;

inline constexpr std::uint32_t NoCellType = 3;
inline constexpr std::uint32_t AltitudesFormat = 768;
inline constexpr std::uint32_t PolysEscape = 7;
inline constexpr std::uint32_t MostMaskPolys = PolysEscape + 255;
inline constexpr std::uint32_t MaskPointsEscape = 63;
inline constexpr std::uint32_t MostMaskPoints = MaskPointsEscape + 255;
inline constexpr std::uint32_t LargestFill = 16;
inline constexpr std::int32_t AltitudeParts = 128;  ///< in a metre
inline constexpr double LowestAltitude = -32768;
inline constexpr double HighestAltitude = 32767 + 127.0 / 128;

inline constexpr std::uint32_t MostLayers = 31;  ///< of one record
inline constexpr std::uint32_t LastLayer = 127;
inline constexpr std::uint32_t LastTexturedLayer = 63;
inline constexpr std::uint32_t LargestCount = 32767;
inline constexpr std::uint32_t PointsEscape = 31;
inline constexpr std::uint32_t MostPoints = PointsEscape + 65535;
inline constexpr std::int32_t LargestPoint = 16383;  ///< of a line
inline constexpr std::int32_t LargestPolyPoint = 65535;
inline constexpr std::int32_t LargestStep = 1022;
inline constexpr std::uint32_t MostSteps = 7;

inline constexpr std::uint32_t PolyFeature = 0;
inline constexpr std::uint32_t LineFeature = 1;

}  // namespace landsmith::simtools::bgl
