#include "simtools/StatementCheck.h"

#include "core/Numbers.h"
#include "core/Text.h"

#include <charconv>

namespace landsmith::simtools {

std::optional<std::int64_t> ParseWholeNumber(std::string_view text) {
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

namespace {

/// Why argument `index` is refused; `isNumber`: it is a number, but not in the range.
template <class Range, class Text>
ScmError Refusal(const Statement& statement, std::size_t index, const Range& range, bool isNumber,
                 std::string_view wanted, Text text) {
  std::string reason = statement.Name + ": " + std::string(range.What) + " is " + statement.Arguments[index];
  if (!isNumber)
    reason += ", which is no " + std::string(wanted);
  else if (range.Least < range.Most)
    reason += ", allowed is " + text(range.Least) + " to " + text(range.Most);
  else
    reason += ", it must be " + text(range.Least);
  return {statement.ArgumentLines[index], std::move(reason)};
}

}  // namespace

std::optional<std::int64_t> NumberArgument(const Statement& statement, std::size_t index,
                                           const NumberRange& range, std::vector<ScmError>& errors) {
  const auto value = ParseWholeNumber(statement.Arguments[index]);
  if (value && *value >= range.Least && *value <= range.Most) return value;
  errors.push_back(Refusal(statement, index, range, value.has_value(), "whole number",
                           [](std::int64_t bound) { return std::to_string(bound); }));
  return std::nullopt;
}

std::optional<double> RealArgument(const Statement& statement, std::size_t index, const RealRange& range,
                                   std::vector<ScmError>& errors) {
  const auto value = ParseNumber(statement.Arguments[index]);
  if (value && *value >= range.Least && *value <= range.Most) return value;
  errors.push_back(Refusal(statement, index, range, value.has_value(), "number",
                           [](double bound) { return NumberText(bound); }));
  return std::nullopt;
}

void WordArgument(const Statement& statement, std::size_t index, std::string_view word,
                  std::vector<ScmError>& errors) {
  if (EqualsIgnoringCase(statement.Arguments[index], word)) return;
  errors.push_back(
      {statement.ArgumentLines[index],
       statement.Name + ": " + std::string(word) + " is missing in front of " + statement.Arguments[index]});
}

bool FixedArgument(const Statement& statement, std::size_t index, std::string_view what, std::int64_t value,
                   std::vector<ScmError>& errors) {
  return NumberArgument(statement, index, {what, value, value}, errors).has_value();
}

}  // namespace landsmith::simtools
