// Little-endian cursors over file content. A reader cannot run past the end, and it knows where it is, so
// that a message can name the place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace landsmith {

class ByteReader {
public:
  /// `doing` and `file` go into the messages: "reading the project", "X.LSP".
  ByteReader(std::string_view bytes, std::string doing, std::string file);

  std::size_t Position() const { return m_position; }
  std::size_t Left() const { return m_bytes.size() - m_position; }

  /// Each throws RuntimeError with the offset when fewer bytes are left than the value needs.
  std::uint8_t U8() { return Value<std::uint8_t>(); }
  std::uint16_t U16() { return Value<std::uint16_t>(); }
  std::int16_t I16() { return Value<std::int16_t>(); }
  std::int32_t I32() { return Value<std::int32_t>(); }
  std::uint32_t U32() { return Value<std::uint32_t>(); }
  float F32() { return Value<float>(); }
  double F64() { return Value<double>(); }
  /// A 16-bit length and that many bytes, Windows-1252, returned as UTF-8.
  std::string Str16();
  std::string_view Bytes(std::size_t count) {
    if (count > Left()) FailShort(count);
    m_position += count;
    return {m_bytes.data() + m_position - count, count};
  }
  void Seek(std::size_t position);

  /// A count of things that take at least `leastSize` bytes each; one below 0 or without room in what is
  /// left is refused before anything is allocated. `what`: "lines", "points".
  std::size_t CheckedCount(std::int64_t count, std::size_t leastSize, std::string_view what) const;

  /// Throws RuntimeError that names the file and the present offset.
  [[noreturn]] void Fail(const std::string& found) const;

private:
  // In the header, since projects are made of a great many small fields.
  template <class Number>
  Number Value() {
    Number value{};
    std::memcpy(&value, Bytes(sizeof value).data(), sizeof value);
    return value;
  }
  [[noreturn]] void FailShort(std::size_t count) const;

  std::string_view m_bytes;
  std::size_t m_position = 0;
  std::string m_doing;
  std::string m_file;
};

class ByteWriter {
public:
  void U8(std::uint8_t value);
  void U16(std::uint16_t value);
  void I16(std::int16_t value);
  void I32(std::int32_t value);
  void U32(std::uint32_t value);
  void F32(float value);
  void F64(double value);
  /// Throws RuntimeError when the text is longer than 65535 bytes.
  void Str16(std::string_view utf8);
  void Bytes(std::string_view bytes);
  /// Overwrites four bytes written before.
  void PatchU32(std::size_t position, std::uint32_t value);
  void Reserve(std::size_t size) { m_bytes.reserve(size); }
  std::size_t Size() const { return m_bytes.size(); }
  const std::string& Content() const { return m_bytes; }
  std::string Take() { return std::move(m_bytes); }

private:
  std::string m_bytes;
};

}  // namespace landsmith
