#include "core/ProjectFile.h"

#include "core/Bytes.h"

#include <array>
#include <cstring>
#include <span>

namespace landsmith {

namespace {

// Bytes that a record takes at least, for counts that come from the file.
constexpr std::size_t LeastMap = 182, LeastPath = 50, FillSize = 50, ExcludeSize = 42, PhotoSize = 50;
constexpr std::size_t LeastClassItem = 21, MeshSize = 46, LeastObject = 140;
/// One vertex in the file: no gaps, and a flag of 16 bits.
constexpr std::size_t PointSize = 22;

/// The counters of the header, in its order.
struct Counters {
  std::int32_t Maps, Photos, Lands, Lines, Polys, Waters, Objects, Fills, Excludes, LCIs, Meshes;
};

bool ReadBool(ByteReader& in) {
  return in.I16() != 0;
}

void WriteBool(ByteWriter& out, bool value) {
  out.I16(value ? -1 : 0);
}

GeoBox ReadBox(ByteReader& in) {
  GeoBox box;
  box.NLat = in.F64();
  box.SLat = in.F64();
  box.WLon = in.F64();
  box.ELon = in.F64();
  return box;
}

void WriteBox(ByteWriter& out, const GeoBox& box) {
  out.F64(box.NLat);
  out.F64(box.SLat);
  out.F64(box.WLon);
  out.F64(box.ELon);
}

// The ninth bitmap names of a map, in file order.
std::array<std::string MapRec::*, 9> BitmapNames() {
  return {&MapRec::BMPSu, &MapRec::BMPWi, &MapRec::BMPFa, &MapRec::BMPSp, &MapRec::BMPHw,
          &MapRec::BMPLm, &MapRec::BMPAl, &MapRec::BMPLC, &MapRec::BMPME};
}

void Read(ByteReader& in, MapRec& map) {
  map.Name = in.Str16();
  map.Selected = ReadBool(in);
  for (MapLevel& level : map.Level) {
    level.COLS = in.I32();
    level.ROWS = in.I32();
    level.NLat = in.F64();
    level.SLat = in.F64();
    level.WLon = in.F64();
    level.ELon = in.F64();
  }
  for (const auto name : BitmapNames())
    map.*name = in.Str16();
}

void Write(ByteWriter& out, const MapRec& map) {
  out.Str16(map.Name);
  WriteBool(out, map.Selected);
  for (const MapLevel& level : map.Level) {
    out.I32(level.COLS);
    out.I32(level.ROWS);
    out.F64(level.NLat);
    out.F64(level.SLat);
    out.F64(level.WLon);
    out.F64(level.ELon);
  }
  for (const auto name : BitmapNames())
    out.Str16(map.*name);
}

float& Third(LinePoint& point) {
  return point.Wid;
}
float& Third(PolyPoint& point) {
  return point.Alt;
}
const float& Third(const LinePoint& point) {
  return point.Wid;
}
const float& Third(const PolyPoint& point) {
  return point.Alt;
}

/// `bytes` holds exactly the run: vertices are most of a project, so nothing is checked one by one.
template <class Point>
void UnpackPoints(const char* bytes, std::vector<Point>& points) {
  for (Point& point : points) {
    std::int16_t selected = 0;
    std::memcpy(&point.Lon, bytes, 8);
    std::memcpy(&point.Lat, bytes + 8, 8);
    std::memcpy(&Third(point), bytes + 16, 4);
    std::memcpy(&selected, bytes + 20, 2);
    point.Selected = selected != 0;
    bytes += PointSize;
  }
}

/// Packs a run piece by piece, in a buffer that stays in the processor's cache.
template <class Point>
void PackPoints(ByteWriter& out, std::span<const Point> points) {
  constexpr std::size_t pieceLength = 256;
  std::array<char, pieceLength * PointSize> packed;
  while (!points.empty()) {
    const std::span<const Point> piece = points.first(std::min(points.size(), pieceLength));
    char* bytes = packed.data();
    for (const Point& point : piece) {
      const std::int16_t selected = point.Selected ? -1 : 0;
      std::memcpy(bytes, &point.Lon, 8);
      std::memcpy(bytes + 8, &point.Lat, 8);
      std::memcpy(bytes + 16, &Third(point), 4);
      std::memcpy(bytes + 20, &selected, 2);
      bytes += PointSize;
    }
    out.Bytes({packed.data(), piece.size() * PointSize});
    points = points.subspan(piece.size());
  }
}

/// The array descriptor and the points behind it. The number of elements counts, not the record's counter.
template <class Point>
void ReadPoints(ByteReader& in, std::vector<Point>& points) {
  const std::int16_t dimensions = in.I16();
  if (dimensions == 0) return;
  if (dimensions != 1) in.Fail("an array of points with " + std::to_string(dimensions) + " dimensions");
  const std::int32_t elements = in.I32();
  in.I32();  // lower bound
  points.resize(in.CheckedCount(elements, PointSize, "points"));
  UnpackPoints(in.Bytes(points.size() * PointSize).data(), points);
}

template <class Point>
void Read(ByteReader& in, PathRec<Point>& path) {
  path.Name = in.Str16();
  path.Type = in.Str16();
  path.Color = in.I32();
  path.Selected = ReadBool(in);
  in.I32();  // NoOfPoints, which the array tells again
  ReadPoints(in, path.Points);
  path.Box = ReadBox(in);
  path.Flag = in.I16();
}

template <class Point>
void Write(ByteWriter& out, const PathRec<Point>& path) {
  const auto count = static_cast<std::int32_t>(path.Points.size());
  out.Str16(path.Name);
  out.Str16(path.Type);
  out.I32(path.Color);
  WriteBool(out, path.Selected);
  out.I32(count);
  out.I16(1);  // dimensions
  out.I32(count);
  out.I32(1);  // lower bound
  PackPoints<Point>(out, path.Points);
  WriteBox(out, path.Box);
  out.I16(path.Flag);
}

void Read(ByteReader& in, FillRec& fill) {
  fill.Selected = ReadBool(in);
  fill.Size = in.U8();
  fill.Type = in.U8();
  fill.Col = in.U8();
  fill.Row = in.U8();
  fill.Height = in.F32();
  fill.CellX = in.I32();
  fill.CellY = in.I32();
  fill.Box = ReadBox(in);
}

void Write(ByteWriter& out, const FillRec& fill) {
  WriteBool(out, fill.Selected);
  out.U8(fill.Size);
  out.U8(fill.Type);
  out.U8(fill.Col);
  out.U8(fill.Row);
  out.F32(fill.Height);
  out.I32(fill.CellX);
  out.I32(fill.CellY);
  WriteBox(out, fill.Box);
}

void Read(ByteReader& in, ExcludeRec& exclude) {
  exclude.Flag = in.I32();
  exclude.Selected = ReadBool(in);
  exclude.Box = ReadBox(in);
  exclude.Corner = in.I32();
}

void Write(ByteWriter& out, const ExcludeRec& exclude) {
  out.I32(exclude.Flag);
  WriteBool(out, exclude.Selected);
  WriteBox(out, exclude.Box);
  out.I32(exclude.Corner);
}

void Read(ByteReader& in, PhotoRec& photo) {
  photo.Selected = ReadBool(in);
  photo.CX = in.I32();
  photo.CY = in.I32();
  photo.AX = in.I32();
  photo.AY = in.I32();
  photo.Box = ReadBox(in);
}

void Write(ByteWriter& out, const PhotoRec& photo) {
  WriteBool(out, photo.Selected);
  out.I32(photo.CX);
  out.I32(photo.CY);
  out.I32(photo.AX);
  out.I32(photo.AY);
  WriteBox(out, photo.Box);
}

void Read(ByteReader& in, ClassItemRec& item) {
  item.Text = in.Str16();
  item.Class1 = in.U8();
  item.Class2 = in.U8();
  item.Class3 = in.U8();
  item.R = in.I32();
  item.G = in.I32();
  item.B = in.I32();
  item.Key = in.I32();
}

void Write(ByteWriter& out, const ClassItemRec& item) {
  out.Str16(item.Text);
  out.U8(item.Class1);
  out.U8(item.Class2);
  out.U8(item.Class3);
  out.I32(item.R);
  out.I32(item.G);
  out.I32(item.B);
  out.I32(item.Key);
}

void Read(ByteReader& in, MeshRec& mesh) {
  mesh.Selected = ReadBool(in);
  mesh.Map = in.I32();
  mesh.X = in.I32();
  mesh.Y = in.I32();
  mesh.Box = ReadBox(in);
}

void Write(ByteWriter& out, const MeshRec& mesh) {
  WriteBool(out, mesh.Selected);
  out.I32(mesh.Map);
  out.I32(mesh.X);
  out.I32(mesh.Y);
  WriteBox(out, mesh.Box);
}

using ObjectFloat = float ObjectRec::*;
constexpr std::array<ObjectFloat, 8> ObjectMeasures = {
    &ObjectRec::Width, &ObjectRec::Length, &ObjectRec::Heading, &ObjectRec::Pitch,
    &ObjectRec::Bank,  &ObjectRec::BiasX,  &ObjectRec::BiasY,   &ObjectRec::BiasZ};
constexpr std::array<ObjectFloat, 10> ObjectFootprint = {
    &ObjectRec::NoseX, &ObjectRec::NoseY, &ObjectRec::Y1, &ObjectRec::X1, &ObjectRec::Y2,
    &ObjectRec::X2,    &ObjectRec::Y3,    &ObjectRec::X3, &ObjectRec::Y4, &ObjectRec::X4};

void Read(ByteReader& in, ObjectRec& object) {
  object.Type = in.I32();
  object.Description = in.Str16();
  object.Selected = ReadBool(in);
  for (const ObjectFloat field : ObjectMeasures)
    object.*field = in.F32();
  object.Lat = in.F64();
  object.Lon = in.F64();
  object.Altitude = in.F32();
  object.AGL = in.I32();
  object.Complexity = in.I32();
  object.Box = ReadBox(in);
  for (const ObjectFloat field : ObjectFootprint)
    object.*field = in.F32();
}

void Write(ByteWriter& out, const ObjectRec& object) {
  out.I32(object.Type);
  out.Str16(object.Description);
  WriteBool(out, object.Selected);
  for (const ObjectFloat field : ObjectMeasures)
    out.F32(object.*field);
  out.F64(object.Lat);
  out.F64(object.Lon);
  out.F32(object.Altitude);
  out.I32(object.AGL);
  out.I32(object.Complexity);
  WriteBox(out, object.Box);
  for (const ObjectFloat field : ObjectFootprint)
    out.F32(object.*field);
}

template <class Record>
void ReadAll(ByteReader& in, std::vector<Record>& records, std::int32_t announced, std::size_t leastSize,
             std::string_view what) {
  records.resize(in.CheckedCount(announced, leastSize, what));
  for (Record& record : records)
    Read(in, record);
}

template <class Record>
void WriteAll(ByteWriter& out, const std::vector<Record>& records) {
  for (const Record& record : records)
    Write(out, record);
}

void ReadGrid(ByteReader& in, ClassGrid& grid) {
  const std::string_view samples = in.Bytes(ClassGrid::SampleCount);
  std::memcpy(grid.Samples().data(), samples.data(), samples.size());
}

void WriteGrid(ByteWriter& out, const ClassGrid& grid) {
  static const std::vector<std::uint8_t> nothing(ClassGrid::SampleCount);
  const std::vector<std::uint8_t>& samples = grid.IsAllocated() ? grid.StoredSamples() : nothing;
  out.Bytes({reinterpret_cast<const char*>(samples.data()), samples.size()});
}

Counters ReadCounters(ByteReader& in) {
  Counters count{};
  for (std::int32_t* counter :
       {&count.Maps, &count.Photos, &count.Lands, &count.Lines, &count.Polys, &count.Waters, &count.Objects,
        &count.Fills, &count.Excludes, &count.LCIs, &count.Meshes})
    *counter = in.I32();
  return count;
}

void WriteCounters(ByteWriter& out, const ProjectState& project) {
  const auto count = [&out](const auto& records) { out.I32(static_cast<std::int32_t>(records.size())); };
  count(project.Maps);
  count(project.Photos);
  out.I32(project.NoOfLands);
  count(project.Lines);
  count(project.Polys);
  out.I32(project.NoOfWaters);
  count(project.Objects);
  count(project.Fills);
  count(project.Excludes);
  count(project.LCI);
  count(project.Meshes);
}

/// What the lines or polygons take, so that the text need not grow while it is written.
template <class Point>
std::size_t SizeOf(const std::vector<PathRec<Point>>& paths) {
  std::size_t size = 0;
  for (const PathRec<Point>& path : paths)
    size += LeastPath + 8 + path.Name.size() + path.Type.size() + path.Points.size() * PointSize;
  return size;
}

std::string_view TagOf(std::string_view bytes) {
  if (bytes.size() < 2) return {};
  const auto length = static_cast<std::size_t>(static_cast<unsigned char>(bytes[0]) +
                                               256 * static_cast<unsigned char>(bytes[1]));
  return bytes.size() - 2 < length ? std::string_view() : bytes.substr(2, length);
}

std::string_view StoredFolder(const std::string& folder, std::string_view defaultFolder) {
  return folder == defaultFolder ? std::string_view() : folder;
}

}  // namespace

ProjectFormat FormatOfProject(std::string_view bytes) {
  const std::string_view tag = TagOf(bytes);
  if (tag == ProjectTag) return ProjectFormat::Current;
  if (tag == "LS204") return ProjectFormat::LS204;
  if (tag == "LS203") return ProjectFormat::LS203;
  return tag == "QORVA" ? ProjectFormat::LS202 : ProjectFormat::Unknown;
}

std::string FormatName(ProjectFormat format) {
  switch (format) {
    case ProjectFormat::Current:
      return std::string(ProjectTag);
    case ProjectFormat::LS204:
      return "LS204";
    case ProjectFormat::LS203:
      return "LS203";
    case ProjectFormat::LS202:
      return "LS202 or lower";
    case ProjectFormat::Unknown:
      break;
  }
  return {};
}

ProjectState ReadProject(std::string_view bytes, const std::string& file) {
  ByteReader in(bytes, "reading the project", file);
  if (FormatOfProject(bytes) != ProjectFormat::Current) in.Fail("no project of version LS205");
  in.Str16();
  ProjectState project;
  project.Name = in.Str16();
  const Counters count = ReadCounters(in);
  project.PhotoSeasons = in.I32();
  project.BGL1ProjectFolder = in.Str16();
  project.BGL2ProjectFolder = in.Str16();
  project.LatDispCenter = in.F64();
  project.LonDispCenter = in.F64();
  project.LatLandCenter = in.F64();
  project.LonLandCenter = in.F64();
  project.ClassGridVIEW = ReadBool(in);
  project.Zoom = in.F64();
  ReadAll(in, project.Maps, count.Maps, LeastMap, "maps");
  ReadAll(in, project.Lines, count.Lines, LeastPath, "lines");
  ReadAll(in, project.Polys, count.Polys, LeastPath, "polygons");
  ReadAll(in, project.Fills, count.Fills, FillSize, "fills");
  ReadAll(in, project.Excludes, count.Excludes, ExcludeSize, "excludes");
  ReadAll(in, project.Photos, count.Photos, PhotoSize, "photos");
  ReadAll(in, project.LCI, count.LCIs, LeastClassItem, "class map entries");
  ReadAll(in, project.Meshes, count.Meshes, MeshSize, "meshes");
  ReadAll(in, project.Objects, count.Objects, LeastObject, "objects");
  project.NoOfLands = count.Lands;
  project.NoOfWaters = count.Waters;
  if (count.Lands > 0) ReadGrid(in, project.Lands);
  if (count.Waters > 0) ReadGrid(in, project.Waters);
  return project;
}

std::string WriteProject(const ProjectState& project, std::string_view defaultFolder) {
  ByteWriter out;
  out.Reserve(4096 + SizeOf(project.Lines) + SizeOf(project.Polys));
  out.Str16(ProjectTag);
  out.Str16(project.Name);
  WriteCounters(out, project);
  out.I32(project.PhotoSeasons);
  out.Str16(StoredFolder(project.BGL1ProjectFolder, defaultFolder));
  out.Str16(StoredFolder(project.BGL2ProjectFolder, defaultFolder));
  out.F64(project.LatDispCenter);
  out.F64(project.LonDispCenter);
  out.F64(project.LatLandCenter);
  out.F64(project.LonLandCenter);
  WriteBool(out, project.ClassGridVIEW);
  out.F64(project.Zoom);
  WriteAll(out, project.Maps);
  WriteAll(out, project.Lines);
  WriteAll(out, project.Polys);
  WriteAll(out, project.Fills);
  WriteAll(out, project.Excludes);
  WriteAll(out, project.Photos);
  WriteAll(out, project.LCI);
  WriteAll(out, project.Meshes);
  WriteAll(out, project.Objects);
  if (project.NoOfLands > 0) WriteGrid(out, project.Lands);
  if (project.NoOfWaters > 0) WriteGrid(out, project.Waters);
  return out.Take();
}

}  // namespace landsmith
