#include "editor/QuadRaster.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstdlib>

namespace landsmith {

namespace {

constexpr std::int32_t Side = 64;
constexpr std::int32_t One = 1 << 16;  // coordinates along the minor axis are 16.16
constexpr std::int32_t Half = One / 2;

/// A window of pixels, one word a row. Only the first `height` rows are there: most quads have very few, and
/// clearing the rest would cost more than filling them.
class Mask {
public:
  explicit Mask(std::int32_t height) : m_height(height) {
    std::fill_n(m_rows.begin(), static_cast<std::size_t>(height), std::uint64_t{0});
  }
  std::uint64_t& Row(std::int32_t y) { return m_rows[static_cast<std::size_t>(y)]; }
  std::int32_t Height() const { return m_height; }
  void Set(std::int32_t x, std::int32_t y) {
    if (x >= 0 && y >= 0 && x < Side && y < m_height) Row(y) |= std::uint64_t{1} << x;
  }

private:
  std::int32_t m_height;
  std::array<std::uint64_t, Side> m_rows;
};

/// The bits from each odd crossing to the next even one.
std::uint64_t InsideOf(std::uint64_t crossings) {
  for (int shift = 1; shift < Side; shift *= 2)
    crossings ^= crossings << shift;
  return crossings;
}

void Fill(Mask& mask, const PixelQuad& quad) {
  Mask crossings(mask.Height());
  for (std::size_t i = 0; i < quad.size(); ++i) {
    PixelPoint a = quad[i], b = quad[(i + 1) % quad.size()];
    if (a.y > b.y) std::swap(a, b);
    if (a.y == b.y) continue;
    const auto slope = static_cast<std::int32_t>(double(b.x - a.x) / double(b.y - a.y) * One);
    std::int64_t x = (std::int64_t{a.x} << 16) + Half + ((std::int64_t{slope} * Half) >> 16);
    for (std::int32_t y = a.y; y < b.y; ++y, x += slope) {
      const std::int64_t column = x >> 16;
      if (column < Side) crossings.Row(y) ^= std::uint64_t{1} << std::max<std::int64_t>(column, 0);
    }
  }
  for (std::int32_t y = 0; y < mask.Height(); ++y)
    mask.Row(y) |= InsideOf(crossings.Row(y));
}

enum class Heading { None, Down, Up, Right, Left };

bool IsOpposite(Heading a, Heading b) {
  return (a == Heading::Down && b == Heading::Up) || (a == Heading::Up && b == Heading::Down) ||
         (a == Heading::Right && b == Heading::Left) || (a == Heading::Left && b == Heading::Right);
}

/// One edge in terms of its longer axis, `u`, and the other, `v`, turned so that u grows.
struct MajorLine {
  MajorLine(PixelPoint a, PixelPoint b) : vertical(std::abs(b.x - a.x) < std::abs(b.y - a.y)) {
    u1 = (vertical ? a.y : a.x) * 64;
    v1 = (vertical ? a.x : a.y) * 64;
    u2 = (vertical ? b.y : b.x) * 64;
    std::int32_t v2 = (vertical ? b.x : b.y) * 64;
    heading = vertical ? Heading::Down : Heading::Right;
    swapped = u1 > u2;
    if (swapped) {
      std::swap(u1, u2);
      std::swap(v1, v2);
      heading = vertical ? Heading::Up : Heading::Left;
    }
    hasLength = u1 != u2;
    if (hasLength) step = static_cast<std::int32_t>(std::int64_t{v2 - v1} * One / (u2 - u1));
  }
  /// v at the sample of pixel u, 16.16; `v` is that of u1.
  std::int32_t At(std::int32_t u, std::int32_t v) const {
    const std::int32_t round = step > 0 ? 32 : 0;
    return v + static_cast<std::int32_t>((std::int64_t{u * 64 + round - u1} * step) >> 6);
  }
  bool IsAlongAxis() const { return std::abs(step) < One / 4; }

  bool vertical, swapped = false, hasLength = false;
  Heading heading = Heading::None;
  std::int32_t u1 = 0, u2 = 0, v1 = 0;  ///< 64ths of a pixel
  std::int32_t step = 0;                ///< of v for one pixel of u, 16.16
};

/// Draws edges one after the other; where one begins depends on where the one before ended.
class Outline {
public:
  Outline(Mask& mask, PixelPoint beforeStart, PixelPoint start) : m_mask(mask) {
    MajorLine line(beforeStart, start);
    if (!line.hasLength) return;
    const std::int32_t u = line.u1 >> 6, behind = line.u2 >> 6;
    const std::int32_t v = line.At(u, line.v1 * 1024);
    const std::int32_t last = line.swapped ? u : behind - 1;
    SetLast(line.vertical, last, (v + (last - u) * line.step) >> 16);
    m_heading = line.heading;
    m_alongAxis = line.IsAlongAxis();
  }

  void Draw(PixelPoint a, PixelPoint b) {
    MajorLine line(a, b);
    if (!line.hasLength) return;
    std::int32_t v = line.v1 * 1024;
    const bool turnsBack = IsOpposite(m_heading, line.heading);
    if (turnsBack && line.swapped) line.u2 += 32;
    if (turnsBack && !line.swapped) {
      line.u1 -= 32;
      v -= line.step >> 1;
    }
    m_u = (line.u1 + 32) >> 6;
    m_behind = (line.u2 + 32) >> 6;
    if (turnsBack && !line.swapped && LastU(line) == m_u + 1) ++m_u;
    if (m_u == m_behind) return;
    m_v = line.At(m_u, v);
    MeetEdgeBefore(line);
    DrawPixels(line);
  }

private:
  std::int32_t LastU(const MajorLine& line) const { return line.vertical ? m_lastY : m_lastX; }
  std::int32_t LastV(const MajorLine& line) const { return line.vertical ? m_lastX : m_lastY; }
  void SetLast(bool vertical, std::int32_t u, std::int32_t v) {
    m_lastX = vertical ? v : u;
    m_lastY = vertical ? u : v;
  }

  /// Leaves out a pixel that the edge before has drawn, adds one that both would miss.
  void MeetEdgeBefore(const MajorLine& line) {
    std::int32_t firstU = m_u, firstV = m_v >> 16;
    std::int32_t lastU = m_behind - 1, lastV = (m_v + (m_behind - m_u - 1) * line.step) >> 16;
    if (line.swapped) {
      std::swap(firstU, lastU);
      std::swap(firstV, lastV);
    }
    const bool alongAxis = line.IsAlongAxis();
    if (m_lastX > INT_MIN) {
      const std::int32_t apartU = std::abs(LastU(line) - firstU), apartV = std::abs(LastV(line) - firstV);
      const bool corner = alongAxis && m_alongAxis && apartU != 0 && apartV != 0;
      if (apartU == 0 && apartV == 0) {
        MoveStart(line, 1);
      } else if (m_heading != line.heading && (corner || apartU > 1 || apartV > 1)) {
        MoveStart(line, -1);
      } else if (m_heading == line.heading && apartV <= 1 && apartU > 1) {
        m_v += line.step >> 1;
        lastV = line.swapped ? m_v >> 16 : (m_v + (m_behind - m_u - 1) * line.step) >> 16;
      }
    }
    m_heading = line.heading;
    m_alongAxis = alongAxis;
    SetLast(line.vertical, lastU, lastV);
  }

  void MoveStart(const MajorLine& line, std::int32_t pixels) {
    if (line.swapped) {
      m_behind -= pixels;
    } else {
      m_u += pixels;
      m_v += pixels * line.step;
    }
  }

  void DrawPixels(const MajorLine& line) {
    do {  // one pixel at least, also when the start has moved to the end
      const std::int32_t v = m_v >> 16;
      m_mask.Set(line.vertical ? v : m_u, line.vertical ? m_u : v);
      m_v += line.step;
    } while (++m_u < m_behind);
  }

  Mask& m_mask;
  std::int32_t m_lastX = INT_MIN, m_lastY = INT_MIN;
  Heading m_heading = Heading::Right;
  bool m_alongAxis = false;
  std::int32_t m_u = 0, m_behind = 0, m_v = 0;
};

void AppendRow(std::uint64_t bits, PixelPoint origin, std::vector<PixelSpan>& spans) {
  while (bits != 0) {
    const int first = std::countr_zero(bits);
    const int length = std::countr_one(bits >> first);
    spans.push_back({origin.y, origin.x + first, origin.x + first + length});
    if (first + length >= Side) return;
    bits &= ~std::uint64_t{0} << (first + length);
  }
}

}  // namespace

bool AppendQuad(const PixelQuad& quad, std::vector<PixelSpan>& spans) {
  if (quad.front() == quad.back()) return false;
  const auto [left, right] = std::minmax({quad[0].x, quad[1].x, quad[2].x, quad[3].x});
  const auto [top, bottom] = std::minmax({quad[0].y, quad[1].y, quad[2].y, quad[3].y});
  constexpr std::int32_t margin = 1;  // for a pixel beside the end of an edge
  if (right - left + 1 > Side - 2 * margin || bottom - top + 1 > Side - 2 * margin) return false;

  const PixelPoint origin{left - margin, top - margin};
  PixelQuad local = quad;
  for (PixelPoint& corner : local)
    corner = {corner.x - origin.x, corner.y - origin.y};

  Mask mask(bottom - top + 1 + 2 * margin);
  Fill(mask, local);
  Outline outline(mask, local.back(), local.front());
  for (std::size_t i = 0; i < local.size(); ++i)
    outline.Draw(local[i], local[(i + 1) % local.size()]);
  for (std::int32_t y = 0; y < mask.Height(); ++y)
    AppendRow(mask.Row(y), {origin.x, origin.y + y}, spans);
  return true;
}

}  // namespace landsmith
