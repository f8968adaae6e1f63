// The catalogues of ready-made textures, tools\lines.txt and tools\polys.txt.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

struct TextureItem {
  std::int32_t Id = 0;
  std::string Textures;  ///< the bitmap shown; "na.bmp" when there is none
  std::string Title;
  std::string NamePack;  ///< the texture text; empty when the id itself is used
  std::int32_t R = 0, G = 0, B = 0;
  bool operator==(const TextureItem&) const = default;
};

using TextureCatalog = std::vector<TextureItem>;

/// `file` names the catalogue in messages. Lines are known by their first 6 characters. Throws RuntimeError
/// with the line for an id or colour that is no number, or a key before the first section.
TextureCatalog ParseTextureCatalog(std::string_view bytes, const std::string& file);
/// Throws RuntimeError when the file is missing: it is part of the installation.
TextureCatalog ReadTextureCatalog(const std::filesystem::path& file);

/// 0-based place of the first item whose id the text names; the size of the catalogue when there is none or
/// the text is no 16-bit number.
std::size_t FindTexture(const TextureCatalog& catalog, std::string_view text);

/// What a line's or polygon's Type holds for the item: NamePack, or the id in decimal when that is empty.
std::string TextureText(const TextureItem& item);

/// The section that adds `item` to a catalogue file: "[Texture.12]", Title, Color, Textures, NamePack and an
/// empty line, CR LF.
std::string TextureSection(const TextureItem& item);

/// Appends a texture that the user put together, with the next id and "na.bmp"; the file grows by one section
/// and the catalogue by the item, which is returned.
TextureItem AppendTexture(const std::filesystem::path& file, TextureCatalog& catalog, std::string_view title,
                          std::int32_t color, std::string_view namePack);

/// The parts that `frmNamesT` puts together.
struct NamedTexture {
  std::string SU = "001b2wa1.bmp", WI = "001b2wa1.bmp", HW = "001b2wa1.bmp", SP = "001b2wa1.bmp",
              FA = "001b2wa1.bmp", LM = "001b2wa1.bmp";
  std::int32_t TypeNumber = 0;
  bool Effect = false;
  std::string Controller = "wavecontroller";
};
/// `"WI;HW;SP;SU;FA;LM" type effect 0 4 controller`: the text that stands in a Type.
std::string NamedTextureText(const NamedTexture& parts);

}  // namespace landsmith
