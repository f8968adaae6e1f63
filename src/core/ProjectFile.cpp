#include "core/ProjectFile.h"

#include "core/Bytes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <type_traits>

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

/// Takes fields from the file in turn. What a record's fields are, and in which order, is told once, by
/// `Fields`, for this and for FieldWriter.
class FieldReader {
public:
  template <class Record>
  using Of = Record;

  explicit FieldReader(ByteReader& in) : m_in(in) {}

  template <class... Values>
  void operator()(Values&... values) {
    (Take(values), ...);
  }
  template <class Point>
  void Points(std::vector<Point>& points);
  void Samples(ClassGrid& grid) {
    const std::string_view samples = m_in.Bytes(ClassGrid::SampleCount);
    grid.Assign({reinterpret_cast<const std::uint8_t*>(samples.data()), samples.size()});
  }

private:
  void Take(bool& value) { value = m_in.I16() != 0; }
  void Take(std::uint8_t& value) { value = m_in.U8(); }
  void Take(std::int16_t& value) { value = m_in.I16(); }
  void Take(std::int32_t& value) { value = m_in.I32(); }
  void Take(float& value) { value = m_in.F32(); }
  void Take(double& value) { value = m_in.F64(); }
  void Take(std::string& value) { value = m_in.Str16(); }
  void Take(GeoBox& box) { (*this)(box.NLat, box.SLat, box.WLon, box.ELon); }

  ByteReader& m_in;
};

/// Puts fields behind each other. A flag is 16 bits wide, 0 or -1. Numbers are gathered in a buffer that
/// stays in the processor's cache, since projects are made of a great many small ones; `Flush` at the end.
class FieldWriter {
public:
  template <class Record>
  using Of = const Record;

  explicit FieldWriter(ByteWriter& out) : m_out(out) {}

  template <class... Values>
  void operator()(const Values&... values) {
    (Put(values), ...);
  }
  template <class Point>
  void Points(const std::vector<Point>& points);
  void Flush() {
    m_out.Bytes({m_gathered.data(), m_used});
    m_used = 0;
  }
  void Samples(const ClassGrid& grid) {
    const std::vector<std::uint8_t> samples = grid.Samples();
    Flush();
    m_out.Bytes({reinterpret_cast<const char*>(samples.data()), samples.size()});
  }

private:
  template <class Number>
  requires std::is_arithmetic_v<Number>
  void Put(Number value) { std::memcpy(Room(sizeof value), &value, sizeof value); }
  void Put(bool value) { Put(static_cast<std::int16_t>(value ? -1 : 0)); }
  void Put(const std::string& value) { Put(std::string_view(value)); }
  void Put(std::string_view value) {
    Flush();
    m_out.Str16(value);
  }
  void Put(const GeoBox& box) { (*this)(box.NLat, box.SLat, box.WLon, box.ELon); }

  /// Where the next `size` bytes go.
  char* Room(std::size_t size) {
    if (m_gathered.size() - m_used < size) Flush();
    m_used += size;
    return m_gathered.data() + m_used - size;
  }

  ByteWriter& m_out;
  std::size_t m_used = 0;
  std::array<char, 4096> m_gathered;
};

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

/// Vertices are most of a project, so the bounds are checked once for the run and not for each of them.
/// The number of elements counts, not the record's counter before it.
template <class Point>
void FieldReader::Points(std::vector<Point>& points) {
  const std::int16_t dimensions = m_in.I16();
  if (dimensions == 0) return;
  if (dimensions != 1) m_in.Fail("an array of points with " + std::to_string(dimensions) + " dimensions");
  const std::int32_t elements = m_in.I32();
  m_in.I32();  // lower bound
  const std::size_t count = m_in.CheckedCount(elements, PointSize, "points");
  const char* bytes = m_in.Bytes(count * PointSize).data();
  points.reserve(count);
  // A piece at a time, so that what is made is still in the processor's cache when it is filled.
  constexpr std::size_t pieceLength = 256;
  while (points.size() < count) {
    const std::size_t done = points.size();
    points.resize(std::min(count, done + pieceLength));
    for (Point& point : std::span(points).subspan(done)) {
      std::int16_t selected = 0;
      std::memcpy(&point.Lon, bytes, 8);
      std::memcpy(&point.Lat, bytes + 8, 8);
      std::memcpy(&Third(point), bytes + 16, 4);
      std::memcpy(&selected, bytes + 20, 2);
      point.Selected = selected != 0;
      bytes += PointSize;
    }
  }
}

template <class Point>
void FieldWriter::Points(const std::vector<Point>& points) {
  (*this)(std::int16_t{1}, static_cast<std::int32_t>(points.size()), std::int32_t{1});
  for (std::span<const Point> rest(points); !rest.empty();) {
    if (m_gathered.size() - m_used < PointSize) Flush();
    const std::span<const Point> piece =
        rest.first(std::min(rest.size(), (m_gathered.size() - m_used) / PointSize));
    char* bytes = Room(piece.size() * PointSize);
    for (const Point& point : piece) {
      const std::int16_t selected = point.Selected ? -1 : 0;
      std::memcpy(bytes, &point.Lon, 8);
      std::memcpy(bytes + 8, &point.Lat, 8);
      std::memcpy(bytes + 16, &Third(point), 4);
      std::memcpy(bytes + 20, &selected, 2);
      bytes += PointSize;
    }
    rest = rest.subspan(piece.size());
  }
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<MapRec>& map) {
  file(map.Name, map.Selected);
  for (auto& level : map.Level)
    file(level.COLS, level.ROWS, level.NLat, level.SLat, level.WLon, level.ELon);
  file(map.BMPSu, map.BMPWi, map.BMPFa, map.BMPSp, map.BMPHw, map.BMPLm, map.BMPAl, map.BMPLC, map.BMPME);
}

template <class Stream, class Path>
void PathFields(Stream& file, Path& path) {
  auto noOfPoints = static_cast<std::int32_t>(path.Points.size());  // read, but the array tells it again
  file(path.Name, path.Type, path.Color, path.Selected, noOfPoints);
  file.Points(path.Points);
  file(path.Box, path.Flag);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<LineRec>& line) {
  PathFields(file, line);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<PolyRec>& poly) {
  PathFields(file, poly);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<FillRec>& fill) {
  file(fill.Selected, fill.Size, fill.Type, fill.Col, fill.Row, fill.Height, fill.CellX, fill.CellY,
       fill.Box);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<ExcludeRec>& exclude) {
  file(exclude.Flag, exclude.Selected, exclude.Box, exclude.Corner);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<PhotoRec>& photo) {
  file(photo.Selected, photo.CX, photo.CY, photo.AX, photo.AY, photo.Box);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<ClassItemRec>& item) {
  file(item.Text, item.Class1, item.Class2, item.Class3, item.R, item.G, item.B, item.Key);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<MeshRec>& mesh) {
  file(mesh.Selected, mesh.Map, mesh.X, mesh.Y, mesh.Box);
}

template <class Stream>
void Fields(Stream& file, typename Stream::template Of<ObjectRec>& o) {
  file(o.Type, o.Description, o.Selected);
  file(o.Width, o.Length, o.Heading, o.Pitch, o.Bank, o.BiasX, o.BiasY, o.BiasZ);
  file(o.Lat, o.Lon, o.Altitude, o.AGL, o.Complexity, o.Box);
  file(o.NoseX, o.NoseY, o.Y1, o.X1, o.Y2, o.X2, o.Y3, o.X3, o.Y4, o.X4);
}

/// The counters and what else stands before the first record, behind the name.
template <class Stream, class Folder>
void Header(Stream& file, typename Stream::template Of<Counters>& count,
            typename Stream::template Of<ProjectState>& project, Folder& folder1, Folder& folder2) {
  file(count.Maps, count.Photos, count.Lands, count.Lines, count.Polys, count.Waters, count.Objects,
       count.Fills, count.Excludes, count.LCIs, count.Meshes);
  file(project.PhotoSeasons, folder1, folder2);
  file(project.LatDispCenter, project.LonDispCenter, project.LatLandCenter, project.LonLandCenter);
  file(project.ClassGridVIEW, project.Zoom);
}

template <class Record>
void ReadAll(ByteReader& in, RecordList<Record>& records, std::int32_t announced, std::size_t leastSize,
             std::string_view what) {
  FieldReader file(in);
  const std::size_t count = in.CheckedCount(announced, leastSize, what);
  for (std::size_t i = 0; i < count; ++i)
    Fields(file, records.emplace_back());
}

/// The whole grid follows when the counter is above 0. Filling from a map counts a sample each time it is
/// set, so the counter may exceed the samples there are.
void ReadSamples(ByteReader& in, ClassGrid& grid, std::int32_t count, std::string_view what) {
  if (count < 0) in.Fail(std::to_string(count) + " " + std::string(what) + " announced");
  if (count > 0) FieldReader(in).Samples(grid);
}

template <class Record>
void WriteAll(FieldWriter& file, const RecordList<Record>& records) {
  for (const Record& record : records)
    Fields(file, record);
}

template <class Records>
std::int32_t CountOf(const Records& records) {
  return static_cast<std::int32_t>(records.size());
}

Counters CountersOf(const ProjectState& project) {
  return {CountOf(project.Maps),    CountOf(project.Photos), project.NoOfLands,
          CountOf(project.Lines),   CountOf(project.Polys),  project.NoOfWaters,
          CountOf(project.Objects), CountOf(project.Fills),  CountOf(project.Excludes),
          CountOf(project.LCI),     CountOf(project.Meshes)};
}

/// What the lines or polygons take, so that the text need not grow while it is written.
template <class Point>
std::size_t SizeOf(const RecordList<PathRec<Point>>& paths) {
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
  FieldReader fields(in);
  ProjectState project;
  std::string tag;
  Counters count{};
  fields(tag, project.Name);
  Header(fields, count, project, project.BGL1ProjectFolder, project.BGL2ProjectFolder);
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
  ReadSamples(in, project.Lands, count.Lands, "land samples");
  ReadSamples(in, project.Waters, count.Waters, "water samples");
  return project;
}

std::string WriteProject(const ProjectState& project, std::string_view defaultFolder) {
  const auto stored = [defaultFolder](const std::string& folder) {
    return folder == defaultFolder ? std::string_view() : std::string_view(folder);
  };
  const std::string_view folder1 = stored(project.BGL1ProjectFolder);
  const std::string_view folder2 = stored(project.BGL2ProjectFolder);
  ByteWriter out;
  out.Reserve(4096 + SizeOf(project.Lines) + SizeOf(project.Polys));
  FieldWriter fields(out);
  fields(ProjectTag, project.Name);
  Header(fields, CountersOf(project), project, folder1, folder2);
  WriteAll(fields, project.Maps);
  WriteAll(fields, project.Lines);
  WriteAll(fields, project.Polys);
  WriteAll(fields, project.Fills);
  WriteAll(fields, project.Excludes);
  WriteAll(fields, project.Photos);
  WriteAll(fields, project.LCI);
  WriteAll(fields, project.Meshes);
  WriteAll(fields, project.Objects);
  if (project.NoOfLands > 0) fields.Samples(project.Lands);
  if (project.NoOfWaters > 0) fields.Samples(project.Waters);
  fields.Flush();
  return out.Take();
}

}  // namespace landsmith
