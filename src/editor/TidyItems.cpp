#include "editor/TidyItems.h"

#include "vector/PathOperations.h"

#include <algorithm>
#include <cmath>

namespace landsmith {
namespace {

void RemoveFromSelection(Selection& selection, std::size_t count) {
  for (; count > 0; --count)
    selection.Remove();
}

/// Runs `tidy` on the path; vertices that go are no longer counted as selected.
template <class Path, class Tidy>
bool TidyPath(Path& path, Selection& selection, Tidy tidy) {
  const std::size_t chosen = CountSelectedPoints(path);
  const bool stands = tidy(path);
  RemoveFromSelection(selection, chosen - std::min(chosen, CountSelectedPoints(path)));
  return stands;
}

}  // namespace

void TidyLines(ProjectState& project, std::span<const std::size_t> lines, const CheckRequest& request,
               double centerLat, Selection& selection) {
  const TidyScale scale{std::fabs(request.DistanceMetres), centerLat};
  for (const std::size_t line : lines) {
    TidyPath(project.Lines.Edit(line), selection, [&](LineRec& record) {
      if (request.Mode == CheckMode::Simplify) SimplifyLine(record, scale);
      if (request.Mode == CheckMode::Smooth) SmoothLine(record, scale, request.Smooth);
      return true;
    });
  }
}

std::size_t TidyPolys(ProjectState& project, std::span<const std::size_t> polys, const CheckRequest& request,
                      double centerLat, Selection& selection) {
  const TidyScale scale{std::fabs(request.DistanceMetres), centerLat};
  std::size_t deleted = 0;
  for (std::size_t i = polys.size(); i-- > 0;) {  // from the last, so that numbers hold while polygons go
    const std::size_t poly = polys[i];
    const bool stands = TidyPath(project.Polys.Edit(poly), selection, [&](PolyRec& record) {
      if (request.Mode == CheckMode::Simplify) return SimplifyPoly(record, scale);
      if (request.Mode == CheckMode::Smooth) SmoothPoly(record, scale, request.Smooth);
      return true;
    });
    if (stands) continue;
    const PolyRec& gone = project.Polys[poly];
    RemoveFromSelection(selection, gone.Selected ? 1 : CountSelectedPoints(gone));
    project.Polys.Erase(poly);
    ++deleted;
  }
  return deleted;
}

}  // namespace landsmith
