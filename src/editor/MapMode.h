// Placing maps: a click adds one there, the right button opens the context menu.
#pragma once

#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

namespace landsmith {

class MapMode final : public ToolMode {
public:
  explicit MapMode(ModeContext& context) : m_context(context) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  CursorShape Cursor() const override { return CursorShape::Map; }
  std::string Hint() const override { return "Click: add a map here"; }

private:
  ModeContext& m_context;
};

}  // namespace landsmith
