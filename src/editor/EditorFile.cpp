// New, open, save, append, exit.
#include "core/RecentFiles.h"
#include "editor/ChooseFile.h"
#include "editor/Editor.h"
#include "editor/MapView.h"
#include "editor/Modes.h"
#include "editor/SelectKinds.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "wiring/Importers.h"
#include "wiring/ProjectStore.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr std::string_view ProjectFilter = "Landsmith (*.LSP)|*.LSP";
constexpr std::size_t LeastFileName = 5;  ///< a shorter ProjectFile is no file name

std::optional<std::filesystem::path> ChooseToSave(Session& session) {
  FileRequest request;
  request.Title = "Landsmith: Save Project As";
  request.Filter = std::string(ProjectFilter) + "|All Files|*.*";
  if (!session.settings.SaveDir.empty()) request.Folder = MapPath(session.settings.SaveDir);
  if (session.project.ProjectFile.size() >= LeastFileName) request.FileName = session.project.ProjectFile;
  auto path = session.dialogs.ChooseFileToSave(request);
  if (!path) return path;
  if (!path->has_extension()) path->replace_extension(".LSP");
  session.settings.SaveDir = PathText(path->parent_path());
  SaveRecentFolders(session.folders.IniPath(), session.settings);
  return path;
}

/// A polygon that is being drawn is left out until it has enough vertices to be one.
void WriteProjectTo(Session& session, const std::filesystem::path& path, bool drawing) {
  StoreView(session.view, session.project);
  ProjectState stored = session.project;
  if (drawing && session.tool.Mode == ModeId::Poly && !stored.Polys.empty() &&
      stored.Polys.back().Points.size() < PathTraits<PolyRec>::LeastPoints)
    stored.Polys.Truncate(stored.Polys.size() - 1);
  SaveProjectFile(stored, path, session.folders.AppPath);
  session.project.Dirty = false;
}

}  // namespace

/// Ends what is under way while the project that it belongs to is still there.
void Editor::LeaveProject() {
  CancelPick();
  ResetToolState();
}

/// The view, the mode and the selection after `m_session.project` has become another one.
void Editor::ProjectReplaced() {
  m_session.tool = ToolState{};
  m_host.FollowPoint({});
  TakeMode(ModeId::Pointer);
  RecountSelection(m_session.project, m_session.tool.Selected);
  ViewState& view = m_session.view;
  view.LinesDrawn.clear();
  view.PolysDrawn.clear();
  view.ShowFlag.fill(true);
  TakeViewFrom(view, m_session.project);
  view.MapView = HasProject() ? "Summer" : "";
  LoadMaps(ReloadMapView);
  m_session.project.Dirty = false;
  m_display.DisplayAll();
  ShowStatus();
  ShowToolState();
  m_host.RefreshUi();
}

bool Editor::MayDropChanges() {
  return !m_session.project.Dirty ||
         m_session.dialogs.Ask(QuestionKind::YesNo, "You did not save your data! Continue ?");
}

bool Editor::MayClose() {
  return !m_session.project.Dirty ||
         m_session.dialogs.Ask(QuestionKind::YesNo, "You did not save your data! Really want to exit ?");
}

void Editor::NewProject(bool atStart) {
  if (!MayDropChanges()) return;
  Guard([&] {
    const AppSettings settings = LoadSettings(m_session.folders.IniPath(), m_session.folders.AppPath);
    LeaveProject();
    m_session.settings = settings;
    m_session.project = EmptyProject(m_session.settings);
    m_session.undo.Reset();
    ProjectReplaced();
    // The canvas stays dead until the user has confirmed the new project.
    if (atStart || !m_host.ShowProjectProperties()) return;
    m_session.project.ProjectOpen = true;
    m_session.undo.Reset();
    StoreView(m_session.view, m_session.project);  // the dialog may have moved the centre
    ProjectReplaced();
    m_session.view.MapView.clear();
  });
}

std::optional<std::filesystem::path> Editor::AskProjectPath() {
  return ChooseToOpen(m_session, ProjectFilter, "Landsmith: Open Project", &AppSettings::OpenDir);
}

void Editor::OpenProjectCommand() {
  if (!MayDropChanges()) return;
  Guard([&] {
    if (const auto path = AskProjectPath()) OpenProject(*path);
  });
}

/// `projectFile` is where the project is saved to from now on.
bool Editor::TakeProject(const std::filesystem::path& file, const std::string& projectFile) {
  auto project = OpenProjectFile(file, m_session.settings, m_session.dialogs);
  if (!project) return false;
  project->ProjectFile = projectFile;
  LeaveProject();
  m_session.project = std::move(*project);
  m_session.undo.Reset();
  ProjectReplaced();
  return true;
}

bool Editor::OpenRecovered(const std::filesystem::path& copy, const std::string& projectFile) {
  bool opened = false;
  Guard([&] {
    opened = TakeProject(copy, projectFile);
    if (opened) m_session.project.Dirty = true;
    m_host.RefreshUi();
  });
  return opened;
}

bool Editor::OpenProject(const std::filesystem::path& path) {
  bool opened = false;
  Guard([&] {
    // The list of recent files and a later save must not depend on the folder of the day.
    const std::filesystem::path file =
        path.is_absolute() ? path : std::filesystem::absolute(path).lexically_normal();
    opened = TakeProject(file, PathText(file));
    if (!opened) return;
    PushRecentFile(m_session.recent, PathText(file), m_session.folders.IniPath());
    m_host.RefreshUi();
  });
  return opened;
}

void Editor::OpenRecent(std::size_t slot) {
  if (slot >= m_session.recent.size() || m_session.recent[slot].empty()) return;
  if (MayDropChanges()) OpenProject(MapPath(m_session.recent[slot]));
}

bool Editor::Save() {
  if (!HasProject()) return false;
  EndGesture();
  if (!MaySave()) return SaveAs();
  return Guard([&] {
    WriteProjectTo(m_session, MapPath(m_session.project.ProjectFile), m_mode->IsDrawing());
    m_host.RefreshUi();
  });
}

bool Editor::SaveAs() {
  if (!HasProject()) return false;
  EndGesture();
  bool saved = false;
  Guard([&] {
    const auto path = ChooseToSave(m_session);
    if (!path) return;
    WriteProjectTo(m_session, *path, m_mode->IsDrawing());
    m_session.project.ProjectFile = PathText(*path);
    saved = true;
    m_host.RefreshUi();
  });
  return saved;
}

void Editor::Append(std::string_view kind) {
  const auto& importers = Importers();
  const auto importer =
      std::find_if(importers.begin(), importers.end(), [&](const Importer& i) { return i.Kind == kind; });
  if (importer == importers.end() || importer->Append == nullptr || !HasProject()) return;
  Guard([&] {
    const auto path = ChooseToOpen(m_session, importer->Filter, importer->Title, importer->Folder);
    if (!path) return;
    LeaveProject();
    StoreView(m_session.view, m_session.project);
    {
      Edit edit(m_session, m_display, -1);
      importer->Append(*path, edit.Project(), m_session.settings);
    }
    ProjectReplaced();
  });
}

}  // namespace landsmith
