#include "simtools/FileOrder.h"

#include "core/Text.h"

namespace landsmith::simtools {

bool FileOrder::Begin(const Statement& statement) {
  std::size_t part = 0;
  while (!EqualsIgnoringCase(m_statements[part], statement.Name))
    ++part;
  if (part < m_begun) {
    m_errors.push_back({statement.Line, part == 0 ? "a second " + statement.Name
                                                  : "a second " + statement.Name +
                                                        ", or one behind the blocks that follow it"});
    return false;
  }
  for (; m_begun < part; ++m_begun)
    m_errors.push_back(
        {statement.Line, statement.Name + " stands in front of " + std::string(m_statements[m_begun])});
  m_begun = part + 1;
  return true;
}

void FileOrder::ExpectCells(const Statement& statement) {
  if (m_begun == 0) {
    m_errors.push_back(
        {statement.Line, statement.Name + " stands in front of " + std::string(m_statements[0])});
    m_begun = 1;  // said once
  } else if (m_begun != 1) {
    m_errors.push_back({statement.Line, statement.Name + " stands behind " + std::string(m_statements[1])});
  }
}

void FileOrder::Finish(std::size_t line) {
  for (; m_begun < m_statements.size(); ++m_begun)
    m_errors.push_back({line, "there is no " + std::string(m_statements[m_begun])});
}

}  // namespace landsmith::simtools
