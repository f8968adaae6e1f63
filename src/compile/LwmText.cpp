#include "compile/LwmText.h"

#include "compile/ScmWriter.h"
#include "core/Numbers.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace landsmith {
namespace {

void WriteHeader(ScmWriter& out, const LwmTextOptions& options) {
  if (options.Kind != LwmFileKind::Fills) out.Line("Set( BUF 8192 )").EmptyLine();
  const GeoBox& bounds = options.Bounds;
  out.Text("Header( 1 ").Integer(Floor(bounds.NLat + 1)).Text(" ").Integer(Floor(bounds.SLat));
  out.Text(" ").Integer(Floor(bounds.ELon + 1)).Text(" ").Integer(Floor(bounds.WLon)).Line(" )");
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

void WritePieceHead(ScmWriter& out, const LwmPolyRec& piece, LwmFileKind file) {
  const LwmCutPoly& poly = *piece.Poly;
  out.Text(poly.Kind == LwmPieceKind::Flatten ? "LWMAreaDrawPoly( 1 2 " : "LWMAreaDrawPoly( 1 3 ");
  out.Integer(piece.AreaX).Text(" ").Integer(piece.AreaY).Line(" )").EmptyLine();
  const bool isSloped = file == LwmFileKind::Sloped;
  out.Text(isSloped ? "LWMPoly3( " : "LWMPoly( ").Integer(std::ssize(piece.Points));
  out.Text(" ").Integer(static_cast<int>(poly.Kind)).Text(" ");
  if (isSloped) out.Shortest(static_cast<float>(poly.Alt2)).Text(" ");
  out.Shortest(static_cast<float>(poly.Alt1)).Line(" ");
}

void WritePiece(ScmWriter& out, const LwmPolyRec& piece, LwmFileKind file) {
  WritePieceHead(out, piece, file);
  const AltitudeScale scale(piece.Poly->Alt2, piece.Poly->Alt1);
  for (const PiecePoint& point : piece.Points) {
    out.Text("   ").Integer(point.X).Text(" ").Integer(point.Y);
    if (file == LwmFileKind::Sloped) out.Text(" ").Integer(scale.ByteOf(point.Alt));
    out.EndLine();
  }
  out.Line("     )");
}

void WriteCell(ScmWriter& out, const LwmCell& cell, std::int64_t number, const LwmTextOptions& options) {
  out.EmptyLine().Text(":cell").TwoDigits(number).EndLine().EmptyLine();
  WriteFills(out, cell.Fills, options.FillAsPoly);
  for (const LwmPolyRec& piece : cell.Polys)
    WritePiece(out, piece, options.Kind);
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
  WriteHeader(out, options);
  std::int64_t number = 0;
  for (const LwmCell& cell : cells)
    WriteCell(out, cell, number++, options);
  WriteIndexList(out, cells, options.FillAsPoly);
  out.EmptyLine().Line("LWMEnd").EmptyLine();
  return out.Take();
}

}  // namespace landsmith
