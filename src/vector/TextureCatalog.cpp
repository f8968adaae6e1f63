#include "vector/TextureCatalog.h"

#include "core/Color.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <optional>

namespace landsmith {
namespace {

constexpr std::string_view NoPicture = "na.bmp";
constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t KnownBy = 6;  // characters by which a line is told from the others

/// One reading of a catalogue, which knows where it is.
class CatalogReader {
public:
  explicit CatalogReader(const std::string& file) : m_file(file) {}

  void Take(std::string_view bytes) {
    ++m_line;
    const std::string_view key = bytes.substr(0, KnownBy);
    if (key == "[Textu") {
      m_catalog.push_back({});
      m_catalog.back().Id = Id(bytes);
    } else if (key == "Title=") {
      Current().Title = Value(bytes);
    } else if (key == "Color=") {
      ReadColor(bytes);
    } else if (key == "Textur") {
      Current().Textures = Value(bytes);
    } else if (key == "NamePa") {
      Current().NamePack = Value(bytes);
    }
  }
  TextureCatalog Result() { return std::move(m_catalog); }

private:
  [[noreturn]] void Fail(const std::string& found) const {
    throw RuntimeError::At("reading the texture catalogue", m_file, "line " + std::to_string(m_line), found);
  }

  TextureItem& Current() {
    if (m_catalog.empty()) Fail("a key before the first section");
    return m_catalog.back();
  }

  static std::string Value(std::string_view bytes) {
    const std::size_t equals = bytes.find('=');
    return equals == std::string_view::npos ? std::string{} : FromWindows1252(bytes.substr(equals + 1));
  }

  std::int32_t Id(std::string_view bytes) const {
    constexpr std::size_t digits = 9;  // behind "[Texture."
    const std::string_view rest = bytes.substr(std::min(digits, bytes.size()));
    const std::optional<std::int16_t> id = ParseInt16(rest.substr(0, rest.find(']')));
    if (!id) Fail(FromWindows1252(bytes) + " has no number from -32768 to 32767");
    return *id;
  }

  void ReadColor(std::string_view bytes) {
    TextureItem& item = Current();
    std::string_view rest = Trim(bytes.substr(KnownBy));
    for (std::int32_t* part : {&item.R, &item.G, &item.B}) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      const std::optional<std::uint8_t> value = ParseByte(rest.substr(0, end));
      if (!value) Fail(FromWindows1252(bytes) + " has no three numbers from 0 to 255");
      *part = *value;
      rest = Trim(rest.substr(end));
    }
  }

  const std::string& m_file;
  std::size_t m_line = 0;
  TextureCatalog m_catalog;
};

/// Whether new text would run on from what the file holds.
bool EndsInsideLine(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  if (!in || in.tellg() <= 0) return false;
  in.seekg(-1, std::ios::end);
  return in.get() != '\n';
}

}  // namespace

TextureCatalog ParseTextureCatalog(std::string_view bytes, const std::string& file) {
  CatalogReader reader(file);
  for (const std::string_view line : SplitLines(bytes))
    reader.Take(line);
  return reader.Result();
}

TextureCatalog ReadTextureCatalog(const std::filesystem::path& file) {
  return ParseTextureCatalog(ReadWholeFile(file), PathText(file));
}

std::size_t FindTexture(const TextureCatalog& catalog, std::string_view text) {
  const std::optional<std::int16_t> id = ParseInt16(text);
  if (!id) return catalog.size();
  const auto found =
      std::find_if(catalog.begin(), catalog.end(), [&](const TextureItem& item) { return item.Id == *id; });
  return static_cast<std::size_t>(found - catalog.begin());
}

std::string TextureText(const TextureItem& item) {
  return item.NamePack.empty() ? std::to_string(item.Id) : item.NamePack;
}

std::string TextureSection(const TextureItem& item) {
  std::string text;
  const auto line = [&text](std::string_view key, std::string_view value) {
    text += key;
    text += value;
    text += LineEnd;
  };
  line("[Texture.", std::to_string(item.Id) + "]");
  line("Title=", item.Title);
  line("Color=", std::to_string(item.R) + " " + std::to_string(item.G) + " " + std::to_string(item.B));
  line("Textures=", item.Textures);
  line("NamePack=", item.NamePack);
  line("", "");
  return text;
}

TextureItem AppendTexture(const std::filesystem::path& file, TextureCatalog& catalog, std::string_view title,
                          std::int32_t color, std::string_view namePack) {
  const auto fail = [&](const std::string& found) {
    throw RuntimeError::At("adding a texture to the catalogue", PathText(file), "", found);
  };
  TextureItem item;
  item.Id = catalog.empty() ? 1 : catalog.back().Id + 1;
  if (item.Id > std::numeric_limits<std::int16_t>::max()) fail("there is no number left behind 32767");
  item.Textures = NoPicture;
  item.Title = title;
  item.NamePack = namePack;
  const ColorParts parts = SplitColor(color);
  item.R = parts.R;
  item.G = parts.G;
  item.B = parts.B;

  std::string added = EndsInsideLine(file) ? std::string(LineEnd) : std::string{};
  added += ToWindows1252(TextureSection(item));
  std::ofstream out(file, std::ios::binary | std::ios::app);
  out.write(added.data(), static_cast<std::streamsize>(added.size()));
  out.close();
  if (!out) fail("the file cannot be written");
  catalog.push_back(item);
  return item;
}

std::string NamedTextureText(const NamedTexture& parts) {
  std::string text = "\"";
  for (const std::string* season : {&parts.WI, &parts.HW, &parts.SP, &parts.SU, &parts.FA})
    text += *season + ";";
  text += parts.LM + "\" " + std::to_string(parts.TypeNumber) + (parts.Effect ? " 1" : " 0") + " 0 4 ";
  if (parts.Effect) text += parts.Controller;
  return text;
}

}  // namespace landsmith
