#include "raster/CompileFills.h"

#include "compile/CompileStep.h"
#include "compile/LwmText.h"

#include <cstddef>
#include <utility>

namespace landsmith {
namespace {

GeoBox HeaderBounds(const ProjectState& project) {
  GeoBox bounds;
  for (std::size_t i = 1; i < project.Fills.size(); ++i)
    if (project.Fills[i].Selected) bounds.Add(project.Fills[i].Box);
  return bounds;
}

}  // namespace

std::optional<std::string> FillSource(const ProjectState& project, const AppSettings& settings) {
  const FillList fills = CollectFills(project);
  if (fills.empty()) return std::nullopt;
  return LwmText(GroupByCell({}, fills), {LwmFileKind::Fills, HeaderBounds(project), settings.FillAsPoly});
}

void CompileFills(const CompileContext& context) {
  auto source = FillSource(context.project, context.settings);
  if (!source) {
    context.dialogs.Message(MessageKind::Info, "No fill is selected: nothing was compiled.");
    return;
  }
  CompileStepRequest request;
  request.BaseName = "FILLS_" + ProjectFileName(context.project.Name) + "_LWM2";
  request.Source = std::move(*source);
  request.ToolOptions = LwmToolOptions;
  CompileStep(context, request);
}

}  // namespace landsmith
