// The last part of every compiler: the source text goes to disk, the old output goes, the tool runs, the new
// output is copied. Only here do compilers touch files and processes.
#pragma once

#include "compile/CompileContext.h"

#include <string>
#include <string_view>

namespace landsmith {

struct CompileStepRequest {
  std::string BaseName;                     ///< project name with "_" for blanks, and the step's suffix
  std::string Source;                       ///< UTF-8 text of the .scm file
  std::string_view ToolOptions = " -s -l";  ///< behind "scasm work\NAME.scm"
  /// First line of the question after a failure.
  std::string_view FailureLine = "There was a compilation error in this project!";
};

/// Writes tools\work\NAME.scm, deletes NAME.BGL, runs "scasm work\NAME.scm -s -l" from the tools folder. An
/// exit code above 0 brings the question whether to read SCAERROR.LOG, and what was written so far goes. With
/// CopyBGL the output goes to the project's first folder. True when the step succeeded.
bool CompileStep(const CompileContext& context, const CompileStepRequest& request);

/// The project name as it stands in file names: every blank is "_".
std::string ProjectFileName(std::string_view projectName);

}  // namespace landsmith
