// JSON text as the commands print it: members in the order they are written, every real number in its
// shortest form that reads back to the same value, no locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace landsmith {

/// Elements of the outer `linesTo` levels stand on a line each; 0 keeps the whole text on one line.
class JsonWriter {
public:
  explicit JsonWriter(int linesTo = 0) : m_linesTo(linesTo) {}

  JsonWriter& BeginObject() { return Begin('{'); }
  JsonWriter& EndObject() { return End('}'); }
  JsonWriter& BeginArray() { return Begin('['); }
  JsonWriter& EndArray() { return End(']'); }
  JsonWriter& Key(std::string_view name);

  /// A value that JSON has no number for (infinite, not a number) becomes null.
  JsonWriter& Value(double value);
  JsonWriter& Value(float value);
  JsonWriter& Value(std::int64_t value);
  JsonWriter& Value(std::int32_t value) { return Value(std::int64_t{value}); }
  JsonWriter& Value(bool value);
  JsonWriter& Value(std::string_view utf8);
  JsonWriter& Value(const char* utf8) { return Value(std::string_view(utf8)); }
  JsonWriter& Value(const std::string& utf8) { return Value(std::string_view(utf8)); }

  template <class T>
  JsonWriter& Member(std::string_view name, const T& value) {
    return Key(name).Value(value);
  }

  std::string Take();  ///< ends with a line end

private:
  JsonWriter& Begin(char bracket);
  JsonWriter& End(char bracket);
  JsonWriter& Literal(std::string_view word);
  void Separate();
  void BreakLine();
  template <class T>
  JsonWriter& Number(T value);

  std::string m_text;
  int m_linesTo;
  int m_depth = 0;
  bool m_first = true;      ///< nothing yet in the open object or array
  bool m_afterKey = false;  ///< the next value belongs to a key
};

}  // namespace landsmith
