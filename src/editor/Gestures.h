// The drags of the canvas: each ends by End or Cancel, and is told to nobody but the editor that owns it.
#pragma once

#include "editor/Edit.h"
#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

namespace landsmith {

/// Moves the view with the mouse.
class PanDrag final : public Gesture {
public:
  PanDrag(ModeContext& context, const PointerInput& in);
  void Update(const PointerInput& in) override;
  void End(const PointerInput& in) override;
  void Cancel() override;
  void Tick(TimerId timer) override;
  CursorShape Cursor() const override { return CursorShape::Pan; }
  bool MovesView() const override { return true; }
  std::string Hint() const override { return "Drag: move the view"; }

private:
  void Repaint();

  ModeContext& m_context;
  PixelOffset m_from;
  LatLon m_center;
  bool m_repaintPending = false;
};

/// With Z held: a step in for each 50 pixels upward, a step out for each 50 downward.
class ZoomDrag final : public Gesture {
public:
  ZoomDrag(ModeContext& context, const PointerInput& in) : m_context(context), m_y(in.at.y) {}
  void Update(const PointerInput& in) override;
  void End(const PointerInput&) override {}
  void Cancel() override {}
  CursorShape Cursor() const override { return CursorShape::Zoom; }
  bool MovesView() const override { return true; }
  std::string Hint() const override { return "Drag up: zoom in. Drag down: zoom out"; }

private:
  ModeContext& m_context;
  float m_y;
};

/// A rectangle whose end selects what lies inside.
class RubberBox final : public Gesture {
public:
  RubberBox(ModeContext& context, const PointerInput& in)
      : m_context(context), m_first(in.raw), m_now(in.raw) {}
  void Update(const PointerInput& in) override;
  void End(const PointerInput& in) override;
  void Cancel() override;
  CursorShape Cursor() const override { return CursorShape::Cross; }
  std::string Hint() const override { return "Drag: select what lies wholly inside"; }
  void Paint(Surface& surface) const override;

private:
  void Repaint();

  ModeContext& m_context;
  PixelPoint m_first, m_now;
};

/// Moves the selection. Until the press has settled, moves do not count, so that a click is no small drag.
/// What has been moved stays moved when the drag is cancelled.
class MoveDrag final : public Gesture {
public:
  MoveDrag(ModeContext& context, const PointerInput& in, int settleMilliseconds = 30);
  void Update(const PointerInput& in) override;
  void End(const PointerInput& in) override;
  void Cancel() override;
  void Tick(TimerId timer) override;
  CursorShape Cursor() const override { return CursorShape::Move; }
  std::string Hint() const override { return "Drag: move the selection"; }

private:
  void Repaint();
  void Finish();
  void JoinMovedFigure();

  ModeContext& m_context;
  Edit m_edit;
  PixelOffset m_last;
  std::optional<MovingItems> m_moving;  ///< from the first step on
  bool m_settling = false;
  bool m_repaintPending = false;
};

}  // namespace landsmith
