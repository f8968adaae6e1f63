// The packed photo options of a project: seasons, layer, mesh levels and resolution in one word.
#pragma once

#include <array>
#include <cstdint>

namespace landsmith {

struct PhotoBit {
  const char* Control;  ///< its check box in the dialogs
  std::int32_t Bit;
};

inline constexpr std::array<PhotoBit, 12> PhotoBits{{{"ckSummer", 1},
                                                     {"ckSpring", 2},
                                                     {"ckFall", 4},
                                                     {"ckWinter", 8},
                                                     {"ckHard", 16},
                                                     {"ckNight", 32},
                                                     {"ckAlpha", 64},
                                                     {"ck8bit", 128},
                                                     {"ckL8", 0x10000},
                                                     {"ckL9", 0x20000},
                                                     {"ckL10", 0x40000},
                                                     {"ckL11", 0x80000}}};
inline constexpr std::int32_t PhotoLayerFactor = 256;
/// Set for 2.4 metres per pixel, clear for 1.2.
inline constexpr std::int32_t PhotoResolution24 = 0x100000;

constexpr std::int32_t PhotoLayer(std::int32_t options) {
  return (options >> 8) & 255;
}

}  // namespace landsmith
