// Pieces of vector terrain grouped by Cell, layer and texture, as the output names them. Lines and polygons
// differ in what a poly holds alone.
#pragma once

#include "compile/VtpClip.h"
#include "vector/ConvexParts.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace landsmith {

template <class Poly>
struct VtpTextureOf {
  std::int32_t TexId = 0;
  std::vector<Poly> Polys;
};
template <class Poly>
struct VtpLayerOf {
  std::int32_t Layer = 0;
  std::vector<VtpTextureOf<Poly>> Textures;
};
template <class Poly>
struct VtpCellOf {
  std::int32_t CellX = 0, CellY = 0;
  std::vector<VtpLayerOf<Poly>> Layers;
};

/// A piece of a line.
struct VtpPoly {
  std::string_view Name;  ///< kept by the project
  std::vector<RunPoint> Points;
};
using VtpCell = VtpCellOf<VtpPoly>;

/// One convex piece of a polygon, in points of its Cell.
struct VtpPolyRec {
  std::int32_t TexId = 0;
  std::int32_t Layer = 0;
  std::int32_t CellX = 0, CellY = 0;
  ConvexPart Points;
};
using VtpPolyCell = VtpCellOf<ConvexPart>;

/// Cells by row, then column; layers, textures and polys in order of first appearance.
std::vector<VtpCell> GroupRuns(std::vector<LineRun> runs);
std::vector<VtpPolyCell> GroupPolys(std::vector<VtpPolyRec> polys);

}  // namespace landsmith
