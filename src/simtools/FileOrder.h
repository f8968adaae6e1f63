// The parts of a file of cells, each begun by a statement of its own: the file header, behind which the cells
// stand, then lists, then the end.
#pragma once

#include "simtools/ScmParser.h"

#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools {

class FileOrder {
public:
  /// `statements`: the name of the statement that begins each part, the header's first, the end's last.
  FileOrder(std::vector<std::string_view> statements, std::vector<ScmError>& errors)
      : m_statements(std::move(statements)), m_errors(errors) {}

  /// True when the part that `statement` begins comes next. Parts that were left out, a second one or one out
  /// of order are errors; after a part was left out the order goes on behind `statement`.
  bool Begin(const Statement& statement);
  /// `statement` belongs to the cells: reports it when it stands elsewhere.
  void ExpectCells(const Statement& statement);
  bool InCells() const { return m_begun == 1; }
  /// Reports each part that is missing at the end of the source, whose last line is `line`.
  void Finish(std::size_t line);

private:
  std::vector<std::string_view> m_statements;
  std::vector<ScmError>& m_errors;
  std::size_t m_begun = 0;  ///< parts
};

}  // namespace landsmith::simtools
