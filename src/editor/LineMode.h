// Drawing lines click by click, and editing their vertices.
//
// While a line is under way each click adds a vertex and a rubber segment follows the mouse; the right button
// or Esc ends it. Otherwise a click takes a vertex, then a line, under the mouse: to drag it, or, with a key
// held, to delete, cut, widen or narrow it. A click on nothing begins a line.
#pragma once

#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

#include <optional>

namespace landsmith {

class LineMode final : public ToolMode {
public:
  explicit LineMode(ModeContext& context) : m_context(context) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override;
  void Hover(const PointerInput& in) override;
  bool Key(const KeyInput& in) override;
  void Tick(TimerId timer) override;
  void Leave() override;
  void Abandon() override;
  CursorShape Cursor() const override { return CursorShape::Line; }
  void Paint(Surface& surface) const override;

private:
  std::unique_ptr<Gesture> PressLeft(const PointerInput& in);
  std::unique_ptr<Gesture> AddToSelection(const PointerInput& in, WorldPixel at);
  std::unique_ptr<Gesture> PressOnPoint(const PointerInput& in);
  std::unique_ptr<Gesture> InsertPoint(const PointerInput& in, WorldPixel at);
  std::unique_ptr<Gesture> StartDrag(const PointerInput& in);
  PixelOffset Recentred(PixelOffset at);
  void AddPoint(LatLon at);
  void EndLine();
  bool IsDrawing() const;
  LatLon LastPoint() const;
  std::vector<PathPiece> PiecesAt(WorldPixel at);

  ModeContext& m_context;
  std::optional<LatLon> m_first;      ///< the pending first vertex; the record comes with the second
  std::optional<std::size_t> m_line;  ///< the line under way, always the project's last one
  bool m_mouseKnown = false;          ///< the mouse has moved since the last click
};

}  // namespace landsmith
