// The source language of the stand-in compiler: statements `Name( arg arg ... )` or a bare `Name`, labels
// `:name`, and comments from ";" to the end of the line. Line ends part words as blanks do, so a list may run
// over many lines. A text in double quotes is one argument, ";" inside it included.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools {

struct Statement {
  std::string Name;                        ///< "VTPArea"; for a label, ":cell00"
  std::vector<std::string> Arguments;      ///< a quoted argument keeps its quotes
  std::size_t Line = 0;                    ///< 1-based, where the statement starts
  std::vector<std::size_t> ArgumentLines;  ///< the line of each argument
};

struct ScmError {
  std::size_t Line = 0;  ///< 1-based
  std::string Reason;
  bool operator==(const ScmError&) const = default;
};

struct ScmSource {
  std::vector<Statement> Statements;
  std::vector<ScmError> Errors;  ///< by line
};

/// Never throws: what cannot be read is listed in Errors.
ScmSource ParseScm(std::string_view bytes);

}  // namespace landsmith::simtools
