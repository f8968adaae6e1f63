// What the editor asks of its window.
#pragma once

#include "editor/StatusText.h"
#include "editor/ToolMode.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// What a context menu is about; empty for the general menu.
struct PopupTarget {
  /// "PtInLine", "PtInPoly", "Line", "Poly", "Object", "Exclude", "Photo", "Land", "Water", "Fill", "Mesh",
  /// "Map", or empty.
  std::string Kind;
  std::string Title;  ///< "Coast road  LINE # 3"
  /// 0-based; of a class cell the Item is row * 1281 + column.
  std::size_t Item = 0, Point = 0;
  PixelOffset At;
};

class EditorHost {
public:
  virtual ~EditorHost() = default;
  /// Caption, menus, tool buttons, zoom panel and selection state may have changed: the window reads them
  /// anew.
  virtual void RefreshUi() = 0;
  virtual void SetStatus(const StatusPanels& panels) = 0;
  virtual void SetCursor(CursorShape shape) = 0;
  /// What a click does at this moment, in a few words.
  virtual void SetHint(std::string_view /*hint*/) {}
  virtual void ShowContextMenu(const PopupTarget& target) = 0;
  /// Opens `frmLinesP` for one line (0-based), or for all selected ones when empty.
  virtual void ShowLineProperties(std::optional<std::size_t> line) = 0;
  /// Opens `frmPolysP` for one polygon (0-based), or for all selected ones when empty.
  virtual void ShowPolyProperties(std::optional<std::size_t> /*poly*/) {}
  /// Opens `frmFillsP` for an area fill (0-based) and returns when it is closed.
  virtual void ShowFillProperties(std::size_t /*fill*/) {}
  /// Opens `frmMapsP` for a map (0-based) and returns when it is closed.
  virtual void ShowMapProperties(std::size_t /*map*/) {}
  /// Opens `frmPoints0P` for a vertex, "PtInLine" or "PtInPoly"; the canvas stays alive beside it.
  virtual void ShowPointForm(const PopupTarget& /*point*/) {}
  /// The walk along vertices has come to this one: a point form that is open shows it. Without a kind: the
  /// project has been replaced and the point is gone.
  virtual void FollowPoint(const PopupTarget& /*point*/) {}
  /// The mode's form (`frmLandsP`, ...) beside the canvas, where the mode has one, or none any more.
  virtual void ShowModeForm(std::optional<ModeId> /*mode*/) {}
  /// `frmProjectP` on its first tab; true after OK.
  virtual bool ShowProjectProperties() = 0;
  virtual int ToolbarHeight() const = 0;
  virtual int StatusBarHeight() const = 0;
  /// Starts or restarts a one-shot timer whose end calls Editor::TimerTick. False: this window keeps no
  /// timers, and the editor then acts at once.
  virtual bool StartTimer(TimerId, int /*milliseconds*/) { return false; }
  virtual void StopTimer(TimerId) {}
  /// The label beside the mouse, its top left corner at `at`; an empty text hides it.
  virtual void ShowHoverLabel(std::string_view /*text*/, PixelPoint /*at*/) {}
};

}  // namespace landsmith
