#include "simtools/StatementCheck.h"

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

std::optional<std::int64_t> NumberArgument(const Statement& statement, std::size_t index,
                                           const NumberRange& range, std::vector<ScmError>& errors) {
  const std::string& text = statement.Arguments[index];
  const auto value = ParseWholeNumber(text);
  if (value && *value >= range.Least && *value <= range.Most) return value;
  std::string reason = statement.Name + ": " + std::string(range.What) + " is " + text;
  if (!value)
    reason += ", which is no whole number";
  else if (range.Least == range.Most)
    reason += ", it must be " + std::to_string(range.Least);
  else
    reason += ", allowed is " + std::to_string(range.Least) + " to " + std::to_string(range.Most);
  errors.push_back({statement.ArgumentLines[index], std::move(reason)});
  return std::nullopt;
}

bool FixedArgument(const Statement& statement, std::size_t index, std::string_view what, std::int64_t value,
                   std::vector<ScmError>& errors) {
  return NumberArgument(statement, index, {what, value, value}, errors).has_value();
}

}  // namespace landsmith::simtools
