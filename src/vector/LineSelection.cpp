#include "vector/LineSelection.h"

#include <algorithm>
#include <cmath>

namespace landsmith {
namespace {

constexpr double Reach = 5;  // pixels

bool HasSelectedPoint(const LineRec& line) {
  return std::any_of(line.Points.begin(), line.Points.end(),
                     [](const LinePoint& point) { return point.Selected; });
}

/// What a record's box must meet before its points are looked at.
GeoBox CursorBox(WorldPixel at, const ViewScale& scale) {
  return {(at.Y + Reach) / scale.PixelsPerDegLat, (at.Y - Reach) / scale.PixelsPerDegLat,
          (at.X - Reach) / scale.PixelsPerDegLon, (at.X + Reach) / scale.PixelsPerDegLon};
}

/// Both ends lie on one side of `value`, out of reach of it.
bool OutOfReach(double end1, double end2, double value) {
  return (value > end1 + Reach && value > end2 + Reach) || (value < end1 - Reach && value < end2 - Reach);
}

}  // namespace

void MarkLine(LineRec& line, bool state, Selection& selection) {
  for (LinePoint& point : line.Points) {
    if (!point.Selected) continue;
    point.Selected = false;
    selection.Remove();
  }
  if (line.Selected == state) return;
  line.Selected = state;
  if (state)
    selection.Add();
  else
    selection.Remove();
}

void SelectAllLines(ProjectState& project, bool state, Selection& selection) {
  for (LineRec& line : project.Lines)
    MarkLine(line, state, selection);
}

void InvertLineSelection(ProjectState& project, Selection& selection) {
  for (LineRec& line : project.Lines) {
    if (!line.Selected && HasSelectedPoint(line)) continue;
    MarkLine(line, !line.Selected, selection);
  }
}

void SelectLinesInBox(ProjectState& project, const GeoBox& box, Selection& selection) {
  for (LineRec& line : project.Lines) {
    const GeoBox& own = line.Box;
    const bool inside =
        own.NLat < box.NLat && own.SLat > box.SLat && own.WLon > box.WLon && own.ELon < box.ELon;
    if (inside && !line.Points.empty()) MarkLine(line, true, selection);
  }
}

bool NearPoint(double lon, double lat, WorldPixel at, const ViewScale& scale) {
  return std::fabs(scale.PixelsPerDegLon * lon - at.X) <= Reach &&
         std::fabs(scale.PixelsPerDegLat * lat - at.Y) <= Reach;
}

bool NearSegment(double lon1, double lat1, double lon2, double lat2, WorldPixel at, const ViewScale& scale) {
  const double x1 = scale.PixelsPerDegLon * lon1, x2 = scale.PixelsPerDegLon * lon2;
  const double y1 = scale.PixelsPerDegLat * lat1, y2 = scale.PixelsPerDegLat * lat2;
  if (OutOfReach(x1, x2, at.X) || OutOfReach(y1, y2, at.Y)) return false;
  const double dx = x2 - x1, dy = y2 - y1;
  if (std::fabs(dy) < std::fabs(dx)) {
    const double y = (at.X - x1) * dy / dx + y1;
    return y >= at.Y - Reach && y <= at.Y + Reach;
  }
  if (dy == 0) return false;  // both ends are one point
  const double x = dx * (at.Y - y1) / dy + x1;
  return x >= at.X - Reach && x <= at.X + Reach;
}

std::optional<PathPoint> FindLinePointAt(const ProjectState& project, WorldPixel at, const ViewScale& scale) {
  const GeoBox cursor = CursorBox(at, scale);
  for (std::size_t i = 0; i < project.Lines.size(); ++i) {
    const LineRec& line = project.Lines[i];
    if (!line.Box.Meets(cursor)) continue;
    for (std::size_t k = 0; k < line.Points.size(); ++k)
      if (NearPoint(line.Points[k].Lon, line.Points[k].Lat, at, scale)) return PathPoint{i, k};
  }
  return {};
}

std::optional<PathPoint> FindLineAt(const ProjectState& project, WorldPixel at, const ViewScale& scale) {
  const GeoBox cursor = CursorBox(at, scale);
  for (std::size_t i = 0; i < project.Lines.size(); ++i) {
    const LineRec& line = project.Lines[i];
    if (!line.Box.Meets(cursor)) continue;
    for (std::size_t k = 1; k < line.Points.size(); ++k) {
      const LinePoint& from = line.Points[k - 1];
      const LinePoint& to = line.Points[k];
      if (NearSegment(from.Lon, from.Lat, to.Lon, to.Lat, at, scale)) return PathPoint{i, k};
    }
  }
  return {};
}

std::optional<PathPoint> HitLinePoint(ProjectState& project, WorldPixel at, const ViewScale& scale,
                                      Selection& selection) {
  const std::optional<PathPoint> hit = FindLinePointAt(project, at, scale);
  if (!hit) return {};
  LineRec& line = project.Lines[hit->item];
  LinePoint& point = line.Points[hit->point];
  if (!line.Selected && !point.Selected) selection.Add();
  line.Selected = false;
  point.Selected = true;
  return hit;
}

std::optional<std::size_t> HitLine(ProjectState& project, WorldPixel at, const ViewScale& scale,
                                   Selection& selection) {
  const std::optional<PathPoint> hit = FindLineAt(project, at, scale);
  if (!hit) return {};
  MarkLine(project.Lines[hit->item], true, selection);
  return hit->item;
}

}  // namespace landsmith
