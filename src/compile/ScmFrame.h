// What the source texts of more than one kind of scenery say in the same words.
#pragma once

#include "compile/ScmWriter.h"
#include "core/GeoTypes.h"

#include <cstdint>

namespace landsmith {

/// The line "Header( 1 N S E W )", whole degrees that hold `bounds`; bounds that hold nothing stand as they
/// are.
void WriteHeader(ScmWriter& out, const GeoBox& bounds);

/// An empty line and the label of a Cell, ":cell07"; numbers count from 0.
void WriteCellLabel(ScmWriter& out, std::int64_t number);

}  // namespace landsmith
