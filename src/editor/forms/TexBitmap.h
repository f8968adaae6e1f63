// The bitmaps of textured polygons: where they lie, and their pictures.
#pragma once

#include "editor/Session.h"
#include "forms/TexturePreview.h"

#include <QPixmap>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace landsmith {

/// The folders from which a polygon's bitmap may be taken: the project's texture folder, where the compiled
/// scenery looks for it, and the folder of polygon textures of the preferences.
std::vector<std::filesystem::path> TexFolders(const Session& session);

/// The file of that name in those folders, or else in the simulator's own.
std::optional<std::filesystem::path> FindTexBitmap(const Session& session, const std::string& name);

/// Plain pictures are read as they stand, compressed ones through the converter; empty when neither can.
QPixmap LoadTexBitmap(TexturePreview& preview, const std::filesystem::path& file);

/// For a bitmap outside the folders.
std::string CopyBitmapMessage(const std::string& name);
/// For a file without a picture.
std::string WrongBitmapMessage();

}  // namespace landsmith
