#include "vector/LineJoin.h"

#include "vector/JoinTolerance.h"
#include "vector/LineOperations.h"
#include "vector/PathSelection.h"

#include <cmath>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

double DegreesBetween(const LinePoint& a, const LinePoint& b) {
  return std::hypot(a.Lon - b.Lon, a.Lat - b.Lat);
}

/// The gap from the end of `a` to the start of `b` is shorter than one of the segments beside it.
bool GapIsShort(const LineRec& a, const LineRec& b) {
  if (a.Points.empty() || b.Points.empty()) return false;
  const double gap = DegreesBetween(a.Points.back(), b.Points.front());
  const auto lastOfA = a.Points.rbegin();
  const auto firstOfB = b.Points.begin();
  return (a.Points.size() > 1 && gap < DegreesBetween(*lastOfA, *std::next(lastOfA))) ||
         (b.Points.size() > 1 && gap < DegreesBetween(*firstOfB, *std::next(firstOfB)));
}

/// Arguments of JoinLineRecords.
struct JoinPlan {
  std::size_t a, b;
  bool reverseA = false, reverseB = false;
};

/// How the new line would meet line `j`; nothing when no ends are close.
std::optional<JoinPlan> PlanJoin(const ProjectState& project, std::size_t newLine, std::size_t j,
                                 bool anyDirection, const JoinTolerance& tolerance) {
  const std::vector<LinePoint>& fresh = project.Lines[newLine].Points;
  const std::vector<LinePoint>& other = project.Lines[j].Points;
  if (fresh.empty() || other.empty()) return {};
  if (AreClose(other.front(), fresh.back(), tolerance)) return JoinPlan{newLine, j};
  if (AreClose(other.back(), fresh.front(), tolerance)) return JoinPlan{j, newLine};
  if (!anyDirection) return {};
  if (AreClose(other.back(), fresh.back(), tolerance)) return JoinPlan{newLine, j, false, true};
  if (AreClose(other.front(), fresh.front(), tolerance)) return JoinPlan{newLine, j, true, false};
  return {};
}

}  // namespace

void JoinLineRecords(ProjectState& project, std::size_t a, std::size_t b, bool reverseA, bool reverseB,
                     Selection* selection) {
  Selection notKept;
  Selection& counted = selection == nullptr ? notKept : *selection;
  MarkPath(project.Lines, a, true, counted);
  MarkPath(project.Lines, b, false, counted);
  LineRec& kept = project.Lines.Edit(a);
  LineRec added = project.Lines[b];
  if (reverseA) ReverseLine(kept);
  if (reverseB) ReverseLine(added);
  if (!added.Points.empty())
    kept.Points.insert(kept.Points.end(), added.Points.begin() + 1, added.Points.end());
  SetPathBounds(kept);
  project.Lines.Erase(b);
}

std::string JoinLines(ProjectState& project, Selection& selection) {
  std::vector<std::size_t> chosen;
  for (std::size_t i = 0; i < project.Lines.size() && chosen.size() < 2; ++i)
    if (project.Lines[i].Selected) chosen.push_back(i);
  if (chosen.size() < 2) return "Could not find 2 lines to join!";

  std::size_t first = chosen[0];
  std::size_t second = chosen[1];
  if (!GapIsShort(project.Lines[first], project.Lines[second])) std::swap(first, second);
  if (!GapIsShort(project.Lines[first], project.Lines[second])) return "Could not join the lines!";
  JoinLineRecords(project, first, second, false, false, &selection);
  return {};
}

bool TryAutoJoin(ProjectState& project, std::size_t newLine, const AppSettings& settings,
                 const ViewScale& scale) {
  const JoinTolerance tolerance = JoinToleranceOf(settings, scale);
  for (std::size_t j = 0; j < project.Lines.size(); ++j) {
    const LineRec& fresh = project.Lines[newLine];
    const LineRec& other = project.Lines[j];
    if (j == newLine || other.Type != fresh.Type) continue;
    if (settings.NameJoin && other.Name != fresh.Name) continue;
    const auto plan = PlanJoin(project, newLine, j, !settings.DirJoin, tolerance);
    if (!plan) continue;
    JoinLineRecords(project, plan->a, plan->b, plan->reverseA, plan->reverseB);
    return true;
  }
  return false;
}

}  // namespace landsmith
