// The project: header, eleven collections and their counters. One owner holds it; everything else reads it or
// changes it through an Edit.
#pragma once

#include "core/ClassGrid.h"
#include "core/RecordList.h"
#include "core/Records.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace landsmith {

struct AppSettings;

struct ProjectState {
  std::string Name;
  std::string ProjectFile;   ///< full path; empty until the first save or load; not part of the file
  bool Dirty = false;        ///< changes not yet saved
  bool ProjectOpen = false;  ///< the canvas is live
  std::string BGL1ProjectFolder, BGL2ProjectFolder;  ///< stored text with its backslashes
  double LatDispCenter = 0, LonDispCenter = 0;
  double LatLandCenter = 0, LonLandCenter = 0;
  bool ClassGridVIEW = false;
  double Zoom = 1;
  std::int32_t PhotoSeasons = 0;  ///< bits: seasons, layer * 256, mesh levels, resolution

  RecordList<MapRec> Maps;
  RecordList<LineRec> Lines;
  RecordList<PolyRec> Polys;
  RecordList<FillRec> Fills;
  RecordList<ExcludeRec> Excludes;
  RecordList<PhotoRec> Photos;
  RecordList<ClassItemRec> LCI;
  RecordList<MeshRec> Meshes;
  RecordList<ObjectRec> Objects;
  ClassGrid Lands, Waters;
  std::int32_t NoOfLands = 0, NoOfWaters = 0;  ///< counters of their own: an import keeps them

  bool operator==(const ProjectState&) const = default;
};

/// Summer, layer 5.
inline constexpr std::int32_t DefaultPhotoSeasons = 1281;

/// An empty project with the settings' centres and folders, zoom 1, named "PROJECT"; not open.
ProjectState EmptyProject(const AppSettings& settings);

/// Clears `Selected` of every record, point and class cell.
void ClearAllSelected(ProjectState& project);

/// The boxes of fills, photos and meshes, which follow from their grid numbers.
void ComputeGridBoxes(ProjectState& project);
GeoBox FillBox(const FillRec& fill);
GeoBox PhotoBox(const PhotoRec& photo);
GeoBox MeshBox(const MeshRec& mesh);

/// Whether one of a line's or polygon's vertices is selected by itself.
template <class Path>
bool HasSelectedPoint(const Path& path) {
  return std::any_of(path.Points.begin(), path.Points.end(),
                     [](const auto& point) { return point.Selected; });
}

/// Box of all vertices.
template <class Path>
void SetPathBounds(Path& path) {
  path.Box = GeoBox{};
  for (const auto& point : path.Points)
    path.Box.Add(point.Lat, point.Lon);
}

/// Replaces each project folder that is empty or missing by the settings' one, and makes what does not exist:
/// both folders and the texture folder beside the first.
void ResolveProjectFolders(ProjectState& project, const AppSettings& settings);
/// The text of BGL1ProjectFolder up to and including its last separator + "Texture".
std::string TextureFolder(const ProjectState& project);

}  // namespace landsmith
