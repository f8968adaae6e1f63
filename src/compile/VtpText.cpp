#include "compile/VtpText.h"

#include "compile/Prefetch.h"
#include "compile/ScmFrame.h"
#include "vector/LineType.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace landsmith {
namespace {

void WritePoint(ScmWriter& out, const RunPoint& point) {
  const bool isStep = point.Kind == StepKind;
  out.Text(isStep ? "         VTPCPoint( " : "      VTPWPoint( ").Integer(point.X).Text(" ").Integer(point.Y);
  if (!isStep) out.Text(" ").Integer(point.Kind);
  if (point.WidthByte != 0) out.Text(" ").Integer(point.WidthByte);
  out.Line(" )");
}

/// Line ends in the name become blanks: what follows would be read as a statement.
void WriteComment(ScmWriter& out, std::string_view name) {
  std::string text(name);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  out.Text(";").Line(text);
}

/// How the polys of lines stand in the text.
struct LineForm {
  static constexpr std::string_view FileHeader = "VTPFileHeader";

  static void Write(ScmWriter& out, const VtpPoly& poly) {
    WriteComment(out, poly.Name);
    out.Text("   VTPPoly( 2 ").Integer(std::ssize(poly.Points)).Line(" 1 )");
    for (const RunPoint& point : poly.Points)
      WritePoint(out, point);
    out.EmptyLine();
  }
  static const RunPoint* Points(const VtpPoly& poly) { return poly.Points.data(); }
  /// Somewhat above what the poly will take.
  static std::size_t ExpectedSize(const VtpPoly& poly) {
    constexpr std::size_t pointLine = 42, polyLines = 64;
    return polyLines + poly.Name.size() + poly.Points.size() * pointLine;
  }
};

/// How the polys of polygons stand in the text.
struct AreaForm {
  static constexpr std::string_view FileHeader = VtpAreaFileHeader;

  static void Write(ScmWriter& out, const ConvexPart& part) {
    out.Text("   VTPPoly( 2 ").Integer(std::ssize(part)).Line(" 0 )");
    for (const CellPoint& point : part)
      out.Text("      VTPPointXY( ").Integer(point.X).Text(" ").Integer(point.Y).Line(" )");
  }
  static const CellPoint* Points(const ConvexPart& part) { return part.data(); }
  static std::size_t ExpectedSize(const ConvexPart& part) {
    constexpr std::size_t pointLine = 34, polyLine = 26;
    return polyLine + part.size() * pointLine;
  }
};

template <class Form, class Poly>
void WriteTexture(ScmWriter& out, const VtpTextureOf<Poly>& texture) {
  out.Text("VTPTexID( ").Integer(texture.TexId).Line(" 0 )");
  out.Text("VTPPolyCount( ").Integer(std::ssize(texture.Polys)).Line(" )").EmptyLine();
  for (const Poly& poly : texture.Polys)
    Form::Write(out, poly);
}

template <class Form, class Poly>
void PrefetchPoints(const VtpLayerOf<Poly>& layer) {
  for (const VtpTextureOf<Poly>& texture : layer.Textures)
    for (const Poly& poly : texture.Polys)
      Prefetch(Form::Points(poly));
}

template <class Form, class Poly>
void WriteCell(ScmWriter& out, const VtpCellOf<Poly>& cell, std::int64_t number, bool replace) {
  WriteCellLabel(out, number);
  out.EmptyLine().Text("VTPArea( ").Integer(std::ssize(cell.Layers)).Text(" 1 ");
  out.Integer(cell.CellX & 31).Text(" ").Integer(cell.CellY & 31).Line(" )");
  for (const VtpLayerOf<Poly>& layer : cell.Layers) {
    PrefetchPoints<Form>(layer);
    out.Text("VTPLayer( ").Integer(layer.Layer).Text(replace ? " 1 " : " 0 ");
    out.Integer(std::ssize(layer.Textures)).Line(" 0 )");
    for (const VtpTextureOf<Poly>& texture : layer.Textures)
      WriteTexture<Form>(out, texture);
  }
}

void WriteTextureList(ScmWriter& out, const std::vector<std::string>& textures) {
  out.EmptyLine().Text("VTPTextureList( ").Integer(std::ssize(textures)).EndLine();
  for (const std::string& texture : textures)
    out.Text("        ").Text(texture).Line(IsNumericTexture(texture) ? " 0 0 0 4" : "");
  out.Line("        )");
}

/// Somewhat above what the text will take.
template <class Form, class Poly>
std::size_t ExpectedSize(const std::vector<VtpCellOf<Poly>>& cells) {
  constexpr std::size_t frame = 1000, groupLines = 160;
  std::size_t size = frame;
  for (const VtpCellOf<Poly>& cell : cells)
    for (const VtpLayerOf<Poly>& layer : cell.Layers)
      for (const VtpTextureOf<Poly>& texture : layer.Textures) {
        size += groupLines;
        for (const Poly& poly : texture.Polys)
          size += Form::ExpectedSize(poly);
      }
  return size;
}

template <class Form, class Poly>
std::string TextOf(const std::vector<VtpCellOf<Poly>>& cells, const std::vector<std::string>& textures,
                   const VtpTextOptions& options) {
  ScmWriter out;
  out.Reserve(ExpectedSize<Form>(cells));
  out.Line("Set( BUF 8192 )").EmptyLine();
  WriteHeader(out, options.Bounds);
  out.EmptyLine().Line(Form::FileHeader);
  std::int64_t number = 0;
  for (const VtpCellOf<Poly>& cell : cells)
    WriteCell<Form>(out, cell, number++, options.Replace);
  WriteVtpIndexList(out, cells);
  WriteTextureList(out, textures);
  WriteVtpEnd(out);
  return out.Take();
}

}  // namespace

std::string VtpText(const std::vector<VtpCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options) {
  return TextOf<LineForm>(cells, textures, options);
}

std::string VtpText(const std::vector<VtpPolyCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options) {
  return TextOf<AreaForm>(cells, textures, options);
}

}  // namespace landsmith
