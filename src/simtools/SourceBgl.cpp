#include "simtools/SourceBgl.h"

#include <algorithm>

namespace landsmith::simtools {

namespace {

std::string Counted(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string LwmContent(const LwmFile& file) {
  std::size_t whole = 0, fills = 0, polys = 0;
  for (const LwmCell& cell : file.Cells) {
    if (cell.Type != LwmCell().Type) ++whole;
    for (const LwmItem& item : cell.Items) {
      if (item.AsPolys)
        polys += std::size_t{item.FillSize} * item.FillSize;
      else if (item.FillSize != 0)
        ++fills;
      polys += item.Polys.size();
    }
  }
  return Counted(file.Cells.size(), "cell") + " of masks, " + std::to_string(whole) +
         " of them filled whole: " + Counted(fills, "fill") + ", " + Counted(polys, "polygon");
}

std::string VtpContent(const VtpFile& file) {
  std::size_t lines = 0, polys = 0, layers = 0;
  for (const VtpCell& cell : file.Cells)
    for (const VtpArea& area : cell.Areas)
      for (const VtpLayer& layer : area.Layers) {
        if (layer.Textures.empty()) ++layers;
        for (const VtpTextureUse& texture : layer.Textures)
          for (const VtpFeature& feature : texture.Features)
            ++(feature.Kind == VtpFeature().Kind ? lines : polys);
      }
  return Counted(file.Cells.size(), "cell") + " of vector terrain: " + Counted(lines, "line") + ", " +
         Counted(polys, "polygon") + ", " + Counted(layers, "empty layer");
}

}  // namespace

std::string BglOf(const CheckedSource& source) {
  return WriteBgl(source.Header, {source.Lwm ? LwmBlock(*source.Lwm) : std::string(),
                                  source.Vtp ? VtpBlock(*source.Vtp) : std::string()});
}

std::string ContentOf(const CheckedSource& source) {
  if (source.Lwm) return LwmContent(*source.Lwm);
  if (source.Vtp) return VtpContent(*source.Vtp);
  const std::string section = "the header alone, this stand-in writes no section for such a source";
  if (source.TexturedAreas == 0) return section;
  return section + "; " + Counted(source.TexturedAreas, "textured polygon") + " checked";
}

}  // namespace landsmith::simtools
