// The class table, and a legend text against it.
#include "platform/RuntimeError.h"
#include "raster/ClassTable.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using landsmith::ClassKind;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const landsmith::ClassTable table = landsmith::ParseClassTable(text, ClassKind::Land, "fuzz.txt");
    landsmith::ClassNumbers numbers;
    landsmith::ParseClassItemText(text.substr(0, text.find('\n')), table, numbers);
  } catch (const landsmith::RuntimeError&) {  // NOLINT(bugprone-empty-catch): refusing is right
  }
  return 0;
}
