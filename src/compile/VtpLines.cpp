#include "compile/VtpLines.h"

#include "compile/CompileStep.h"
#include "compile/VtpClip.h"
#include "compile/VtpItems.h"
#include "compile/VtpShape.h"
#include "compile/VtpText.h"
#include "compile/VtpTree.h"
#include "vector/LineType.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace landsmith {
namespace {

constexpr ItemWords LineWords{"compiling the VTP lines", "line"};

/// The finished runs of one line, which adds to the bounds; none when all of it falls on one Point.
std::vector<LineRun> FinishedRuns(const LineRec& line, const VtpItem& item, const AppSettings& settings,
                                  GeoBox& bounds) {
  const auto points = SnapLinePoints(ShiftedVtp(line.Points, settings));
  if (points.size() < 2) return {};
  for (const LinePoint& point : points)
    bounds.Add(point.Lat, point.Lon);
  auto runs = ClipLineToCells(points, line.Name, item.TexId, item.Layer);
  for (LineRun& run : runs) {
    AddLineEnds(run);
    PackRunPoints(run);
  }
  return runs;
}

}  // namespace

std::optional<std::string> VtpLineSource(const ProjectState& project, const AppSettings& settings) {
  TextureNames textures;
  std::vector<LineRun> runs;
  GeoBox bounds;
  const auto fieldsOf = [](const std::string& type) { return std::get<VtpLine>(DecodeLineType(type)); };
  const std::vector<VtpItem> lines = CollectVtpItems(project.Lines, fieldsOf, LineWords, textures);
  runs.reserve(lines.size() + lines.size() / 2);  // most lines stay in one Cell or two
  for (const VtpItem& item : lines) {
    const LineRec& line = project.Lines[item.Index];
    try {
      for (LineRun& run : FinishedRuns(line, item, settings, bounds))
        runs.push_back(std::move(run));
    } catch (const RuntimeError& failure) {
      throw ItemFailure(LineWords, item.Index, line.Name, failure.what());
    }
  }
  if (runs.empty()) return std::nullopt;
  return VtpText(GroupRuns(std::move(runs)), textures.Names(), {bounds, settings.VTPReplace});
}

void CompileVTPLines(const CompileContext& context) {
  auto source = VtpLineSource(context.project, context.settings);
  if (!source) {
    context.dialogs.Message(MessageKind::Info,
                            "No selected VTP line has two different points: nothing was compiled.");
    return;
  }
  CompileStepRequest request;
  request.BaseName = ProjectFileName(context.project.Name) + "_VTPL";
  request.Source = std::move(*source);
  CompileStep(context, request);
}

bool HasSelectedVtpLine(const ProjectState& project) {
  return std::any_of(project.Lines.begin(), project.Lines.end(), IsVtpItem<LineRec>);
}

}  // namespace landsmith
