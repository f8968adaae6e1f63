#include "batch/ProjectJson.h"

#include "batch/JsonWriter.h"

#include <vector>

namespace landsmith {

namespace {

void PutBox(JsonWriter& json, const GeoBox& box) {
  json.Member("NLat", box.NLat).Member("SLat", box.SLat).Member("WLon", box.WLon).Member("ELon", box.ELon);
}

std::int64_t Count(std::size_t size) {
  return static_cast<std::int64_t>(size);
}

void PutHeader(JsonWriter& json, const ProjectState& project) {
  json.Member("Name", project.Name)
      .Member("NoOfMaps", Count(project.Maps.size()))
      .Member("NoOfPhotos", Count(project.Photos.size()))
      .Member("NoOfLands", project.NoOfLands)
      .Member("NoOfLines", Count(project.Lines.size()))
      .Member("NoOfPolys", Count(project.Polys.size()))
      .Member("NoOfWaters", project.NoOfWaters)
      .Member("NoOfObjects", Count(project.Objects.size()))
      .Member("NoOfFills", Count(project.Fills.size()))
      .Member("NoOfExcludes", Count(project.Excludes.size()))
      .Member("NoOfLCIs", Count(project.LCI.size()))
      .Member("NoOfMeshes", Count(project.Meshes.size()))
      .Member("PhotoSeasons", project.PhotoSeasons)
      .Member("BGL1ProjectFolder", project.BGL1ProjectFolder)
      .Member("BGL2ProjectFolder", project.BGL2ProjectFolder)
      .Member("LatDispCenter", project.LatDispCenter)
      .Member("LonDispCenter", project.LonDispCenter)
      .Member("LatLandCenter", project.LatLandCenter)
      .Member("LonLandCenter", project.LonLandCenter)
      .Member("ClassGridVIEW", project.ClassGridVIEW)
      .Member("Zoom", project.Zoom);
}

void Put(JsonWriter& json, const MapRec& map) {
  json.Member("Name", map.Name).Member("Selected", map.Selected).Key("Level").BeginArray();
  for (const MapLevel& level : map.Level) {
    json.BeginObject().Member("COLS", level.COLS).Member("ROWS", level.ROWS);
    PutBox(json, {level.NLat, level.SLat, level.WLon, level.ELon});
    json.EndObject();
  }
  json.EndArray()
      .Member("BMPSu", map.BMPSu)
      .Member("BMPWi", map.BMPWi)
      .Member("BMPFa", map.BMPFa)
      .Member("BMPSp", map.BMPSp)
      .Member("BMPHw", map.BMPHw)
      .Member("BMPLm", map.BMPLm)
      .Member("BMPAl", map.BMPAl)
      .Member("BMPLC", map.BMPLC)
      .Member("BMPME", map.BMPME);
}

void PutOwnField(JsonWriter& json, const LinePoint& point) {
  json.Member("Wid", point.Wid);
}

void PutOwnField(JsonWriter& json, const PolyPoint& point) {
  json.Member("Alt", point.Alt);
}

template <class PointType>
void Put(JsonWriter& json, const PathRec<PointType>& path) {
  json.Member("Name", path.Name)
      .Member("Type", path.Type)
      .Member("Color", path.Color)
      .Member("Selected", path.Selected)
      .Member("NoOfPoints", Count(path.Points.size()))
      .Key("Points")
      .BeginArray();
  for (const PointType& point : path.Points) {
    json.BeginObject().Member("Lon", point.Lon).Member("Lat", point.Lat);
    PutOwnField(json, point);
    json.Member("Selected", point.Selected).EndObject();
  }
  json.EndArray();
  PutBox(json, path.Box);
  json.Member("Flag", std::int32_t{path.Flag});
}

void Put(JsonWriter& json, const FillRec& fill) {
  json.Member("Selected", fill.Selected)
      .Member("Size", std::int32_t{fill.Size})
      .Member("Type", std::int32_t{fill.Type})
      .Member("Col", std::int32_t{fill.Col})
      .Member("Row", std::int32_t{fill.Row})
      .Member("Height", fill.Height)
      .Member("CellX", fill.CellX)
      .Member("CellY", fill.CellY);
  PutBox(json, fill.Box);
}

void Put(JsonWriter& json, const ExcludeRec& exclude) {
  json.Member("Flag", exclude.Flag).Member("Selected", exclude.Selected);
  PutBox(json, exclude.Box);
  json.Member("Corner", exclude.Corner);
}

void Put(JsonWriter& json, const PhotoRec& photo) {
  json.Member("Selected", photo.Selected)
      .Member("CX", photo.CX)
      .Member("CY", photo.CY)
      .Member("AX", photo.AX)
      .Member("AY", photo.AY);
  PutBox(json, photo.Box);
}

void Put(JsonWriter& json, const ClassItemRec& item) {
  json.Member("Text", item.Text)
      .Member("Class1", std::int32_t{item.Class1})
      .Member("Class2", std::int32_t{item.Class2})
      .Member("Class3", std::int32_t{item.Class3})
      .Member("R", item.R)
      .Member("G", item.G)
      .Member("B", item.B)
      .Member("Key", item.Key);
}

void Put(JsonWriter& json, const MeshRec& mesh) {
  json.Member("Selected", mesh.Selected).Member("Map", mesh.Map).Member("X", mesh.X).Member("Y", mesh.Y);
  PutBox(json, mesh.Box);
}

void Put(JsonWriter& json, const ObjectRec& object) {
  json.Member("Type", object.Type)
      .Member("Description", object.Description)
      .Member("Selected", object.Selected)
      .Member("Width", object.Width)
      .Member("Length", object.Length)
      .Member("Heading", object.Heading)
      .Member("Pitch", object.Pitch)
      .Member("Bank", object.Bank)
      .Member("BiasX", object.BiasX)
      .Member("BiasY", object.BiasY)
      .Member("BiasZ", object.BiasZ)
      .Member("Lat", object.Lat)
      .Member("Lon", object.Lon)
      .Member("Altitude", object.Altitude)
      .Member("AGL", object.AGL)
      .Member("Complexity", object.Complexity);
  PutBox(json, object.Box);
  json.Member("NoseX", object.NoseX)
      .Member("NoseY", object.NoseY)
      .Member("Y1", object.Y1)
      .Member("X1", object.X1)
      .Member("Y2", object.Y2)
      .Member("X2", object.X2)
      .Member("Y3", object.Y3)
      .Member("X3", object.X3)
      .Member("Y4", object.Y4)
      .Member("X4", object.X4);
}

template <class Record>
void PutAll(JsonWriter& json, std::string_view name, const RecordList<Record>& records) {
  json.Key(name).BeginArray();
  for (const Record& record : records) {
    json.BeginObject();
    Put(json, record);
    json.EndObject();
  }
  json.EndArray();
}

void PutSamples(JsonWriter& json, std::string_view name, const ClassGrid& grid) {
  json.Key(name).BeginArray();
  if (!grid.IsAllocated()) {
    json.EndArray();
    return;
  }
  const std::vector<std::uint8_t> samples = grid.Samples();
  for (std::size_t at = 0; at < samples.size(); ++at) {
    if (samples[at] == 0) continue;
    json.BeginArray()
        .Value(Count(at % ClassGridSide))
        .Value(Count(at / ClassGridSide))
        .Value(std::int32_t{samples[at]})
        .EndArray();
  }
  json.EndArray();
}

}  // namespace

std::string InfoJson(const ProjectState& project) {
  JsonWriter json(1);
  json.BeginObject();
  PutHeader(json, project);
  return json.EndObject().Take();
}

std::string DumpJson(const ProjectState& project) {
  JsonWriter json(2);
  json.BeginObject();
  PutHeader(json, project);
  PutAll(json, "Maps", project.Maps);
  PutAll(json, "Lines", project.Lines);
  PutAll(json, "Polys", project.Polys);
  PutAll(json, "Fills", project.Fills);
  PutAll(json, "Excludes", project.Excludes);
  PutAll(json, "Photos", project.Photos);
  PutAll(json, "LCI", project.LCI);
  PutAll(json, "Meshes", project.Meshes);
  PutAll(json, "Objects", project.Objects);
  PutSamples(json, "Lands", project.Lands);
  PutSamples(json, "Waters", project.Waters);
  return json.EndObject().Take();
}

}  // namespace landsmith
