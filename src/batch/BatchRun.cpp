#include "batch/BatchRun.h"

#include "core/Numbers.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "vector/PathSelection.h"
#include "wiring/ProjectStore.h"

#include <filesystem>

namespace landsmith {

namespace {

void FindFolders(BatchRun& run, const BatchOptions& options) {
  const std::filesystem::path program = CurrentProgram();
  run.shippedData = FindShippedData(program);
  if (options.App.empty()) {
    run.folders.AppPath = FindProgramFolder(program);
    FillProgramFolder(run.folders.AppPath, run.shippedData);
    return;
  }
  run.folders.AppPath = std::filesystem::absolute(MapPath(options.App)).lexically_normal();
  if (!run.folders.AppPath.has_filename()) run.folders.AppPath = run.folders.AppPath.parent_path();
  std::filesystem::create_directories(run.folders.AppPath);
  if (!FindInFolder(run.folders.AppPath, "tools")) FillProgramFolder(run.folders.AppPath, run.shippedData);
  std::filesystem::create_directories(run.folders.Work());
}

void ApplySetting(AppSettings& settings, std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos || equals == 0)
    throw UsageError("--set " + std::string(text) + ": KEY=VALUE is expected");
  try {
    SetByName(settings, text.substr(0, equals), text.substr(equals + 1));
  } catch (const RuntimeError& failure) {
    throw UsageError(std::string("--set: ") + failure.what());
  }
}

}  // namespace

void PrepareRun(BatchRun& run, const BatchOptions& options) {
  if (options.Yes) run.dialogs.AnswerAll(Answers::AllYes);
  AppSettings untouched;  // a mistyped setting is found before anything is made on disk
  for (const std::string& setting : options.Settings)
    ApplySetting(untouched, setting);

  FindFolders(run, options);
  run.settings = LoadSettings(run.folders.IniPath(), run.folders.AppPath);
  for (const std::string& setting : options.Settings)
    ApplySetting(run.settings, setting);
  const std::string& simulator = options.Fs.empty() ? run.settings.FSPath : options.Fs;
  if (const auto found = FindSimulator(simulator, run.shippedData, run.folders.SimulatorIsStandIn))
    run.folders.FSPath = *found;
}

ProjectState OpenForCommand(BatchRun& run, std::string_view path) {
  auto project = OpenProjectFile(MapPath(path), run.settings, run.dialogs);
  if (project) return std::move(*project);
  if (!run.dialogs.TroubleShown())
    run.dialogs.Message(MessageKind::Error, std::string(path) + " was not opened.");
  throw CommandEnded{};
}

void SaveForCommand(BatchRun& run, ProjectState& project, std::string_view path) {
  SaveProjectFile(project, MapPath(path), run.folders.AppPath);
}

namespace {

template <class Record>
void SelectEach(RecordList<Record>& records) {
  for (std::size_t i = 0; i < records.size(); ++i)
    records.Edit(i).Selected = true;
}

void SelectCells(ClassGrid& grid) {
  grid.ChangeSet([](std::uint8_t sample) { return static_cast<std::uint8_t>(sample | 128); });
}

}  // namespace

void SelectAllButMaps(ProjectState& project) {
  Selection notKept;
  SelectAllPaths(project.Lines, true, notKept);
  SelectAllPaths(project.Polys, true, notKept);
  SelectEach(project.Fills);
  SelectEach(project.Excludes);
  SelectEach(project.Photos);
  SelectEach(project.Meshes);
  SelectEach(project.Objects);
  SelectCells(project.Lands);
  SelectCells(project.Waters);
}

void RefuseUnsupported(BatchRun& run, std::string_view what) {
  run.dialogs.Message(MessageKind::Error, std::string(what) + " is not supported by this version.");
  throw CommandEnded{};
}

double NumberArgument(std::string_view option, std::string_view text) {
  if (const auto number = ParseNumber(text)) return *number;
  throw UsageError(std::string(option) + ": " + std::string(text) + " is no number");
}

int IntegerArgument(std::string_view option, std::string_view text) {
  const auto number = ParseInt32(text);
  if (number && text.find_first_of(".eE") == std::string_view::npos) return *number;
  throw UsageError(std::string(option) + ": " + std::string(text) + " is no whole number");
}

LatLon PositionArgument(std::string_view option, const std::vector<std::string>& texts) {
  const LatLon at{NumberArgument(option, texts.at(0)), NumberArgument(option, texts.at(1))};
  if (at.lat < -90 || at.lat > 90 || at.lon < -180 || at.lon > 180)
    throw UsageError(std::string(option) + ": " + texts[0] + " " + texts[1] + " is outside the world");
  return at;
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const std::size_t end = text.find(separator);
    pieces.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
    if (text.empty()) pieces.emplace_back();
  }
  return pieces;
}

}  // namespace landsmith
