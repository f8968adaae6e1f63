// edit: operations on the selected items of a project.
#include "batch/Commands.h"
#include "vector/GridSnap.h"
#include "vector/LineJoin.h"
#include "vector/LineOperations.h"
#include "vector/PolyJoin.h"
#include "vector/PolyOperations.h"
#include "vector/Tidy.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace landsmith {

namespace {

/// What an operation works with. `Metres` is the number behind its name, 0 for one that takes none.
struct OperationInput {
  BatchRun& Run;
  ProjectState& Project;
  float Metres = 0;
};

void SnapLod21(const OperationInput& input) {
  input.Run.dialogs.Message(MessageKind::Info, SnapReport(SnapSelectedToLod21(input.Project)));
}

/// Calls `change` for each selected record and takes out those for which it returns false.
template <class Path, class Change>
void ChangeSelected(RecordList<Path>& paths, Change change) {
  std::vector<bool> gone(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (paths[i].Selected) gone[i] = !change(paths.Edit(i));
  std::size_t next = 0;
  paths.EraseIf([&](const Path&) { return gone[next++]; });
}

void SimplifySelected(const OperationInput& input) {
  const TidyScale scale{input.Metres, input.Project.LatDispCenter};
  ChangeSelected(input.Project.Lines, [&](LineRec& line) {
    SimplifyLine(line, scale);
    return true;
  });
  ChangeSelected(input.Project.Polys, [&](PolyRec& poly) { return SimplifyPoly(poly, scale); });
}

void SmoothAllSelected(const OperationInput& input, const SmoothOptions& options) {
  const TidyScale scale{input.Metres, input.Project.LatDispCenter};
  ChangeSelected(input.Project.Lines, [&](LineRec& line) {
    SmoothLine(line, scale, options);
    return true;
  });
  ChangeSelected(input.Project.Polys, [&](PolyRec& poly) {
    SmoothPoly(poly, scale, options);
    return true;
  });
}

void SmoothSelected(const OperationInput& input) {
  SmoothAllSelected(input, {});
}

void SmoothSelectedKeepingEnds(const OperationInput& input) {
  SmoothAllSelected(input, {.KeepEnds = true});
}

void ReverseLines(const OperationInput& input) {
  ChangeSelected(input.Project.Lines, [](LineRec& line) {
    ReverseLine(line);
    return true;
  });
}

void EndWhenRefused(BatchRun& run, const std::string& refusal) {
  if (refusal.empty()) return;
  run.dialogs.Message(MessageKind::Error, refusal);
  throw CommandEnded{};
}

void JoinSelectedLines(const OperationInput& input) {
  Selection notKept;
  EndWhenRefused(input.Run, JoinLines(input.Project, notKept));
}

void JoinSelectedPolys(const OperationInput& input) {
  Selection notKept;
  const ViewScale scale = UpdateScale(input.Project.Zoom, input.Project.LatDispCenter);
  EndWhenRefused(input.Run, JoinPolys(input.Project, input.Run.settings, scale, notKept));
}

/// A line that encloses nothing gives no polygon.
void PolysOfLines(const OperationInput& input) {
  for (const LineRec& line : input.Project.Lines) {
    if (!line.Selected) continue;
    PolyRec poly = MakePolyFromLine(line);
    if (poly.Points.size() >= PathTraits<PolyRec>::LeastPoints)
      input.Project.Polys.push_back(std::move(poly));
  }
}

void LinesOfPolys(const OperationInput& input) {
  const AppSettings& settings = input.Run.settings;
  for (const PolyRec& poly : input.Project.Polys)
    if (poly.Selected)
      input.Project.Lines.push_back(MakeLineFromPoly(poly, settings.DefPWidth, settings.LnColorUns));
}

struct Operation {
  std::string_view Name;
  bool TakesMetres = false;
  void (*Run)(const OperationInput&) = nullptr;  ///< null: not in this version
};

constexpr std::array<Operation, 11> Operations{{
    {"snap-lod21", false, SnapLod21},
    {"simplify", true, SimplifySelected},
    {"smooth", true, SmoothSelected},
    {"smooth-keep-ends", true, SmoothSelectedKeepingEnds},
    {"reverse", false, ReverseLines},
    {"join-lines", false, JoinSelectedLines},
    {"join-polys", false, JoinSelectedPolys},
    {"lines-to-polys", false, PolysOfLines},
    {"polys-to-lines", false, LinesOfPolys},
    {"check-meshes", false, nullptr},
    {"make-flattens", false, nullptr},
}};

/// An operation of the command line with its number.
struct Wish {
  const Operation* What = nullptr;
  float Metres = 0;
};

float MetresArgument(std::string_view name, std::string_view text) {
  const double metres = NumberArgument(name, text);
  if (metres < 0 || metres > std::numeric_limits<float>::max())
    throw UsageError("edit: " + std::string(name) + " takes no such distance: " + std::string(text));
  return static_cast<float>(metres);
}

Wish ParseWish(const std::string& text) {
  const std::size_t equals = text.find('=');
  const std::string_view name = std::string_view(text).substr(0, equals);
  const auto found = std::find_if(Operations.begin(), Operations.end(),
                                  [&](const Operation& each) { return each.Name == name; });
  if (found == Operations.end()) throw UsageError("edit: there is no operation " + text);
  if (found->TakesMetres != (equals != std::string::npos))
    throw UsageError("edit: " + std::string(name) +
                     (found->TakesMetres ? " needs =METRES behind it" : " takes no value"));
  Wish wish{found};
  if (found->TakesMetres) wish.Metres = MetresArgument(name, std::string_view(text).substr(equals + 1));
  return wish;
}

struct EditArguments {
  std::string In;
  std::string Out;
  std::string Select;
  std::vector<std::string> Operations;
};

void Edit(BatchRun& run, const EditArguments& arguments) {
  std::vector<Wish> wishes;
  for (const std::string& text : arguments.Operations)
    wishes.push_back(ParseWish(text));
  for (const Wish& wish : wishes)
    if (wish.What->Run == nullptr) RefuseUnsupported(run, "The operation " + std::string(wish.What->Name));

  ProjectState project = OpenForCommand(run, arguments.In);
  if (!arguments.Select.empty()) SelectAllButMaps(project);
  for (const Wish& wish : wishes)
    wish.What->Run({run, project, wish.Metres});
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
  command->add_option("OP", arguments->Operations, "snap-lod21, simplify=METRES, join-lines, ...")
      ->required();
  command->callback([arguments, &chosen] { chosen = [arguments](BatchRun& run) { Edit(run, *arguments); }; });
}

}  // namespace landsmith
