// Selecting and moving placed objects.
#pragma once

#include "editor/CanvasMode.h"

namespace landsmith {

class ObjectMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  CursorShape Cursor() const override { return CursorShape::Object; }
  std::string Hint() const override;
};

}  // namespace landsmith
