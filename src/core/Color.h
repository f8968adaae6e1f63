// Colours as the records and settings hold them: 0x00BBGGRR, red in the low byte.
#pragma once

#include <cstdint>

namespace landsmith {

constexpr std::int32_t Rgb(int red, int green, int blue) {
  return red | (green << 8) | (blue << 16);
}

struct ColorParts {
  std::int32_t R = 0;
  std::int32_t G = 0;
  std::int32_t B = 0;
};

/// The low 24 bits.
constexpr ColorParts SplitColor(std::int32_t color) {
  return {color & 255, (color >> 8) & 255, (color >> 16) & 255};
}

/// Text over a coloured ground: white if R + G + B is below 384, else black.
constexpr std::int32_t ContrastColor(std::int32_t color) {
  const ColorParts parts = SplitColor(color);
  return parts.R + parts.G + parts.B < 384 ? 0xFFFFFF : 0;
}

}  // namespace landsmith
