// Runs grouped by Cell, layer and texture, as the output names them. Also the shape that polygons take.
#pragma once

#include "compile/VtpClip.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace landsmith {

struct VtpPoly {
  std::string_view Name;  ///< kept by the project
  std::vector<RunPoint> Points;
};
struct VtpTexture {
  std::int32_t TexId = 0;
  std::vector<VtpPoly> Polys;
};
struct VtpLayer {
  std::int32_t Layer = 0;
  std::vector<VtpTexture> Textures;
};
struct VtpCell {
  std::int32_t CellX = 0, CellY = 0;
  std::vector<VtpLayer> Layers;
};

/// Cells by row, then column; layers, textures and polys in order of first appearance.
std::vector<VtpCell> GroupRuns(std::vector<LineRun> runs);

}  // namespace landsmith
