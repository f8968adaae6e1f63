// Failures of a compiler that are about one item of the project.
#pragma once

#include "platform/RuntimeError.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace landsmith {

/// How messages name what is compiled and its items.
struct ItemWords {
  std::string_view Doing;  ///< "compiling the VTP lines"
  std::string_view Kind;   ///< "line"
};

/// "compiling the VTP lines: line 2 "Main street": FOUND". `index` counts from 0.
inline RuntimeError ItemFailure(const ItemWords& words, std::size_t index, const std::string& name,
                                const std::string& found) {
  const std::string place = std::string(words.Kind) + " " + std::to_string(index + 1) + " \"" + name + "\"";
  return RuntimeError::At(std::string(words.Doing), "", place, found);
}

/// For a field that goes into the source as it stands, where a line end would begin another statement.
/// Throws RuntimeError that names the field.
inline void RequireOneLine(const std::string& field) {
  if (field.find_first_of("\r\n") != std::string::npos)
    throw RuntimeError("\"" + field + "\" is more than one line");
}

}  // namespace landsmith
