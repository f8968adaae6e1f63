// Arithmetic that the painters share.
#pragma once

#include "core/GeoTypes.h"
#include "editor/ViewState.h"
#include "platform/Surface.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace landsmith {

/// Farther out than any canvas; what lies beyond is cut off or held here before it is rounded.
inline constexpr double FarPixel = 30000;

/// From this many segments or vertices in view on, a painter is too slow for each single one.
inline constexpr std::size_t ManyVertices = 4000;

/// Nearest pixel, halves to even. For values within 2^31; inline, since canvases of a million vertices ask it
/// four million times.
inline std::int32_t RoundPixel(double value) {
  constexpr double shift = 6755399441055744.0;  // 1.5 * 2^52: adding it leaves no bit behind the point
  return static_cast<std::int32_t>((value + shift) - shift);
}

/// The same for any value, held to `FarPixel`: right for the sides of boxes.
inline std::int32_t HeldPixel(double value) {
  return RoundPixel(std::clamp(value, -FarPixel, FarPixel));
}

inline PixelPoint HeldPixel(CanvasPoint at) {
  return {HeldPixel(at.x), HeldPixel(at.y)};
}

/// The pixels that a box in degrees covers.
inline PixelBox CanvasBox(const ViewState& view, const GeoBox& box) {
  const PixelPoint first = HeldPixel(ToCanvas(view, box.WLon, box.NLat));
  const PixelPoint last = HeldPixel(ToCanvas(view, box.ELon, box.SLat));
  return {first.x, first.y, last.x, last.y};
}

/// A box of (2 * reach + 1) pixels a side around a pixel: a point mark.
inline PixelBox MarkBox(PixelPoint at, std::int32_t reach) {
  return {at.x - reach, at.y - reach, at.x + reach + 1, at.y + reach + 1};
}

/// The same box as pixels: all of it, or its frame alone. A painter sets up each box anew; a canvas in a
/// drawing mode may show a million marks.
inline void AppendMarkSpans(std::vector<PixelSpan>& spans, PixelPoint at, std::int32_t reach, bool filled) {
  for (std::int32_t y = at.y - reach; y <= at.y + reach; ++y) {
    if (filled || y == at.y - reach || y == at.y + reach) {
      spans.push_back({y, at.x - reach, at.x + reach + 1});
    } else {
      spans.push_back({y, at.x - reach, at.x - reach + 1});
      spans.push_back({y, at.x + reach, at.x + reach + 1});
    }
  }
}

inline bool Meets(const ViewState& view, const GeoBox& box) {
  return box.Meets(view.VisibleBox());
}

}  // namespace landsmith
