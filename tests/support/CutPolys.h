// Polygons cut by the compilers, as pieces read back from the text that these write.
#pragma once

#include "compile/LwmPolys.h"
#include "compile/PolyClip.h"
#include "core/Project.h"
#include "support/PieceReader.h"

namespace landsmith::test {

inline PolyRec SelectedPoly(std::vector<PolyPoint> points, std::string type) {
  PolyRec poly;
  poly.Points = std::move(points);
  poly.Type = std::move(type);
  poly.Selected = true;
  SetPathBounds(poly);
  return poly;
}

inline ProjectState ProjectOf(PolyRec poly) {
  ProjectState project;
  project.Name = "Tiling";
  project.Polys.push_back(std::move(poly));
  return project;
}

/// The pieces of a lake, level, at altitude 0.
inline std::vector<ReadPiece> LakePieces(const std::vector<PolyPoint>& points) {
  const ProjectState project = ProjectOf(SelectedPoly(points, "LWM//Water//0//0//1//1//"));
  const LwmSources sources = LwmPolySources(project, LwmPolyChoice::FlatAndSloped);
  return sources.Flat ? ReadMaskPieces(*sources.Flat) : std::vector<ReadPiece>{};
}

/// Pieces of Cells before they are broken into convex parts.
inline std::vector<ReadPiece> CellPieces(const ClippedPoly& clipped) {
  std::vector<ReadPiece> pieces;
  for (const PolyPiece& piece : clipped.Pieces) {
    ReadPiece& read = pieces.emplace_back();
    read.SquareX = piece.CellX;
    read.SquareY = piece.CellY;
    for (const PiecePoint& at : clipped.PointsOf(piece))
      read.Points.push_back({at.X - CellPointMin, at.Y - CellPointMin});
  }
  return pieces;
}

}  // namespace landsmith::test
