#include "compile/VtpTree.h"

#include "compile/Prefetch.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace landsmith {
namespace {

/// Where the layers and textures of one Cell stand. The Cells are filled one after the other, so that what is
/// looked up stays small however many Cells there are.
class CellFiller {
public:
  void Add(VtpCell& cell, LineRun&& run) {
    const auto layer = static_cast<std::uint32_t>(run.Layer);
    VtpLayer& inLayer = FindOrAppend(cell.Layers, m_layers, layer, VtpLayer{run.Layer, {}});
    const std::uint64_t texture = (std::uint64_t{layer} << 32U) | static_cast<std::uint32_t>(run.TexId);
    VtpTexture& inTexture = FindOrAppend(inLayer.Textures, m_textures, texture, VtpTexture{run.TexId, {}});
    inTexture.Polys.push_back({run.Name, std::move(run.Points)});
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

struct RunPlace {
  std::int32_t cellY = 0, cellX = 0;
  std::size_t run = 0;
};

/// By Cell row, then column, then as they come.
std::vector<RunPlace> CellOrder(const std::vector<LineRun>& runs) {
  std::vector<RunPlace> order;
  order.reserve(runs.size());
  for (std::size_t i = 0; i < runs.size(); ++i)
    order.push_back({runs[i].CellY, runs[i].CellX, i});
  std::sort(order.begin(), order.end(), [](const RunPlace& a, const RunPlace& b) {
    return std::tie(a.cellY, a.cellX, a.run) < std::tie(b.cellY, b.cellX, b.run);
  });
  return order;
}

}  // namespace

std::vector<VtpCell> GroupRuns(std::vector<LineRun> runs) {
  std::vector<VtpCell> cells;
  CellFiller filler;
  const std::vector<RunPlace> order = CellOrder(runs);
  constexpr std::size_t ahead = 8;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i + ahead < order.size()) Prefetch(&runs[order[i + ahead].run]);
    const RunPlace& place = order[i];
    if (cells.empty() || cells.back().CellX != place.cellX || cells.back().CellY != place.cellY) {
      cells.push_back({place.cellX, place.cellY, {}});
      filler.Clear();
    }
    filler.Add(cells.back(), std::move(runs[place.run]));
  }
  return cells;
}

}  // namespace landsmith
