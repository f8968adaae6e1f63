// Commands on the selection and on what a context menu names.
#include "editor/Editor.h"
#include "editor/PopupAt.h"
#include "editor/SelectKinds.h"
#include "vector/GridSnap.h"
#include "vector/LineOperations.h"

namespace landsmith {

void Editor::SelectAll() {
  if (!MaySelectAll()) return;
  EndGesture();
  ToolState& tool = m_session.tool;
  tool.SelectAllOn = !tool.SelectAllOn;
  SelectEverything(m_session.project, m_session.view, tool.SelectAllOn, tool);
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::InvertSelection() {
  if (!HasProject()) return;
  EndGesture();
  InvertShownSelection(m_session.project, m_session.view, m_session.tool.Selected);
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::SelectKind(LayerKind kind, bool state) {
  if (!MaySelectKind(kind)) return;
  EndGesture();
  SelectAllOfKind(m_session.project, m_session.view, kind, state, m_session.tool.Selected);
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::DeleteSelected() {
  Selection& selection = m_session.tool.Selected;
  if (!HasProject() || selection.SelectedCount < 1) return;
  SettleCanvas();
  const std::string question = "Delete " + std::to_string(selection.SelectedCount) + " item(s) ?";
  if (m_session.settings.AskDelete && !m_session.dialogs.Ask(QuestionKind::YesNo, question)) return;
  Guard([&] {
    Edit edit(m_session, m_display);
    DeleteSelectedItems(edit.Project(), selection);
    m_session.tool.SelectAllOn = false;
  });
  m_host.RefreshUi();
}

void Editor::SnapToLod21() {
  if (!HasProject()) return;
  SettleCanvas();
  if (!m_session.dialogs.Ask(QuestionKind::YesNo,
                             "Align Points in Selected Lines and Polys\nto a LOD21 grid ?"))
    return;
  Guard([&] {
    SnapResult result;
    m_host.SetCursor(CursorShape::Busy);
    {
      Edit edit(m_session, m_display);
      result = SnapSelectedToLod21(edit.Project());
      RecountSelection(m_session.project, m_session.tool.Selected);
    }
    ShowToolState();
    m_session.dialogs.Message(MessageKind::Info, SnapReport(result));
  });
  m_host.RefreshUi();
}

void Editor::DeleteTarget(const PopupTarget& target) {
  if (!TargetExists(m_session.project, target)) return;
  if (!m_session.dialogs.Ask(QuestionKind::YesNo, DeleteQuestion(target))) return;
  SettleCanvas();
  Guard([&] {
    Edit edit(m_session, m_display);
    DeletePopupTarget(edit.Project(), target);
    RecountSelection(m_session.project, m_session.tool.Selected);
  });
  m_host.RefreshUi();
}

void Editor::ShowTargetProperties(const PopupTarget& target) {
  if (target.Kind.empty()) {
    m_host.ShowProjectProperties();
    return;
  }
  if (!TargetExists(m_session.project, target)) return;
  if (target.Kind == "PtInLine" || target.Kind == "PtInPoly") m_host.ShowPointForm(target);
  if (target.Kind == "Line") m_host.ShowLineProperties(target.Item);
  if (target.Kind == "Poly") m_host.ShowPolyProperties(target.Item);
  if (target.Kind == "Fill") m_host.ShowFillProperties(target.Item);
  if (target.Kind == "Map") m_host.ShowMapProperties(target.Item);
}

}  // namespace landsmith
