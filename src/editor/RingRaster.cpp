#include "editor/RingRaster.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <utility>
#include <vector>

namespace landsmith {

namespace {

constexpr std::int64_t MaxCrossings = 16'000'000;
constexpr std::int32_t WordBits = 64;

/// One bit a pixel of the canvas, and one more a row for what lies to the right of it.
class BitRows {
public:
  BitRows(std::int32_t width, std::int32_t height)
      : m_width(width),
        m_words(static_cast<std::size_t>(width / WordBits + 1)),
        m_bits(m_words * static_cast<std::size_t>(height)) {}

  void Flip(std::int32_t row, std::int64_t column) {
    const auto x = static_cast<std::size_t>(std::clamp<std::int64_t>(column, 0, m_width));
    m_bits[Start(row) + x / WordBits] ^= Bit(x);
  }
  /// Both ends included, in any order; what lies outside is dropped.
  void SetRun(std::int32_t row, std::int64_t a, std::int64_t b) {
    const std::int64_t first = std::max<std::int64_t>(std::min(a, b), 0);
    const std::int64_t last = std::min<std::int64_t>(std::max(a, b), m_width - 1);
    for (std::int64_t x = first; x <= last; ++x)
      m_bits[Start(row) + static_cast<std::size_t>(x) / WordBits] |= Bit(static_cast<std::size_t>(x));
  }
  /// Turns crossings into what lies between them, by the odd-even rule.
  void FillBetween(std::int32_t row) {
    std::uint64_t inside = 0;  // all ones while inside at the word's start
    for (std::size_t word = Start(row); word < Start(row) + m_words; ++word) {
      std::uint64_t bits = m_bits[word];
      for (int shift = 1; shift < WordBits; shift *= 2)
        bits ^= bits << shift;
      m_bits[word] = bits ^ inside;
      inside = (m_bits[word] >> (WordBits - 1)) != 0 ? ~std::uint64_t{0} : 0;
    }
  }
  void AppendSpans(std::int32_t row, std::vector<PixelSpan>& spans) const {
    std::int32_t x = NextChange(row, 0, true);
    while (x < m_width) {
      const std::int32_t behind = NextChange(row, x, false);
      spans.push_back({row, x, behind});
      x = NextChange(row, behind, true);
    }
  }

private:
  static std::uint64_t Bit(std::size_t x) { return std::uint64_t{1} << (x % WordBits); }
  std::size_t Start(std::int32_t row) const { return static_cast<std::size_t>(row) * m_words; }

  /// The first pixel from `x` on that is set or, with `set` false, not set; the width when there is none.
  std::int32_t NextChange(std::int32_t row, std::int32_t x, bool set) const {
    while (x < m_width) {
      std::uint64_t bits = m_bits[Start(row) + static_cast<std::size_t>(x / WordBits)];
      if (!set) bits = ~bits;
      bits >>= x % WordBits;
      if (bits != 0) return std::min(x + std::countr_zero(bits), m_width);
      x += WordBits - x % WordBits;
    }
    return m_width;
  }

  std::int32_t m_width;
  std::size_t m_words;
  std::vector<std::uint64_t> m_bits;
};

/// Spikes, pairs of neighbouring vertices, at equal distances through the ring, so many that the work is
/// bounded.
std::vector<PixelPoint> ThinnedRing(std::span<const PixelPoint> ring, std::int32_t height) {
  const std::int64_t crossings = CountCrossings(ring, height);
  const auto stride = static_cast<std::size_t>((crossings + MaxCrossings - 1) / MaxCrossings);
  if (stride <= 1) return {ring.begin(), ring.end()};
  std::vector<PixelPoint> kept;
  for (std::size_t i = 0; i + 1 < ring.size(); i += 2 * stride) {
    kept.push_back(ring[i]);
    kept.push_back(ring[i + 1]);
  }
  return kept;
}

class RingRaster {
public:
  explicit RingRaster(Surface& surface)
      : m_height(surface.Height()),
        m_inside(surface.Width(), m_height),
        m_border(surface.Width(), m_height) {}

  void Add(PixelPoint a, PixelPoint b) {
    if (a.y > b.y) std::swap(a, b);
    if (a.y == b.y) {
      if (a.y >= 0 && a.y < m_height) m_border.SetRun(a.y, a.x, b.x);
      return;
    }
    constexpr std::int64_t one = std::int64_t{1} << 16;
    const std::int64_t slope = (b.x - a.x) * one / (b.y - a.y);
    const std::int32_t top = std::max(a.y, 0), bottom = std::min(b.y, m_height);
    std::int64_t x = a.x * one + one / 2 + slope / 2 + slope * (top - a.y);  // at the middle of the row
    for (std::int32_t row = top; row < bottom; ++row, x += slope)
      m_inside.Flip(row, x >> 16);
    AddBorder(a, b, slope);
  }

  void Paint(Surface& surface, const RingColors& colors) {
    std::vector<PixelSpan> spans;
    if (colors.filled) {
      for (std::int32_t row = 0; row < m_height; ++row) {
        m_inside.FillBetween(row);
        m_inside.AppendSpans(row, spans);
      }
      surface.Spans(spans, colors.fill);
      spans.clear();
    }
    for (std::int32_t row = 0; row < m_height; ++row)
      m_border.AppendSpans(row, spans);
    surface.Spans(spans, colors.border);
  }

private:
  /// Pixel by pixel along the longer axis, with the painter's rounding: down, a rising edge half a step
  /// later. `b` is below `a`; both are drawn.
  void AddBorder(PixelPoint a, PixelPoint b, std::int64_t slope) {
    constexpr std::int64_t one = std::int64_t{1} << 16, half = one / 2;
    const auto [west, east] = std::minmax(a.x, b.x);
    const std::int32_t top = std::max(a.y, 0), last = std::min(b.y, m_height - 1);
    const bool steep = east - west < b.y - a.y;
    std::int64_t x = a.x * one + slope * (top - a.y);
    for (std::int32_t row = top; row <= last; ++row, x += slope) {
      std::int64_t first = (x + std::max<std::int64_t>(slope, 0) / 2) >> 16, behind = first + 1;
      if (!steep && slope > 0) {
        first = (x + half - 1) >> 16;
        behind = (x + slope + half - 1) >> 16;
      } else if (!steep) {
        first = ((x + slope) >> 16) + 1;
        behind = (x >> 16) + 1;
      }
      m_border.SetRun(row, std::clamp<std::int64_t>(first, west, east),
                      std::clamp<std::int64_t>(behind - 1, west, east));
    }
  }

  std::int32_t m_height;
  BitRows m_inside, m_border;
};

}  // namespace

std::int64_t CountCrossings(std::span<const PixelPoint> ring, std::int32_t height) {
  std::int64_t count = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const auto [top, bottom] = std::minmax(ring[i].y, ring[(i + 1) % ring.size()].y);
    count += std::max(std::min(bottom, height) - std::max(top, 0), 0);
  }
  return count;
}

void PaintHugeRing(Surface& surface, std::span<const PixelPoint> ring, const RingColors& colors) {
  const std::vector<PixelPoint> kept = ThinnedRing(ring, surface.Height());
  RingRaster raster(surface);
  for (std::size_t i = 0; i < kept.size(); ++i)
    raster.Add(kept[i], kept[(i + 1) % kept.size()]);
  raster.Paint(surface, colors);
}

}  // namespace landsmith
