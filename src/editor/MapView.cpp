#include "editor/MapView.h"

#include <algorithm>

namespace landsmith {

const MapViewRow* FindMapView(std::string_view name) {
  const auto row = std::find_if(MapViews.begin(), MapViews.end(),
                                [name](const MapViewRow& each) { return each.Name == name; });
  return row == MapViews.end() ? nullptr : &*row;
}

std::size_t LevelOfView(std::string_view name) {
  const MapViewRow* row = FindMapView(name);
  return row == nullptr ? 1 : row->Level;
}

}  // namespace landsmith
