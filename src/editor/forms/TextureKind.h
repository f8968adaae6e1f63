// The two texture catalogues: which one a texture dialog works on.
#pragma once

#include "editor/Session.h"

#include <cstddef>
#include <filesystem>

namespace landsmith {

enum class TextureKind { Line, Poly };

inline TextureCatalog& CatalogOf(Session& session, TextureKind kind) {
  return kind == TextureKind::Line ? session.lineTextures : session.polyTextures;
}

/// The current item's 0-based place.
inline std::size_t& CurrentTextureOf(Session& session, TextureKind kind) {
  return kind == TextureKind::Line ? session.currentLineTexture : session.currentPolyTexture;
}

/// tools\lines.txt or tools\polys.txt, in whatever case the file is there.
std::filesystem::path CatalogFile(const Session& session, TextureKind kind);

}  // namespace landsmith
