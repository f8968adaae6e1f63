// Any bytes as a source: parsed, checked, and compiled when they are valid.
#include "simtools/BglWriter.h"
#include "simtools/ScmChecker.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace landsmith::simtools;
  const CheckedSource checked = CheckScm(ParseScm({reinterpret_cast<const char*>(data), size}));
  if (!checked.Errors.empty()) return 0;
  const std::string bytes = WriteBgl(checked.Header, checked.Vtp ? VtpBlock(*checked.Vtp) : std::string());
  if (checked.Vtp && checked.Vtp->Cells.size() * 12 > bytes.size()) std::abort();
  return 0;
}
