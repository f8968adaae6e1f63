#include "compile/ScmWriter.h"

#include "core/Numbers.h"

#include <array>
#include <charconv>

namespace landsmith {

ScmWriter& ScmWriter::Text(std::string_view text) {
  m_text += text;
  return *this;
}

ScmWriter& ScmWriter::Integer(std::int64_t value) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  m_text.append(digits.data(), end);
  return *this;
}

ScmWriter& ScmWriter::TwoDigits(std::int64_t value) {
  if (value >= 0 && value < 10) m_text += '0';
  return Integer(value);
}

ScmWriter& ScmWriter::Fixed(double value, int decimals, int minIntegerDigits) {
  return Text(FixedText(value, decimals, minIntegerDigits));
}

ScmWriter& ScmWriter::Shortest(double value) {
  return Text(NumberText(value));
}

ScmWriter& ScmWriter::Shortest(float value) {
  return Text(NumberText(value));
}

ScmWriter& ScmWriter::EndLine() {
  return Text("\r\n");
}

}  // namespace landsmith
