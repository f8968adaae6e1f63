#include "compile/ExcludePolys.h"

#include "compile/CellOrder.h"
#include "compile/CompileStep.h"
#include "compile/ItemFailure.h"
#include "compile/PolyClip.h"
#include "compile/ScmFrame.h"
#include "compile/VtpText.h"
#include "vector/LineType.h"
#include "vector/PolyType.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <variant>
#include <vector>

namespace landsmith {
namespace {

constexpr ItemWords ExcludeWords{"compiling the exclusion polygons", "polygon"};

using Layers = std::vector<std::int32_t>;

/// An Area and the polygon that touches it.
struct ExcludeTouch {
  std::int32_t CellX = 0, CellY = 0;
  std::uint8_t AreaX = 0, AreaY = 0;
  std::size_t LayersPlace = 0;
};

struct Excluded {
  std::vector<ExcludeTouch> Touches;
  std::vector<Layers> LayersOfPolys;  ///< rising
  GeoBox Bounds;
};

struct ExcludeArea {
  std::uint8_t AreaX = 0, AreaY = 0;
  Layers Named;
  std::bitset<101> IsNamed;
};

struct ExcludeCell {
  std::int32_t CellX = 0, CellY = 0;
  std::vector<ExcludeArea> Areas;
};

Layers LayersOf(const PolyRec& poly) {
  const PolyType decoded = DecodePolyType(poly.Type);
  const auto* exclusion = std::get_if<ExclusionPolyType>(&decoded);
  if (exclusion == nullptr) throw RuntimeError("the type \"" + poly.Type + "\" lacks its four layer masks");
  const auto layers = LayersOfMasks(exclusion->Masks);
  return {layers.begin(), layers.end()};
}

void AddPoly(Excluded& excluded, const PolyRec& poly) {
  Layers layers = LayersOf(poly);
  const TouchedAreas touched = ClipPolyToAreasForExclude(poly.Points);
  if (touched.IsDropped) return;
  excluded.Bounds.Add(touched.Box);
  if (layers.empty()) return;
  for (const TouchedArea& area : touched.Areas)
    excluded.Touches.push_back(
        {area.CellX, area.CellY, area.AreaX, area.AreaY, excluded.LayersOfPolys.size()});
  excluded.LayersOfPolys.push_back(std::move(layers));
}

Excluded CollectExcluded(const ProjectState& project) {
  Excluded excluded;
  for (std::size_t i = 0; i < project.Polys.size(); ++i) {
    const PolyRec& poly = project.Polys[i];
    if (!poly.Selected || TypeHead(poly.Type) != "Other") continue;
    try {
      AddPoly(excluded, poly);
    } catch (const RuntimeError& failure) {
      throw ItemFailure(ExcludeWords, i, poly.Name, failure.what());
    }
  }
  return excluded;
}

/// Where the Areas of one Cell stand; the Cells are filled one after the other.
class AreaPlaces {
public:
  ExcludeArea& In(ExcludeCell& cell, const ExcludeTouch& touch) {
    constexpr std::size_t side = 32;
    std::size_t& place = m_places[touch.AreaY % side * side + touch.AreaX % side];
    if (place == 0) {
      cell.Areas.push_back({touch.AreaX, touch.AreaY, {}, {}});
      place = cell.Areas.size();
    }
    return cell.Areas[place - 1];
  }
  void Clear() { m_places.fill(0); }

private:
  std::array<std::size_t, 1024> m_places{};  ///< from 1; 0 for an Area that has not come yet
};

std::vector<ExcludeCell> GroupTouches(const Excluded& excluded) {
  std::vector<ExcludeCell> cells;
  AreaPlaces places;
  for (const CellPlace& at : InCellOrder(excluded.Touches)) {
    if (cells.empty() || !at.InCell(cells.back().CellX, cells.back().CellY)) {
      cells.push_back({at.CellX, at.CellY, {}});
      places.Clear();
    }
    const ExcludeTouch& touch = excluded.Touches[at.Place];
    ExcludeArea& area = places.In(cells.back(), touch);
    for (const std::int32_t layer : excluded.LayersOfPolys[touch.LayersPlace]) {
      const auto bit = static_cast<std::size_t>(layer);
      if (area.IsNamed[bit]) continue;
      area.IsNamed.set(bit);
      area.Named.push_back(layer);
    }
  }
  return cells;
}

void WriteCell(ScmWriter& out, const ExcludeCell& cell, std::int64_t number) {
  WriteCellLabel(out, number);
  for (const ExcludeArea& area : cell.Areas) {
    out.EmptyLine().Text("VTPArea( ").Integer(std::ssize(area.Named)).Text(" 0 ");
    out.Integer(area.AreaX).Text(" ").Integer(area.AreaY).Line(" )");
    for (const std::int32_t layer : area.Named)
      out.Text("    VTPLayer( ").Integer(layer).Line(" 1 0 0 )");
  }
}

}  // namespace

std::string ExcludePolySource(const ProjectState& project) {
  const Excluded excluded = CollectExcluded(project);
  const std::vector<ExcludeCell> cells = GroupTouches(excluded);
  ScmWriter out;
  WriteHeader(out, excluded.Bounds);
  out.EmptyLine().Line(VtpAreaFileHeader);
  std::int64_t number = 0;
  for (const ExcludeCell& cell : cells)
    WriteCell(out, cell, number++);
  WriteVtpIndexList(out, cells);
  // The tool wants one texture, though none is used.
  out.EmptyLine().Line("VTPTextureList( 1 100 2 0 0 4 )");
  WriteVtpEnd(out);
  return out.Take();
}

void CompileExcludePolys(const CompileContext& context) {
  CompileStepRequest request;
  request.BaseName = "0_" + ProjectFileName(context.project.Name) + "_VTPX";
  request.Source = ExcludePolySource(context.project);
  CompileStep(context, request);
}

}  // namespace landsmith
