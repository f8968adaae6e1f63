// Pieces of land, water and flatten masks, and area fills, grouped by Cell as the output names them.
#pragma once

#include "compile/LwmFills.h"
#include "compile/PolyClip.h"

#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

enum class LwmPieceKind : std::uint8_t { Water = 0, Land = 1, Flatten = 2 };  // the numbers of the output

/// A polygon cut along the Areas.
struct LwmCutPoly {
  LwmPieceKind Kind = LwmPieceKind::Water;
  double Alt1 = 0, Alt2 = 0;  ///< highest and lowest of the polygon, metres
  ClippedPoly Cut;
};

/// One piece in one Area.
struct LwmPolyRec {
  const LwmCutPoly* Poly = nullptr;
  std::uint8_t AreaX = 0, AreaY = 0;
  std::span<const PiecePoint> Points;
};

struct LwmCell {
  std::int32_t CellX = 0, CellY = 0;
  std::vector<LwmPolyRec> Polys;
  FillList Fills;
};

/// Cells by row, then column; in a Cell pieces and fills as they come. The result points into `polys` and to
/// the fills' records.
std::vector<LwmCell> GroupByCell(std::span<const LwmCutPoly> polys, const FillList& fills);

}  // namespace landsmith
