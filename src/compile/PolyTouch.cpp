#include "compile/CutRing.h"
#include "compile/PolyClip.h"
#include "compile/RingSquares.h"
#include "core/Numbers.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace landsmith {
namespace {

// Rows count northward from the equator here and columns eastward from Greenwich, as the looked-at Areas
// follow from the latitudes and longitudes themselves. Lines are exact in a double.
constexpr std::int32_t RowsNorthOfEquator = WorldRows * AreasPerCell / 2,
                       ColumnsWestOfGreenwich = WorldColumns * AreasPerCell / 2;

struct Range {
  std::int32_t Least = 0, Most = 0;
  bool Has(std::int32_t value) const { return Least <= value && value <= Most; }
};

struct RowCol {
  std::int32_t Row = 0, Col = 0;
  bool operator==(const RowCol&) const = default;
  bool operator<(const RowCol& other) const { return std::tie(Row, Col) < std::tie(other.Row, other.Col); }
};

/// Adds the rows or columns that hold `value`: two when it lies on their line.
template <class Take>
void ForEachHolding(double value, double spacing, Range looked, Take take) {
  const std::int32_t place = Floor(value / spacing);
  if (place * spacing == value && looked.Has(place - 1)) take(place - 1);
  if (looked.Has(place)) take(place);
}

std::vector<RowCol> AreasOfVertices(const std::vector<CutVertex>& ring, Range rows, Range cols) {
  std::vector<RowCol> areas;
  for (const CutVertex& vertex : ring)
    ForEachHolding(vertex.Lat, AreaHeight, rows, [&](std::int32_t row) {
      ForEachHolding(vertex.Lon, AreaWidth, cols, [&](std::int32_t col) {
        if (areas.empty() || !(areas.back() == RowCol{row, col})) areas.push_back({row, col});
      });
    });
  return areas;
}

/// For each row, where the ring crosses the parallel through its centres.
std::vector<std::vector<double>> CentreCrossings(const std::vector<CutVertex>& ring, Range rows) {
  std::vector<std::vector<double>> crossings(static_cast<std::size_t>(rows.Most - rows.Least) + 1);
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const CutVertex& from = ring[i];
    const CutVertex& to = ring[i + 1 == ring.size() ? 0 : i + 1];
    const double low = std::min(from.Lat, to.Lat), high = std::max(from.Lat, to.Lat);
    for (std::int32_t row = Floor(low / AreaHeight - 0.5); row <= rows.Most; ++row) {
      const double centre = (row + 0.5) * AreaHeight;
      if (centre >= high) break;
      if (centre < low || !rows.Has(row)) continue;
      crossings[static_cast<std::size_t>(row - rows.Least)].push_back(
          from.Lon + (to.Lon - from.Lon) * (centre - from.Lat) / (to.Lat - from.Lat));
    }
  }
  for (std::vector<double>& inRow : crossings)
    std::sort(inRow.begin(), inRow.end());
  return crossings;
}

/// The Areas whose centre the ring encloses, by the even-odd rule.
void AddEnclosed(const std::vector<std::vector<double>>& crossings, Range rows, Range cols,
                 std::vector<RowCol>& areas) {
  for (std::size_t r = 0; r < crossings.size(); ++r) {
    const std::vector<double>& inRow = crossings[r];
    for (std::size_t k = 0; k + 1 < inRow.size(); k += 2) {
      const std::int32_t row = rows.Least + static_cast<std::int32_t>(r);
      // The first centre at or east of the crossing, up to the last one west of the next.
      std::int32_t col = Floor(inRow[k] / AreaWidth - 0.5);
      if ((col + 0.5) * AreaWidth < inRow[k]) ++col;
      for (; (col + 0.5) * AreaWidth < inRow[k + 1]; ++col)
        if (cols.Has(col)) areas.push_back({row, col});
      RequireSquares(areas.size());
    }
  }
}

void SortWithoutRepeats(std::vector<RowCol>& areas) {
  std::sort(areas.begin(), areas.end());
  areas.erase(std::unique(areas.begin(), areas.end()), areas.end());
}

TouchedArea AreaAt(RowCol at) {
  const std::int32_t fromNorth = RowsNorthOfEquator - 1 - at.Row;
  const std::int32_t fromWest = ColumnsWestOfGreenwich + at.Col;
  return {fromWest / AreasPerCell, fromNorth / AreasPerCell,
          static_cast<std::uint8_t>(fromWest % AreasPerCell),
          static_cast<std::uint8_t>(fromNorth % AreasPerCell)};
}

}  // namespace

TouchedAreas ClipPolyToAreasForExclude(const std::vector<PolyPoint>& ring) {
  TouchedAreas touched;
  const std::vector<CutVertex> snapped = SnapRing(ring, SnapForm::Cell);
  if (snapped.empty()) {
    touched.IsDropped = true;
    return touched;
  }
  for (const CutVertex& vertex : snapped)
    touched.Box.Add(vertex.Lat, vertex.Lon);
  const Range rows{Floor(touched.Box.SLat / AreaHeight), Floor(touched.Box.NLat / AreaHeight)};
  const Range cols{Floor(touched.Box.WLon / AreaWidth), Floor(touched.Box.ELon / AreaWidth)};
  const std::vector<CutVertex> cut = CutAlongLines(snapped, {AreaHeight, AreaWidth}, CornerCuts::Stay);
  std::vector<RowCol> areas = AreasOfVertices(cut, rows, cols);
  SortWithoutRepeats(areas);
  AddEnclosed(CentreCrossings(cut, rows), rows, cols, areas);
  SortWithoutRepeats(areas);
  touched.Areas.reserve(areas.size());
  for (const RowCol& area : areas)
    touched.Areas.push_back(AreaAt(area));
  return touched;
}

}  // namespace landsmith
