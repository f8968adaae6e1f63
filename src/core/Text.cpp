#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace landsmith {

namespace {

/// Code points of the bytes 0x80 to 0x9F; below and above, byte and code point are the same number.
constexpr std::array<char16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsAscii(std::string_view text) {
  std::size_t at = 0;
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, 8);
    if ((word & 0x8080808080808080u) != 0) return false;
  }
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Code points below 0x10000 are all that the code page has.
void AppendUtf8(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (code >> 12));
    text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

struct Decoded {
  char32_t code = 0xFFFFFFFF;  ///< this value: ill-formed
  std::size_t length = 1;
};

Decoded DecodeUtf8(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return {first, 1};
  std::size_t length = 0;
  char32_t code = 0;
  char32_t least = 0;
  if (first >= 0xC2 && first <= 0xDF) {
    length = 2, code = first & 0x1Fu, least = 0x80;
  } else if (first >= 0xE0 && first <= 0xEF) {
    length = 3, code = first & 0x0Fu, least = 0x800;
  } else if (first >= 0xF0 && first <= 0xF4) {
    length = 4, code = first & 0x07u, least = 0x10000;
  }
  if (length == 0 || text.size() < length) return {};
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return {};
    code = (code << 6) | (next & 0x3Fu);
  }
  if (code < least || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return {};
  return {code, length};
}

char ByteOf(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto found = std::find(UpperControls.begin(), UpperControls.end(), code);
  if (found == UpperControls.end()) return '?';
  return static_cast<char>(0x80 + (found - UpperControls.begin()));
}

char32_t UpperOf(char32_t code) {
  if (code >= 'a' && code <= 'z') return code - 32;
  if (code >= 0xE0 && code <= 0xFE && code != 0xF7) return code - 32;
  if (code == 0x161 || code == 0x153 || code == 0x17E) return code - 1;
  return code == 0xFF ? 0x178 : code;
}

char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string FromWindows1252(std::string_view bytes) {
  if (IsAscii(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 2);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? UpperControls[byte - 0x80u] : byte);
  }
  return text;
}

std::string ToWindows1252(std::string_view utf8) {
  if (IsAscii(utf8)) return std::string(utf8);
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded next = DecodeUtf8(utf8);
    bytes += ByteOf(next.code);
    utf8.remove_prefix(next.length);
  }
  return bytes;
}

std::string_view Trim(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string ToLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerLetter);
  return lower;
}

std::string ToUpper(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = DecodeUtf8(text);
    const char32_t code = UpperOf(next.code);
    if (code == next.code)
      upper += text.substr(0, next.length);
    else
      AppendUtf8(upper, code);
    text.remove_prefix(next.length);
  }
  return upper;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char left, char right) { return LowerLetter(left) == LowerLetter(right); });
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to) {
  if (from.empty()) return text;
  std::size_t at = text.find(from);
  if (at == std::string::npos) return text;
  std::string result;
  std::size_t done = 0;
  for (; at != std::string::npos; at = text.find(from, done)) {
    result.append(text, done, at - done).append(to);
    done = at + from.size();
  }
  return result.append(text, done);
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  std::size_t feed = 0;  // the next line feed at or behind `start`, looked for once
  while (start < text.size()) {
    if (feed <= start) feed = std::min(text.find('\n', start), text.size());
    const std::size_t end = start + std::min(text.substr(start, feed - start).find('\r'), feed - start);
    lines.push_back(text.substr(start, end - start));
    const bool both = end + 1 == feed && feed < text.size();
    start = end + (both ? 2 : 1);
  }
  return lines;
}

}  // namespace landsmith
