// Selecting and moving what is on the canvas.
#pragma once

#include "editor/CanvasMode.h"

namespace landsmith {

class PointerMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  std::string Hint() const override;

private:
  std::unique_ptr<Gesture> PressLeft(const PointerInput& in);
};

}  // namespace landsmith
