// Placing maps: a click adds one there, the right button opens the context menu.
#pragma once

#include "editor/MenuMode.h"

namespace landsmith {

class MapMode final : public MenuMode {
public:
  explicit MapMode(ModeContext& context) : MenuMode(context, CursorShape::Map) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  std::string Hint() const override { return "Click: add a map here. Right click: menu"; }
};

}  // namespace landsmith
