// Cut, copy, paste, and the deletion of one item. One line, polygon or object at a time.
#include "editor/Editor.h"
#include "editor/SelectKinds.h"

#include <string>

namespace landsmith {

namespace {

template <class Record>
std::optional<std::size_t> FirstSelected(const RecordList<Record>& records) {
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].Selected) return i;
  return {};
}

template <class Point>
void MoveTo(PathRec<Point>& path, LatLon at) {
  if (path.Points.empty()) return;  // a file may hold such a one
  const double dLon = at.lon - path.Points.front().Lon, dLat = at.lat - path.Points.front().Lat;
  for (Point& point : path.Points) {
    point.Lon += dLon;
    point.Lat += dLat;
    point.Selected = false;
  }
  SetPathBounds(path);
}

void MoveTo(ObjectRec& object, LatLon at) {
  const double dLon = at.lon - object.Lon, dLat = at.lat - object.Lat;
  object.Lon = at.lon;
  object.Lat = at.lat;
  object.Box = {object.Box.NLat + dLat, object.Box.SLat + dLat, object.Box.WLon + dLon,
                object.Box.ELon + dLon};
}

/// Calls `use` with the collection that the mode edits, the clipboard's place for it, and the question before
/// one of its items is deleted. Nothing in other modes.
template <class Use>
void WithItemsOf(ModeId mode, Use use) {
  if (mode == ModeId::Line) use(&ProjectState::Lines, &Clipboard::CopiedLine, "Delete this Line ?");
  if (mode == ModeId::Poly) use(&ProjectState::Polys, &Clipboard::CopiedPoly, "Delete this Poly ?");
  if (mode == ModeId::Object) use(&ProjectState::Objects, &Clipboard::CopiedObject, "Delete this object ?");
}

LayerKind KindOfItems(ModeId mode) {
  if (mode == ModeId::Line) return LayerKind::Lines;
  return mode == ModeId::Poly ? LayerKind::Polys : LayerKind::Objects;
}

}  // namespace

void Editor::Copy() {
  if (!MayCopy()) return;
  WithItemsOf(m_session.tool.Mode, [&](auto list, auto slot, const char*) {
    const auto& records = m_session.project.*list;
    if (const auto item = FirstSelected(records)) m_session.clipboard.*slot = records[*item];
  });
  m_host.RefreshUi();
}

void Editor::Cut() {
  if (!MayCut()) return;
  SettleCanvas();
  Copy();
  WithItemsOf(m_session.tool.Mode, [&](auto list, auto, const char*) {
    const auto item = FirstSelected(m_session.project.*list);
    if (!item) return;
    Edit edit(m_session, m_display);
    (edit.Project().*list).Erase(*item);
    RecountSelection(m_session.project, m_session.tool.Selected);
  });
  m_host.RefreshUi();
}

void Editor::Paste() {
  if (!MayPaste()) return;
  SettleCanvas();
  m_session.tool.PasteArmed = true;
  ShowToolState();
  m_host.RefreshUi();
}

void Editor::PasteAt(LatLon at) {
  const ModeId mode = m_session.tool.Mode;
  WithItemsOf(mode, [&](auto list, auto slot, const char*) {
    const auto& copied = m_session.clipboard.*slot;
    if (!copied) return;
    Edit edit(m_session, m_display);
    ProjectState& project = edit.Project();
    SelectAllOfKind(project, m_session.view, KindOfItems(mode), false, m_session.tool.Selected);
    auto pasted = *copied;
    MoveTo(pasted, at);
    pasted.Selected = true;
    (project.*list).push_back(std::move(pasted));
    RecountSelection(project, m_session.tool.Selected);
  });
}

void Editor::DeleteOne() {
  if (!MayDelete()) return;
  const ModeId mode = m_session.tool.Mode;
  if (mode != ModeId::Line && mode != ModeId::Poly && mode != ModeId::Object) return DeleteSelected();
  SettleCanvas();
  WithItemsOf(mode, [&](auto list, auto, const char* question) {
    const auto item = FirstSelected(m_session.project.*list);
    if (!item) return;
    if (m_session.settings.AskDelete && !m_session.dialogs.Ask(QuestionKind::YesNo, question)) return;
    Edit edit(m_session, m_display);
    (edit.Project().*list).Erase(*item);
    RecountSelection(m_session.project, m_session.tool.Selected);
  });
  m_host.RefreshUi();
}

}  // namespace landsmith
