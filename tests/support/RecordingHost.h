// An editor's window that keeps what it was told.
#pragma once

#include "editor/Editor.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace landsmith::test {

class RecordingHost final : public EditorHost {
public:
  std::vector<PopupTarget> menus;
  std::vector<std::optional<std::size_t>> lineForms, polyForms;
  std::vector<std::size_t> fillForms, mapForms;
  std::vector<std::optional<ModeId>> modeForms;
  std::string label, hint;
  std::map<TimerId, int> running;  ///< timers that tick when the test says so
  PixelPoint labelAt;
  CursorShape cursor = CursorShape::Arrow;
  StatusPanels status;
  bool acceptProperties = false;
  int propertiesShown = 0;
  bool hasTimers = false;
  std::function<void()> inProperties;  ///< what the user does in the dialog

  void RefreshUi() override {}
  void SetStatus(const StatusPanels& panels) override { status = panels; }
  void SetCursor(CursorShape shape) override { cursor = shape; }
  void ShowContextMenu(const PopupTarget& target) override { menus.push_back(target); }
  void ShowLineProperties(std::optional<std::size_t> line) override { lineForms.push_back(line); }
  void ShowPolyProperties(std::optional<std::size_t> poly) override { polyForms.push_back(poly); }
  void ShowFillProperties(std::size_t fill) override { fillForms.push_back(fill); }
  void ShowMapProperties(std::size_t map) override { mapForms.push_back(map); }
  void ShowModeForm(std::optional<ModeId> mode) override { modeForms.push_back(mode); }
  void ShowHoverLabel(std::string_view text, PixelPoint at) override {
    label = text;
    labelAt = at;
  }
  void SetHint(std::string_view text) override { hint = text; }
  bool ShowProjectProperties() override {
    ++propertiesShown;
    if (inProperties) inProperties();
    return acceptProperties;
  }
  int ToolbarHeight() const override { return 30; }
  int StatusBarHeight() const override { return 20; }
  bool StartTimer(TimerId timer, int milliseconds) override {
    if (hasTimers) running[timer] = milliseconds;
    return hasTimers;
  }
  void StopTimer(TimerId timer) override { running.erase(timer); }
};

}  // namespace landsmith::test
