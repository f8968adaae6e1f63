#include "compile/LineGaps.h"

#include "core/Grid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace landsmith {
namespace {

/// Counted in Cells, eastward and southward.
struct InCells {
  double x = 0, y = 0;
};

/// Half a Point in Cells.
constexpr double Shallow = 0.5 / (CellPointMax - CellPointMin);

InCells ToCells(const LinePoint& point) {
  return {(point.Lon + 180) / CellWidth, (90 - point.Lat) / CellHeight};
}

/// The parts of the way from `from` to `to` at which it comes to a whole number.
void AddBorders(double from, double to, std::vector<double>& parts) {
  const double last = std::floor(std::max(from, to));
  for (double border = std::floor(std::min(from, to)) + 1; border <= last; ++border)
    parts.push_back((border - from) / (to - from));
}

bool SameCell(const InCells& a, const InCells& b) {
  return std::floor(a.x) == std::floor(b.x) && std::floor(a.y) == std::floor(b.y);
}

/// From the nearest border of the Cell that holds the place.
double Depth(const InCells& at) {
  const double x = at.x - std::floor(at.x), y = at.y - std::floor(at.y);
  return std::min(std::min(x, 1 - x), std::min(y, 1 - y));
}

/// Cells that are one, or that have a side in common: the way between two places in them leaves no third.
bool AreBeside(const InCells& a, const InCells& b) {
  return std::fabs(std::floor(a.x) - std::floor(b.x)) + std::fabs(std::floor(a.y) - std::floor(b.y)) <= 1;
}

class GapFinder {
public:
  void Visit(const InCells& from, const InCells& to) {
    if (AreBeside(from, to)) return;
    m_parts.assign({0, 1});
    AddBorders(from.x, to.x, m_parts);
    AddBorders(from.y, to.y, m_parts);
    std::sort(m_parts.begin(), m_parts.end());
    for (std::size_t i = 1; i < m_parts.size(); ++i) {
      const double part = (m_parts[i - 1] + m_parts[i]) / 2;
      const InCells middle{from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
      if (SameCell(middle, from) || SameCell(middle, to) || Depth(middle) < Shallow) continue;
      if (Gaps.Count++ == 0) Gaps.First = {90 - middle.y * CellHeight, middle.x * CellWidth - 180};
    }
  }

  LineGaps Gaps;

private:
  std::vector<double> m_parts;
};

}  // namespace

LineGaps FindLineGaps(const std::vector<LinePoint>& points) {
  GapFinder finder;
  if (points.empty()) return {};
  InCells before = ToCells(points.front());
  for (const LinePoint& point : points) {
    const InCells at = ToCells(point);
    finder.Visit(before, at);
    before = at;
  }
  return finder.Gaps;
}

}  // namespace landsmith
