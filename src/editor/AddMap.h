// Putting a map onto the canvas.
#pragma once

#include "editor/Display.h"
#include "editor/EditorHost.h"
#include "editor/MapData.h"
#include "editor/Session.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace landsmith {

struct ChosenBitmap {
  std::filesystem::path File;
  BitmapSize Size;
};

/// Asks for a picture in the folder of the last one; nothing when none is chosen.
std::optional<std::filesystem::path> ChoosePicture(Session& session);
/// The same for a bitmap by its header; for another file the message, and nothing. `kind`: "Main/Summer",
/// "Land" or "Mesh".
std::optional<ChosenBitmap> ChooseBitmap(Session& session, std::string_view kind);

/// Asks for a bitmap and adds it as a map: where its data file says, else around the place that was clicked.
/// The map becomes the middle of the canvas at zoom 8. When a calibration is missing its properties are
/// shown.
void AddNewMap(Session& session, Display& display, EditorHost& host, LatLon clicked);

}  // namespace landsmith
