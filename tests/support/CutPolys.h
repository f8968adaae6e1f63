// Polygons cut by the compilers, as pieces read back from the text that these write.
#pragma once

#include "compile/LwmPolys.h"
#include "compile/VtpPolys.h"
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

/// The convex pieces of a field.
inline std::vector<ReadPiece> TerrainPieces(const std::vector<PolyPoint>& points) {
  const ProjectState project = ProjectOf(SelectedPoly(points, "VTP//4//2001//"));
  const std::optional<std::string> text = VtpPolySource(project, AppSettings{});
  return text ? ReadTerrainPieces(*text) : std::vector<ReadPiece>{};
}

}  // namespace landsmith::test
