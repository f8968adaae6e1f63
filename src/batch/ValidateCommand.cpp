// validate: the check before compiling.
#include "batch/Commands.h"
#include "batch/JsonWriter.h"
#include "compile/Findings.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace landsmith {

namespace {

struct ValidateArguments {
  std::string Project;
  std::string Select;
};

std::string FindingsJson(const std::vector<Finding>& findings) {
  JsonWriter json(1);
  json.BeginArray();
  for (const Finding& finding : findings) {
    json.BeginObject();
    json.Member("Severity", finding.Severity == FindingSeverity::Error ? "error" : "warning");
    json.Member("Kind", finding.Kind);
    json.Member("Item", static_cast<std::int64_t>(finding.Item) + 1);
    json.Member("Lat", finding.At.lat).Member("Lon", finding.At.lon);
    json.Member("Text", finding.Text).EndObject();
  }
  return json.EndArray().Take();
}

void Validate(BatchRun& run, const ValidateArguments& arguments) {
  ProjectState project = OpenForCommand(run, arguments.Project);
  if (!arguments.Select.empty()) SelectAllButMaps(project);
  const std::vector<Finding> findings = CheckSelectedItems(project, run.settings);
  run.out << FindingsJson(findings);
  if (findings.empty()) return;
  run.out.flush();
  throw CommandEnded{};
}

}  // namespace

void AddValidateCommand(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("validate", "checks the selected items before they are compiled");
  auto arguments = std::make_shared<ValidateArguments>();
  command->add_option("PROJECT", arguments->Project)->required();
  command->add_option("--select", arguments->Select, "all: everything but maps")
      ->check(CLI::IsMember({"all"}));
  command->callback(
      [arguments, &chosen] { chosen = [arguments](BatchRun& run) { Validate(run, *arguments); }; });
}

}  // namespace landsmith
