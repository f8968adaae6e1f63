// new, info, dump, convert, append: projects as files.
#include "batch/Commands.h"
#include "batch/ProjectJson.h"
#include "core/ProjectFile.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "wiring/Importers.h"
#include "wiring/ProjectStore.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace landsmith {

namespace {

bool HasExtension(std::string_view file, std::string_view extension) {
  return file.size() > extension.size() &&
         EqualsIgnoringCase(file.substr(file.size() - extension.size()), extension);
}

/// Ends the command for a kind of file that cannot be read or written.
void RequireProjectExtension(BatchRun& run, std::string_view file) {
  if (HasExtension(file, ".LSP")) return;
  for (const std::string_view known : {".LSX", ".BLN"})
    if (HasExtension(file, known))
      RefuseUnsupported(run, std::string(file) + ": a file of kind " + std::string(known) + " here");
  throw UsageError(std::string(file) + ": the extension must be .LSP, .LSX or .BLN");
}

/// The records as the file holds them: no folder is resolved, nothing is rebuilt.
ProjectState ReadStored(BatchRun& run, std::string_view file) {
  if (HasExtension(file, ".LSX")) RefuseUnsupported(run, std::string(file) + ": a file of kind .LSX here");
  const std::filesystem::path path = MapPath(file);
  std::error_code unreadable;
  if (!std::filesystem::exists(path, unreadable)) throw RuntimeError(MissingProjectText(path));
  const std::string bytes = ReadWholeFile(path);
  const ProjectFormat format = FormatOfProject(bytes);
  if (format == ProjectFormat::Current) return ReadProject(bytes, std::string(file));
  if (format == ProjectFormat::Unknown) throw RuntimeError(std::string(ForeignFileText));
  RefuseUnsupported(run, std::string(file) + ": the format " + FormatName(format));
}

struct NewArguments {
  std::string Out;
  std::string Name;
  std::vector<std::string> Center;
};

void New(BatchRun& run, const NewArguments& arguments) {
  ProjectState project = EmptyProject(run.settings);
  if (!arguments.Name.empty()) project.Name = arguments.Name;
  if (!arguments.Center.empty()) {
    const LatLon center = PositionArgument("--center", arguments.Center);
    project.LatDispCenter = project.LatLandCenter = center.lat;
    project.LonDispCenter = project.LonLandCenter = center.lon;
  }
  SaveForCommand(run, project, arguments.Out);
}

void AddNew(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("new", "makes an empty project");
  auto arguments = std::make_shared<NewArguments>();
  command->add_option("OUT", arguments->Out, "the project file to write")->required();
  command->add_option("--name", arguments->Name, "the project's name");
  command->add_option("--center", arguments->Center, "LAT LON, in decimal degrees")->expected(2);
  command->callback([arguments, &chosen] { chosen = [arguments](BatchRun& run) { New(run, *arguments); }; });
}

void AddShow(CLI::App& app, Command& chosen, const char* name, const char* help,
             std::string (*toJson)(const ProjectState&)) {
  auto* command = app.add_subcommand(name, help);
  auto file = std::make_shared<std::string>();
  command->add_option("FILE", *file, "a project file")->required();
  command->callback([file, toJson, &chosen] {
    chosen = [file, toJson](BatchRun& run) { run.out << toJson(ReadStored(run, *file)); };
  });
}

struct ConvertArguments {
  std::string In;
  std::string Out;
};

void Convert(BatchRun& run, const ConvertArguments& arguments) {
  RequireProjectExtension(run, arguments.In);
  RequireProjectExtension(run, arguments.Out);
  ProjectState project = OpenForCommand(run, arguments.In);
  SaveForCommand(run, project, arguments.Out);
}

void AddConvert(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("convert", "opens or imports one file, saves or exports another");
  auto arguments = std::make_shared<ConvertArguments>();
  command->add_option("IN", arguments->In)->required();
  command->add_option("OUT", arguments->Out)->required();
  command->callback(
      [arguments, &chosen] { chosen = [arguments](BatchRun& run) { Convert(run, *arguments); }; });
}

struct AppendArguments {
  std::string Kind;
  std::string Project;
  std::string Input;
  std::string Out;
  std::vector<std::string> Layers;
};

void Append(BatchRun& run, const AppendArguments& arguments) {
  const auto& importers = Importers();
  const auto importer = std::find_if(importers.begin(), importers.end(),
                                     [&](const Importer& each) { return each.Kind == arguments.Kind; });
  if (importer == importers.end() || importer->Append == nullptr)
    RefuseUnsupported(run, "Appending a file of kind " + arguments.Kind);
  ProjectState project = OpenForCommand(run, arguments.Project);
  importer->Append(MapPath(arguments.Input), project, run.settings);
  SaveForCommand(run, project, arguments.Out);
}

void AddAppend(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("append", "opens a project, appends a file to it, saves it");
  auto arguments = std::make_shared<AppendArguments>();
  command->add_option("KIND", arguments->Kind, "lsx, bln, mp, lwm or vtp")
      ->required()
      ->check(CLI::IsMember({"lsx", "bln", "mp", "lwm", "vtp"}));
  command->add_option("PROJECT", arguments->Project)->required();
  command->add_option("INPUT", arguments->Input)->required();
  command->add_option("OUT", arguments->Out)->required();
  command->add_option("--layers", arguments->Layers, "OBJECT LINE POLY, for mp")->expected(3);
  command->callback(
      [arguments, &chosen] { chosen = [arguments](BatchRun& run) { Append(run, *arguments); }; });
}

}  // namespace

void AddProjectCommands(CLI::App& app, Command& chosen) {
  AddNew(app, chosen);
  AddShow(app, chosen, "info", "prints header and counters as JSON", InfoJson);
  AddShow(app, chosen, "dump", "prints the whole project as JSON", DumpJson);
  AddConvert(app, chosen);
  AddAppend(app, chosen);
}

}  // namespace landsmith
