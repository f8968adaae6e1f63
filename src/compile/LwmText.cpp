#include "compile/LwmText.h"

#include "compile/ScmFrame.h"
#include "compile/ScmWriter.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace landsmith {
namespace {

void WriteHead(ScmWriter& out, const LwmTextOptions& options) {
  if (options.Kind != LwmFileKind::Fills) out.Line("Set( BUF 8192 )").EmptyLine();
  WriteHeader(out, options.Bounds);
  out.EmptyLine();
  out.Line(options.Kind == LwmFileKind::Sloped ? "LWMFileHeader( 0x300 )" : "LWMFileHeader");
}

/// An altitude as a byte from `lowest`, 0, to `highest`, 255, reckoned in single precision. Where both are
/// the same number in single precision a point above them is at 255.
class AltitudeScale {
public:
  AltitudeScale(double lowest, double highest)
      : m_lowest(static_cast<float>(lowest)), m_range(static_cast<float>(highest) - m_lowest) {}

  std::int32_t ByteOf(float altitude) const {
    constexpr float top = 255;
    const float value = std::floor((altitude - m_lowest) / m_range * top);
    if (!(value > 0)) return 0;  // no number either
    return value >= top ? 255 : static_cast<std::int32_t>(value);
  }

private:
  float m_lowest, m_range;
};

/// Pieces of a polygon mostly come many in a row, so what they have in common is made once for the row.
class PieceWriter {
public:
  PieceWriter(ScmWriter& out, LwmFileKind file) : m_out(out), m_isSloped(file == LwmFileKind::Sloped) {}

  void Write(const LwmPolyRec& piece) {
    if (piece.Poly != m_poly) StartPoly(*piece.Poly);
    m_out.Text(m_areaStart).Integer(piece.AreaX).Text(" ").Integer(piece.AreaY).Line(" )").EmptyLine();
    m_out.Text(m_isSloped ? "LWMPoly3( " : "LWMPoly( ").Integer(std::ssize(piece.Points)).Line(m_polyEnd);
    for (const PiecePoint& point : piece.Points)
      WritePoint(point);
    m_out.Line("     )");
  }

private:
  void StartPoly(const LwmCutPoly& poly) {
    m_poly = &poly;
    m_scale = AltitudeScale(poly.Alt2, poly.Alt1);
    m_areaStart = poly.Kind == LwmPieceKind::Flatten ? "LWMAreaDrawPoly( 1 2 " : "LWMAreaDrawPoly( 1 3 ";
    ScmWriter end;
    end.Text(" ").Integer(static_cast<int>(poly.Kind)).Text(" ");
    if (m_isSloped) end.Shortest(static_cast<float>(poly.Alt2)).Text(" ");
    end.Shortest(static_cast<float>(poly.Alt1)).Text(" ");
    m_polyEnd = end.Take();
  }

  void WritePoint(const PiecePoint& point) {
    m_out.Text("   ").Integer(point.X).Text(" ").Integer(point.Y);
    if (m_isSloped) m_out.Text(" ").Integer(m_scale.ByteOf(point.Alt));
    m_out.EndLine();
  }

  ScmWriter& m_out;
  bool m_isSloped;
  const LwmCutPoly* m_poly = nullptr;  ///< whose piece came last
  AltitudeScale m_scale{0, 0};
  std::string_view m_areaStart;
  std::string m_polyEnd;  ///< kind and altitudes
};

void WriteCell(ScmWriter& out, PieceWriter& pieces, const LwmCell& cell, std::int64_t number,
               bool fillAsPoly) {
  WriteCellLabel(out, number);
  out.EmptyLine();
  WriteFills(out, cell.Fills, fillAsPoly);
  for (const LwmPolyRec& piece : cell.Polys)
    pieces.Write(piece);
}

void WriteIndexList(ScmWriter& out, const std::vector<LwmCell>& cells, bool fillAsPoly) {
  constexpr int asWritten = 3;  // the Cell has no fill of its own but what its statements say
  out.EmptyLine().Text("LWMIndexList( ").Integer(std::ssize(cells)).EndLine();
  for (const LwmCell& cell : cells) {
    const int type = IsCellFilled(cell.Fills, fillAsPoly) ? cell.Fills.front()->Type : asWritten;
    out.Text("        ").Integer(cell.CellX).Text(" ").Integer(cell.CellY);
    out.Text(" ").Integer(type).Line(" 0 0");
  }
  out.Line("        )");
}

/// Somewhat above what the text will take.
std::size_t ExpectedSize(const std::vector<LwmCell>& cells) {
  constexpr std::size_t frame = 400, cellLines = 50, fillLine = 60, pieceLines = 85, pointLine = 17;
  std::size_t size = frame;
  for (const LwmCell& cell : cells) {
    size += cellLines + cell.Fills.size() * fillLine;
    for (const LwmPolyRec& piece : cell.Polys)
      size += pieceLines + piece.Points.size() * pointLine;
  }
  return size;
}

}  // namespace

std::string LwmText(const std::vector<LwmCell>& cells, const LwmTextOptions& options) {
  ScmWriter out;
  out.Reserve(ExpectedSize(cells));
  WriteHead(out, options);
  PieceWriter pieces(out, options.Kind);
  std::int64_t number = 0;
  for (const LwmCell& cell : cells)
    WriteCell(out, pieces, cell, number++, options.FillAsPoly);
  WriteIndexList(out, cells, options.FillAsPoly);
  out.EmptyLine().Line("LWMEnd").EmptyLine();
  return out.Take();
}

}  // namespace landsmith
