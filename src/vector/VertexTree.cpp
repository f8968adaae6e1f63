#include "vector/VertexTree.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace landsmith {
namespace {

constexpr std::int32_t LeafSize = 8;
/// Of the largest coordinate: many times what a few steps of arithmetic lose.
constexpr double Rounding = 1e-14;

}  // namespace

void VertexTree::Box::Add(PlanePoint at) {
  Low = {std::min(Low.X, at.X), std::min(Low.Y, at.Y)};
  High = {std::max(High.X, at.X), std::max(High.Y, at.Y)};
}

VertexTree::VertexTree(std::span<const PlanePoint> points)
    : m_places(points.size()), m_leaves(points.size()) {
  m_entries.reserve(points.size());
  double largest = 0;
  for (const PlanePoint& at : points) {
    m_entries.push_back({at, static_cast<std::int32_t>(m_entries.size())});
    largest = std::max({largest, std::fabs(at.X), std::fabs(at.Y)});
  }
  m_rounding = Rounding * largest;
  m_nodes.reserve(points.size() / 2 + 1);
  if (!points.empty()) AddNode(0, static_cast<std::int32_t>(points.size()), -1);
}

void VertexTree::AddNode(std::int32_t first, std::int32_t count, std::int32_t parent) {
  const auto begin = m_entries.begin() + first;
  const auto end = begin + count;
  Box bounds = BoxAt(begin->At);
  for (auto entry = begin; entry != end; ++entry)
    bounds.Add(entry->At);
  const auto place = m_nodes.size();
  m_nodes.push_back({bounds, first, 0, parent, 0});
  if (count <= LeafSize) {
    for (std::int32_t k = first; k < first + count; ++k) {
      const auto vertex = static_cast<std::size_t>(m_entries[static_cast<std::size_t>(k)].Vertex);
      m_places[vertex] = k;
      m_leaves[vertex] = static_cast<std::int32_t>(place);
    }
    return;
  }
  const std::int32_t half = count / 2;
  const bool isWide = bounds.High.X - bounds.Low.X > bounds.High.Y - bounds.Low.Y;
  std::nth_element(begin, begin + half, end, [isWide](const Entry& a, const Entry& b) {
    return isWide ? a.At.X < b.At.X : a.At.Y < b.At.Y;
  });
  AddNode(first, half, static_cast<std::int32_t>(place));
  m_nodes[place].SecondHalf = static_cast<std::int32_t>(m_nodes.size());
  AddNode(first + half, count - half, static_cast<std::int32_t>(place));
}

void VertexTree::SetPresent(std::int32_t vertex, bool present) {
  const std::int32_t place = m_places[static_cast<std::size_t>(vertex)];
  const std::int32_t leafPlace = m_leaves[static_cast<std::size_t>(vertex)];
  const Node& leaf = m_nodes[static_cast<std::size_t>(leafPlace)];
  if (present == (place < leaf.First + leaf.Present)) return;
  const std::int32_t border = leaf.First + leaf.Present - (present ? 0 : 1);
  Entry& own = m_entries[static_cast<std::size_t>(place)];
  Entry& other = m_entries[static_cast<std::size_t>(border)];
  std::swap(m_places[static_cast<std::size_t>(own.Vertex)], m_places[static_cast<std::size_t>(other.Vertex)]);
  std::swap(own, other);
  for (std::int32_t node = leafPlace; node >= 0; node = m_nodes[static_cast<std::size_t>(node)].Parent)
    m_nodes[static_cast<std::size_t>(node)].Present += present ? 1 : -1;
}

VertexTree::Probe::Probe(const PlaneTriangle& triangle, double rounding) : Box(BoxAt(triangle[0])), Strips{} {
  Box.Add(triangle[1]);
  Box.Add(triangle[2]);
  for (std::size_t k = 0; k < 3; ++k) {
    const PlanePoint& from = triangle[k];
    const PlanePoint& to = triangle[(k + 1) % 3];
    const PlanePoint& third = triangle[(k + 2) % 3];
    const PlanePoint across{from.Y - to.Y, to.X - from.X};
    const double width = across.X * (third.X - from.X) + across.Y * (third.Y - from.Y);
    const double slack = rounding * (std::fabs(across.X) + std::fabs(across.Y));
    Strips[k] = {from, across, std::min(0.0, width) - slack, std::max(0.0, width) + slack};
  }
}

bool VertexTree::Probe::MayMeet(const VertexTree::Box& box) const {
  if (box.Low.X > Box.High.X || box.High.X < Box.Low.X || box.Low.Y > Box.High.Y || box.High.Y < Box.Low.Y)
    return false;
  return std::all_of(Strips.begin(), Strips.end(), [&box](const Strip& strip) {
    const double low = strip.Across.X * (box.Low.X - strip.From.X);
    const double high = strip.Across.X * (box.High.X - strip.From.X);
    const double lowY = strip.Across.Y * (box.Low.Y - strip.From.Y);
    const double highY = strip.Across.Y * (box.High.Y - strip.From.Y);
    return std::max(low, high) + std::max(lowY, highY) >= strip.Least &&
           std::min(low, high) + std::min(lowY, highY) <= strip.Most;
  });
}

}  // namespace landsmith
