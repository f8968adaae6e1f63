// Which bitmap of each map is seen: the view.
#pragma once

#include "core/Records.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace landsmith {

/// A view's bitmap and the place of its calibration in MapRec::Level: 1 main, 2 land, 3 mesh.
struct MapViewRow {
  std::string_view Name;
  std::string MapRec::*File;
  std::size_t Level;
};

/// In the order of the View menu.
inline constexpr std::array<MapViewRow, 9> MapViews{{{"Summer", &MapRec::BMPSu, 1},
                                                     {"Winter", &MapRec::BMPWi, 1},
                                                     {"Fall", &MapRec::BMPFa, 1},
                                                     {"Spring", &MapRec::BMPSp, 1},
                                                     {"HardWinter", &MapRec::BMPHw, 1},
                                                     {"NightMap", &MapRec::BMPLm, 1},
                                                     {"Alpha", &MapRec::BMPAl, 1},
                                                     {"Land", &MapRec::BMPLC, 2},
                                                     {"Mesh", &MapRec::BMPME, 3}}};

/// The row of a view by its exact name, or null.
const MapViewRow* FindMapView(std::string_view name);
/// The calibration that the view shows; the main one for no view.
std::size_t LevelOfView(std::string_view name);

}  // namespace landsmith
