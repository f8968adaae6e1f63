// The texture field of lines and polygons of vector terrain.
#pragma once

#include <string_view>

namespace landsmith {

enum class TextureField {
  Good,
  Strange,    ///< one word that is neither a number of the simulator nor a file's name; lists take it
  Unreadable  ///< would spoil the compilers' list of textures
};

/// Good: a number of up to 4 digits; or bitmaps, in quotes or as one word, and behind them nothing or the
/// type, the effect, 0, a last number, and with effect 1 the name of its controller.
TextureField JudgeTextureField(std::string_view field);

}  // namespace landsmith
