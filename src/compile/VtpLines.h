// Lines of vector terrain: strips of texture that follow a line with a width at each vertex.
//
// collect (selected lines of head "VTP", layer and texture read) -> snap and cut (VtpClip) -> ends and
// packing
// -> group (VtpTree) -> text (VtpText) -> CompileStep.
#pragma once

#include "compile/CompileContext.h"

#include <optional>
#include <string>

namespace landsmith {

/// The whole source text of the selected VTP lines; nothing when there is nothing to write. Throws
/// RuntimeError that names the line for a layer that is no 16-bit number or a width above 255.
std::optional<std::string> VtpLineSource(const ProjectState& project, const AppSettings& settings);

/// Base name project + "_VTPL". With nothing to write no file is made, no tool runs, and a message says so.
void CompileVTPLines(const CompileContext& context);

bool HasSelectedVtpLine(const ProjectState& project);

}  // namespace landsmith
