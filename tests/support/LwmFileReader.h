// Reads a file of land and water masks as the importers understand the format, written from the format's
// description and sharing nothing with the compiler.
#pragma once

#include "support/BglBytes.h"

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace landsmith::test {

enum class LwmKindRead { Water, Land, Flatten };

struct LwmPointRead {
  int X = 0, Y = 0;  ///< 0..255 from the Area's north-west corner
  unsigned Z = 0;    ///< the altitude byte; 0 in a file of flat polygons
  float Alt = 0;     ///< metres
  bool operator==(const LwmPointRead&) const = default;
};

inline void PrintTo(const LwmPointRead& point, std::ostream* out) {
  *out << "(" << point.X << " " << point.Y << " " << point.Z << " " << point.Alt << ")";
}

struct LwmPieceRead {
  int AreaX = 0, AreaY = 0;
  LwmKindRead Kind = LwmKindRead::Water;
  double AltMin = 0, AltMax = 0;  ///< the altitudes of the bytes 0 and 255; equal in a file of flat polygons
  std::vector<LwmPointRead> Points;
};

struct LwmFillRead {
  int Size = 0, Type = 0, Col = 0, Row = 0;  ///< as FillRec holds them
  double Height = 0;
  bool operator==(const LwmFillRead&) const = default;
};

inline void PrintTo(const LwmFillRead& fill, std::ostream* out) {
  *out << "(size " << fill.Size << " type " << fill.Type << " at " << fill.Col << " " << fill.Row
       << " height " << fill.Height << ")";
}

struct LwmCellRead {
  int CellX = 0, CellY = 0;
  int FillType = 3;                  ///< 0 to 2: the whole Cell is of that type; 3: it is not
  std::vector<LwmFillRead> Fills;    ///< in the order of the file, without that of the whole Cell
  std::vector<LwmPieceRead> Pieces;  ///< in the order of the file
};

struct LwmFileRead {
  double LatCenter = 0, LonCenter = 0;
  bool AltPerPoint = false;
  std::vector<LwmCellRead> Cells;
};

class LwmFileReader {
public:
  explicit LwmFileReader(std::string_view bytes) : m_bytes(bytes) {}

  LwmFileRead Read() {
    const std::size_t block = m_bytes.Block(56);
    m_file.LatCenter = m_bytes.LatCenter();
    m_file.LonCenter = m_bytes.LonCenter();
    m_file.AltPerPoint = m_bytes.U32(block + 4) == 768;
    const std::size_t table = block + m_bytes.U32(block + 8), data = block + m_bytes.U32(block + 12);
    for (std::size_t i = 0; i < m_bytes.U32(table + 4); ++i)
      ReadCell(m_bytes.Cell(table + m_bytes.U32(table + 8) + 12 * i, data));
    return m_file;
  }

private:
  void ReadCell(const BglBytes::CellEntry& entry) {
    m_cell = {entry.CellCol, entry.CellRow, entry.FillType, {}, {}};
    if (entry.FillType != 3) m_fillSize = 32;
    m_pos = entry.Begin;
    while (m_pos < entry.End)
      ReadItem();
    BglBytes::Require(m_pos == entry.End, "an item runs over the end of its cell");
    m_file.Cells.push_back(m_cell);
  }

  void ReadItem() {
    const unsigned h0 = m_bytes.U8(m_pos), h1 = m_bytes.U8(m_pos + 1);
    m_pos += 2;
    m_itemType = int((h0 & 31) / 8);
    m_col = int(h0 / 64 + (h1 & 7) * 4);
    m_row = int(h1 / 8);
    unsigned polys = h0 & 7;
    if (polys == 0) {
      ReadFill(h0, h1);
      return;
    }
    if (polys == 7) polys += m_bytes.U8(m_pos++);
    for (unsigned i = 0; i < polys; ++i)
      ReadPiece();
  }

  void ReadFill(unsigned h0, unsigned h1) {
    int divisor = 1;
    if ((h0 & 32) != 0)
      m_fillSize = 1;
    else if ((h0 & 64) != 0)
      m_fillSize = divisor = 2;
    else if (h0 > 127)
      m_fillSize = divisor = 4;
    else if ((h1 & 1) != 0)
      m_fillSize = divisor = 8;
    else if ((h1 & 2) != 0)
      m_fillSize = divisor = 16;
    LwmFillRead fill{m_fillSize, m_itemType, m_col / divisor, m_row / divisor, 0};
    if (m_itemType != 1) fill.Height = ReadFixed();
    m_cell.Fills.push_back(fill);
  }

  void ReadPiece() {
    LwmPieceRead piece;
    const unsigned p = m_bytes.U8(m_pos++);
    piece.AreaX = m_col;
    piece.AreaY = m_row;
    piece.Kind = m_itemType == 2 ? LwmKindRead::Flatten : p <= 127 ? LwmKindRead::Water : LwmKindRead::Land;
    piece.AltMin = ReadFixed();
    piece.AltMax = m_file.AltPerPoint ? ReadFixed() : piece.AltMin;
    const double step = (piece.AltMax - piece.AltMin) / 255;
    unsigned points = p & 63;
    if (points == 63) points += m_bytes.U8(m_pos++);
    for (unsigned i = 0; i < points; ++i) {
      LwmPointRead point{int(m_bytes.U8(m_pos)), int(m_bytes.U8(m_pos + 1)), 0, 0};
      m_pos += 2;
      if (m_file.AltPerPoint) point.Z = m_bytes.U8(m_pos++);
      point.Alt = static_cast<float>(piece.AltMin + point.Z * step);
      piece.Points.push_back(point);
    }
    m_cell.Pieces.push_back(piece);
  }

  double ReadFixed() {
    m_pos += 3;
    return m_bytes.Fixed(m_pos - 3);
  }

  BglBytes m_bytes;
  LwmFileRead m_file;
  LwmCellRead m_cell;
  std::size_t m_pos = 0;
  int m_fillSize = 1;  ///< lasts from fill to fill, over cells too
  int m_itemType = 0, m_col = 0, m_row = 0;
};

/// Throws std::out_of_range or std::runtime_error for a file that is not of the format.
inline LwmFileRead ReadLwmFile(std::string_view bytes) {
  return LwmFileReader(bytes).Read();
}

}  // namespace landsmith::test
