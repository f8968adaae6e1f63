#include "compile/Findings.h"

#include "compile/ItemFindings.h"

#include <type_traits>

namespace landsmith {

ItemCheck::ItemCheck(const ProjectState& project, const AppSettings& settings)
    : m_project(project), m_shift(VtpShift(settings)) {}

template <class Record>
bool ItemCheck::NextOf(const RecordList<Record>& records, std::size_t first, std::string_view kind,
                       std::vector<Finding>& findings) {
  while (m_next - first < records.size()) {
    const std::size_t item = m_next++ - first;
    if (!records[item].Selected) continue;
    ItemFindings found(findings, kind, item);
    if constexpr (std::is_same_v<Record, FillRec>)
      CheckItem(records[item], found);
    else
      CheckItem(records[item], m_shift, found);
    return true;
  }
  return false;
}

bool ItemCheck::Next(std::vector<Finding>& findings) {
  const std::size_t polys = m_project.Lines.size(), fills = polys + m_project.Polys.size();
  if (m_next < polys && NextOf(m_project.Lines, 0, LineFinding, findings)) return true;
  if (m_next < fills && NextOf(m_project.Polys, polys, PolyFinding, findings)) return true;
  return NextOf(m_project.Fills, fills, FillFinding, findings);
}

std::vector<Finding> CheckSelectedItems(const ProjectState& project, const AppSettings& settings) {
  std::vector<Finding> findings;
  ItemCheck check(project, settings);
  while (check.Next(findings)) {
  }
  return findings;
}

}  // namespace landsmith
