#include "compile/LwmFills.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace landsmith {
namespace {

constexpr std::uint8_t WholeCell = 32, LastFillType = 2;
constexpr std::array<std::uint8_t, 6> FillSizes{1, 2, 4, 8, 16, WholeCell};

void RequireFill(const ProjectState& project, std::size_t index) {
  if (const auto fault = FaultOfFill(project.Fills[index]))
    throw RuntimeError::At("compiling the area fills", "", "fill " + std::to_string(index + 1), *fault);
}

void WriteMacro(ScmWriter& out, const FillRec& fill) {
  out.Text("macro( Area").TwoDigits(fill.Size).Text("X").TwoDigits(fill.Size).Text("Poly.scm ");
  out.Integer(fill.Type).Text(" ").Integer(fill.Col).Text(" ").Integer(fill.Row);
  out.Text(" ").Shortest(fill.Height).Line(" )");
}

void WriteFill(ScmWriter& out, const FillRec& fill) {
  out.Text("LWMAreaFill( ").Integer(fill.Size).Text(" ").Integer(fill.Type);
  out.Text(" ").Integer(fill.Col).Text(" ").Integer(fill.Row);
  if (fill.Type != LandFill) out.Text(" ").Shortest(fill.Height);
  out.Line(" )");
}

}  // namespace

std::optional<std::string> FaultOfFill(const FillRec& fill) {
  if (std::find(FillSizes.begin(), FillSizes.end(), fill.Size) == FillSizes.end())
    return "a side of " + std::to_string(fill.Size) + " Areas is none of 1, 2, 4, 8, 16 and 32";
  if (fill.Type > LastFillType) return "the type " + std::to_string(fill.Type) + " is none of 0, 1 and 2";
  return std::nullopt;
}

FillList CollectFills(const ProjectState& project) {
  FillList fills;
  for (std::size_t i = 0; i < project.Fills.size(); ++i) {
    const FillRec& fill = project.Fills[i];
    if (!fill.Selected) continue;
    RequireFill(project, i);
    fills.push_back(&fill);
  }
  return fills;
}

bool IsCellFilled(const FillList& fills, bool fillAsPoly) {
  return !fillAsPoly && fills.size() == 1 && fills.front()->Size == WholeCell;
}

void WriteFills(ScmWriter& out, const FillList& fills, bool fillAsPoly) {
  if (IsCellFilled(fills, fillAsPoly)) return;
  for (const FillRec* fill : fills)
    if (fillAsPoly)
      WriteMacro(out, *fill);
    else
      WriteFill(out, *fill);
}

}  // namespace landsmith
