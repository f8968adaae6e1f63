// The texture field of lines and polygons of vector terrain.
#pragma once

#include <string_view>

namespace landsmith {

/// Whether the compilers' texture list can hold the field: a number of the simulator, of up to 4 digits; or
/// one name, which stands in quotes when it is several, and behind it nothing or the type, the effect, 0, a
/// last number, and with effect 1 the name of its controller.
bool IsTextureText(std::string_view field);

}  // namespace landsmith
