// The kinds of object by the number in ObjectRec::Type.
#pragma once

#include <cstdint>
#include <string_view>

namespace landsmith {

/// "FS9 Library Object", "Windsock Object"; empty for a number that is no kind.
std::string_view ObjectKindLabel(std::int32_t type);

}  // namespace landsmith
