// What a checked source becomes.
#pragma once

#include "simtools/ScmChecker.h"

#include <string>

namespace landsmith::simtools {

/// The bytes of the BGL of a source without errors.
std::string BglOf(const CheckedSource& source);

/// What those bytes hold, for the author: "2 cells of masks: 3 fills, 1 polygon".
std::string ContentOf(const CheckedSource& source);

}  // namespace landsmith::simtools
