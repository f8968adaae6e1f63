#include "compile/Findings.h"

#include "compile/ItemFindings.h"

namespace landsmith {

ItemCheck::ItemCheck(const ProjectState& project, const AppSettings& settings)
    : m_project(project), m_shift(VtpShift(settings)) {}

template <class Path>
bool ItemCheck::NextOf(const RecordList<Path>& paths, std::size_t first, std::string_view kind,
                       std::vector<Finding>& findings) {
  while (m_next - first < paths.size()) {
    const std::size_t item = m_next++ - first;
    if (!paths[item].Selected) continue;
    ItemFindings found(findings, kind, item);
    CheckItem(paths[item], m_shift, found);
    return true;
  }
  return false;
}

bool ItemCheck::Next(std::vector<Finding>& findings) {
  const std::size_t lines = m_project.Lines.size();
  if (m_next < lines && NextOf(m_project.Lines, 0, LineFinding, findings)) return true;
  return NextOf(m_project.Polys, lines, PolyFinding, findings);
}

std::vector<Finding> CheckSelectedItems(const ProjectState& project, const AppSettings& settings) {
  std::vector<Finding> findings;
  ItemCheck check(project, settings);
  while (check.Next(findings)) {
  }
  return findings;
}

}  // namespace landsmith
