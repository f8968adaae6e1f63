#include "compile/VtpText.h"

#include "compile/Prefetch.h"
#include "compile/ScmWriter.h"
#include "core/Numbers.h"
#include "vector/LineType.h"

namespace landsmith {
namespace {

void WriteHeader(ScmWriter& out, const GeoBox& bounds) {
  out.Line("Set( BUF 8192 )").EmptyLine();
  out.Text("Header( 1 ").Integer(Floor(bounds.NLat + 1)).Text(" ").Integer(Floor(bounds.SLat));
  out.Text(" ").Integer(Floor(bounds.ELon + 1)).Text(" ").Integer(Floor(bounds.WLon)).Line(" )");
  out.EmptyLine().Line("VTPFileHeader");
}

void WritePoint(ScmWriter& out, const RunPoint& point) {
  const bool isStep = point.Kind == StepKind;
  out.Text(isStep ? "         VTPCPoint( " : "      VTPWPoint( ").Integer(point.X).Text(" ").Integer(point.Y);
  if (!isStep) out.Text(" ").Integer(point.Kind);
  if (point.WidthByte != 0) out.Text(" ").Integer(point.WidthByte);
  out.Line(" )");
}

void WriteTexture(ScmWriter& out, const VtpTexture& texture) {
  out.Text("VTPTexID( ").Integer(texture.TexId).Line(" 0 )");
  out.Text("VTPPolyCount( ").Integer(std::ssize(texture.Polys)).Line(" )").EmptyLine();
  for (const VtpPoly& poly : texture.Polys) {
    out.Text(";").Line(poly.Name);
    out.Text("   VTPPoly( 2 ").Integer(std::ssize(poly.Points)).Line(" 1 )");
    for (const RunPoint& point : poly.Points)
      WritePoint(out, point);
    out.EmptyLine();
  }
}

void PrefetchPoints(const VtpLayer& layer) {
  for (const VtpTexture& texture : layer.Textures)
    for (const VtpPoly& poly : texture.Polys)
      Prefetch(poly.Points.data());
}

void WriteCell(ScmWriter& out, const VtpCell& cell, std::int64_t number, bool replace) {
  out.EmptyLine().Text(":cell").TwoDigits(number).EndLine().EmptyLine();
  out.Text("VTPArea( ").Integer(std::ssize(cell.Layers)).Text(" 1 ");
  out.Integer(cell.CellX & 31).Text(" ").Integer(cell.CellY & 31).Line(" )");
  for (const VtpLayer& layer : cell.Layers) {
    PrefetchPoints(layer);
    out.Text("VTPLayer( ").Integer(layer.Layer).Text(replace ? " 1 " : " 0 ");
    out.Integer(std::ssize(layer.Textures)).Line(" 0 )");
    for (const VtpTexture& texture : layer.Textures)
      WriteTexture(out, texture);
  }
}

void WriteIndexList(ScmWriter& out, const std::vector<VtpCell>& cells) {
  out.EmptyLine().Text("VTPIndexList( ").Integer(std::ssize(cells)).EndLine();
  for (const VtpCell& cell : cells)
    out.Text("        ").Integer(cell.CellX).Text(" ").Integer(cell.CellY).Line(" 0");
  out.Line("        )");
}

void WriteTextureList(ScmWriter& out, const std::vector<std::string>& textures) {
  out.EmptyLine().Text("VTPTextureList( ").Integer(std::ssize(textures)).EndLine();
  for (const std::string& texture : textures)
    out.Text("        ").Text(texture).Line(IsNumericTexture(texture) ? " 0 0 0 4" : "");
  out.Line("        )");
}

/// Somewhat above what the text will take.
std::size_t ExpectedSize(const std::vector<VtpCell>& cells) {
  constexpr std::size_t pointLine = 42, polyLines = 64, groupLines = 160;
  std::size_t size = 1000;
  for (const VtpCell& cell : cells)
    for (const VtpLayer& layer : cell.Layers)
      for (const VtpTexture& texture : layer.Textures) {
        size += groupLines;
        for (const VtpPoly& poly : texture.Polys)
          size += polyLines + poly.Name.size() + poly.Points.size() * pointLine;
      }
  return size;
}

}  // namespace

std::string VtpText(const std::vector<VtpCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options) {
  ScmWriter out;
  out.Reserve(ExpectedSize(cells));
  WriteHeader(out, options.Bounds);
  std::int64_t number = 0;
  for (const VtpCell& cell : cells)
    WriteCell(out, cell, number++, options.Replace);
  WriteIndexList(out, cells);
  WriteTextureList(out, textures);
  out.EmptyLine().Line("VTPEnd").EmptyLine();
  return out.Take();
}

}  // namespace landsmith
