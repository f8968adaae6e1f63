// Which point of its bitmap lies on each vertex of a textured polygon: what the author drags on the picture.
//
// The raster of a bitmap is 0 to 256 on both axes, counted from its south-west corner, whatever the bitmap's
// size. The picture shows it at twice its size: raster (0, 0) is pixel (12, 524), raster (256, 256) is pixel
// (524, 12), and a frame reaches two pixels further on each side.
#pragma once

#include "core/Records.h"
#include "platform/Surface.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

struct RasterPoint {
  std::int32_t X = 0, Y = 0;  ///< east, north
  bool operator==(const RasterPoint&) const = default;
};

inline constexpr std::int32_t RasterSide = 256;
/// Presses count from the first to the last of these pixels, on both axes.
inline constexpr std::int32_t PictureFirst = 10, PictureLast = 526;

PixelPoint ToPicture(RasterPoint point);
/// To the nearest raster point, halves to even.
RasterPoint ToRaster(PixelPoint at);

/// The points in pixels of the picture; nothing for a text that is not `count` pairs "x,y//" of whole numbers
/// up to 1,000,000 either way.
std::optional<std::vector<PixelPoint>> LoadTiePoints(std::string_view pairs, std::size_t count);

/// The points of one polygon while they are edited; the project is not touched.
class TiePoints {
public:
  /// The vertices of `poly` count, one at least, not its type. `pairs` that do not fit them are made anew, as
  /// for a new polygon. The first point is the current one.
  TiePoints(const PolyRec& poly, std::string_view pairs);

  const std::vector<PixelPoint>& Points() const { return m_points; }  ///< in vertex order
  std::size_t CurrentTiePoint() const { return m_current; }           ///< from 0
  RasterPoint Position() const;                                       ///< of the current point

  /// The first point less than 4 pixels away on both axes becomes the current one and is held by the mouse.
  /// Presses outside of the picture, and beside all points, do nothing.
  void Press(PixelPoint at);
  /// The held point follows the mouse as far as the raster goes; nothing when none is held.
  void Drag(PixelPoint at);
  void Release() { m_grip.reset(); }

  /// The current point, held to the raster.
  void MoveTo(RasterPoint at);
  void Nudge(std::int32_t east, std::int32_t north);
  /// The next point becomes the current one, or the one before; round the ring.
  void ChooseNext();
  void ChoosePrevious();

  /// The points of a new polygon.
  void Reset() { m_points = m_fresh; }
  /// "x,y//" for each vertex.
  std::string Pairs() const;

private:
  std::vector<PixelPoint> m_fresh;  ///< of a new polygon
  std::vector<PixelPoint> m_points;
  std::size_t m_current = 0;
  std::optional<PixelPoint> m_grip;  ///< from the mouse to the held point
};

}  // namespace landsmith
