#include "editor/Find.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "objects/ObjectKind.h"
#include "vector/PathSelection.h"

#include <algorithm>
#include <string>
#include <utility>

namespace landsmith {

namespace {

bool Matches(const std::string& field, const std::string& text) {
  return text.empty() ? field.empty() : ToUpper(field).find(text) != std::string::npos;
}

/// The number of a type holds digits that the names of kinds hold too.
bool MatchesType(std::int32_t type, const std::string& text) {
  if (ParseInt32(text)) return Matches(std::to_string(type), text);
  return !text.empty() && Matches(std::string(ObjectKindLabel(type)), text);
}

/// One of the tests: which items of a list it accepts and how it selects one.
template <class Record, class Accepts, class Mark>
class ListSearch {
public:
  ListSearch(RecordList<Record>& records, Accepts accepts, Mark mark, std::size_t& lastHit)
      : m_records(records), m_accepts(accepts), m_mark(mark), m_lastHit(lastHit) {}

  bool Run(FindScope scope, LatLon& target) { return scope == FindScope::Next ? Next(target) : All(target); }

private:
  /// Numbers are 1-based here.
  bool Try(std::size_t number, LatLon& target) {
    if (!m_accepts(m_records[number - 1])) return false;
    m_mark(number - 1);
    m_lastHit = number;
    const GeoBox& box = m_records[number - 1].Box;
    target = {(box.NLat + box.SLat) / 2, (box.WLon + box.ELon) / 2};
    return true;
  }
  bool Next(LatLon& target) {
    const std::size_t count = m_records.size();
    const std::size_t start = m_lastHit + 1 == count ? 1 : m_lastHit + 1;
    for (std::size_t number = start; number <= count; ++number)
      if (Try(number, target)) return true;
    for (std::size_t number = 1; number <= std::min(start, count); ++number)
      if (Try(number, target)) return true;
    return false;
  }
  bool All(LatLon& target) {
    bool found = false;
    for (std::size_t number = 1; number <= m_records.size(); ++number)
      if (Try(number, target)) found = true;
    return found;
  }

  RecordList<Record>& m_records;
  Accepts m_accepts;
  Mark m_mark;
  std::size_t& m_lastHit;
};

/// What is the same for all tests of one search.
struct FindRun {
  ProjectState& project;
  std::string text;  ///< upper case, trimmed
  FindScope scope;
  std::size_t& lastHit;
  Selection& selection;
  FindOutcome outcome;
};

template <class Path>
bool FindPaths(FindRun& run, RecordList<Path>& paths, std::string Path::*field) {
  const auto accepts = [&](const Path& path) { return Matches(path.*field, run.text); };
  const auto mark = [&](std::size_t item) { MarkPath(paths, item, true, run.selection); };
  return ListSearch(paths, accepts, mark, run.lastHit).Run(run.scope, run.outcome.Target);
}

template <class Accepts>
bool FindObjects(FindRun& run, Accepts accepts) {
  RecordList<ObjectRec>& objects = run.project.Objects;
  const auto mark = [&](std::size_t item) {
    if (objects[item].Selected) return;
    objects.Edit(item).Selected = true;
    run.selection.Add();
  };
  return ListSearch(objects, accepts, mark, run.lastHit).Run(run.scope, run.outcome.Target);
}

/// Looks in one kind, first by `byName`, then by `byType`, where they are asked for. False when the search
/// ends here.
template <class ByName, class ByType>
bool FindInKind(FindRun& run, LayerKind kind, const char* word, std::pair<bool, ByName> byName,
                std::pair<bool, ByType> byType) {
  if (!byName.first && !byType.first) return true;
  bool found = byName.first && byName.second();
  if (byType.first && !(found && run.scope == FindScope::Next)) found = byType.second() || found;
  if (!found) {
    run.outcome.Refusal = run.scope == FindScope::Next ? std::string(word) + " not found !"
                                                       : std::string("No ") + word + " found !";
    return false;
  }
  run.outcome.Found = true;
  run.outcome.In.push_back(kind);
  return run.scope == FindScope::All;
}

template <class Path>
bool FindInPaths(FindRun& run, LayerKind kind, const char* word, RecordList<Path>& paths, bool names,
                 bool types) {
  return FindInKind(run, kind, word, std::pair(names, [&] { return FindPaths(run, paths, &Path::Name); }),
                    std::pair(types, [&] { return FindPaths(run, paths, &Path::Type); }));
}

bool FindInObjects(FindRun& run, bool names, bool types) {
  const auto description = [&](const ObjectRec& object) { return Matches(object.Description, run.text); };
  const auto type = [&](const ObjectRec& object) { return MatchesType(object.Type, run.text); };
  return FindInKind(run, LayerKind::Objects, "Object",
                    std::pair(names, [&] { return FindObjects(run, description); }),
                    std::pair(types, [&] { return FindObjects(run, type); }));
}

}  // namespace

FindOutcome FindItems(ProjectState& project, const FindRequest& request, FindScope scope,
                      std::size_t& lastHit, Selection& selection) {
  FindRun run{project, ToUpper(Trim(request.Text)), scope, lastHit, selection, {}};
  if (FindInPaths(run, LayerKind::Lines, "Line", project.Lines, request.Lines, request.LineTypes) &&
      FindInPaths(run, LayerKind::Polys, "Polygon", project.Polys, request.Polys, request.PolyTypes))
    FindInObjects(run, request.Objects, request.ObjectTypes);
  return run.outcome;
}

}  // namespace landsmith
