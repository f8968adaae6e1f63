// Vector terrain scenery as values, and as the block of a BGL file that holds them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace landsmith::simtools {

struct VtpPoint {
  std::int32_t X = 0, Y = 0;  ///< a place, or a step from the point before
  bool IsStep = false;
  std::uint8_t Steps = 0;  ///< how many steps follow a place
  std::uint8_t Width = 0;  ///< metres; 0: as before
  bool operator==(const VtpPoint&) const = default;
};

struct VtpFeature {
  std::uint32_t Kind = 1;        ///< 0: a polygon, 1: a line
  std::vector<VtpPoint> Points;  ///< of a polygon, places alone
  bool operator==(const VtpFeature&) const = default;
};

struct VtpTextureUse {
  std::uint32_t TexId = 0;
  std::vector<VtpFeature> Features;
  bool operator==(const VtpTextureUse&) const = default;
};

struct VtpLayer {
  std::uint32_t Layer = 0;
  bool Replace = false;
  std::vector<VtpTextureUse> Textures;
  bool operator==(const VtpLayer&) const = default;
};

struct VtpArea {
  bool WholeCell = true;
  std::uint32_t X = 0, Y = 0;  ///< 0..31; of a whole Cell, the low five bits of its place
  std::vector<VtpLayer> Layers;
  bool operator==(const VtpArea&) const = default;
};

struct VtpCell {
  std::uint32_t CellX = 0, CellY = 0;
  std::vector<VtpArea> Areas;
  bool operator==(const VtpCell&) const = default;
};

struct VtpTextureEntry {
  std::string Name;     ///< without quotes
  bool Quoted = false;  ///< names bitmaps; otherwise a number of the simulator's own textures
  std::uint8_t UV = 0, Kind = 0, U = 0;
  std::string Controller;  ///< with kind 1 alone
  bool operator==(const VtpTextureEntry&) const = default;
};

struct VtpFile {
  std::uint32_t Format = 0;
  std::vector<VtpCell> Cells;
  std::vector<VtpTextureEntry> Textures;
  bool operator==(const VtpFile&) const = default;
};

/// The vector terrain block with its lists and data. Every value must lie in the range that BglLayout.h
/// gives it: CheckScm sees to that.
std::string VtpBlock(const VtpFile& file);

}  // namespace landsmith::simtools
