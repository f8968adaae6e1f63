#include "vector/LineOperations.h"

#include "vector/LineSelection.h"

#include <algorithm>
#include <cmath>

namespace landsmith {
namespace {

// Nearer than this to a vertex a new one would fall onto the same Point of the grid.
constexpr double NearestLat = 2.1457672119140625e-05;
constexpr double NearestLon = 2.86102294921875e-05;

constexpr float LeastGrownWidth = 1;
constexpr float GrowthFactor = 1.5F;

bool IsSelected(const LinePoint& point) {
  return point.Selected;
}

std::size_t CountSelected(const LineRec& line) {
  return static_cast<std::size_t>(std::count_if(line.Points.begin(), line.Points.end(), IsSelected));
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

LinePoint* FirstSelectedPoint(ProjectState& project) {
  for (LineRec& line : project.Lines) {
    if (line.Selected) continue;
    const auto found = std::find_if(line.Points.begin(), line.Points.end(), IsSelected);
    if (found != line.Points.end()) return &*found;
  }
  return nullptr;
}

bool ScaleLinePoint(ProjectState& project, bool grow) {
  LinePoint* point = FirstSelectedPoint(project);
  if (point == nullptr) return false;
  const float width = grow ? point->Wid * GrowthFactor : point->Wid / GrowthFactor;
  point->Wid = std::clamp(width, LeastGrownWidth, MaxLineWidth);
  return true;
}

}  // namespace

LineRec NewLine(LatLon first, LatLon second, float widthMetres, std::int32_t color) {
  LineRec line;
  line.Color = color;
  AppendLinePoint(line, first, widthMetres);
  AppendLinePoint(line, second, widthMetres);
  return line;
}

void AppendLinePoint(LineRec& line, LatLon at, float widthMetres) {
  line.Points.push_back({at.lon, at.lat, widthMetres, false});
  line.Box.Add(at.lat, at.lon);
}

void DeleteLine(ProjectState& project, std::size_t line) {
  project.Lines.erase(project.Lines.begin() + static_cast<std::ptrdiff_t>(line));
}

void DeleteSelectedLines(ProjectState& project, Selection& selection) {
  const std::size_t gone = std::erase_if(project.Lines, [](const LineRec& line) { return line.Selected; });
  for (std::size_t i = 0; i < gone; ++i)
    selection.Remove();
}

bool DeleteLinePoint(ProjectState& project, std::size_t line, std::size_t point) {
  LineRec& record = project.Lines[line];
  if (record.Points.size() < 3) {
    DeleteLine(project, line);
    return true;
  }
  record.Points.erase(record.Points.begin() + static_cast<std::ptrdiff_t>(point));
  SetPathBounds(record);
  return false;
}

void DeleteSelectedPoints(ProjectState& project, Selection& selection) {
  // Vertices go one by one until two are left, and one more takes the whole line with it.
  const auto loseSelectedPoints = [&selection](LineRec& line) {
    const std::size_t chosen = CountSelected(line);
    if (chosen == 0) return false;
    for (std::size_t i = 0; i < chosen; ++i)
      selection.Remove();
    if (line.Points.size() < chosen + 2) return true;
    std::erase_if(line.Points, IsSelected);
    SetPathBounds(line);
    return false;
  };
  std::erase_if(project.Lines, loseSelectedPoints);
}

bool InsertLinePoint(ProjectState& project, LatLon at, std::size_t line, std::size_t point,
                     Selection& selection) {
  LineRec& record = project.Lines[line];
  const auto tooNear = [at](const LinePoint& other) {
    return std::fabs(other.Lat - at.lat) < NearestLat && std::fabs(other.Lon - at.lon) < NearestLon;
  };
  if (std::any_of(record.Points.begin(), record.Points.end(), tooNear)) return false;

  const float width = (record.Points[point - 1].Wid + record.Points[point].Wid) / 2;
  record.Points.insert(record.Points.begin() + static_cast<std::ptrdiff_t>(point),
                       {at.lon, at.lat, width, true});
  record.Box.Add(at.lat, at.lon);
  if (!record.Selected) selection.Add();
  record.Selected = false;
  return true;
}

bool SplitLine(ProjectState& project, Selection& selection) {
  for (LineRec& line : project.Lines) {
    const std::optional<std::size_t> cut = CutPoint(line);
    if (!cut) continue;
    const auto shared = line.Points.begin() + static_cast<std::ptrdiff_t>(*cut);
    LineRec rest;
    rest.Name = line.Name;
    rest.Type = line.Type;
    rest.Color = line.Color;
    rest.Points.assign(shared, line.Points.end());
    line.Points.erase(shared + 1, line.Points.end());
    // The shared vertex stays selected in the old line; the marks behind it give way to the new line's own.
    rest.Points.front().Selected = false;
    MarkLine(rest, true, selection);
    SetPathBounds(line);
    SetPathBounds(rest);
    project.Lines.push_back(std::move(rest));
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
  poly.Name = line.Name;
  for (const LinePoint& point : line.Points)
    poly.Points.push_back({point.Lon, point.Lat, 0, false});
  if (poly.Points.size() > 1 && poly.Points.front() == poly.Points.back()) poly.Points.pop_back();
  SetPathBounds(poly);
  return poly;
}

void MoveSelectedLines(ProjectState& project, double dLon, double dLat, std::span<const std::uint8_t> drawn) {
  for (std::size_t i = 0; i < project.Lines.size(); ++i) {
    if (!drawn.empty() && (i >= drawn.size() || drawn[i] == 0)) continue;
    LineRec& line = project.Lines[i];
    bool moved = false;
    for (LinePoint& point : line.Points) {
      if (!line.Selected && !point.Selected) continue;
      point.Lon += dLon;
      point.Lat += dLat;
      moved = true;
    }
    if (moved) SetPathBounds(line);
  }
}

std::size_t ChangeLineOrder(ProjectState& project, std::size_t line, DrawingOrder order) {
  const std::size_t last = project.Lines.size() - 1;
  std::size_t target = line;
  switch (order) {
    case DrawingOrder::Top:
      target = last;
      break;
    case DrawingOrder::Bottom:
      target = 0;
      break;
    case DrawingOrder::Up:
      target = std::min(line + 1, last);
      break;
    case DrawingOrder::Down:
      target = line == 0 ? 0 : line - 1;
      break;
  }
  const auto at = [&project](std::size_t place) {
    return project.Lines.begin() + static_cast<std::ptrdiff_t>(place);
  };
  if (target > line) std::rotate(at(line), at(line) + 1, at(target) + 1);
  if (target < line) std::rotate(at(target), at(line), at(line) + 1);
  return target;
}

}  // namespace landsmith
