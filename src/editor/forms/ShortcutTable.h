// What keys and the mouse do on the canvas, as the window of shortcuts tells it. The shortcuts of the menus
// are read from the menus themselves.
#pragma once

#include <vector>

namespace landsmith {

struct ShortcutRow {
  const char* input;
  const char* effect;
  int key = 0;  ///< the Qt key that the canvas must know; 0 for the mouse alone
};

struct ShortcutGroup {
  const char* title;
  std::vector<ShortcutRow> rows;
};

/// In the order of showing.
std::vector<ShortcutGroup> ShortcutGroups();

}  // namespace landsmith
