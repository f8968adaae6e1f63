#include "forms/LineWidths.h"

#include "core/Numbers.h"
#include "core/Text.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

std::string CheckWidths(std::initializer_list<std::string_view> boxes) {
  const auto any = [&](auto&& test) { return std::any_of(boxes.begin(), boxes.end(), test); };
  // The limits look at the rounded width; one beyond all whole numbers is out of them too.
  const auto asInteger = [](std::string_view text) {
    return std::nearbyint(std::clamp(ParseNumber(text).value_or(0), -1000.0, 1000.0));
  };
  if (any([](std::string_view text) { return Trim(text).empty(); })) return "Check Width!";
  if (any([&](std::string_view text) { return asInteger(text) > 255; }))
    return "Maximum Line Width is 255 meters!";
  if (any([&](std::string_view text) { return asInteger(text) < 0; }))
    return "Minimum Line Width is 0 meters!";
  return {};
}

}  // namespace landsmith
