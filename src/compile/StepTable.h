// Running a table of compile steps. The table itself, which names every step once and in the fixed order,
// stands in wiring/.
#pragma once

#include "compile/CompileContext.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// One check box of the compilation dialog.
struct StepInfo {
  std::string_view Name;     ///< in scripts: "vtp-lines"
  std::string_view Control;  ///< in the dialog: "ckVTPLines"
  std::string_view Frame;    ///< its group box: "frVTP"
  std::string_view Caption;  ///< "VTP Lines"
  /// Whether the project has data for it, so that the box is enabled.
  bool (*HasData)(const ProjectState&) = nullptr;
  bool CheckedWithData = true;     ///< ticked when there is data
  bool OffersTextureCopy = false;  ///< enables ckCopyTEXs too
  /// Runs the compiler. Null for a step that this version cannot run: its box stays disabled.
  void (*Run)(const CompileContext&) = nullptr;
  bool IsAvailable() const { return Run != nullptr && HasData != nullptr; }
};

using StepTable = std::vector<StepInfo>;

/// Called before each step with its place in the table, for the dialog's "which step runs".
using StepStarted = std::function<void(const StepInfo&)>;

/// Runs the steps of `table` that `wanted` names, in the table's order. A failed step does not stop the
/// sequence; an exception of one becomes an error box and the next runs. A cancelled run ends after the
/// present step.
void RunSteps(const StepTable& table, const std::vector<std::string_view>& wanted,
              const CompileContext& context, const StepStarted& started = {});

}  // namespace landsmith
