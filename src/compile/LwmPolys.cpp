#include "compile/LwmPolys.h"

#include "compile/CompileStep.h"
#include "compile/ItemFailure.h"
#include "compile/LwmText.h"
#include "compile/PolyClip.h"
#include "core/Numbers.h"
#include "vector/AltitudePlane.h"
#include "vector/LineType.h"
#include "vector/PolyType.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

constexpr ItemWords PolyWords{"compiling the LWM polygons", "polygon"};

struct LwmPoly {
  std::size_t index = 0;  ///< in the project
  LwmPieceKind kind = LwmPieceKind::Water;
  double highest = 0, lowest = 0;
  std::optional<AltitudePlane> slope;  ///< of a sloped polygon
};

bool IsSloped(const LwmPoly& poly) {
  return poly.slope.has_value();
}

bool IsWanted(const PolyRec& poly) {
  return poly.Selected && TypeHead(poly.Type) == "LWM";
}

LwmPieceKind KindOf(LwmKind kind) {
  if (kind == LwmKind::Water) return LwmPieceKind::Water;
  return kind == LwmKind::Land ? LwmPieceKind::Land : LwmPieceKind::Flatten;
}

/// In metres. Both it and what is written of it, a single, must be numbers.
double AltitudeOf(const std::string& text, std::string_view which) {
  const auto altitude = ParseNumber(text);
  if (!altitude || !ParseFloat(text))
    throw RuntimeError("the " + std::string(which) + " altitude \"" + text + "\" is no number of metres");
  return *altitude;
}

const PolyPoint& VertexOf(const PolyRec& poly, const std::string& text, std::string_view which) {
  const auto number = ParseInt32(text);
  if (!number || *number < 1 || *number > std::ssize(poly.Points))
    throw RuntimeError("the vertex of the " + std::string(which) + " altitude is \"" + text +
                       "\", which is no number from 1 to " + std::to_string(poly.Points.size()));
  return poly.Points[static_cast<std::size_t>(*number) - 1];
}

AltitudePlane SlopeOf(const PolyRec& poly, const LwmPolyType& type, const LwmPoly& altitudes) {
  const PolyPoint& high = VertexOf(poly, type.HighestPoint, "highest");
  const PolyPoint& low = VertexOf(poly, type.LowestPoint, "lowest");
  const auto slope =
      PlaneThrough({high.Lat, high.Lon}, {low.Lat, low.Lon}, altitudes.highest, altitudes.lowest);
  if (!slope)
    throw RuntimeError("vertices " + type.HighestPoint + " and " + type.LowestPoint +
                       " lie at one place, with the altitudes " + type.Highest + " and " + type.Lowest);
  return *slope;
}

LwmPoly Decoded(const PolyRec& poly) {
  const PolyType decoded = DecodePolyType(poly.Type);
  const auto* type = std::get_if<LwmPolyType>(&decoded);
  if (!type) throw RuntimeError("the type \"" + poly.Type + "\" names neither Land nor Water nor Flatten");
  LwmPoly result;
  result.kind = KindOf(type->Kind);
  result.highest = AltitudeOf(type->Highest, "highest");
  result.lowest = AltitudeOf(type->Lowest, "lowest");
  if (result.highest != result.lowest) result.slope = SlopeOf(poly, *type, result);
  return result;
}

std::vector<LwmPoly> CollectLwmPolys(const ProjectState& project) {
  std::vector<LwmPoly> collected;
  for (std::size_t i = 0; i < project.Polys.size(); ++i) {
    if (!IsWanted(project.Polys[i])) continue;
    try {
      collected.push_back(Decoded(project.Polys[i]));
    } catch (const RuntimeError& failure) {
      throw ItemFailure(PolyWords, i, project.Polys[i].Name, failure.what());
    }
    collected.back().index = i;
  }
  return collected;
}

/// What one file takes: the flat polygons or the sloped ones.
struct LwmFileContent {
  std::vector<LwmCutPoly> polys;
  FillList fills;
  GeoBox bounds;

  void AddPolys(const ProjectState& project, const std::vector<LwmPoly>& collected, LwmFileKind kind);
  void AddFills(const ProjectState& project);
  /// Nothing without a piece and a fill.
  std::optional<std::string> Text(LwmFileKind kind, bool fillAsPoly) const;
};

void LwmFileContent::AddPolys(const ProjectState& project, const std::vector<LwmPoly>& collected,
                              LwmFileKind kind) {
  for (const LwmPoly& poly : collected) {
    if (IsSloped(poly) != (kind == LwmFileKind::Sloped)) continue;
    const PolyRec& record = project.Polys[poly.index];
    try {
      LwmCutPoly cut{poly.kind, poly.highest, poly.lowest,
                     ClipPolyToAreas(record.Points, poly.slope ? &*poly.slope : nullptr)};
      if (cut.Cut.IsDropped) continue;
      bounds.Add(cut.Cut.Box);
      polys.push_back(std::move(cut));
    } catch (const RuntimeError& failure) {
      throw ItemFailure(PolyWords, poly.index, record.Name, failure.what());
    }
  }
}

void LwmFileContent::AddFills(const ProjectState& project) {
  fills = CollectFills(project);
  for (const FillRec* fill : fills)
    bounds.Add(fill->Box);
}

std::optional<std::string> LwmFileContent::Text(LwmFileKind kind, bool fillAsPoly) const {
  const std::vector<LwmCell> cells = GroupByCell(polys, fills);
  if (cells.empty()) return std::nullopt;
  return LwmText(cells, {kind, bounds, fillAsPoly});
}

std::optional<std::string> PolyText(const ProjectState& project, const std::vector<LwmPoly>& collected,
                                    LwmFileKind kind) {
  LwmFileContent content;
  content.AddPolys(project, collected, kind);
  return content.Text(kind, false);
}

/// True when the tool had nothing against it.
bool CompileSource(const CompileContext& context, std::string_view suffix, std::string&& source) {
  CompileStepRequest request;
  request.BaseName = ProjectFileName(context.project.Name) + std::string(suffix);
  request.Source = std::move(source);
  request.ToolOptions = LwmToolOptions;
  return CompileStep(context, request);
}

constexpr std::string_view FlatSuffix = "_LWM2", SlopedSuffix = "_LWM3";

}  // namespace

LwmSources LwmPolySources(const ProjectState& project, LwmPolyChoice choice) {
  const std::vector<LwmPoly> collected = CollectLwmPolys(project);
  LwmSources sources;
  sources.Sloped = PolyText(project, collected, LwmFileKind::Sloped);
  if (choice == LwmPolyChoice::FlatAndSloped) sources.Flat = PolyText(project, collected, LwmFileKind::Flat);
  return sources;
}

LwmSharedSource LwmFillAndPolySource(const ProjectState& project, const AppSettings& settings) {
  const std::vector<LwmPoly> collected = CollectLwmPolys(project);
  LwmFileContent content;
  content.AddFills(project);
  content.AddPolys(project, collected, LwmFileKind::Flat);
  return {content.Text(LwmFileKind::Flat, settings.FillAsPoly),
          std::any_of(collected.begin(), collected.end(), IsSloped)};
}

void CompileLWMPolys(const CompileContext& context, LwmPolyChoice choice) {
  LwmSources sources = LwmPolySources(context.project, choice);
  if (!sources.Sloped && !sources.Flat) {
    context.dialogs.Message(
        MessageKind::Info,
        choice == LwmPolyChoice::FlatAndSloped
            ? "No selected LWM polygon covers any ground: nothing was compiled."
            : "No selected sloped LWM polygon covers any ground: no file was made for them.");
    return;
  }
  if (sources.Sloped && !CompileSource(context, SlopedSuffix, *std::move(sources.Sloped))) return;
  if (sources.Flat) CompileSource(context, FlatSuffix, *std::move(sources.Flat));
}

void CompileLWMFillsAndPolys(const CompileContext& context) {
  LwmSharedSource shared = LwmFillAndPolySource(context.project, context.settings);
  if (shared.Text)
    CompileSource(context, FlatSuffix, *std::move(shared.Text));
  else if (!shared.LWMThirdFile)
    context.dialogs.Message(MessageKind::Info,
                            "No fill is selected, and no selected LWM polygon covers any "
                            "ground: nothing was compiled.");
  if (shared.LWMThirdFile) CompileLWMPolys(context, LwmPolyChoice::SlopedAlone);
}

}  // namespace landsmith
