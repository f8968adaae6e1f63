#include "editor/ModeContext.h"

namespace landsmith {

namespace {

constexpr int RedrawMilliseconds = 20;
constexpr std::int32_t LabelRight = 20, LabelAbove = 10;

std::string LineLabel(const ProjectState& project, std::size_t line) {
  const std::string& name = project.Lines[line].Name;
  return name.empty() ? "Line #" + std::to_string(line + 1) : name;
}

}  // namespace

void ZoomAboutCenter(ModeContext& context, ZoomStep step) {
  StepZoom(context.session.view, step);
  SetDisplayExtent(context.session.view);
  context.display.DisplayAll();
}

void ZoomAtPoint(ModeContext& context, PixelOffset at, ZoomStep step) {
  PanDisplay(context.session.view, at.x, at.y);
  ZoomAboutCenter(context, step);
}

void RedrawSoon(ModeContext& context, TimerId timer) {
  if (!context.host.StartTimer(timer, RedrawMilliseconds)) context.display.RedrawOverlay();
}

void ShowLabelUnderMouse(ModeContext& context) {
  const ViewState& view = context.session.view;
  if (context.session.settings.ShowLabels == 0 || !view.Shows(LayerKind::Lines)) return;
  const WorldPixel place = ToWorldPixel(view, view.Mouse);
  const auto& lines = context.session.project.Lines;
  const auto pieces = context.display.Index().Lines.PiecesMeeting(CursorBox(place, view.Scale));
  const auto hit = FindSegmentAt(lines, pieces, place, view.Scale);
  const PixelPoint at{static_cast<std::int32_t>(view.Mouse.x) + view.ScaleWidth / 2 + LabelRight,
                      static_cast<std::int32_t>(view.Mouse.y) + view.ScaleHeight / 2 - LabelAbove};
  context.host.ShowHoverLabel(hit ? LineLabel(context.session.project, hit->item) : std::string(), at);
}

}  // namespace landsmith
