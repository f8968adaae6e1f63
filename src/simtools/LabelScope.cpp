#include "simtools/LabelScope.h"

#include "core/Text.h"

namespace landsmith::simtools {

void LabelScope::Define(const Statement& label) {
  const auto [place, isNew] = m_lines.try_emplace(ToLower(label.Name), label.Line);
  if (!isNew)
    m_errors.push_back({label.Line, "the label " + label.Name + " is used in line " +
                                        std::to_string(place->second) + " already"});
}

void LabelScope::Refer(const Statement& statement, std::size_t index) {
  const std::string& label = statement.Arguments[index];
  if (label.size() > 1 && label.starts_with(':'))
    m_references.push_back({statement.ArgumentLines[index], statement.Name, label});
  else
    m_errors.push_back({statement.ArgumentLines[index], statement.Name + ": " + label + " is no label"});
}

void LabelScope::Close() {
  for (const Reference& reference : m_references)
    if (!m_lines.contains(ToLower(reference.Label)))
      m_errors.push_back({reference.Line, reference.Statement + ": there is no label " + reference.Label});
  m_references.clear();
  m_lines.clear();
}

}  // namespace landsmith::simtools
