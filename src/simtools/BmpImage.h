// Uncompressed bitmaps of every depth in, plain 24-bit ones out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools {

struct BmpPixel {
  std::uint8_t R = 0, G = 0, B = 0;
  bool operator==(const BmpPixel&) const = default;
};

struct BmpImage {
  std::int32_t Width = 0, Height = 0;
  std::vector<BmpPixel> Pixels;  ///< rows from the top, each from the left
};

/// Reads 1, 4, 8, 16, 24 and 32 bits a pixel, with a palette or with colour masks, rows from below or from
/// above. `file` goes into messages. Throws RuntimeError that says what was found: compressed pixels, no
/// bitmap at all, less data than the size wants. A pixel beyond the palette is black.
BmpImage ReadBmp(std::string_view bytes, const std::string& file);

/// 24 bits a pixel, rows from below, each filled up to 4 bytes; header of 54 bytes.
std::string WriteBmp24(const BmpImage& image);

}  // namespace landsmith::simtools
