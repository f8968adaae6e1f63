// Which bitmap of each map is seen: the view.
//
// A map has a bitmap for each view and three calibrations. Level[0] of its record and the view's list of
// pictures say what is seen at present; LoadMapView alone brings them up to date.
#pragma once

#include "core/Records.h"
#include "editor/Session.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
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

class CanvasSurfaces;

/// Gives every map the picture and the calibration of `session.view.MapView`. A picture that is missing or no
/// picture ends it without a word: that map and those behind it stay as they were. Does nothing to the maps
/// without a view. Looking is no change of the project: records are touched only where they differ, nothing
/// becomes unsaved, and there is nothing to undo.
void LoadMapView(Session& session, CanvasSurfaces& surfaces);
/// The same for a list of maps that has become another one: no map keeps its picture.
void ReloadMapView(Session& session, CanvasSurfaces& surfaces);

/// The file that a view shows of a map, on this machine; empty for none. `mesh8`: the mesh view takes the
/// sister bitmap "..._8.BMP" with the brighter colours.
std::filesystem::path PictureOfView(const MapRec& map, const MapViewRow& view, bool mesh8);

/// The colour of an altitude in a mesh bitmap, of whole metres or, with `mesh8`, of the brighter sister.
std::int32_t ColorOfAltitude(float altitude, bool mesh8);

}  // namespace landsmith
