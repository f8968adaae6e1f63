// Drawing lines and polygons click by click, and editing their vertices.
//
// While a figure is under way each click adds a vertex and a rubber segment follows the mouse; the right
// button or Esc ends it. Otherwise a click takes a vertex, then a figure, under the mouse: to drag it, or,
// with a key held, to delete, cut, widen or narrow it. A click on nothing begins a figure. All clicks of a
// figure, and the joining at its end, are undone in one step.
#pragma once

#include "core/Records.h"
#include "editor/CanvasMode.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace landsmith {

template <class Path>
class PathMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  void Hover(const PointerInput& in) override;
  bool Key(const KeyInput& in) override;
  void Tick(TimerId timer) override;
  void Leave() override;
  bool Abandon() override;
  bool IsDrawing() const override;
  CursorShape Cursor() const override;
  std::string Hint() const override;
  void Paint(Surface& surface) const override;

private:
  std::unique_ptr<Gesture> PressLeft(const PointerInput& in);
  std::unique_ptr<Gesture> PressOnFigures(const PointerInput& in, WorldPixel at, bool& used);
  std::unique_ptr<Gesture> AddToSelection(const PointerInput& in, WorldPixel at);
  std::unique_ptr<Gesture> InsertPoint(const PointerInput& in, WorldPixel at);
  std::unique_ptr<Gesture> StartDrag(const PointerInput& in);
  bool Recentre(PixelOffset at);
  void AddPoint(LatLon at);
  void EndFigure();
  LatLon LastPoint() const;
  std::size_t PointsDrawn() const;
  std::vector<PathPiece> PiecesAt(WorldPixel at);

  std::optional<LatLon> m_first;      ///< the pending first vertex; the record comes with the second
  std::optional<std::size_t> m_item;  ///< the figure under way, always the project's last one of its kind
  bool m_mouseKnown = false;          ///< the mouse has moved since the last click
};

extern template class PathMode<LineRec>;
extern template class PathMode<PolyRec>;

}  // namespace landsmith
