#include "simtools/VtpBgl.h"

#include "core/Bytes.h"
#include "simtools/BglLayout.h"
#include "simtools/BglWriter.h"

#include <algorithm>

namespace landsmith::simtools {

namespace {

void WriteCount(ByteWriter& out, std::size_t value) {
  const auto count = static_cast<std::uint32_t>(value);
  if (count < 128) {
    out.U8(LowByte(count));
    return;
  }
  out.U8(LowByte((count & 127U) | 128U));
  out.U8(LowByte(count >> 7U));
}

void WritePoint(ByteWriter& out, const VtpPoint& point) {
  const auto x = static_cast<std::uint32_t>(point.X);
  const auto y = static_cast<std::uint32_t>(point.Y);
  const std::uint32_t hasWidth = point.Width != 0 ? 1 : 0;
  if (point.IsStep) {
    const std::uint32_t bits = hasWidth | (x & 2047U) << 1U | (y & 2047U) << 13U;
    out.U16(static_cast<std::uint16_t>(bits & 0xFFFFU));
    out.U8(LowByte(bits >> 16U));
  } else {
    out.U32(x | hasWidth << 14U | y << 15U | std::uint32_t{point.Steps} << 29U);
  }
  if (hasWidth != 0) out.U8(point.Width);
}

void WriteFeature(ByteWriter& out, const VtpFeature& feature) {
  const auto points = static_cast<std::uint32_t>(feature.Points.size());
  const bool escape = points >= bgl::PointsEscape;
  out.U8(LowByte((escape ? bgl::PointsEscape : points) | feature.Kind << 5U));
  if (escape) out.U16(static_cast<std::uint16_t>(points - bgl::PointsEscape));
  for (const VtpPoint& point : feature.Points) {
    if (feature.Kind == bgl::LineFeature) {
      WritePoint(out, point);
    } else {
      out.U16(static_cast<std::uint16_t>(point.X));
      out.U16(static_cast<std::uint16_t>(point.Y));
    }
  }
}

void WriteLayer(ByteWriter& out, const VtpLayer& layer) {
  out.U8(LowByte((layer.Layer & 63U) | (layer.Replace ? 64U : 0U) | (layer.Layer & 64U) << 1U));
  WriteCount(out, layer.Textures.size());
  for (const VtpTextureUse& texture : layer.Textures) {
    WriteCount(out, texture.TexId);
    WriteCount(out, texture.Features.size());
    for (const VtpFeature& feature : texture.Features)
      WriteFeature(out, feature);
  }
}

void WriteArea(ByteWriter& out, const VtpArea& area) {
  const std::size_t layers = area.Layers.size();
  std::size_t next = 0;
  do {
    const std::size_t end = std::min<std::size_t>(layers, next + bgl::MostLayers);
    out.U16(static_cast<std::uint16_t>((end - next) | (area.WholeCell ? 32U : 0U) | area.X << 6U |
                                       area.Y << 11U));
    for (; next < end; ++next)
      WriteLayer(out, area.Layers[next]);
  } while (next < layers);
}

void WriteListHead(ByteWriter& out, std::size_t entries, std::size_t entrySize) {
  out.U32(bgl::ListHeadSize);
  out.U32(static_cast<std::uint32_t>(entries));
  out.U32(bgl::ListHeadSize);
  out.U32(static_cast<std::uint32_t>(bgl::ListHeadSize + entries * entrySize));
}

std::string CellList(const std::vector<VtpCell>& cells) {
  ByteWriter list;
  ByteWriter data;
  WriteListHead(list, cells.size(), bgl::CellEntrySize);
  for (const VtpCell& cell : cells) {
    const std::size_t start = data.Size();
    for (const VtpArea& area : cell.Areas)
      WriteArea(data, area);
    list.U32(cell.CellX << 12U | cell.CellY << 22U);
    list.U32(static_cast<std::uint32_t>(start));
    list.U32(static_cast<std::uint32_t>(data.Size() - start));
  }
  return list.Take() + data.Content();
}

std::string TextureData(const VtpTextureEntry& texture) {
  ByteWriter out;
  out.Bytes(texture.Name);
  out.U8(0);
  out.U8(LowByte(texture.UV | std::uint32_t{texture.Kind} << 4U));
  out.U8(texture.U);
  if (texture.Kind == 1) {
    out.Bytes(texture.Controller);
    out.U8(0);
  }
  // The length alone tells a quoted name from a number.
  while (texture.Quoted && out.Size() <= bgl::LongestNumberEntry)
    out.U8(0);
  return out.Take();
}

std::string TextureList(const std::vector<VtpTextureEntry>& textures) {
  ByteWriter list;
  std::string data;
  WriteListHead(list, textures.size(), bgl::TextureEntrySize);
  for (const VtpTextureEntry& texture : textures) {
    const std::string bytes = TextureData(texture);
    list.U32(static_cast<std::uint32_t>(data.size()));
    list.U32(static_cast<std::uint32_t>(bytes.size()));
    data += bytes;
  }
  return list.Take() + data;
}

}  // namespace

std::string VtpBlock(const VtpFile& file) {
  return BlockOf(file.Format, CellList(file.Cells), TextureList(file.Textures));
}

}  // namespace landsmith::simtools
