#include "compile/StepTable.h"

#include <algorithm>
#include <cstddef>
#include <exception>

namespace landsmith {
namespace {

void RunStep(const StepInfo& step, const CompileContext& context) {
  try {
    step.Run(context);
  } catch (const std::exception& failure) {
    context.report.Failed = true;
    context.dialogs.Message(MessageKind::Error, failure.what());
  }
}

}  // namespace

void RunSteps(const StepTable& table, const std::vector<std::string_view>& wanted,
              const CompileContext& context, const StepStarted& started) {
  std::vector<const StepInfo*> steps;
  CompileContext run = context;
  run.Steps.clear();
  for (const StepInfo& step : table)
    if (step.Run != nullptr && std::find(wanted.begin(), wanted.end(), step.Name) != wanted.end()) {
      steps.push_back(&step);
      run.Steps.push_back(step.Name);
    }

  for (std::size_t i = 0; i < steps.size(); ++i) {
    const double done = static_cast<double>(i) / static_cast<double>(steps.size());
    if (!context.progress.Step(done, steps[i]->Caption)) return;
    if (started) started(*steps[i]);
    RunStep(*steps[i], run);
  }
}

}  // namespace landsmith
