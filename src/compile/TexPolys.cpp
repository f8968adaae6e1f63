#include "compile/TexPolys.h"

#include "compile/CompileStep.h"
#include "compile/ItemFailure.h"
#include "compile/ScmWriter.h"
#include "compile/TexSurface.h"
#include "core/Color.h"
#include "core/Numbers.h"
#include "vector/LineType.h"
#include "vector/PathOperations.h"
#include "vector/PolyOperations.h"
#include "vector/PolyType.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

constexpr ItemWords PolyWords{"compiling the textured polygons", "polygon"};
constexpr int MiddleDecimals = 8;

/// The bitmap's name without its extension; empty for a surface of plain colour.
std::string BitmapStem(const std::string& name) {
  constexpr std::size_t extension = 4;
  std::size_t length = name.size();
  for (std::size_t dropped = 0; dropped < extension && length > 0; ++dropped) {
    --length;
    while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U)
      --length;  // to the first byte of the character
  }
  if (length == 0 && !name.empty())
    throw RuntimeError("the bitmap's name \"" + name + "\" is only an extension");
  return name.substr(0, length);
}

void WriteHead(ScmWriter& out, const GeoBox& bounds) {
  const std::int32_t north = Floor(bounds.NLat + 1.5);
  const std::int32_t south = Floor(bounds.SLat - 0.5);
  out.Text("Header( 1 ").Integer(north).Text(" ").Integer(south).Text(" ").Integer(Floor(bounds.ELon + 1.5));
  out.Text(" ").Integer(Floor(bounds.WLon - 0.5)).Line(" )");
  out.Text("LatRange( ").Integer(south).Text(" ").Integer(north).Line(" )").EmptyLine();
}

void WritePlace(ScmWriter& out, const TexSurface& surface) {
  out.Fixed(surface.Middle.lat, MiddleDecimals).Text(" ").Fixed(surface.Middle.lon, MiddleDecimals);
}

void WriteCall(ScmWriter& out, const TexPolyType& type, const TexSurface& surface) {
  out.Text("Area( 5 ");
  WritePlace(out, surface);
  out.Line(" 50 )");
  out.Text("LayerCall( :lcall ").Text(type.Priority).Line(" )");
  out.Line("Jump( : )").Line(":lcall");
  out.Text("RefPoint( 2 :return 1 ");
  WritePlace(out, surface);
  out.Text(" E= ").Fixed(surface.MiddleAlt, MiddleDecimals).Text(" v1= ").Text(type.V1);
  out.Text(" v2= ").Integer(surface.RadiusMetres).Line(" )");
  out.Line("BGLVersion( 0800 )");
}

void WriteTextures(ScmWriter& out, const std::string& stem, bool hasNight) {
  out.Line("TextureList( 0 ");
  out.Text("       6 FF 255 255 255 0 50.000000 ").Text(stem).Line(".bmp");
  if (hasNight) out.Text("     256 FF 255 255 255 0 50.000000 ").Text(stem).Line("_lm.bmp");
  out.Line("       )");
}

void WriteMaterial(ScmWriter& out, std::int32_t color) {
  const ColorParts parts = SplitColor(color);
  out.Text("MaterialList( 0   ").Fixed(parts.R / 255.0, 3).Text(" ").Fixed(parts.G / 255.0, 3);
  out.Text(" ").Fixed(parts.B / 255.0, 3);
  out.Line(" 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )");
}

/// A blank stands where a negative number has its sign, so that the columns hold.
void WriteSigned(ScmWriter& out, double metres) {
  const std::string number = FixedText(metres, 4, 4);
  if (!number.starts_with('-')) out.Text(" ");
  out.Text(number);
}

void WriteVertices(ScmWriter& out, const std::vector<TexVertex>& vertices) {
  out.Line("VertexList( 0 ");
  std::int32_t number = 0;
  for (const TexVertex& vertex : vertices) {
    out.Text("      ");
    WriteSigned(out, vertex.X);
    out.Text(" ").Fixed(vertex.Y, 7, 4).Text(" ");
    WriteSigned(out, vertex.Z);
    out.Text(" 0.0 1.0 0.0 ").Fixed(static_cast<double>(vertex.U), 3, 2);
    out.Text(" ").Fixed(static_cast<double>(vertex.V), 3, 2);
    out.Text(" ; vertex #").Fixed(number++, 0, 3).EndLine();
  }
  out.Line("       )");
}

/// Against the direction of the ring: counter-clockwise for who looks down on it.
void WriteTriangles(ScmWriter& out, const std::vector<Triangle>& triangles) {
  out.Line("DrawTriList( 0 ");
  for (const Triangle& triangle : triangles) {
    out.Text("       ").Fixed(triangle.C, 0, 3).Text(" ").Fixed(triangle.B, 0, 3);
    out.Text(" ").Fixed(triangle.A, 0, 3).EndLine();
  }
  out.Line("       )");
}

void WriteSurface(ScmWriter& out, std::size_t index, const PolyRec& poly, const TexPolyType& type,
                  const TexSurface& surface) {
  const std::string stem = BitmapStem(type.Name);
  for (const std::string* field : {&type.Name, &type.Priority, &type.V1})
    RequireOneLine(*field);
  const auto night = ParseInt32(type.Night);
  if (!night) throw RuntimeError("Night \"" + type.Night + "\" is no whole number");
  out.Text("; Textured Poly # ").Integer(static_cast<std::int64_t>(index) + 1).EndLine().EmptyLine();
  WriteCall(out, type, surface);
  if (!stem.empty()) WriteTextures(out, stem, *night == 1);
  WriteMaterial(out, poly.Color);
  WriteVertices(out, surface.Vertices);
  out.Line(stem.empty() ? "SetMaterial( 0 -1 )" : "SetMaterial( 0 0 )");
  WriteTriangles(out, surface.Parts.Triangles);
  out.Line("EndVersion").Line(":return").Line("Return").Line("EndA").EmptyLine();
}

/// The fields, with one pair for each vertex.
TexPolyType FieldsOf(PolyRec poly) {
  SetTexCoords(poly, false);
  return std::get<TexPolyType>(DecodePolyType(poly.Type));
}

/// Their places in the project; the bounds are those of all that is selected.
std::vector<std::size_t> CollectTexPolys(const ProjectState& project, GeoBox& bounds) {
  std::vector<std::size_t> collected;
  for (std::size_t i = 0; i < project.Polys.size(); ++i) {
    const PolyRec& poly = project.Polys[i];
    if (!poly.Selected || TypeHead(poly.Type) != "TEX") continue;
    bounds.Add(poly.Box);
    if (poly.Points.size() >= PathTraits<PolyRec>::LeastPoints) collected.push_back(i);
  }
  return collected;
}

}  // namespace

std::optional<TexSource> TexPolySource(const ProjectState& project) {
  GeoBox bounds;
  const std::vector<std::size_t> polys = CollectTexPolys(project, bounds);
  if (polys.empty()) return std::nullopt;
  TexSource source;
  ScmWriter out;
  for (const std::size_t index : polys) {
    const PolyRec& poly = project.Polys[index];
    try {
      const TexPolyType type = FieldsOf(poly);
      const TexSurface surface = MakeTexSurface(poly.Points, type);
      WriteSurface(out, index, poly, type, surface);
      if (surface.Parts.HasFault) ++source.Untriangulated;
    } catch (const RuntimeError& failure) {
      throw ItemFailure(PolyWords, index, poly.Name, failure.what());
    }
  }
  ScmWriter head;  // the bounds are those of places now
  WriteHead(head, bounds);
  source.Text = head.Take() + out.Take();
  return source;
}

void CompileTexPolys(const CompileContext& context) {
  std::optional<TexSource> source = TexPolySource(context.project);
  if (!source) {
    context.dialogs.Message(MessageKind::Info,
                            "No selected textured polygon has three vertices: nothing was compiled.");
    return;
  }
  for (std::size_t fault = 0; fault < source->Untriangulated; ++fault)
    context.dialogs.Message(MessageKind::Error, "Error on the triangulation!");
  CompileStepRequest request;
  request.BaseName = ProjectFileName(context.project.Name) + "_TEXP";
  request.Source = std::move(source->Text);
  request.FailureLine = "There was a compilation error in the textured polygons!";
  CompileStep(context, request);
}

}  // namespace landsmith
