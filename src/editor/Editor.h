// The editor without its widgets: takes the window's events in plain form, keeps the mode and the drag,
// carries out the commands. The window translates events, forwards them, and does what EditorHost says.
#pragma once

#include "compile/Findings.h"
#include "editor/Display.h"
#include "editor/Edit.h"
#include "editor/EditorHost.h"
#include "editor/Find.h"
#include "editor/HoverLabel.h"
#include "editor/ModeContext.h"
#include "editor/PointEdit.h"
#include "editor/Session.h"
#include "editor/StatusText.h"
#include "editor/ToolMode.h"
#include "editor/Walker.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

struct ModeSetup;

/// Whether the canvas goes to the vertex that a walk begins at.
enum class WalkView { Centre, Keep };

class Editor {
public:
  Editor(Session& session, CanvasSurfaces& surfaces, EditorHost& host);
  ~Editor();

  Display& Canvas() { return m_display; }
  Session& State() { return m_session; }

  // Events of the canvas.
  void Resize(std::int32_t width, std::int32_t height);
  void Press(const PointerInput& in);
  void Move(const PointerInput& in);
  void Release(const PointerInput& in);
  void PointerLeft();  ///< the mouse is no longer over the canvas
  /// `delta`: as the wheel tells it, 120 a notch; small steps are added up.
  void Wheel(int delta, const PointerInput& in);
  void KeyDown(const KeyInput& in);
  void KeyUp(const KeyInput& in);
  void FocusLost();
  void TimerTick(TimerId timer);

  // Commands. Each catches its failures, shows them as one error box, and leaves the project whole.
  void ChooseMode(ModeId mode);
  void NewProject(bool atStart = false);  ///< mnuFNew
  void OpenProjectCommand();              ///< mnuFOpen: question, dialog
  bool OpenProject(const std::filesystem::path& path);
  void OpenRecent(std::size_t slot);
  /// Opens a copy that a crash has left of the project whose file is `projectFile` (empty: none yet). It
  /// counts as changed and is no recent file.
  bool OpenRecovered(const std::filesystem::path& copy, const std::string& projectFile);
  bool Save();      ///< mnuFSave
  bool SaveAs();    ///< mnuFSaveAs
  bool MayClose();  ///< the exit question
  /// The question before the project is replaced; true when nothing is lost or the user agrees.
  bool MayDropChanges();
  void Append(std::string_view kind);  ///< the importers of wiring/
  void SetGrid(int lod);               ///< mnuG0..mnuG19
  void ToggleShown(LayerKind kind);    ///< mnuVLines ...
  void ShowAll();                      ///< every kind shown
  /// mnuVAll: shows the kind of the mode at hand alone, and nothing is selected; the next time all come back.
  void ToggleViewAll();
  void ZoomAt(PixelOffset at, ZoomStep step);
  void CenterAt(PixelOffset at);
  void GoTo(LatLon center);
  /// Goes to the place of a finding and keeps its item marked on the canvas until HideFinding. The selection
  /// stays as it is: it says what will be compiled.
  void ShowFinding(const Finding& finding);
  void HideFinding();
  void SelectAll();
  void DeleteSelected();  ///< with the question of AskDelete
  void InvertSelection();
  /// mnuSLines ...: marks or clears all items of one shown kind.
  void SelectKind(LayerKind kind, bool state);
  void SnapToLod21();
  void Undo();  ///< mnuEUndo; refused while something is being dragged
  void Redo();  ///< mnuERedo
  void Cut();
  void Copy();
  void Paste();  ///< arms the canvas: each left press then pastes, a right one disarms
  /// mnuEDelete: the first selected item of the mode's kind in Line, Poly and Object mode, with its question;
  /// elsewhere everything selected, as the Delete key.
  void DeleteOne();
  void ToggleMeasure();  ///< mnuEMeasure and M
  /// mnuVSummer ...: an exact view name.
  void SetMapView(std::string_view view);
  /// Stores where the bitmap lies that the view shows of a map (0-based), as one change. False when it
  /// failed.
  bool CalibrateMap(std::size_t map, const GeoBox& box);
  /// The next press on the canvas goes to `pick` and nowhere else; a form that waits for a place on the map
  /// asks for it. An empty function takes the request back. A right press, Esc and the end of the project end
  /// the wait: `pick` then gets a press of the right button. The view may be panned and zoomed meanwhile.
  void PickPoint(std::function<void(const PointerInput&)> pick);
  /// The walk along vertices by the arrow keys begins at this vertex, "PtInLine" or "PtInPoly"; it alone is
  /// selected then. Any press on the canvas and Esc end it. Ignores a target that is gone.
  void StartWalk(const PopupTarget& point, WalkView view = WalkView::Centre);
  /// One step of a walk from this vertex, for the buttons of a form.
  void Walk(const PopupTarget& from, WalkStep step);
  /// Stores a vertex that exists as one change. False when it failed.
  bool ChangePoint(const VertexRef& vertex, const PointValues& values);
  /// Selects what is found alone, shows its kind and goes there with a beep, or says that nothing was found.
  /// `lastHit` as in FindItems.
  void Find(const FindRequest& request, FindScope scope, std::size_t& lastHit);
  /// The commands of a context menu; `target` as ShowContextMenu gave it. Both ignore a target that is gone.
  void DeleteTarget(const PopupTarget& target);
  void ShowTargetProperties(const PopupTarget& target);
  void SetClassGridView(bool on);
  /// The five pages of preferences have been accepted: scales, class window and pictures follow.
  void SettingsChanged(bool centerChanged);

  bool HasProject() const { return m_session.project.ProjectOpen; }
  /// Name upper-cased, two blanks, "Landsmith"; or "Landsmith" alone.
  std::string Caption() const;
  bool MaySave() const;  ///< after a load or a Save As
  // What the menus offer at this moment.
  bool MaySelectKind(LayerKind kind) const;  ///< mnuSLines ...: shown, and the kind of a mode of one kind
  bool MaySelectAll() const;                 ///< mnuSAll, mnuESelectAll: in the modes of all kinds
  bool MayCut() const;                       ///< in Line, Poly and Object mode with a whole item selected
  bool MayCopy() const { return MayCut(); }
  bool MayPaste() const;   ///< something of the mode's kind has been cut or copied
  bool MayDelete() const;  ///< mnuEDelete
  bool MayMeasure() const;
  bool GestureAlive() const { return m_gesture != nullptr; }
  bool CanUndo() const { return HasProject() && m_session.undo.CanUndo() && !GestureAlive(); }
  bool CanRedo() const { return HasProject() && m_session.undo.CanRedo() && !GestureAlive(); }

private:
  void CloseGesture(const std::function<void(Gesture&)>& end);
  void EndGesture();
  void SettleCanvas();  ///< ends the drag and the figure under way, before a command changes the project
  void ReleaseGesture(const PointerInput& in);
  void ShowRestored();
  void LoadMaps(void (*load)(Session&, CanvasSurfaces&));
  bool TakePick(const PointerInput& in);
  void CancelPick();
  void TakeMode(ModeId mode);
  void ResetToolState();
  void ShowModeSetup(const ModeSetup& setup);
  void StopMeasuring();
  bool UseArmedPress(const PointerInput& in);
  void PasteAt(LatLon at);
  void ShowMeasure();
  std::unique_ptr<Gesture> GestureOfPress(const PointerInput& in);
  std::unique_ptr<Gesture> GestureOfTool(const PointerInput& in);
  void OpenPendingMenu();
  void Hover(const PointerInput& in);
  bool KeyState(const KeyInput& in, bool down);
  bool KeyCommand(const KeyInput& in);
  void EndByEscape(const KeyInput& in);
  void PressByKey(const KeyInput& in);
  bool WalkKey(const KeyInput& in);  ///< true: used
  void WalkTo(const VertexRef& vertex, WalkView view);
  void StepWalk(WalkStep step);
  void DeleteWalked();
  void ShowStatus();
  CursorShape CursorNow() const;
  std::string HintNow() const;
  void ShowToolState();
  bool TakeProject(const std::filesystem::path& file, const std::string& projectFile);
  void LeaveProject();
  void ProjectReplaced();
  std::optional<std::filesystem::path> AskProjectPath();
  void AfterViewChange();
  void StepZoomBy(ZoomStep step, PixelOffset at);
  bool Guard(const std::function<void()>& command);

  Session& m_session;
  Display m_display;
  EditorHost& m_host;
  ModeContext m_context;
  std::unique_ptr<ToolMode> m_mode;
  std::unique_ptr<Gesture> m_gesture;
  std::optional<Finding> m_finding;  ///< marked on the canvas
  PointerInput m_lastPointer;
  std::function<void(const PointerInput&)> m_pick;  ///< waits for the next press
  std::string m_hint;
  int m_wheelRest = 0;
  bool m_dragByKey = false;   ///< m_gesture ends when the key is released
  bool m_insertHeld = false;  ///< InsertPoints ends when the key is released
};

}  // namespace landsmith
