// Surfer BLN text, with commas and with tabs.
#include "import/BlnFile.h"
#include "platform/RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const char separator : {',', '\t'}) {
    try {
      landsmith::ParseBln(text, separator, "fuzz.bln");
    } catch (const landsmith::RuntimeError&) {  // NOLINT(bugprone-empty-catch): refusing is right
    }
  }
  return 0;
}
