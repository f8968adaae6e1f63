// Valid sources with one thing changed, and what is said about it.
#pragma once

#include "core/Text.h"
#include "simtools/ScmChecker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <string>

namespace landsmith::simtools::test {

struct FaultRow {
  const char* name;
  const char* from;  ///< what the fault replaces in the source
  const char* to;
  std::size_t line;
  const char* reason;
  std::size_t errors = 1;  ///< more where one fault hides what later statements refer to
};

inline void ExpectFaults(const std::string& valid, std::span<const FaultRow> rows) {
  for (const ScmError& error : CheckScm(ParseScm(valid)).Errors)
    ADD_FAILURE() << "line " << error.Line << " of the valid source: " << error.Reason;
  for (const FaultRow& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string source = ReplaceAll(valid, row.from, row.to);
    ASSERT_NE(source, valid) << "the row changes nothing";
    const CheckedSource checked = CheckScm(ParseScm(source));
    ASSERT_FALSE(checked.Errors.empty());
    EXPECT_EQ(checked.Errors.front().Line, row.line);
    EXPECT_THAT(checked.Errors.front().Reason, testing::HasSubstr(row.reason));
    EXPECT_EQ(checked.Errors.size(), row.errors)
        << "then: " << checked.Errors.back().Line << " " << checked.Errors.back().Reason;
  }
}

}  // namespace landsmith::simtools::test
