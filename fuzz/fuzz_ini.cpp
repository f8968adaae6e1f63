// Any text is searched and rewritten as a settings file; in one whose lines end with CR LF a value that went
// in is found again.
#include "core/IniFile.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace landsmith;

namespace {

bool HasPlainLineEnds(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')) return false;
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) return false;
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::string once = WithIniKey(text, "Main", "DefLC", "value");
  if (!HasPlainLineEnds(text)) return 0;
  if (FindIniKey(once, "main", "deflc") != "value") std::abort();
  if (WithIniKey(once, "Main", "DefLC", "value") != once) std::abort();
  return 0;
}
