// The nine panels of the status bar under the mouse.
#pragma once

#include "editor/Session.h"

#include <string>

namespace landsmith {

struct StatusPanels {
  std::string Lat, Lon, Lod5, Cell, Area, Point, Zoom, Extra;
};

/// The eighth key-less text depends on season view and mode: altitude, custom tile name, class under the
/// mouse. `pixelColor`: the colour of the canvas under the mouse. Pure arithmetic; touches no file.
StatusPanels ComposeStatusText(const Session& session, PixelOffset at, std::int32_t pixelColor);

/// "Zoom = 0.25".
std::string ZoomText(double zoom);

}  // namespace landsmith
