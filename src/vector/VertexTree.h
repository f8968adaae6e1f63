// The vertices of a ring, found by the triangle in which they lie. Cutting pieces off a ring asks again and
// again whether any vertex hinders a cut; a tree of boxes answers after a look at the few vertices beside the
// triangle, however unevenly a coast line crowds them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace landsmith {

struct PlanePoint {
  double X = 0, Y = 0;
};

using PlaneTriangle = std::array<PlanePoint, 3>;

/// Takes all its vertices when it is made; each is then present or not. Building takes n log n, the rest
/// about log n a vertex that is changed or found.
class VertexTree {
public:
  /// Finite coordinates. Vertices are named by their place in `points`; none is present at first.
  explicit VertexTree(std::span<const PlanePoint> points);

  void SetPresent(std::int32_t vertex, bool present);

  /// A vertex that is present and that `accepts`; which one of several is not said. Asks about those alone
  /// that lie in the triangle, on its edges or within rounding of them, so `accepts` decides what exactly is
  /// inside.
  template <class Accepts>
  std::optional<std::int32_t> FindIn(const PlaneTriangle& triangle, Accepts&& accepts) const {
    const Probe probe(triangle, m_rounding);
    std::array<std::int32_t, 64> waiting{0};
    for (std::size_t left = m_nodes.empty() ? 0 : 1; left > 0;) {
      const Node& node = m_nodes[static_cast<std::size_t>(waiting[--left])];
      if (node.Present == 0 || !probe.MayMeet(node.Bounds)) continue;
      if (node.SecondHalf > 0) {
        waiting[left++] = node.SecondHalf;
        waiting[left++] = static_cast<std::int32_t>(&node - m_nodes.data()) + 1;
        continue;
      }
      for (std::int32_t place = node.First; place < node.First + node.Present; ++place)
        if (const Entry& entry = m_entries[static_cast<std::size_t>(place)];
            probe.Box.Holds(entry.At) && accepts(entry.Vertex))
          return entry.Vertex;
    }
    return std::nullopt;
  }

private:
  struct Box {
    PlanePoint Low, High;
    void Add(PlanePoint at);
    bool Holds(PlanePoint at) const {
      return at.X >= Low.X && at.X <= High.X && at.Y >= Low.Y && at.Y <= High.Y;
    }
  };
  struct Entry {
    PlanePoint At;
    std::int32_t Vertex;
  };
  /// Its first half follows it in the list. A leaf has no halves; its entries that are present stand in
  /// front.
  struct Node {
    Box Bounds;
    std::int32_t First, Present, Parent, SecondHalf;
  };
  /// The strip between an edge of the triangle and the parallel through the third corner, rounding allowed
  /// for.
  struct Strip {
    PlanePoint From, Across;
    double Least, Most;
  };
  struct Probe {
    Probe(const PlaneTriangle& triangle, double rounding);
    bool MayMeet(const Box& box) const;
    VertexTree::Box Box;
    std::array<Strip, 3> Strips;
  };

  void AddNode(std::int32_t first, std::int32_t count, std::int32_t parent);
  static Box BoxAt(PlanePoint at) { return {at, at}; }

  std::vector<Entry> m_entries;
  std::vector<Node> m_nodes;
  std::vector<std::int32_t> m_places;  ///< of each vertex in m_entries
  std::vector<std::int32_t> m_leaves;  ///< of each vertex in m_nodes
  double m_rounding = 0;               ///< of a coordinate
};

}  // namespace landsmith
