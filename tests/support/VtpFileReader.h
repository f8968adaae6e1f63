// Reads a vector terrain file as the importers understand the format, written from the format's description
// and sharing nothing with the compiler. What the importers pass over, the place of a record and the layers
// that it replaces, is read too.
#pragma once

#include "support/BglBytes.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {

struct VtpPointRead {
  int X = 0, Y = 0;
  int Width = 0;  ///< metres; 0 in polygons
  bool operator==(const VtpPointRead&) const = default;
};

inline void PrintTo(const VtpPointRead& point, std::ostream* out) {
  *out << "(" << point.X << " " << point.Y << " " << point.Width << ")";
}

inline constexpr int LineFeatureRead = 1;  ///< every other kind is a polygon

struct VtpFeatureRead {
  int CellCol = 0, CellRow = 0;
  int Group = 0;  ///< the layer
  int Kind = 0;
  std::string TexText;
  std::vector<VtpPointRead> Points;
};

struct VtpGroupRead {
  int Layer = 0;
  bool Replaces = false;
  unsigned Textures = 0;
  bool operator==(const VtpGroupRead&) const = default;
};

struct VtpRecordRead {
  int CellCol = 0, CellRow = 0;
  bool WholeCell = false;
  int AreaX = 0, AreaY = 0;
  std::vector<VtpGroupRead> Groups;
};

struct VtpFileRead {
  double LatCenter = 0, LonCenter = 0;
  std::vector<std::string> TexNames;
  std::vector<VtpRecordRead> Records;    ///< in the order of the file
  std::vector<VtpFeatureRead> Features;  ///< in the order of the file
};

class VtpFileReader {
public:
  explicit VtpFileReader(std::string_view bytes) : m_bytes(bytes) {}

  VtpFileRead Read() {
    const std::size_t block = m_bytes.Block(60);
    m_file.LatCenter = m_bytes.LatCenter();
    m_file.LonCenter = m_bytes.LonCenter();
    ReadTextures(block + m_bytes.U32(block + 12));
    const std::size_t head = block + m_bytes.U32(block + 8), data = head + m_bytes.U32(head + 12);
    for (std::size_t i = 0; i < m_bytes.U32(head + 4); ++i)
      ReadCell(m_bytes.Cell(head + m_bytes.U32(head + 8) + 12 * i, data));
    return m_file;
  }

private:
  std::string ZeroEnded(std::size_t pos) const {
    std::string text;
    while (m_bytes.U8(pos) != 0)
      text += static_cast<char>(m_bytes.U8(pos++));
    return text;
  }

  void ReadTextures(std::size_t head) {
    const std::size_t data = head + m_bytes.U32(head + 12);
    for (std::size_t i = 0; i < m_bytes.U32(head + 4); ++i) {
      const std::size_t entry = head + m_bytes.U32(head + 8) + 8 * i;
      std::size_t pos = data + m_bytes.U32(entry);
      const std::string name = ZeroEnded(pos);
      BglBytes::Require(pos + m_bytes.U32(entry + 4) <= m_bytes.Size(), "texture length");
      if (m_bytes.U32(entry + 4) <= 7) {
        m_file.TexNames.push_back(name);
        continue;
      }
      pos += name.size() + 1;
      const unsigned t = m_bytes.U8(pos);
      std::string text = "\"" + name + "\" " + std::to_string(t & 15) + " " + std::to_string(t / 16) + " 0 " +
                         std::to_string(m_bytes.U8(pos + 1));
      if (t / 16 == 1) text += " \"" + ZeroEnded(pos + 2) + "\"";
      m_file.TexNames.push_back(text);
    }
  }

  void ReadCell(const BglBytes::CellEntry& entry) {
    m_feature.CellCol = entry.CellCol;
    m_feature.CellRow = entry.CellRow;
    m_pos = entry.Begin;
    while (m_pos < entry.End)
      ReadRecord();
    BglBytes::Require(m_pos == entry.End, "a record runs over the end of its cell");
  }

  void ReadRecord() {
    const unsigned head = m_bytes.U16(m_pos);
    m_pos += 2;
    VtpRecordRead record{m_feature.CellCol,     m_feature.CellRow, (head & 32) != 0,
                         int(head >> 6U & 31U), int(head >> 11U),  {}};
    for (unsigned g = 0; g < (head & 31); ++g) {
      const unsigned layer = m_bytes.U8(m_pos++);
      const unsigned textures = Count();
      record.Groups.push_back({int((layer & 63) + (layer > 127 ? 64 : 0)), (layer & 64) != 0, textures});
      m_feature.Group = int(layer & 63);
      for (unsigned t = 0; t < textures; ++t) {
        m_feature.TexText = m_file.TexNames.at(Count());
        const unsigned features = Count();
        for (unsigned f = 0; f < features; ++f)
          ReadFeature();
      }
    }
    m_file.Records.push_back(record);
  }

  unsigned Count() {
    const unsigned c = m_bytes.U8(m_pos++);
    return c > 127 ? (c & 127) + (m_bytes.U8(m_pos++) << 7) : c;
  }

  void ReadFeature() {
    const unsigned f = m_bytes.U8(m_pos++);
    unsigned points = f & 31;
    m_feature.Kind = int(f / 32);
    if (points == 31) {
      points += m_bytes.U16(m_pos);
      m_pos += 2;
    }
    m_feature.Points.clear();
    m_point = {};
    m_remaining = 0;
    for (unsigned i = 0; i < points; ++i) {
      ReadPoint();
      m_feature.Points.push_back(m_point);
    }
    m_file.Features.push_back(m_feature);
  }

  void ReadPoint() {
    if (m_feature.Kind != LineFeatureRead) {
      m_point = {int(m_bytes.U16(m_pos)), int(m_bytes.U16(m_pos + 2)), 0};
      m_pos += 4;
    } else if (m_remaining > 0) {
      ReadRelative();
    } else {
      ReadAbsolute();
    }
  }

  void ReadAbsolute() {
    const unsigned b0 = m_bytes.U8(m_pos), b1 = m_bytes.U8(m_pos + 1), b2 = m_bytes.U8(m_pos + 2),
                   b3 = m_bytes.U8(m_pos + 3);
    m_pos += 4;
    m_remaining = b3 / 32;
    m_point.X = int((b1 & 63) * 256 + b0);
    m_point.Y = int((b3 & 31) * 512 + b2 * 2 + b1 / 128);
    if ((b1 & 64) != 0) m_point.Width = int(m_bytes.U8(m_pos++));
  }

  void ReadRelative() {
    const unsigned b0 = m_bytes.U8(m_pos), b1 = m_bytes.U8(m_pos + 1), b2 = m_bytes.U8(m_pos + 2);
    m_pos += 3;
    --m_remaining;
    const int dx = int(b0 / 2 + (b1 & 15) * 128), dy = int(b1 / 32 + b2 * 8);
    m_point.X += dx >= 1024 ? dx - 2048 : dx;
    m_point.Y += dy >= 1024 ? dy - 2048 : dy;
    if ((b0 & 1) != 0) m_point.Width = int(m_bytes.U8(m_pos++));
  }

  BglBytes m_bytes;
  VtpFileRead m_file;
  VtpFeatureRead m_feature;
  std::size_t m_pos = 0;
  VtpPointRead m_point;
  unsigned m_remaining = 0;
};

/// Throws std::out_of_range or std::runtime_error for a file that is not of the format.
inline VtpFileRead ReadVtpFile(std::string_view bytes) {
  return VtpFileReader(bytes).Read();
}

}  // namespace landsmith::test
