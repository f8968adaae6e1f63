// Reads a vector terrain file as the importers understand the format, written from the format's description
// and sharing nothing with the compiler.
#pragma once

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools::test {

struct LinePointRead {
  int X = 0, Y = 0, Width = 0;
  bool operator==(const LinePointRead&) const = default;
};

inline void PrintTo(const LinePointRead& point, std::ostream* out) {
  *out << "(" << point.X << " " << point.Y << " " << point.Width << ")";
}

struct FeatureRead {
  int CellCol = 0, CellRow = 0, Group = 0, Kind = 0;
  std::string TexText;
  std::vector<LinePointRead> Points;
};

struct VtpFileRead {
  double LatCenter = 0, LonCenter = 0;
  std::vector<std::string> TexNames;
  std::vector<FeatureRead> Features;
};

class VtpFileReader {
public:
  explicit VtpFileReader(std::string_view bytes) : m_bytes(bytes) {}

  VtpFileRead Read() {
    Require(U32(118) == 0x87654321, "magic");
    m_file.LatCenter = (I32(2) + I32(6)) / 2.0 / 1850 / 60;
    m_file.LonCenter = (double(U32(10)) + double(U32(14))) * 180 / 4294967296.0;
    if (m_file.LonCenter > 180) m_file.LonCenter -= 360;
    const std::size_t section = U32(54);
    Require(section != 0 && U32(section) == 100, "section table");
    Require(I32(section + 60) != 0, "section of vector terrain");
    const std::size_t block = section + U32(section + 60);
    Require(U32(block) == 20, "block");
    ReadTextures(block + U32(block + 12));
    ReadCells(block + U32(block + 8));
    return m_file;
  }

private:
  static void Require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
  }

  unsigned U8(std::size_t pos) const { return static_cast<unsigned char>(m_bytes.at(pos)); }
  unsigned U16(std::size_t pos) const { return U8(pos) + U8(pos + 1) * 256; }
  std::uint32_t U32(std::size_t pos) const { return U16(pos) + U16(pos + 2) * 65536U; }
  std::int32_t I32(std::size_t pos) const { return static_cast<std::int32_t>(U32(pos)); }

  std::string ZeroEnded(std::size_t pos) const {
    std::string text;
    while (U8(pos) != 0)
      text += m_bytes[pos++];
    return text;
  }

  void ReadTextures(std::size_t head) {
    const std::size_t data = head + U32(head + 12);
    for (std::size_t i = 0; i < U32(head + 4); ++i) {
      const std::size_t entry = head + U32(head + 8) + 8 * i;
      std::size_t pos = data + U32(entry);
      const std::string name = ZeroEnded(pos);
      Require(pos + U32(entry + 4) <= m_bytes.size(), "texture length");
      if (U32(entry + 4) <= 7) {
        m_file.TexNames.push_back(name);
        continue;
      }
      pos += name.size() + 1;
      const unsigned t = U8(pos);
      std::string text = "\"" + name + "\" " + std::to_string(t & 15) + " " + std::to_string(t / 16) + " 0 " +
                         std::to_string(U8(pos + 1));
      if (t / 16 == 1) text += " \"" + ZeroEnded(pos + 2) + "\"";
      m_file.TexNames.push_back(text);
    }
  }

  void ReadCells(std::size_t head) {
    for (std::size_t i = 0; i < U32(head + 4); ++i) {
      const std::size_t entry = head + U32(head + 8) + 12 * i;
      const unsigned b1 = U8(entry + 1), b2 = U8(entry + 2), b3 = U8(entry + 3);
      m_feature.CellRow = int(b2 / 64 + b3 * 4);
      m_feature.CellCol = int(b1 / 16 + (b2 & 63) * 16);
      m_pos = head + U32(head + 12) + U32(entry + 4);
      const std::size_t end = m_pos + U32(entry + 8);
      while (m_pos < end)
        ReadRecord();
      Require(m_pos == end, "length of a cell");
    }
  }

  void ReadRecord() {
    const unsigned groups = U8(m_pos) & 31;
    m_pos += 2;
    for (unsigned g = 0; g < groups; ++g) {
      m_feature.Group = int(U8(m_pos++) & 63);
      const unsigned textures = Count();
      for (unsigned t = 0; t < textures; ++t) {
        m_feature.TexText = m_file.TexNames.at(Count());
        const unsigned features = Count();
        for (unsigned f = 0; f < features; ++f)
          ReadFeature();
      }
    }
  }

  unsigned Count() {
    const unsigned c = U8(m_pos++);
    return c > 127 ? (c & 127) + (U8(m_pos++) << 7) : c;
  }

  void ReadFeature() {
    const unsigned f = U8(m_pos++);
    unsigned points = f & 31;
    m_feature.Kind = int(f / 32);
    if (points == 31) {
      points += U16(m_pos);
      m_pos += 2;
    }
    m_feature.Points.clear();
    m_point = {};
    m_remaining = 0;
    for (unsigned i = 0; i < points; ++i) {
      if (m_remaining > 0)
        ReadRelative();
      else
        ReadAbsolute();
      m_feature.Points.push_back(m_point);
    }
    m_file.Features.push_back(m_feature);
  }

  void ReadAbsolute() {
    const unsigned b0 = U8(m_pos), b1 = U8(m_pos + 1), b2 = U8(m_pos + 2), b3 = U8(m_pos + 3);
    m_pos += 4;
    m_remaining = b3 / 32;
    m_point.X = int((b1 & 63) * 256 + b0);
    m_point.Y = int((b3 & 31) * 512 + b2 * 2 + b1 / 128);
    if ((b1 & 64) != 0) m_point.Width = int(U8(m_pos++));
  }

  void ReadRelative() {
    const unsigned b0 = U8(m_pos), b1 = U8(m_pos + 1), b2 = U8(m_pos + 2);
    m_pos += 3;
    --m_remaining;
    const int dx = int(b0 / 2 + (b1 & 15) * 128), dy = int(b1 / 32 + b2 * 8);
    m_point.X += dx >= 1024 ? dx - 2048 : dx;
    m_point.Y += dy >= 1024 ? dy - 2048 : dy;
    if ((b0 & 1) != 0) m_point.Width = int(U8(m_pos++));
  }

  std::string_view m_bytes;
  VtpFileRead m_file;
  FeatureRead m_feature;
  std::size_t m_pos = 0;
  LinePointRead m_point;
  unsigned m_remaining = 0;
};

/// Throws std::out_of_range or std::runtime_error for a file that is not of the format.
inline VtpFileRead ReadVtpFile(std::string_view bytes) {
  return VtpFileReader(bytes).Read();
}

}  // namespace landsmith::simtools::test
