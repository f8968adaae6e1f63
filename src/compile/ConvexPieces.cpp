#include "compile/ConvexPieces.h"

#include "compile/RingSpikes.h"

#include <algorithm>
#include <utility>

namespace landsmith {
namespace {

/// A part without area counts as convex: vertices in line can be cut off so.
bool IsConvex(const ConvexPart& part) {
  ConvexPart way = part;  // a repeated point makes two turns of nothing out of a dent
  way.erase(std::unique(way.begin(), way.end()), way.end());
  while (way.size() > 1 && way.front() == way.back())
    way.pop_back();
  const std::size_t count = way.size();
  const auto isInLine = [&](const CellPoint& point) { return Turn2(way.front(), way[1], point) == 0; };
  if (count < 3 || std::all_of(way.begin(), way.end(), isInLine)) return true;
  for (std::size_t k = 0; k < count; ++k) {
    const CellPoint& before = way[k];
    const CellPoint& at = way[(k + 1) % count];
    const CellPoint& after = way[(k + 2) % count];
    if (Turn2(before, at, after) < 0 || IsSpike(before, at, after)) return false;
  }
  return true;
}

bool AreConvex(const std::vector<ConvexPart>& parts) {
  return std::all_of(parts.begin(), parts.end(), IsConvex);
}

/// What a part that crosses itself encloses in its own direction.
void AddTriangles(const ConvexPart& part, std::vector<ConvexPart>& out) {
  for (std::size_t k = 1; k + 1 < part.size(); ++k)
    if (Turn2(part[0], part[k], part[k + 1]) > 0) out.push_back({part[0], part[k], part[k + 1]});
}

}  // namespace

std::vector<ConvexPart> ConvexPieces(std::span<const CellPoint> ring) {
  std::vector<ConvexPart> parts = DecomposeConvex(ring);
  if (AreConvex(parts)) return parts;
  parts = DecomposeConvex(WithoutSpikes(ring));
  if (AreConvex(parts)) return parts;
  constexpr double lost = 1;  // Points: rounding may turn over what is narrower
  std::vector<ConvexPart> convex;
  for (ConvexPart& part : DecomposeConvex(WithoutSpikes(ring, lost))) {
    if (IsConvex(part))
      convex.push_back(std::move(part));
    else
      AddTriangles(part, convex);
  }
  return convex;
}

}  // namespace landsmith
