// compile: the compilers of the compilation dialog, in its order.
#include "batch/Commands.h"
#include "compile/StepTable.h"
#include "platform/Paths.h"
#include "wiring/CompileSteps.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

namespace {

struct CompileArguments {
  std::string Project;
  std::string Select;
  std::string Only;
  bool OnlyGiven = false;
  bool SourceOnly = false;
  bool Copy = false;
  bool CopyTextures = false;
};

/// The steps that `--only` names. Throws UsageError for a name that is none, ends the command for a step that
/// this version does not have.
std::vector<std::string_view> NamedSteps(BatchRun& run, const std::string& list) {
  const StepTable& table = CompileSteps();
  std::vector<const StepInfo*> steps;
  for (const std::string& name : SplitAt(list, ',')) {
    const auto step =
        std::find_if(table.begin(), table.end(), [&](const StepInfo& each) { return each.Name == name; });
    if (step == table.end()) throw UsageError("--only: there is no step \"" + name + "\"");
    steps.push_back(&*step);
  }
  if (steps.empty()) throw UsageError("--only: no step is named");
  std::vector<std::string_view> names;
  for (const StepInfo* step : steps) {
    if (!step->IsAvailable()) RefuseUnsupported(run, "The step " + std::string(step->Name));
    names.push_back(step->Name);
  }
  return names;
}

/// What the compilation dialog would tick.
std::vector<std::string_view> TickedSteps(const ProjectState& project) {
  std::vector<std::string_view> names;
  for (const StepInfo& step : CompileSteps())
    if (step.IsAvailable() && step.CheckedWithData && step.HasData(project)) names.push_back(step.Name);
  return names;
}

void Compile(BatchRun& run, const CompileArguments& arguments) {
  std::vector<std::string_view> steps;
  if (arguments.OnlyGiven) steps = NamedSteps(run, arguments.Only);
  ProjectState project = OpenForCommand(run, arguments.Project);
  if (!arguments.Select.empty()) SelectAllButMaps(project);
  if (!arguments.OnlyGiven) steps = TickedSteps(project);

  SystemToolRunner tools(run.folders.Tools(), CurrentProgram().parent_path(), run.dialogs);
  NoProgress progress;
  CompileReport report;
  const CompileOptions options{arguments.Copy, arguments.CopyTextures,
                               arguments.SourceOnly ? CompileMode::SourceOnly : CompileMode::Full};
  RunSteps(CompileSteps(), steps,
           {project, run.settings, run.folders, tools, run.dialogs, progress, options, report});
  for (const auto& file : report.Written)
    run.out << PathText(file) << '\n';
  if (report.Failed) {
    run.out.flush();
    throw CommandEnded{};
  }
}

}  // namespace

void AddCompileCommand(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("compile", "runs the compilers over the selected items");
  auto arguments = std::make_shared<CompileArguments>();
  command->add_option("PROJECT", arguments->Project)->required();
  command->add_option("--select", arguments->Select, "all: everything but maps")
      ->check(CLI::IsMember({"all"}));
  auto* only = command->add_option("--only", arguments->Only, "STEP,STEP: these steps alone");
  command->add_flag("--source-only", arguments->SourceOnly, "writes every text and data file, runs no tool");
  command->add_flag("--copy", arguments->Copy, "copies the scenery files to the project's folders");
  command->add_flag("--copy-textures", arguments->CopyTextures, "copies the textures too");
  command->callback([arguments, only, &chosen] {
    arguments->OnlyGiven = only->count() > 0;
    chosen = [arguments](BatchRun& run) { Compile(run, *arguments); };
  });
}

}  // namespace landsmith
