// Any text is searched and rewritten as a settings file; a value that went in is found again.
#include "core/IniFile.h"

#include <cstdint>
#include <cstdlib>

using namespace landsmith;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  // The first write strips stray characters before the first section, which may make a section of it.
  const std::string tidy = WithIniKey(text, "Photo", "PhotoCall", "x");
  const std::string once = WithIniKey(tidy, "Main", "DefLC", "value");
  if (FindIniKey(once, "main", "deflc") != "value") std::abort();
  if (WithIniKey(once, "Main", "DefLC", "value") != once) std::abort();
  return 0;
}
