#include "compile/VtpTree.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace landsmith {
namespace {

struct GroupKey {
  std::int32_t CellX = 0, CellY = 0, Layer = 0, TexId = 0;
  bool operator==(const GroupKey&) const = default;
};

struct GroupKeyHash {
  std::size_t operator()(const GroupKey& key) const {
    std::uint64_t mixed = 0;
    for (const std::int32_t part : {key.CellX, key.CellY, key.Layer, key.TexId})
      mixed = (mixed ^ static_cast<std::uint32_t>(part)) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(mixed ^ (mixed >> 32U));
  }
};

using PlaceOf = std::unordered_map<GroupKey, std::size_t, GroupKeyHash>;

/// The element of `list` that `key` stands for; a key not seen before appends `fresh`.
template <class Element>
Element& FindOrAppend(std::vector<Element>& list, PlaceOf& places, const GroupKey& key, Element fresh) {
  const auto [entry, isNew] = places.try_emplace(key, list.size());
  if (isNew) list.push_back(std::move(fresh));
  return list[entry->second];
}

}  // namespace

std::vector<VtpCell> GroupRuns(std::vector<LineRun> runs) {
  std::vector<VtpCell> cells;
  PlaceOf cellPlaces, layerPlaces, texturePlaces;
  for (LineRun& run : runs) {
    GroupKey key{run.CellX, run.CellY, 0, 0};
    VtpCell& cell = FindOrAppend(cells, cellPlaces, key, VtpCell{run.CellX, run.CellY, {}});
    key.Layer = run.Layer;
    VtpLayer& layer = FindOrAppend(cell.Layers, layerPlaces, key, VtpLayer{run.Layer, {}});
    key.TexId = run.TexId;
    VtpTexture& texture = FindOrAppend(layer.Textures, texturePlaces, key, VtpTexture{run.TexId, {}});
    texture.Polys.push_back({std::move(run.Name), std::move(run.Points)});
  }
  std::sort(cells.begin(), cells.end(), [](const VtpCell& a, const VtpCell& b) {
    return std::tie(a.CellY, a.CellX) < std::tie(b.CellY, b.CellX);
  });
  return cells;
}

}  // namespace landsmith
