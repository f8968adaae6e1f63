#include "editor/AddMap.h"

#include "core/Numbers.h"
#include "editor/ChooseFile.h"
#include "editor/Edit.h"
#include "editor/MapView.h"
#include "platform/Paths.h"

namespace landsmith {

namespace {

constexpr std::string_view PictureFilter =
    "Bitmaps (*.BMP)|*.BMP|Pictures|*.BMP;*.PNG;*.JPG;*.JPEG;*.GIF;*.TIF;*.TIFF";
constexpr double HalfSide = 0.1;  ///< degrees of a map whose place is not known
constexpr double ZoomBefore = 4;

void TellNoBitmap(Session& session, std::string_view kind) {
  session.dialogs.Message(MessageKind::Error, std::string(kind) + " Map must have Bitmap file format!");
}

void PutBox(MapLevel& level, const GeoBox& box) {
  level.NLat = box.NLat;
  level.SLat = box.SLat;
  level.WLon = box.WLon;
  level.ELon = box.ELon;
}

/// A new map before it joins the project, and whether all of it lies where it belongs.
struct NewMap {
  MapRec Record;
  bool IsCalibrated = false;
};

std::optional<MapData> FindMapData(const std::filesystem::path& bitmap) {
  const auto file = FindExisting(MapDataName(PathText(bitmap)));
  if (!file || !std::filesystem::is_regular_file(*file)) return {};
  return ParseMapData(ReadWholeFile(*file));
}

/// The land or mesh set. True when it is good; otherwise it lies where the main set does.
bool TakeSet(Session& session, MapRec& map, const MapViewRow& view, const MapDataSet& set,
             const std::filesystem::path& folder) {
  MapLevel& level = map.Level[view.Level];
  PutBox(level, {map.Level[1].NLat, map.Level[1].SLat, map.Level[1].WLon, map.Level[1].ELon});
  if (set.File.empty() || !set.IsBox()) return false;
  const std::filesystem::path file = MapPathIn(folder, set.File);
  const auto size = ReadBitmapSize(file);
  if (!size) {
    TellNoBitmap(session, view.Name);
    return false;
  }
  map.*view.File = PathText(file);
  level.COLS = size->Cols;
  level.ROWS = size->Rows;
  PutBox(level, set.Box);
  return true;
}

NewMap MakeMap(Session& session, const ChosenBitmap& bitmap, LatLon clicked) {
  const auto data = FindMapData(bitmap.File);
  NewMap map;
  MapLevel& main = map.Record.Level[1];
  map.Record.BMPSu = PathText(bitmap.File);
  main.COLS = bitmap.Size.Cols;
  main.ROWS = bitmap.Size.Rows;
  const bool mainIsGood = data && data->Main.IsBox();
  PutBox(main, mainIsGood ? data->Main.Box
                          : GeoBox{clicked.lat + HalfSide, clicked.lat - HalfSide, clicked.lon - HalfSide,
                                   clicked.lon + HalfSide});
  const std::filesystem::path folder = bitmap.File.parent_path();
  const MapData& known = data ? *data : MapData{};
  const bool landIsGood = TakeSet(session, map.Record, *FindMapView("Land"), known.Land, folder);
  const bool meshIsGood = TakeSet(session, map.Record, *FindMapView("Mesh"), known.Mesh, folder);
  map.Record.Level[0] = main;
  map.IsCalibrated = mainIsGood && landIsGood && meshIsGood;
  return map;
}

void CentreOn(ViewState& view, const MapLevel& shown) {
  view.LonDispCenter = (shown.ELon + shown.WLon) / 2;
  view.LatDispCenter = (shown.NLat + shown.SLat) / 2;
  view.Zoom = ZoomBefore;
  StepZoom(view, ZoomStep::In);
  SetDisplayExtent(view);
}

}  // namespace

std::optional<std::filesystem::path> ChoosePicture(Session& session) {
  return ChooseToOpen(session, PictureFilter, "Landsmith: Open Bitmap", &AppSettings::BmpDir);
}

std::optional<ChosenBitmap> ChooseBitmap(Session& session, std::string_view kind) {
  const auto file = ChoosePicture(session);
  if (!file) return {};
  const auto size = ReadBitmapSize(*file);
  if (size) return ChosenBitmap{*file, *size};
  TellNoBitmap(session, kind);
  return {};
}

void AddNewMap(Session& session, Display& display, EditorHost& host, LatLon clicked) {
  const auto bitmap = ChooseBitmap(session, "Main/Summer");
  if (!bitmap) return;
  host.SetCursor(CursorShape::Busy);
  NewMap map = MakeMap(session, *bitmap, clicked);
  session.view.MapView = "Summer";
  {
    Edit edit(session, display, -1);
    auto& maps = edit.Project().Maps;
    map.Record.Name = "MAP" + FixedText(static_cast<double>(maps.size() + 1), 0, 2);
    maps.push_back(std::move(map.Record));
  }
  const std::size_t added = session.project.Maps.size() - 1;
  CentreOn(session.view, session.project.Maps[added].Level[0]);
  display.RebuildDisplay(0);
  if (map.IsCalibrated) return;
  session.dialogs.Message(MessageKind::Warning, "You may need to calibrate this bitmap!");
  host.ShowMapProperties(added);
}

}  // namespace landsmith
