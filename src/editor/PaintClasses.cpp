// Land and water class cells.
#include "core/Color.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"

#include <cmath>

namespace landsmith {

namespace {

constexpr double LeastZoom = 0.12, PictureZoom = 5;

/// Columns or rows first to last, and where the first one begins on the canvas. Steps are 32-bit floats.
struct CellRange {
  std::int32_t first = 0, last = -1;
  float start = 0, step = 0;
};

std::int32_t CellNumber(double cells) {
  return static_cast<std::int32_t>(std::clamp(std::floor(cells), 0.0, ClassGridSide - 1.0));
}

CellRange Columns(const ViewState& view) {
  const ClassWindow& window = view.Classes;
  if (view.LonRight < window.LandWest || view.LonLeft > window.LandEast) return {};
  CellRange range;
  range.first = CellNumber((view.LonLeft - window.LandWest) / AreaWidth);
  range.last = CellNumber((view.LonRight - window.LandWest) / AreaWidth);
  range.start = static_cast<float>((window.LandWest + range.first * AreaWidth - view.LonLeft) *
                                   view.Scale.PixelsPerDegLon);
  range.step = static_cast<float>(view.Scale.PixelsPerDegLon * AreaWidth);
  return range;
}

CellRange Rows(const ViewState& view) {
  const ClassWindow& window = view.Classes;
  if (view.LatBottom > window.LandNorth || view.LatTop < window.LandSouth) return {};
  CellRange range;
  range.first = CellNumber((window.LandNorth - view.LatTop) / AreaHeight);
  range.last = CellNumber((window.LandNorth - view.LatBottom) / AreaHeight);
  range.start = static_cast<float>((view.LatTop - (window.LandNorth - range.first * AreaHeight)) *
                                   view.Scale.PixelsPerDegLat);
  range.step = static_cast<float>(view.Scale.PixelsPerDegLat * AreaHeight);
  return range;
}

class CellPainter {
public:
  CellPainter(Surface& surface, const PaintInput& in, const ClassTable& table)
      : m_surface(surface), m_table(table), m_bitmaps(in.bitmaps), m_pictures(in.view.Zoom > PictureZoom) {}

  /// Cells of one class side by side are one box when they have no picture of their own.
  void PaintRow(const ClassGrid& grid, std::int32_t row, const CellRange& columns, float top, float bottom) {
    float x = columns.start;
    float runStart = x;
    std::uint8_t runItem = 0;
    for (std::int32_t column = columns.first; column <= columns.last; ++column) {
      const std::uint8_t item = grid.At(column, row);
      if (item != runItem || m_pictures) {
        Paint(runItem, runStart, x, top, bottom);
        runStart = x;
        runItem = item;
      }
      x += columns.step;
    }
    Paint(runItem, runStart, x, top, bottom);
  }

private:
  void Paint(std::uint8_t item, float left, float right, float top, float bottom) {
    const PixelBox box{HeldPixel(left), HeldPixel(top), HeldPixel(right), HeldPixel(bottom)};
    if (item == 0 || box.left == box.right || box.top == box.bottom) return;
    const ClassTableItem& entry = m_table.Items[item];
    if (m_pictures) {
      if (!entry.Texture.empty()) m_surface.Image(m_bitmaps / entry.Texture, box);
      return;
    }
    const std::int32_t color = Rgb(entry.R, entry.G, entry.B);
    m_surface.SetPen(color);
    m_surface.SetBrush(color);
    m_surface.Box(box);
  }

  Surface& m_surface;
  const ClassTable& m_table;
  const std::filesystem::path& m_bitmaps;
  bool m_pictures;
};

void DisplayCells(Surface& surface, const PaintInput& in, const ClassGrid& grid, const ClassTable& table) {
  if (in.view.Zoom <= LeastZoom || !grid.IsAllocated()) return;
  const CellRange columns = Columns(in.view), rows = Rows(in.view);
  CellPainter painter(surface, in, table);
  float y = rows.start;
  for (std::int32_t row = rows.first; row <= rows.last; ++row) {
    painter.PaintRow(grid, row, columns, y, y + rows.step);
    y += rows.step;
  }
}

}  // namespace

void DisplayLands(Surface& surface, const PaintInput& in) {
  DisplayCells(surface, in, in.project.Lands, in.lands);
}

void DisplayWaters(Surface& surface, const PaintInput& in) {
  DisplayCells(surface, in, in.project.Waters, in.waters);
}

}  // namespace landsmith
