// The main window: menus, toolbar, canvas and status bar. It forwards what the user does to the Editor and
// shows what the Editor says; it holds no state of the project.
#pragma once

#include "editor/Editor.h"
#include "forms/PopupMenus.h"
#include "forms/RecoveryKeeper.h"
#include "forms/StatusPanelBar.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

class QAction;
class QDialog;
class QLabel;
class QTimer;

namespace landsmith {

class HintLabel;
class frmFillsP;
namespace Ui {
class frmStart;
}

class frmStart final : public QMainWindow, public EditorHost {
  Q_OBJECT

public:
  /// `session` has been started and outlives the window. The canvas is without a project until Start.
  explicit frmStart(Session& session, QWidget* parent = nullptr);
  ~frmStart() override;

  /// The first New, then what a crash has left, if the user wants it, or else the project that a file
  /// manager passed, if any.
  void Start(const std::optional<std::filesystem::path>& project);

  Editor& TheEditor() { return *m_editor; }

  // EditorHost
  void RefreshUi() override;
  void SetStatus(const StatusPanels& panels) override;
  void SetCursor(CursorShape shape) override;
  void SetHint(std::string_view hint) override;
  void ShowContextMenu(const PopupTarget& target) override;
  void ShowLineProperties(std::optional<std::size_t> line) override;
  void ShowFillProperties(std::size_t fill) override;
  void ShowMapProperties(std::size_t map) override;
  void ShowPolyProperties(std::optional<std::size_t> poly) override;
  bool ShowProjectProperties() override;
  void ShowModeForm(std::optional<ModeId> mode) override;
  void ShowPointForm(const PopupTarget& point) override;
  void FollowPoint(const PopupTarget& point) override;
  int ToolbarHeight() const override;
  int StatusBarHeight() const override;
  bool StartTimer(TimerId timer, int milliseconds) override;
  void StopTimer(TimerId timer) override;
  void ShowHoverLabel(std::string_view text, PixelPoint at) override;

protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  // frmStart.cpp
  void PaintIcons();
  void NameToolButtons();
  void FitToolbar();

  // StartCommands.cpp: what each menu item does
  void Bind(const char* action, std::function<void()> command);
  void BindFileMenu();
  void BindEditMenu();
  void BindViewMenu();
  void BindSelectMenu();
  void BindModes();
  void BindHelpMenu();
  void ShowPreferences();
  void ShowShortcuts();
  void ShowAbout();

  // StartForms.cpp: forms beside the canvas
  void ShowCompilation();
  void GoToFinding(const Finding& finding, QDialog& form);
  void ShowFind();
  void ShowGotoPosition();
  void ShowCoordinates();
  void CheckPointForms();

  // StartState.cpp: what is enabled and checked
  QAction& Action(const QString& name);
  void RefreshFileMenu();
  void RefreshEditMenu();
  void RefreshViewMenu();
  void RefreshSelectMenu();
  void RefreshModes();
  void RefreshRecentFiles();
  void RefreshTutorials();

  Session& m_session;
  std::unique_ptr<Ui::frmStart> m_ui;
  QHash<QString, QAction*> m_actions;
  std::unique_ptr<StatusPanelBar> m_status;
  HintLabel* m_toolHint = nullptr;
  HintLabel* m_statusHint = nullptr;
  std::unique_ptr<Editor> m_editor;
  std::unique_ptr<PopupMenus> m_popups;
  std::unique_ptr<RecoveryKeeper> m_recovery;
  std::map<TimerId, QTimer*> m_timers;
  QLabel* m_mouseLabel = nullptr;
  QPointer<frmFillsP> m_modeForm;                          ///< beside the canvas, while its mode lasts
  QDialog* m_shortcuts = nullptr;                          ///< made when it is first asked for
  std::optional<std::pair<CursorShape, double>> m_cursor;  ///< as shown, at its device pixel ratio
};

}  // namespace landsmith
