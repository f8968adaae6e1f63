// Selecting and moving the rectangles that keep stock scenery out.
#pragma once

#include "editor/CanvasMode.h"

namespace landsmith {

class ExcludeMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  CursorShape Cursor() const override { return CursorShape::Exclude; }
  std::string Hint() const override;
};

}  // namespace landsmith
