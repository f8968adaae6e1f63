#include "editor/HoverLabel.h"

#include "editor/Picking.h"

#include <string>

namespace landsmith {

namespace {

constexpr int HiddenMilliseconds = 100, ShownMilliseconds = 500;
constexpr std::int32_t LabelRight = 20, LabelAbove = 10;

std::string NameOr(std::string_view name, const char* kind, std::size_t item) {
  return name.empty() ? kind + std::to_string(item + 1) : std::string(name);
}

/// An object's name is the last field of its description.
std::string_view NameOfObject(const ObjectRec& object) {
  const std::size_t bar = object.Description.rfind('|');
  return bar == std::string::npos ? std::string_view() : std::string_view(object.Description).substr(bar + 1);
}

std::string LabelAt(ModeContext& context) {
  const ViewState& view = context.session.view;
  const ProjectState& project = context.session.project;
  const GeometryIndex& index = context.display.Index();
  const ModeId mode = context.session.tool.Mode;
  const WorldPixel at = ToWorldPixel(view, view.Mouse);
  const auto tries = [&](LayerKind kind, ModeId own) {
    const bool oneKind = mode == ModeId::Line || mode == ModeId::Poly || mode == ModeId::Object;
    return view.Shows(kind) && (!oneKind || mode == own);
  };
  if (tries(LayerKind::Objects, ModeId::Object))
    if (const auto object = FindObjectAt(project.Objects, at, view.Scale))
      return NameOr(NameOfObject(project.Objects[*object]), "Object #", *object);
  if (tries(LayerKind::Lines, ModeId::Line))
    if (const auto line = FindSegmentUnder(project.Lines, index.Lines, at, view.Scale))
      return NameOr(project.Lines[line->item].Name, "Line #", line->item);
  if (tries(LayerKind::Polys, ModeId::Poly))
    if (const auto poly = FindSegmentUnder(project.Polys, index.Polys, at, view.Scale))
      return NameOr(project.Polys[poly->item].Name, "Poly #", poly->item);
  return {};
}

}  // namespace

void SetHoverLabel(ModeContext& context, std::string_view text, std::int32_t right, std::int32_t above) {
  const ViewState& view = context.session.view;
  context.labelShown = !text.empty();
  context.host.ShowHoverLabel(text, {static_cast<std::int32_t>(view.Mouse.x) + view.ScaleWidth / 2 + right,
                                     static_cast<std::int32_t>(view.Mouse.y) + view.ScaleHeight / 2 - above});
}

void HideHoverLabel(ModeContext& context) {
  SetHoverLabel(context, {}, 0, 0);
}

void LabelSoon(ModeContext& context) {
  if (context.session.settings.ShowLabels == 0) return;
  const int wait = context.labelShown ? ShownMilliseconds : HiddenMilliseconds;
  if (!context.host.StartTimer(TimerId::Label, wait)) ShowLabelUnderMouse(context);
}

void ShowLabelUnderMouse(ModeContext& context) {
  if (context.session.settings.ShowLabels == 0) return;
  SetHoverLabel(context, LabelAt(context), LabelRight, LabelAbove);
}

}  // namespace landsmith
