// Selecting and moving what is on the canvas.
#pragma once

#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

namespace landsmith {

class PointerMode final : public ToolMode {
public:
  explicit PointerMode(ModeContext& context) : m_context(context) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  void Hover(const PointerInput& in) override;
  void Tick(TimerId timer) override;

private:
  std::unique_ptr<Gesture> PressLeft(const PointerInput& in);

  ModeContext& m_context;
};

}  // namespace landsmith
