#include "editor/MapView.h"

#include "core/Color.h"
#include "core/Numbers.h"
#include "editor/Display.h"
#include "platform/Paths.h"

#include <algorithm>
#include <exception>

namespace landsmith {

namespace {

constexpr std::string_view MeshView = "Mesh", Mesh8Ending = "_8.BMP";
constexpr std::size_t EndingLength = 4;  ///< ".BMP"

/// The view's calibration becomes the one that is seen.
void TakeLevel(RecordList<MapRec>& maps, std::size_t map, std::size_t level) {
  if (maps[map].Level[0] == maps[map].Level[level]) return;
  MapRec& record = maps.Edit(map);
  record.Level[0] = record.Level[level];
}

void LoadPictures(Session& session, CanvasSurfaces& surfaces, const MapViewRow& view) {
  RecordList<MapRec>& maps = session.project.Maps;
  for (std::size_t i = 0; i < maps.size(); ++i) {
    const std::filesystem::path file = PictureOfView(maps[i], view, session.settings.Mesh8);
    if (!file.empty() && !surfaces.LoadPicture(file)) return;
    session.view.Pictures.Files[i] = file;
    TakeLevel(maps, i, view.Level);
  }
}

void MarkAltitude(Session& session, const MapViewRow& view) {
  const float altitude = session.settings.Altitude2Change;
  if (view.Name == MeshView && altitude > 0)
    session.view.Pictures.ChangeColorFrom = ColorOfAltitude(altitude, session.settings.Mesh8);
}

}  // namespace

const MapViewRow* FindMapView(std::string_view name) {
  const auto row = std::find_if(MapViews.begin(), MapViews.end(),
                                [name](const MapViewRow& each) { return each.Name == name; });
  return row == MapViews.end() ? nullptr : &*row;
}

std::size_t LevelOfView(std::string_view name) {
  const MapViewRow* row = FindMapView(name);
  return row == nullptr ? 1 : row->Level;
}

std::filesystem::path PictureOfView(const MapRec& map, const MapViewRow& view, bool mesh8) {
  std::string file = map.*view.File;
  if (file.empty()) return {};
  if (mesh8 && view.Name == MeshView)
    file = file.substr(0, file.size() - std::min(EndingLength, file.size())).append(Mesh8Ending);
  return MapPath(file);
}

std::int32_t ColorOfAltitude(float altitude, bool mesh8) {
  const std::int32_t whole = RoundHalfEven(altitude);
  const std::int32_t high = Floor(altitude / 256.0), low = whole % 256;
  if (!mesh8) return Rgb(high & 0xFF, low, 0);
  return Rgb((high * 8 + low / 32) & 0xFF, whole % 32 * 8, 0);
}

void LoadMapView(Session& session, CanvasSurfaces& surfaces) {
  MapPictures& pictures = session.view.Pictures;
  pictures.ChangeColorFrom.reset();
  if (const MapViewRow* view = FindMapView(session.view.MapView)) {
    // Pictures are known by the place of their map: of another list of maps none is right.
    if (pictures.Files.size() != session.project.Maps.size()) pictures.Files.clear();
    pictures.Files.resize(session.project.Maps.size());
    try {
      MarkAltitude(session, *view);
      LoadPictures(session, surfaces, *view);
    } catch (const std::exception&) {
      // As for a missing picture: the rest stays as it was, and the work goes on.
    }
  }
  surfaces.KeepPictures(pictures.Files);
}

void ReloadMapView(Session& session, CanvasSurfaces& surfaces) {
  session.view.Pictures.Files.clear();
  LoadMapView(session, surfaces);
}

}  // namespace landsmith
