#include "editor/PopupAt.h"

#include "core/Text.h"

namespace landsmith {

namespace {

std::string LineTitle(const ProjectState& project, std::size_t line) {
  const std::string& name = project.Lines[line].Name;
  const std::string number = "LINE # " + std::to_string(line + 1);
  return name.empty() ? number : name + "  " + number;
}

}  // namespace

PopupTarget PopupTargetAt(const ProjectState& project, const ViewState& view, ModeId mode, PixelOffset at,
                          const GeometryIndex& index) {
  PopupTarget target;
  target.At = at;
  target.Title = ToUpper(project.Name);
  const bool looks = mode == ModeId::Pointer || mode == ModeId::Line;
  if (!looks || !view.Shows(LayerKind::Lines)) return target;
  const WorldPixel place = ToWorldPixel(view, at);
  const auto pieces = index.Lines.PiecesMeeting(CursorBox(place, view.Scale));
  if (const auto point = FindPointAt(project.Lines, pieces, place, view.Scale)) {
    target.Kind = "PtInLine";
    target.Item = point->item;
    target.Point = point->point;
    target.Title = "POINT # " + std::to_string(point->point + 1) + " from " + LineTitle(project, point->item);
  } else if (const auto line = FindSegmentAt(project.Lines, pieces, place, view.Scale)) {
    target.Kind = "Line";
    target.Item = line->item;
    target.Title = LineTitle(project, line->item);
  }
  return target;
}

std::string DeleteQuestion(const PopupTarget& target) {
  return target.Kind == "PtInLine" ? "Delete this Point from this Line ?" : "Delete this Line ?";
}

bool TargetExists(const ProjectState& project, const PopupTarget& target) {
  if (target.Kind != "Line" && target.Kind != "PtInLine") return false;
  if (target.Item >= project.Lines.size()) return false;
  return target.Kind == "Line" || target.Point < project.Lines[target.Item].Points.size();
}

}  // namespace landsmith
