// The texture catalogue; what was read is written out and read again.
#include "core/Text.h"
#include "platform/RuntimeError.h"
#include "vector/TextureCatalog.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const landsmith::TextureCatalog catalog = landsmith::ParseTextureCatalog(text, "fuzz.txt");
    std::string again;
    for (const landsmith::TextureItem& item : catalog)
      again += landsmith::ToWindows1252(landsmith::TextureSection(item));
    if (landsmith::ParseTextureCatalog(again, "again.txt") != catalog) std::abort();
  } catch (const landsmith::RuntimeError&) {  // NOLINT(bugprone-empty-catch): refusing is right
  }
  return 0;
}
