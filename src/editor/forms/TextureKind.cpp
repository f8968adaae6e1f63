#include "forms/TextureKind.h"

#include "platform/Paths.h"

#include <string_view>

namespace landsmith {

std::filesystem::path CatalogFile(const Session& session, TextureKind kind) {
  const std::string_view name = kind == TextureKind::Line ? "lines.txt" : "polys.txt";
  return FindInFolder(session.folders.Tools(), name).value_or(session.folders.Tools() / name);
}

}  // namespace landsmith
