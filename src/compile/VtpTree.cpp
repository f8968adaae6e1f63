#include "compile/VtpTree.h"

#include "compile/CellOrder.h"
#include "compile/Prefetch.h"

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace landsmith {
namespace {

VtpPoly ToPoly(LineRun&& run) {
  return {run.Name, std::move(run.Points)};
}
ConvexPart ToPoly(VtpPolyRec&& poly) {
  return std::move(poly.Points);
}

/// Where the layers and textures of one Cell stand. The Cells are filled one after the other, so that what is
/// looked up stays small however many Cells there are.
template <class Poly>
class CellFiller {
public:
  template <class Piece>
  void Add(VtpCellOf<Poly>& cell, Piece&& piece) {
    const auto layer = static_cast<std::uint32_t>(piece.Layer);
    auto& inLayer = FindOrAppend(cell.Layers, m_layers, layer, VtpLayerOf<Poly>{piece.Layer, {}});
    const std::uint64_t texture = (std::uint64_t{layer} << 32U) | static_cast<std::uint32_t>(piece.TexId);
    auto& inTexture =
        FindOrAppend(inLayer.Textures, m_textures, texture, VtpTextureOf<Poly>{piece.TexId, {}});
    inTexture.Polys.push_back(ToPoly(std::forward<Piece>(piece)));
  }

  void Clear() {
    m_layers.clear();
    m_textures.clear();
  }

private:
  using PlaceOf = std::unordered_map<std::uint64_t, std::size_t>;

  template <class Element>
  static Element& FindOrAppend(std::vector<Element>& list, PlaceOf& places, std::uint64_t key,
                               Element fresh) {
    const auto [entry, isNew] = places.try_emplace(key, list.size());
    if (isNew) list.push_back(std::move(fresh));
    return list[entry->second];
  }

  PlaceOf m_layers, m_textures;
};

template <class Poly, class Piece>
std::vector<VtpCellOf<Poly>> Grouped(std::vector<Piece> pieces) {
  std::vector<VtpCellOf<Poly>> cells;
  CellFiller<Poly> filler;
  const std::vector<CellPlace> order = InCellOrder(pieces);
  constexpr std::size_t ahead = 8;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i + ahead < order.size()) Prefetch(&pieces[order[i + ahead].Place]);
    const CellPlace& place = order[i];
    if (cells.empty() || !place.InCell(cells.back().CellX, cells.back().CellY)) {
      cells.push_back({place.CellX, place.CellY, {}});
      filler.Clear();
    }
    filler.Add(cells.back(), std::move(pieces[place.Place]));
  }
  return cells;
}

}  // namespace

std::vector<VtpCell> GroupRuns(std::vector<LineRun> runs) {
  return Grouped<VtpPoly>(std::move(runs));
}

std::vector<VtpPolyCell> GroupPolys(std::vector<VtpPolyRec> polys) {
  return Grouped<ConvexPart>(std::move(polys));
}

}  // namespace landsmith
