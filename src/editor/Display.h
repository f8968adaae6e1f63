// The canvas as surfaces one on the other: the base image, kept until the next rebuild; the overlay, which is
// cleared and painted anew while something moves; and what the tool at hand draws, rubber lines and boxes,
// which follows the mouse and must not wait for any of the others.
#pragma once

#include "editor/GeometryIndex.h"
#include "editor/MovingItems.h"
#include "editor/Painters.h"
#include "editor/Session.h"
#include "platform/Surface.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

namespace landsmith {

/// The surfaces, supplied by the window or by the batch program. Their size is the view's.
class CanvasSurfaces {
public:
  virtual ~CanvasSurfaces() = default;
  virtual Surface& Base() = 0;
  virtual Surface& Overlay() = 0;
  virtual void ClearBase(std::int32_t color) = 0;
  virtual void ClearOverlay() = 0;  ///< transparent
  virtual Surface& Top() = 0;
  virtual void ClearTop() = 0;  ///< transparent
  /// All surfaces are complete and may be shown.
  virtual void Present() = 0;
};

/// Canvas colours: a live canvas and one without a project.
struct CanvasColors {
  std::int32_t Window = 0xFFFFFF;
  std::int32_t Workspace = 0xABABAB;
};

class Display {
public:
  Display(Session& session, CanvasSurfaces& surfaces) : m_session(session), m_surfaces(surfaces) {}

  /// Redraws the base image for the layers of the mask; the kind under edit in Line and Poly mode goes to the
  /// overlay. 0 stands for all layers, without an overlay copy.
  void RebuildDisplay(int mask);
  void DisplayAll() { RebuildDisplay(LayerMask::All); }
  /// Clears the overlay and paints all pending layers.
  void RedrawOverlay();
  /// Paints all pending layers without clearing.
  void PaintOverlay();

  /// From here on the base image holds what stays and the overlay what moves, so that a step of a drag paints
  /// only the latter; what moves lies on top meanwhile. The first RedrawOverlay shows it.
  void BeginMoving(MovingItems moving);
  /// Everything in its place again.
  void EndMoving();

  /// Where lines and polygons lie at this moment.
  const GeometryIndex& Index();

  /// Only what the tool at hand draws has changed.
  void RedrawTop();
  /// What the tool at hand paints on top: rubber lines and boxes.
  void SetExtra(std::function<void(Surface&)> paint) { m_extra = std::move(paint); }

  CanvasSurfaces& Surfaces() { return m_surfaces; }
  CanvasColors Colors;

private:
  PaintInput Input(PaintPart partWhileMoving);
  bool ShowsAny(LayerKind kind) const;
  void PaintLayer(LayerKind kind, Surface& surface, const PaintInput& in);
  void PaintBase(int mask);
  void PaintPending(const PaintInput& in);
  void PaintEdited(const PaintInput& in);
  void PaintTop();

  Session& m_session;
  CanvasSurfaces& m_surfaces;
  std::function<void(Surface&)> m_extra;
  std::filesystem::path m_bitmaps;
  GeometryIndex m_index;
  std::optional<MovingItems> m_moving;
};

}  // namespace landsmith
