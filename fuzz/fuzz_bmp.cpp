// Any bytes as a bitmap; what is read is written and must read back to the same pixels.
#include "platform/RuntimeError.h"
#include "simtools/BmpImage.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace landsmith::simtools;
  try {
    const BmpImage image = ReadBmp({reinterpret_cast<const char*>(data), size}, "fuzz.bmp");
    if (ReadBmp(WriteBmp24(image), "again.bmp").Pixels != image.Pixels) std::abort();
  } catch (const landsmith::RuntimeError&) {
    // a file that says why it was refused
  }
  return 0;
}
