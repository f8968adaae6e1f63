#include "core/ProjectFile.h"
#include "platform/RuntimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace landsmith {
namespace {

constexpr std::string_view DefaultFolder = "C:\\Prog\\Scenery";
constexpr std::size_t FirstCounter = 2 + 5 + 2 + 1;  // behind the tag and the name "P"

/// The file put together from its documented layout, without the program's own writer.
class Image {
public:
  template <class... Values>
  Image& Add(Values... values) {
    (Append(values), ...);
    return *this;
  }
  Image& Str(const std::string& text) {
    Add(static_cast<std::uint16_t>(text.size()));
    m_bytes += text;
    return *this;
  }
  const std::string& Bytes() const { return m_bytes; }

private:
  template <class Value>
  void Append(Value value) {
    char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    m_bytes.append(raw, sizeof value);
  }
  std::string m_bytes;
};

/// Counters in the order of the file: maps, photos, lands, lines, polygons, waters, objects, fills, excludes,
/// class map entries, meshes.
Image HeaderOf(const std::array<std::int32_t, 11>& counters) {
  Image image;
  image.Str("LS205").Str("P");
  for (const std::int32_t counter : counters)
    image.Add(counter);
  image.Add(std::int32_t{1281}).Str("C:\\One").Str("C:\\Two");
  return image.Add(40.5, -9.25, 41.0, -9.0, std::int16_t{-1}, 4.0);
}

ProjectState HeaderProject() {
  ProjectState project;
  project.Name = "P";
  project.PhotoSeasons = 1281;
  project.BGL1ProjectFolder = "C:\\One";
  project.BGL2ProjectFolder = "C:\\Two";
  project.LatDispCenter = 40.5;
  project.LonDispCenter = -9.25;
  project.LatLandCenter = 41;
  project.LonLandCenter = -9;
  project.ClassGridVIEW = true;
  project.Zoom = 4;
  return project;
}

void AddRecords(ProjectState& project) {
  MapRec& map = project.Maps.emplace_back();
  map.Name = "Map";
  map.Selected = true;
  for (std::int32_t i = 0; i < 4; ++i)
    map.Level[static_cast<std::size_t>(i)] = {10 + i, 20 + i, 1.0 + i, 2.0 + i, 3.0 + i, 4.0 + i};
  map.BMPSu = "su", map.BMPWi = "wi", map.BMPFa = "fa", map.BMPSp = "sp", map.BMPHw = "hw";
  map.BMPLm = "lm", map.BMPAl = "al", map.BMPLC = "lc", map.BMPME = "me";
  LineRec& line = project.Lines.emplace_back();
  line.Name = "M\u00FChlbach \u2013 Nord";
  line.Type = "VTP//4//t//";
  line.Color = 255;
  line.Points = {{-9.5, 40.25, 12.5f, false}, {-9.25, 40.5, 3, true}};
  line.Flag = 7;
  SetPathBounds(line);
  PolyRec& poly = project.Polys.emplace_back();
  poly.Selected = true;
  poly.Points = {{1, 2, 3.5f, true}};
  poly.Box = {5, 6, 7, 8};
  FillRec fill{true, 4, 2, 5, 6, 1.5f, 364, 140, {1, 2, 3, 4}};
  project.Fills.push_back(fill);
  project.Excludes.push_back({9, true, {1, 2, 3, 4}, 11});
  project.Photos.push_back({true, 1, 2, 3, 4, {5, 6, 7, 8}});
  project.LCI.push_back({"101 102 103 City", 101, 102, 103, 255, 128, 0, 16744448});
  project.Meshes.push_back({false, 2, 364, 140, {1, 2, 3, 4}});
  ObjectRec object{3, "desc", true, 1, 2, 3, 4, 5, 6, 7, 8, 40, -9, 9, 1, 2, {1, 2, 3, 4}, 10, 11};
  object.Y1 = 12, object.X1 = 13, object.Y2 = 14, object.X2 = 15;
  object.Y3 = 16, object.X3 = 17, object.Y4 = 18, object.X4 = 19;
  project.Objects.push_back(object);
}

std::string RecordsImage() {
  const std::int16_t yes = -1, no = 0;
  Image image = HeaderOf({1, 1, 0, 1, 1, 0, 1, 1, 1, 1, 1});
  image.Str("Map").Add(yes);
  for (std::int32_t i = 0; i < 4; ++i)
    image.Add(10 + i, 20 + i, 1.0 + i, 2.0 + i, 3.0 + i, 4.0 + i);
  for (const char* name : {"su", "wi", "fa", "sp", "hw", "lm", "al", "lc", "me"})
    image.Str(name);
  image.Str("M\xFChlbach \x96 Nord").Str("VTP//4//t//").Add(std::int32_t{255}, no, std::int32_t{2});
  image.Add(std::int16_t{1}, std::int32_t{2}, std::int32_t{1});
  image.Add(-9.5, 40.25, 12.5f, no, -9.25, 40.5, 3.0f, yes);
  image.Add(40.5, 40.25, -9.5, -9.25, std::int16_t{7});
  image.Str("").Str("").Add(std::int32_t{0}, yes, std::int32_t{1});
  image.Add(std::int16_t{1}, std::int32_t{1}, std::int32_t{1}, 1.0, 2.0, 3.5f, yes);
  image.Add(5.0, 6.0, 7.0, 8.0, std::int16_t{0});
  const std::uint8_t size = 4, type = 2, col = 5, row = 6;
  image.Add(yes, size, type, col, row, 1.5f, std::int32_t{364}, std::int32_t{140}, 1.0, 2.0, 3.0, 4.0);
  image.Add(std::int32_t{9}, yes, 1.0, 2.0, 3.0, 4.0, std::int32_t{11});
  image.Add(yes, std::int32_t{1}, std::int32_t{2}, std::int32_t{3}, std::int32_t{4}, 5.0, 6.0, 7.0, 8.0);
  const std::uint8_t class1 = 101, class2 = 102, class3 = 103;
  image.Str("101 102 103 City").Add(class1, class2, class3);
  image.Add(std::int32_t{255}, std::int32_t{128}, std::int32_t{0}, std::int32_t{16744448});
  image.Add(no, std::int32_t{2}, std::int32_t{364}, std::int32_t{140}, 1.0, 2.0, 3.0, 4.0);
  image.Add(std::int32_t{3}).Str("desc").Add(yes, 1.f, 2.f, 3.f, 4.f, 5.f, 6.f, 7.f, 8.f, 40.0, -9.0, 9.f);
  image.Add(std::int32_t{1}, std::int32_t{2}, 1.0, 2.0, 3.0, 4.0);
  image.Add(10.f, 11.f, 12.f, 13.f, 14.f, 15.f, 16.f, 17.f, 18.f, 19.f);
  return image.Bytes();
}

TEST(ProjectFile, HasEachRecordInItsLayout) {
  ProjectState project = HeaderProject();
  AddRecords(project);
  EXPECT_EQ(WriteProject(project, DefaultFolder), RecordsImage());
  EXPECT_EQ(ReadProject(RecordsImage(), "X.LSP"), project);
}

TEST(ProjectFile, HoldsGridsByTheirCounters) {
  const std::size_t header = HeaderOf({}).Bytes().size();
  ProjectState project = HeaderProject();
  project.Lands.Set(3, 2, 129);
  EXPECT_EQ(WriteProject(project, "").size(), header);  // no counter, no grid
  project.NoOfLands = 1;
  project.NoOfWaters = 5;  // a counter that an import kept: a grid of zeros
  const std::string bytes = WriteProject(project, "");
  ASSERT_EQ(bytes.size(), header + 2 * 1640961);
  EXPECT_EQ(static_cast<unsigned char>(bytes[header + 2 * 1281 + 3]), 129);  // east runs fastest
  EXPECT_EQ(ReadProject(bytes, "X.LSP"), project);
  EXPECT_THROW(ReadProject(bytes.substr(0, bytes.size() - 1), "X.LSP"), RuntimeError);
}

TEST(ProjectFile, TakesThePointsThatTheArrayHas) {
  const auto lineWith = [](std::int32_t counter, std::int16_t dimensions, std::int32_t elements, int points) {
    Image image = HeaderOf({0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0});
    image.Str("L").Str("").Add(std::int32_t{0}, std::int16_t{0}, counter, dimensions);
    if (dimensions != 0) image.Add(elements, std::int32_t{1});
    for (int i = 0; i < points; ++i)
      image.Add(1.0, 2.0, 3.0f, std::int16_t{0});
    return image.Add(1.0, 2.0, 3.0, 4.0, std::int16_t{0}).Bytes();
  };
  const auto pointsOf = [](const std::string& bytes) {
    return ReadProject(bytes, "X.LSP").Lines[0].Points.size();
  };
  EXPECT_EQ(pointsOf(lineWith(5, 1, 2, 2)), 2u);  // whatever the record's counter says
  EXPECT_EQ(pointsOf(lineWith(0, 0, 0, 0)), 0u);  // never allocated: nothing behind
  EXPECT_EQ(pointsOf(lineWith(0, 1, 0, 0)), 0u);
  EXPECT_THROW(pointsOf(lineWith(2, 2, 2, 2)), RuntimeError);
  EXPECT_THROW(pointsOf(lineWith(2, 1, -1, 2)), RuntimeError);
  EXPECT_THROW(pointsOf(lineWith(2, 1, 0x7FFFFFFF, 2)), RuntimeError);
}

TEST(ProjectFile, CutOffAnywhereIsAnError) {
  const std::string whole = RecordsImage();
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_THROW(ReadProject(whole.substr(0, length), "X.LSP"), RuntimeError) << length;
  EXPECT_EQ(ReadProject(whole + "left behind", "X.LSP"), ReadProject(whole, "X.LSP"));
}

TEST(ProjectFile, RefusesCountsThatTheFileHasNoRoomFor) {
  for (std::size_t counter = 0; counter < 11; ++counter)
    for (const std::int32_t count : {0x7FFFFFFF, 1000000, -1}) {
      std::string bytes = RecordsImage();
      std::memcpy(bytes.data() + FirstCounter + counter * 4, &count, 4);
      EXPECT_THROW(ReadProject(bytes, "X.LSP"), RuntimeError) << counter << " " << count;
    }
  const std::string bytes = HeaderOf({0, 0, 0, 3}).Bytes();
  EXPECT_EQ(test::ErrorOf([&] { ReadProject(bytes, "X.LSP"); }), "reading the project: X.LSP, offset " +
                                                                     std::to_string(bytes.size()) +
                                                                     ": 3 lines announced, room for 0");
}

}  // namespace
}  // namespace landsmith
