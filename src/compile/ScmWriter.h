// The one writer of generated source text: it owns every byte of line ends, numbers and blanks. Compilers say
// what a number is, not how it prints.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace landsmith {

class ScmWriter {
public:
  /// Makes room for a text of about so many bytes, so that a long one is not copied as it grows.
  void Reserve(std::size_t bytes) { m_text.reserve(bytes); }
  ScmWriter& Text(std::string_view text);  ///< UTF-8, as it stands
  ScmWriter& Integer(std::int64_t value);  ///< plain decimal, no padding
  /// 0 or above, with at least two digits: "07", "12", "123".
  ScmWriter& TwoDigits(std::int64_t value);
  /// The mask "0.000", or "000.00" with as many digits in front of the point at least.
  ScmWriter& Fixed(double value, int decimals, int minIntegerDigits = 1);
  ScmWriter& Shortest(double value);
  ScmWriter& Shortest(float value);  ///< as many digits as a single has
  ScmWriter& EndLine();              ///< CR LF
  ScmWriter& Line(std::string_view text) { return Text(text).EndLine(); }
  ScmWriter& EmptyLine() { return EndLine(); }

  /// The text in UTF-8; files are written in Windows-1252.
  const std::string& Content() const { return m_text; }
  std::string Take() { return std::move(m_text); }

private:
  std::string m_text;
};

}  // namespace landsmith
