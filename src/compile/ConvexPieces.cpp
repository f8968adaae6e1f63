#include "compile/ConvexPieces.h"

#include "compile/RingSpikes.h"

#include <algorithm>

namespace landsmith {
namespace {

bool IsConvex(const ConvexPart& part) {
  ConvexPart way = part;  // a repeated point makes two turns of nothing out of a dent
  way.erase(std::unique(way.begin(), way.end()), way.end());
  while (way.size() > 1 && way.front() == way.back())
    way.pop_back();
  const std::size_t count = way.size();
  for (std::size_t k = 0; k < count; ++k) {
    const CellPoint& before = way[k];
    const CellPoint& at = way[(k + 1) % count];
    const CellPoint& after = way[(k + 2) % count];
    if (Turn2(before, at, after) < 0 || IsSpike(before, at, after)) return false;
  }
  return true;
}

}  // namespace

std::vector<ConvexPart> ConvexPieces(std::span<const CellPoint> ring) {
  std::vector<ConvexPart> parts = DecomposeConvex(ring);
  if (std::all_of(parts.begin(), parts.end(), IsConvex)) return parts;
  const std::vector<CellPoint> clean = WithoutSpikes(ring);
  return clean.size() == ring.size() ? parts : DecomposeConvex(clean);
}

}  // namespace landsmith
