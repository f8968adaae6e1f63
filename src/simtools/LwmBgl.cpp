#include "simtools/LwmBgl.h"

#include "core/Bytes.h"
#include "simtools/BglLayout.h"
#include "simtools/BglWriter.h"

namespace landsmith::simtools {

namespace {

constexpr std::uint32_t LandType = 1, FlattenType = 2, WaterOrLandType = 3;

void WriteAltitude(ByteWriter& out, std::int32_t altitude) {
  const auto part = static_cast<std::uint32_t>(altitude) % bgl::AltitudeParts;
  out.I16(static_cast<std::int16_t>((altitude - static_cast<std::int32_t>(part)) / bgl::AltitudeParts));
  out.U8(LowByte(part));
}

void WritePoly(ByteWriter& out, const LwmPoly& poly, bool altitudes) {
  const auto points = static_cast<std::uint32_t>(poly.Points.size());
  const bool escape = points >= bgl::MaskPointsEscape;
  out.U8(LowByte((escape ? bgl::MaskPointsEscape : points) | (poly.IsLand ? 128U : 0U)));
  WriteAltitude(out, poly.AltAt0);
  if (altitudes) WriteAltitude(out, poly.AltAt255);
  if (escape) out.U8(LowByte(points - bgl::MaskPointsEscape));
  for (const LwmPoint& point : poly.Points) {
    out.U8(point.X);
    out.U8(point.Y);
    if (altitudes) out.U8(point.Altitude);
  }
}

void WriteItemHead(ByteWriter& out, std::uint32_t polys, const LwmItem& item, std::uint32_t x,
                   std::uint32_t y) {
  const std::uint32_t smallest = item.FillSize == 1 ? 32U : 0U;
  out.U16(static_cast<std::uint16_t>(polys | item.Type << 3U | smallest | x << 6U | y << 11U));
}

void WriteFill(ByteWriter& out, const LwmItem& fill, std::uint32_t x, std::uint32_t y) {
  WriteItemHead(out, 0, fill, x | fill.FillSize / 2, y);
  if (fill.Type != LandType) WriteAltitude(out, fill.Height);
}

void WriteFills(ByteWriter& out, LwmItem fill) {
  if (fill.FillSize <= bgl::LargestFill) {
    WriteFill(out, fill, fill.X, fill.Y);
    return;
  }
  const std::uint32_t whole = fill.FillSize;
  fill.FillSize = bgl::LargestFill;
  for (std::uint32_t y = 0; y < whole; y += bgl::LargestFill)
    for (std::uint32_t x = 0; x < whole; x += bgl::LargestFill)
      WriteFill(out, fill, x, y);
}

/// All of the Area at `x`, `y` of a fill, as a polygon.
LwmItem CoveredArea(const LwmItem& fill, std::uint32_t x, std::uint32_t y) {
  LwmItem item;
  item.Type = fill.Type == FlattenType ? FlattenType : WaterOrLandType;
  item.X = x;
  item.Y = y;
  item.Polys.push_back({fill.Type == LandType,
                        fill.Height,
                        fill.Height,
                        {{0, 0, 0}, {255, 0, 0}, {255, 255, 0}, {0, 255, 0}}});
  return item;
}

void WriteItem(ByteWriter& out, const LwmItem& item, bool altitudes) {
  if (item.AsPolys) {
    for (std::uint32_t y = item.Y; y < item.Y + item.FillSize; ++y)
      for (std::uint32_t x = item.X; x < item.X + item.FillSize; ++x)
        WriteItem(out, CoveredArea(item, x, y), altitudes);
    return;
  }
  if (item.FillSize != 0) {
    WriteFills(out, item);
    return;
  }
  const auto polys = static_cast<std::uint32_t>(item.Polys.size());
  const bool escape = polys >= bgl::PolysEscape;
  WriteItemHead(out, escape ? bgl::PolysEscape : polys, item, item.X, item.Y);
  if (escape) out.U8(LowByte(polys - bgl::PolysEscape));
  for (const LwmPoly& poly : item.Polys)
    WritePoly(out, poly, altitudes);
}

}  // namespace

std::string LwmBlock(const LwmFile& file) {
  ByteWriter table;
  ByteWriter data;
  table.U32(bgl::CellTableSize);
  table.U32(static_cast<std::uint32_t>(file.Cells.size()));
  table.U32(bgl::CellTableSize);
  for (const LwmCell& cell : file.Cells) {
    const std::size_t start = data.Size();
    for (const LwmItem& item : cell.Items)
      WriteItem(data, item, file.Format == bgl::AltitudesFormat);
    table.U32(cell.Type << 10U | cell.CellX << 12U | cell.CellY << 22U);
    table.U32(static_cast<std::uint32_t>(start));
    table.U32(static_cast<std::uint32_t>(data.Size() - start));
  }
  return BlockOf(file.Format, table.Take(), data.Take());
}

}  // namespace landsmith::simtools
