#include "batch/JsonWriter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace landsmith {

namespace {

void AppendEscaped(std::string& text, unsigned char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  text += "\\u00";
  text += digits[byte >> 4];
  text += digits[byte & 15];
}

}  // namespace

void JsonWriter::BreakLine() {
  if (m_depth > m_linesTo) return;
  m_text += '\n';
  m_text.append(static_cast<std::size_t>(m_depth) * 2, ' ');
}

void JsonWriter::Separate() {
  if (m_afterKey) {
    m_afterKey = false;
    return;
  }
  if (!m_first) m_text += m_depth > m_linesTo ? ", " : ",";
  if (m_depth > 0) BreakLine();
  m_first = false;
}

JsonWriter& JsonWriter::Begin(char bracket) {
  Separate();
  m_text += bracket;
  ++m_depth;
  m_first = true;
  return *this;
}

JsonWriter& JsonWriter::End(char bracket) {
  const bool broken = m_depth <= m_linesTo && !m_first;
  --m_depth;
  if (broken) BreakLine();
  m_text += bracket;
  m_first = false;
  return *this;
}

JsonWriter& JsonWriter::Key(std::string_view name) {
  Value(name);
  m_text += ": ";
  m_afterKey = true;
  return *this;
}

template <class T>
JsonWriter& JsonWriter::Number(T value) {
  Separate();
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  m_text.append(digits.data(), end);
  return *this;
}

JsonWriter& JsonWriter::Value(double value) {
  return std::isfinite(value) ? Number(value) : Literal("null");
}

JsonWriter& JsonWriter::Value(float value) {
  return std::isfinite(value) ? Number(value) : Literal("null");
}

JsonWriter& JsonWriter::Value(std::int64_t value) {
  return Number(value);
}

JsonWriter& JsonWriter::Value(bool value) {
  return Literal(value ? "true" : "false");
}

JsonWriter& JsonWriter::Literal(std::string_view word) {
  Separate();
  m_text += word;
  return *this;
}

JsonWriter& JsonWriter::Value(std::string_view utf8) {
  Separate();
  m_text += '"';
  for (const char c : utf8) {
    if (c == '"' || c == '\\') m_text += '\\';
    if (static_cast<unsigned char>(c) < 0x20)
      AppendEscaped(m_text, static_cast<unsigned char>(c));
    else
      m_text += c;
  }
  m_text += '"';
  return *this;
}

std::string JsonWriter::Take() {
  m_text += '\n';
  return std::move(m_text);
}

}  // namespace landsmith
