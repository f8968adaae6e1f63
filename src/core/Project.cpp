#include "core/Project.h"

#include "core/Grid.h"
#include "core/Settings.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace landsmith {

namespace {

template <class Records>
void Deselect(Records& records) {
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].Selected) records.Edit(i).Selected = false;
}

template <class Paths>
void DeselectWithPoints(Paths& paths) {
  Deselect(paths);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!HasSelectedPoint(paths[i])) continue;
    for (auto& point : paths.Edit(i).Points)
      point.Selected = false;
  }
}

void Deselect(ClassGrid& grid) {
  grid.ChangeSet([](std::uint8_t sample) { return static_cast<std::uint8_t>(sample & 0x7F); });
}

template <class Record>
void ComputeBoxes(RecordList<Record>& records, GeoBox (*boxOf)(const Record&)) {
  for (std::size_t i = 0; i < records.size(); ++i)
    records.Edit(i).Box = boxOf(records[i]);
}

/// A box of `side` Areas from its west and south-going distances to the grid's origin.
GeoBox BoxAt(double x, double y, double width, double height) {
  GeoBox box;
  box.WLon = x - 180;
  box.ELon = box.WLon + width;
  box.NLat = 90 - y;
  box.SLat = box.NLat - height;
  return box;
}

bool IsFolder(std::string_view stored) {
  const std::optional<std::filesystem::path> found = FindExisting(stored);
  std::error_code error;
  return found && std::filesystem::is_directory(*found, error);
}

/// A folder on a drive that this system has not got cannot be made; whoever writes there will say so.
void MakeFolder(const std::string& stored) {
  if (stored.empty() || NamesForeignDrive(stored) || IsFolder(stored)) return;
  std::error_code error;
  std::filesystem::create_directories(MapPath(stored), error);
  if (error) throw RuntimeError::At("making a folder", stored, "", error.message());
}

}  // namespace

ProjectState EmptyProject(const AppSettings& settings) {
  ProjectState project;
  project.Name = "PROJECT";
  project.BGL1ProjectFolder = settings.BGL1Folder;
  project.BGL2ProjectFolder = settings.BGL2Folder;
  project.LatDispCenter = project.LatLandCenter = settings.LatLandCenter;
  project.LonDispCenter = project.LonLandCenter = settings.LonLandCenter;
  project.ClassGridVIEW = settings.ClassGridVIEW;
  project.PhotoSeasons = DefaultPhotoSeasons;
  return project;
}

void ClearAllSelected(ProjectState& project) {
  Deselect(project.Maps);
  DeselectWithPoints(project.Lines);
  DeselectWithPoints(project.Polys);
  Deselect(project.Fills);
  Deselect(project.Excludes);
  Deselect(project.Photos);
  Deselect(project.Meshes);
  Deselect(project.Objects);
  Deselect(project.Lands);
  Deselect(project.Waters);
}

GeoBox FillBox(const FillRec& fill) {
  return BoxAt(fill.CellX * CellWidth + (fill.Size * fill.Col) * AreaWidth,
               fill.CellY * CellHeight + (fill.Size * fill.Row) * AreaHeight, fill.Size * AreaWidth,
               fill.Size * AreaHeight);
}

GeoBox PhotoBox(const PhotoRec& photo) {
  return BoxAt(photo.AX * AreaWidth + photo.CX * CellWidth, photo.AY * AreaHeight + photo.CY * CellHeight,
               AreaWidth, AreaHeight);
}

GeoBox MeshBox(const MeshRec& mesh) {
  return BoxAt(mesh.X * CellWidth, mesh.Y * CellHeight, CellWidth, CellHeight);
}

void ComputeGridBoxes(ProjectState& project) {
  ComputeBoxes(project.Fills, FillBox);
  ComputeBoxes(project.Photos, PhotoBox);
  ComputeBoxes(project.Meshes, MeshBox);
}

void ResolveProjectFolders(ProjectState& project, const AppSettings& settings) {
  if (!IsFolder(project.BGL1ProjectFolder)) project.BGL1ProjectFolder = settings.BGL1Folder;
  if (!IsFolder(project.BGL2ProjectFolder)) project.BGL2ProjectFolder = settings.BGL2Folder;
  MakeFolder(project.BGL1ProjectFolder);
  MakeFolder(project.BGL2ProjectFolder);
  MakeFolder(TextureFolder(project));
}

std::string TextureFolder(const ProjectState& project) {
  const std::string& folder = project.BGL1ProjectFolder;
  const std::size_t separator = folder.find_last_of("\\/");
  const std::size_t kept = separator == std::string::npos ? 0 : separator + 1;
  return folder.substr(0, kept) + "Texture";
}

}  // namespace landsmith
