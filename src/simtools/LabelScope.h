// The labels of a file, or of one block of it: each stands once, and the ones that are referred to exist.
#pragma once

#include "simtools/ScmParser.h"

#include <map>
#include <string>
#include <vector>

namespace landsmith::simtools {

class LabelScope {
public:
  explicit LabelScope(std::vector<ScmError>& errors) : m_errors(errors) {}

  void Define(const Statement& label);
  /// Argument `index` names a label of this scope, which may come later.
  void Refer(const Statement& statement, std::size_t index);
  /// Reports the references to labels that never came, and forgets all labels.
  void Close();

private:
  struct Reference {
    std::size_t Line = 0;
    std::string Statement, Label;
  };

  std::vector<ScmError>& m_errors;
  std::map<std::string, std::size_t> m_lines;  ///< by the label in small letters
  std::vector<Reference> m_references;
};

}  // namespace landsmith::simtools
