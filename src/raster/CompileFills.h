// Area fills alone: the step that writes them where they do not share the file of the LWM polygons.
#pragma once

#include "compile/CompileContext.h"

#include <optional>
#include <string>

namespace landsmith {

/// The text of the selected fills; nothing without one. Its header tells their extremes, leaving out the
/// first fill of the project even when it is selected, as files of this kind always have. Throws RuntimeError
/// that names a fill that no statement can name.
std::optional<std::string> FillSource(const ProjectState& project, const AppSettings& settings);

/// Base name "FILLS_" + project + "_LWM2". With nothing to write no file is made, no tool runs, and a message
/// says so.
void CompileFills(const CompileContext& context);

}  // namespace landsmith
