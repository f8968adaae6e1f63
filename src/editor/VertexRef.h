// Names one vertex of the project.
#pragma once

#include <cstddef>

namespace landsmith {

enum class PathKind { Line, Poly };

/// Numbers are 0-based.
struct VertexRef {
  PathKind Kind = PathKind::Line;
  std::size_t Item = 0, Point = 0;
  bool operator==(const VertexRef&) const = default;
};

}  // namespace landsmith
