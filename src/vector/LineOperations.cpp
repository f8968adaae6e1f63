#include "vector/LineOperations.h"

#include "vector/PathSelection.h"

#include <algorithm>
#include <cmath>

namespace landsmith {
namespace {

constexpr float LeastGrownWidth = 1;
constexpr float GrowthFactor = 1.5F;

bool IsSelected(const LinePoint& point) {
  return point.Selected;
}

/// The vertex of `line` at which it can be cut: selected, two steps from each end at least.
std::optional<std::size_t> CutPoint(const LineRec& line) {
  constexpr std::size_t steps = 2;
  if (line.Selected || line.Points.size() < 2 * steps + 1) return {};
  const auto first = line.Points.begin() + steps;
  const auto last = line.Points.end() - steps;
  const auto found = std::find_if(first, last, IsSelected);
  if (found == last) return {};
  return static_cast<std::size_t>(found - line.Points.begin());
}

/// The first selected vertex of a line that is not selected as a whole.
LinePoint* FirstSelectedPoint(RecordList<LineRec>& lines) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].Selected || !HasSelectedPoint(lines[i])) continue;
    auto& points = lines.Edit(i).Points;
    return &*std::find_if(points.begin(), points.end(), IsSelected);
  }
  return nullptr;
}

bool ScaleLinePoint(ProjectState& project, bool grow) {
  LinePoint* point = FirstSelectedPoint(project.Lines);
  if (point == nullptr) return false;
  const float width = grow ? point->Wid * GrowthFactor : point->Wid / GrowthFactor;
  point->Wid = std::clamp(width, LeastGrownWidth, MaxLineWidth);
  return true;
}

}  // namespace

LineRec NewLine(LatLon first, LatLon second, float widthMetres, std::int32_t color) {
  LineRec line;
  line.Color = color;
  AppendPoint(line, first, widthMetres);
  AppendPoint(line, second, widthMetres);
  return line;
}

bool SplitLine(ProjectState& project, Selection& selection) {
  RecordList<LineRec>& lines = project.Lines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::optional<std::size_t> cut = CutPoint(lines[i]);
    if (!cut) continue;
    LineRec& line = lines.Edit(i);
    const auto shared = line.Points.begin() + static_cast<std::ptrdiff_t>(*cut);
    LineRec rest;
    rest.Name = line.Name;
    rest.Type = line.Type;
    rest.Color = line.Color;
    rest.Points.assign(shared, line.Points.end());
    line.Points.erase(shared + 1, line.Points.end());
    // The shared vertex stays selected in the old line; the marks behind it give way to the new line's own.
    rest.Points.front().Selected = false;
    SetPathBounds(line);
    SetPathBounds(rest);
    lines.push_back(std::move(rest));
    MarkPath(lines, lines.size() - 1, true, selection);
    return true;
  }
  return false;
}

bool GrowLinePoint(ProjectState& project) {
  return ScaleLinePoint(project, true);
}

bool ShrinkLinePoint(ProjectState& project) {
  return ScaleLinePoint(project, false);
}

void ReverseLine(LineRec& line) {
  std::reverse(line.Points.begin(), line.Points.end());
}

void SetLineWidth(LineRec& line, float widthMetres) {
  for (LinePoint& point : line.Points)
    point.Wid = widthMetres;
}

void SetLineWidths(LineRec& line, float first, float last) {
  const std::size_t steps = line.Points.empty() ? 0 : line.Points.size() - 1;
  const float step = steps == 0 ? 0 : (last - first) / static_cast<float>(steps);
  float width = first;
  for (LinePoint& point : line.Points) {
    point.Wid = width;
    width += step;
  }
}

float MeanWidth(const LineRec& line) {
  if (line.Points.empty()) return 0;
  double sum = 0;
  for (const LinePoint& point : line.Points)
    sum += static_cast<double>(point.Wid);
  return static_cast<float>(sum / static_cast<double>(line.Points.size()));
}

PolyRec MakePolyFromLine(const LineRec& line) {
  PolyRec poly;
  for (const LinePoint& point : line.Points)
    poly.Points.push_back({point.Lon, point.Lat, 0, false});
  if (poly.Points.size() > 1 && SamePlace(poly.Points.front(), poly.Points.back())) poly.Points.pop_back();
  SetPathBounds(poly);
  return poly;
}

}  // namespace landsmith
