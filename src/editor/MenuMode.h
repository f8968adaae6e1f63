// A mode for one kind of item whose right button opens that kind's menu; the left one does nothing.
#pragma once

#include "editor/CanvasMode.h"

namespace landsmith {

class MenuMode : public CanvasMode {
public:
  MenuMode(ModeContext& context, CursorShape cursor) : CanvasMode(context), m_cursor(cursor) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override {
    if (in.button == MouseButton::Right) m_context.menuAt = in.at;
    return nullptr;
  }
  CursorShape Cursor() const override { return m_cursor; }
  std::string Hint() const override { return "Right click: menu"; }

private:
  CursorShape m_cursor;
};

}  // namespace landsmith
