// edit: operations on the selected items of a project.
#include "batch/Commands.h"
#include "core/GridSnap.h"
#include "vector/LineJoin.h"
#include "vector/LineOperations.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace landsmith {

namespace {

void SnapLod21(BatchRun&, ProjectState& project) {
  SnapSelectedToLod21(project);
}

void ReverseLines(BatchRun&, ProjectState& project) {
  for (std::size_t i = 0; i < project.Lines.size(); ++i)
    if (project.Lines[i].Selected) ReverseLine(project.Lines.Edit(i));
}

void JoinSelectedLines(BatchRun& run, ProjectState& project) {
  Selection selection;
  for (const LineRec& line : project.Lines)
    if (line.Selected) selection.Add();
  const std::string refusal = JoinLines(project, selection);
  if (refusal.empty()) return;
  run.dialogs.Message(MessageKind::Error, refusal);
  throw CommandEnded{};
}

struct Operation {
  std::string_view Name;
  bool TakesMetres = false;
  void (*Run)(BatchRun&, ProjectState&) = nullptr;  ///< null: not in this version
};

constexpr std::array<Operation, 11> Operations{{
    {"snap-lod21", false, SnapLod21},
    {"simplify", true, nullptr},
    {"smooth", true, nullptr},
    {"smooth-keep-ends", true, nullptr},
    {"reverse", false, ReverseLines},
    {"join-lines", false, JoinSelectedLines},
    {"join-polys", false, nullptr},
    {"lines-to-polys", false, nullptr},
    {"polys-to-lines", false, nullptr},
    {"check-meshes", false, nullptr},
    {"make-flattens", false, nullptr},
}};

const Operation& FindOperation(const std::string& text) {
  const std::size_t equals = text.find('=');
  const std::string_view name = std::string_view(text).substr(0, equals);
  const auto found = std::find_if(Operations.begin(), Operations.end(),
                                  [&](const Operation& each) { return each.Name == name; });
  if (found == Operations.end()) throw UsageError("edit: there is no operation " + text);
  if (found->TakesMetres != (equals != std::string::npos))
    throw UsageError("edit: " + std::string(name) +
                     (found->TakesMetres ? " needs =METRES behind it" : " takes no value"));
  if (found->TakesMetres) NumberArgument(name, std::string_view(text).substr(equals + 1));
  return *found;
}

struct EditArguments {
  std::string In;
  std::string Out;
  std::string Select;
  std::vector<std::string> Operations;
};

void Edit(BatchRun& run, const EditArguments& arguments) {
  std::vector<const Operation*> operations;
  for (const std::string& text : arguments.Operations)
    operations.push_back(&FindOperation(text));
  for (const Operation* operation : operations)
    if (operation->Run == nullptr) RefuseUnsupported(run, "The operation " + std::string(operation->Name));

  ProjectState project = OpenForCommand(run, arguments.In);
  if (!arguments.Select.empty()) SelectAllButMaps(project);
  for (const Operation* operation : operations)
    operation->Run(run, project);
  SaveForCommand(run, project, arguments.Out);
}

}  // namespace

void AddEditCommand(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("edit", "applies operations to the selected items");
  auto arguments = std::make_shared<EditArguments>();
  command->add_option("IN", arguments->In)->required();
  command->add_option("OUT", arguments->Out)->required();
  command->add_option("--select", arguments->Select, "all: everything but maps")
      ->check(CLI::IsMember({"all"}));
  command->add_option("OP", arguments->Operations, "snap-lod21, reverse, join-lines, ...")->required();
  command->callback([arguments, &chosen] { chosen = [arguments](BatchRun& run) { Edit(run, *arguments); }; });
}

}  // namespace landsmith
