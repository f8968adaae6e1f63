// The width boxes of the line dialog: what their text may be.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// The message for the first box that is refused: one that is empty ("Check Width!"), one above 255 metres,
/// one below 0, each looked for in all boxes before the next. The limits look at the text as a 16-bit
/// integer, so 255.4 passes. Empty when the widths may be used; also when a text is no number, which
/// `ParseFloat` then tells.
std::string CheckWidths(std::initializer_list<std::string_view> boxes);

}  // namespace landsmith
