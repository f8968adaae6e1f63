#include "editor/MapData.h"

#include "core/Bytes.h"
#include "core/IniFile.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>

namespace landsmith {

namespace {

constexpr std::size_t BitmapHeader = 26, WidthOffset = 18;
constexpr std::size_t EndingLength = 4;
constexpr std::string_view Section = "GEOGRAPHIC", LineEnd = "\r\n";

struct SetRow {
  MapDataSet MapData::*Set;
  std::string_view Number;  ///< behind each key: "North1"
};
constexpr std::array<SetRow, 3> Sets{{{&MapData::Main, ""}, {&MapData::Land, "1"}, {&MapData::Mesh, "2"}}};

struct SideRow {
  std::string_view Key;
  double GeoBox::*Side;
};
constexpr std::array<SideRow, 4> Sides{
    {{"North", &GeoBox::NLat}, {"South", &GeoBox::SLat}, {"West", &GeoBox::WLon}, {"East", &GeoBox::ELon}}};

std::string Joined(std::string_view key, std::string_view number) {
  return std::string(key).append(number);
}

}  // namespace

std::optional<BitmapSize> ReadBitmapSize(const std::filesystem::path& file) {
  std::array<char, BitmapHeader> head{};
  std::ifstream in(file, std::ios::binary);
  if (!in.read(head.data(), head.size()) || head[0] != 'B' || head[1] != 'M') return {};
  ByteReader reader({head.data(), head.size()}, "reading the size of a bitmap", file.string());
  reader.Seek(WidthOffset);
  const std::int32_t width = reader.I32(), height = reader.I32();
  if (width <= 0 || height == 0 || height == INT32_MIN) return {};
  return BitmapSize{width, std::abs(height)};
}

std::string MapDataName(std::string_view bitmap) {
  return std::string(bitmap.substr(0, bitmap.size() - std::min(EndingLength, bitmap.size()))) + ".TXT";
}

MapData ParseMapData(std::string_view text) {
  MapData data;
  for (const SetRow& row : Sets) {
    MapDataSet& set = data.*row.Set;
    if (!row.Number.empty())
      set.File = FromWindows1252(Trim(FindIniKey(text, Section, Joined("File", row.Number))));
    for (const SideRow& side : Sides)
      set.Box.*side.Side =
          ParseNumber(FindIniKey(text, Section, Joined(side.Key, row.Number)), true).value_or(0);
  }
  return data;
}

std::string MapDataText(const MapData& data) {
  std::string text = "[" + std::string(Section) + "]";
  const auto add = [&text](const std::string& key, const std::string& value) {
    text.append(LineEnd).append(key).append("=").append(value);
  };
  for (const SetRow& row : Sets) {
    const MapDataSet& set = data.*row.Set;
    if (!row.Number.empty()) add(Joined("File", row.Number), ToWindows1252(set.File));
    for (const SideRow& side : Sides)
      add(Joined(side.Key, row.Number), NumberText(set.Box.*side.Side));
  }
  return text.append(LineEnd).append(LineEnd);
}

}  // namespace landsmith
