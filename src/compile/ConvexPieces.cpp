#include "compile/ConvexPieces.h"

#include "compile/RingSpikes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace landsmith {
namespace {

bool RunsBack(const CellPoint& from, const CellPoint& to) {
  return to.Y < from.Y || (to.Y == from.Y && to.X < from.X);
}

/// The way round changes once to running back and once forth again. Turning always to one side is not enough:
/// a way that crosses itself may go round twice.
bool GoesRoundOnce(const ConvexPart& way) {
  std::size_t changes = 0;
  const std::size_t count = way.size();
  for (std::size_t k = 0; k < count; ++k)
    if (RunsBack(way[k], way[(k + 1) % count]) != RunsBack(way[(k + 1) % count], way[(k + 2) % count]))
      ++changes;
  return changes <= 2;
}

/// A part without area counts as convex: vertices in line are cut off so.
bool IsConvex(const ConvexPart& part) {
  ConvexPart way = part;  // a repeated point makes two turns of nothing out of a dent
  way.erase(std::unique(way.begin(), way.end()), way.end());
  while (way.size() > 1 && way.front() == way.back())
    way.pop_back();
  if (!GoesRoundOnce(way)) return false;
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

/// Nearer to the edge between `from` and `to` than `width`.
bool LiesOn(const CellPoint& point, const CellPoint& from, const CellPoint& to, double width) {
  const auto x = static_cast<double>(to.X - from.X), y = static_cast<double>(to.Y - from.Y);
  const double along = (point.X - from.X) * x + (point.Y - from.Y) * y;
  const double length2 = x * x + y * y;
  if (along < 0 || along > length2) return false;
  return std::fabs(static_cast<double>(Turn2(from, point, to))) <= width * std::sqrt(length2);
}

using CellRing = std::vector<CellPoint>;

std::int64_t Area2(const CellRing& ring) {
  std::int64_t area = 0;
  for (std::size_t k = 2; k < ring.size(); ++k)
    area += Turn2(ring[0], ring[k - 1], ring[k]);
  return area;
}

/// Two rings out of one whose vertex `i` touches the edge behind vertex `j`.
std::pair<CellRing, CellRing> SplitAt(const CellRing& ring, std::size_t i, std::size_t j) {
  std::pair<CellRing, CellRing> halves;
  const std::size_t count = ring.size();
  for (std::size_t k = i; k != (j + 1) % count; k = (k + 1) % count)
    halves.first.push_back(ring[k]);
  halves.second.push_back(ring[i]);
  for (std::size_t k = (j + 1) % count; k != i; k = (k + 1) % count)
    halves.second.push_back(ring[k]);
  return halves;
}

/// The first place where the ring touches itself so that both sides of it are rings of its direction; around
/// a hole they are not.
std::optional<std::pair<CellRing, CellRing>> SplitWhereItTouches(const CellRing& ring, double width) {
  const std::size_t count = ring.size();
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < count; ++j) {
      const std::size_t next = (j + 1) % count;
      if (j == i || next == i || !LiesOn(ring[i], ring[j], ring[next], width)) continue;
      auto halves = SplitAt(ring, i, j);
      if (Area2(halves.first) > 0 && Area2(halves.second) > 0) return halves;
    }
  }
  return std::nullopt;
}

/// Every vertex meets every edge here, so long rings stay as they are.
std::vector<CellRing> SimpleRings(CellRing ring, double width) {
  constexpr std::size_t longest = 2000;
  std::vector<CellRing> simple;
  std::vector<CellRing> waiting{std::move(ring)};
  while (!waiting.empty()) {
    CellRing next = std::move(waiting.back());
    waiting.pop_back();
    auto halves = next.size() <= longest ? SplitWhereItTouches(next, width) : std::nullopt;
    if (!halves) {
      simple.push_back(std::move(next));
      continue;
    }
    waiting.push_back(std::move(halves->second));
    waiting.push_back(std::move(halves->first));
  }
  return simple;
}

/// `width`: what is narrower, in Points, counts as touching.
std::vector<ConvexPart> PartsWithoutSpikes(std::span<const CellPoint> ring, double width) {
  std::vector<ConvexPart> parts;
  for (const CellRing& simple : SimpleRings(WithoutSpikes(ring, width), width))
    for (ConvexPart& part : DecomposeConvex(simple))
      parts.push_back(std::move(part));
  return parts;
}

/// Of a part that crosses itself, what it encloses in its own direction.
std::vector<ConvexPart> TrianglesInPlaceOf(std::vector<ConvexPart> parts) {
  std::vector<ConvexPart> convex;
  for (ConvexPart& part : parts) {
    if (IsConvex(part)) {
      convex.push_back(std::move(part));
      continue;
    }
    for (std::size_t k = 1; k + 1 < part.size(); ++k)
      if (Turn2(part[0], part[k], part[k + 1]) > 0) convex.push_back({part[0], part[k], part[k + 1]});
  }
  return convex;
}

}  // namespace

std::vector<ConvexPart> ConvexPieces(std::span<const CellPoint> ring) {
  std::vector<ConvexPart> parts = DecomposeConvex(ring);
  if (AreConvex(parts)) return parts;
  for (const double width : {0.0, 0.25, 0.5, 1.0}) {  // Points: rounding may turn over what is so narrow
    parts = PartsWithoutSpikes(ring, width);
    if (AreConvex(parts)) return parts;
  }
  return TrianglesInPlaceOf(PartsWithoutSpikes(ring, 0));
}

}  // namespace landsmith
