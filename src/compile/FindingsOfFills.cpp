#include "compile/ItemFindings.h"
#include "compile/LwmFills.h"

namespace landsmith {
namespace {

constexpr int AreasPerCell = 32;
/// The Cells that an index of Cells can name.
constexpr std::int32_t LastCellX = 767, LastCellY = 511;

LatLon MiddleOf(const FillRec& fill) {
  const LatLon middle{(fill.Box.NLat + fill.Box.SLat) / 2, (fill.Box.WLon + fill.Box.ELon) / 2};
  return IsInWorld(middle) ? middle : LatLon{};
}

bool IsInCell(const FillRec& fill) {
  return (fill.Col + 1) * fill.Size <= AreasPerCell && (fill.Row + 1) * fill.Size <= AreasPerCell;
}

}  // namespace

void CheckItem(const FillRec& fill, ItemFindings& found) {
  const LatLon at = MiddleOf(fill);
  if (const auto fault = FaultOfFill(fill))
    found.Error(at, "The fill cannot be written: " + *fault + ".");
  else if (!IsInCell(fill))
    found.Error(at, "The fill's block " + std::to_string(fill.Col) + ", " + std::to_string(fill.Row) +
                        " of a side of " + std::to_string(fill.Size) + " Areas is none of its Cell.");
  if (fill.CellX < 0 || fill.CellX > LastCellX || fill.CellY < 0 || fill.CellY > LastCellY)
    found.Error(at, "The fill's Cell " + std::to_string(fill.CellX) + ", " + std::to_string(fill.CellY) +
                        " lies outside the world.");
  if (fill.Type != LandFill) CheckMaskAltitude(fill.Height, at, found);
}

}  // namespace landsmith
