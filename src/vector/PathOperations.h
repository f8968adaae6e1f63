// What lines and polygons have in common as things to edit, once for both. Indexes are 0-based; every
// operation leaves the boxes right. None of them takes undo points or repaints: the Edit that the caller
// holds does.
#pragma once

#include "core/Project.h"
#include "vector/Selection.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace landsmith {

/// Where lines and polygons differ.
template <class Path>
struct PathTraits;
template <>
struct PathTraits<LineRec> {
  static constexpr std::size_t LeastPoints = 2;
  static constexpr bool IsRing = false;
  static constexpr float LinePoint::*Third = &LinePoint::Wid;
};
template <>
struct PathTraits<PolyRec> {
  static constexpr std::size_t LeastPoints = 3;
  static constexpr bool IsRing = true;
  static constexpr float PolyPoint::*Third = &PolyPoint::Alt;
};

/// What follows from a path's vertices beside its box is brought up to date when vertices have come or gone:
/// altitude fields and texture coordinates in the Type of a polygon, nothing for a line.
inline void PointsChanged(LineRec&) {}
void PointsChanged(PolyRec& poly);
/// The same when single vertices have moved: the slope of a sloped polygon is laid anew.
inline void PointsMoved(LineRec&) {}
void PointsMoved(PolyRec& poly);

/// Exactly the same position, whatever width or altitude.
template <class Point>
bool SamePlace(const Point& a, const Point& b) {
  return a.Lat == b.Lat && a.Lon == b.Lon;
}

/// `third`: the width or altitude of the vertex.
template <class Path>
void AppendPoint(Path& path, LatLon at, float third) {
  typename Path::Point point;
  point.Lat = at.lat;
  point.Lon = at.lon;
  point.*PathTraits<Path>::Third = third;
  path.Points.push_back(point);
  path.Box.Add(at.lat, at.lon);
}

template <class Path>
std::size_t CountSelectedPoints(const Path& path) {
  return static_cast<std::size_t>(std::count_if(path.Points.begin(), path.Points.end(),
                                                [](const auto& point) { return point.Selected; }));
}

template <class Path>
void DeleteSelectedPaths(RecordList<Path>& paths, Selection& selection) {
  for (std::size_t gone = paths.EraseIf([](const Path& path) { return path.Selected; }); gone > 0; --gone)
    selection.Remove();
}

/// A path that the deletion would leave without enough vertices goes as a whole: then true.
template <class Path>
bool DeletePathPoint(RecordList<Path>& paths, std::size_t item, std::size_t point) {
  if (paths[item].Points.size() <= PathTraits<Path>::LeastPoints) {
    paths.Erase(item);
    return true;
  }
  Path& path = paths.Edit(item);
  path.Points.erase(path.Points.begin() + static_cast<std::ptrdiff_t>(point));
  SetPathBounds(path);
  PointsChanged(path);
  return false;
}

/// Vertices go one by one until the fewest are left, and one more takes the whole path with it.
template <class Path>
void DeleteSelectedPathPoints(RecordList<Path>& paths, Selection& selection) {
  for (std::size_t i = paths.size(); i-- > 0;) {
    const std::size_t chosen = CountSelectedPoints(paths[i]);
    if (chosen == 0) continue;
    for (std::size_t gone = 0; gone < chosen; ++gone)
      selection.Remove();
    if (paths[i].Points.size() < chosen + PathTraits<Path>::LeastPoints) {
      paths.Erase(i);
      continue;
    }
    Path& path = paths.Edit(i);
    std::erase_if(path.Points, [](const auto& point) { return point.Selected; });
    SetPathBounds(path);
    PointsChanged(path);
  }
}

/// Nearer than this to a vertex a new one would fall onto the same Point of the grid.
inline constexpr double NearestInsertLat = 2.1457672119140625e-05, NearestInsertLon = 2.86102294921875e-05;

/// A new, selected vertex before vertex `point` (1 to the last; in a ring also their number, for the closing
/// edge); its width or altitude is the mean of its neighbours'. Refused, with false, when a vertex of the
/// path lies nearer than NearestInsertLat and NearestInsertLon.
template <class Path>
bool InsertPathPoint(RecordList<Path>& paths, LatLon at, std::size_t item, std::size_t point,
                     Selection& selection) {
  const auto& points = paths[item].Points;
  const auto tooNear = [at](const auto& other) {
    return std::fabs(other.Lat - at.lat) < NearestInsertLat &&
           std::fabs(other.Lon - at.lon) < NearestInsertLon;
  };
  if (std::any_of(points.begin(), points.end(), tooNear)) return false;

  Path& path = paths.Edit(item);
  constexpr auto third = PathTraits<Path>::Third;
  typename Path::Point added;
  added.Lat = at.lat;
  added.Lon = at.lon;
  added.*third = (path.Points[point - 1].*third + path.Points[point % path.Points.size()].*third) / 2;
  added.Selected = true;
  path.Points.insert(path.Points.begin() + static_cast<std::ptrdiff_t>(point), added);
  path.Box.Add(at.lat, at.lon);
  PointsChanged(path);
  if (!path.Selected) selection.Add();
  path.Selected = false;
  return true;
}

/// Adds the offsets to all vertices of a selected path, to selected vertices of another. True when any moved.
template <class Path>
bool MovePath(Path& path, double dLon, double dLat) {
  bool moved = false;
  for (auto& point : path.Points) {
    if (!path.Selected && !point.Selected) continue;
    point.Lon += dLon;
    point.Lat += dLat;
    moved = true;
  }
  if (!moved) return false;
  SetPathBounds(path);
  if (!path.Selected) PointsMoved(path);
  return true;
}

enum class DrawingOrder { Top, Bottom, Up, Down };
/// Where the path stands afterwards; at the end of the list nothing happens.
template <class Path>
std::size_t ChangePathOrder(RecordList<Path>& paths, std::size_t item, DrawingOrder order) {
  const std::size_t last = paths.size() - 1;
  std::size_t target = item;
  switch (order) {
    case DrawingOrder::Top:
      target = last;
      break;
    case DrawingOrder::Bottom:
      target = 0;
      break;
    case DrawingOrder::Up:
      target = std::min(item + 1, last);
      break;
    case DrawingOrder::Down:
      target = item == 0 ? 0 : item - 1;
      break;
  }
  paths.Move(item, target);
  return target;
}

}  // namespace landsmith
