// The source language of the stand-in compiler: statements `Name( arg arg ... )`, labels `:name`, comments
// behind
// ";", "Header( 1 N S E W )" and so on, as the compilers of this system write it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::simtools {

struct Statement {
  std::string Name;                    ///< "VTPArea"; for a label, ":cell00"
  std::vector<std::string> Arguments;  ///< a quoted argument keeps its quotes
  std::size_t Line = 0;                ///< 1-based, where the statement starts
};

struct ScmError {
  std::size_t Line = 0;
  std::string Reason;
};

struct ScmSource {
  std::vector<Statement> Statements;
  std::vector<ScmError> Errors;
};

/// Never throws: what cannot be read is listed in Errors.
ScmSource ParseScm(std::string_view bytes);

}  // namespace landsmith::simtools
