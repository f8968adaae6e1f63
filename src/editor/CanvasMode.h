// What the modes have in common: the label under the mouse, and the menu of the right button.
#pragma once

#include "editor/HoverLabel.h"
#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

namespace landsmith {

class CanvasMode : public ToolMode {
public:
  explicit CanvasMode(ModeContext& context) : m_context(context) {}
  void Hover(const PointerInput&) override { LabelSoon(m_context); }
  void Tick(TimerId timer) override {
    if (timer == TimerId::Label) ShowLabelUnderMouse(m_context);
  }

protected:
  Session& TheSession() const { return m_context.session; }

  ModeContext& m_context;
};

}  // namespace landsmith
