// Painting area fills: a click fills the block under the mouse, a drag one block after the other. Size, type
// and height are those of the view and the tool.
#pragma once

#include "editor/CanvasMode.h"
#include "raster/AreaFill.h"

#include <optional>

namespace landsmith {

class FillMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  void Hover(const PointerInput& in) override;
  void HoverEnd() override;
  CursorShape Cursor() const override;
  std::string Hint() const override;
  /// The frame of the block that a click would fill.
  void Paint(Surface& surface) const override;

private:
  std::optional<FillRec> UnderMouse() const;

  bool m_hovering = false;
  std::optional<FillRec> m_framed;  ///< at the last move
};

}  // namespace landsmith
