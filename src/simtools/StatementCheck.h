// What the checkers of all kinds of scenery share: numbers out of arguments, and the list of what is wrong.
#pragma once

#include "simtools/ScmParser.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools {

struct NumberRange {
  std::string_view What;  ///< "the layer", as messages name it
  std::int64_t Least = 0;
  std::int64_t Most = 0;
};

/// A whole number, decimal with or without a sign or hexadecimal as "0x100"; nothing for any other text.
std::optional<std::int64_t> ParseWholeNumber(std::string_view text);

/// Argument `index`, which must be there, as a number in the range; otherwise nothing, and an error is added.
std::optional<std::int64_t> NumberArgument(const Statement& statement, std::size_t index,
                                           const NumberRange& range, std::vector<ScmError>& errors);

/// The same for an argument that has one possible value. False, after an error, when it is another.
bool FixedArgument(const Statement& statement, std::size_t index, std::string_view what, std::int64_t value,
                   std::vector<ScmError>& errors);

struct RealRange {
  std::string_view What;
  double Least = 0;
  double Most = 0;
};

/// As NumberArgument, for a number that may have a fraction and an exponent.
std::optional<double> RealArgument(const Statement& statement, std::size_t index, const RealRange& range,
                                   std::vector<ScmError>& errors);

/// Argument `index` must be `word`, capital or small letters alike.
void WordArgument(const Statement& statement, std::size_t index, std::string_view word,
                  std::vector<ScmError>& errors);

}  // namespace landsmith::simtools
