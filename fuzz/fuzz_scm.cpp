// Any bytes as a source: parsed, checked, and compiled when they are valid.
#include "simtools/SourceBgl.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace landsmith::simtools;
  const CheckedSource checked = CheckScm(ParseScm({reinterpret_cast<const char*>(data), size}));
  if (!checked.Errors.empty()) return 0;
  const std::size_t entries = BglOf(checked).size() / 12;
  if (checked.Vtp && checked.Vtp->Cells.size() > entries) std::abort();
  if (checked.Lwm && checked.Lwm->Cells.size() > entries) std::abort();
  return 0;
}
