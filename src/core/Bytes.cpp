#include "core/Bytes.h"

#include "core/Text.h"
#include "platform/RuntimeError.h"

#include <bit>
#include <cstring>
#include <limits>

namespace landsmith {

static_assert(std::endian::native == std::endian::little, "files are little-endian, and copied as they are");

namespace {

template <class Value>
void AppendValue(std::string& bytes, Value value) {
  char raw[sizeof value];
  std::memcpy(raw, &value, sizeof value);
  bytes.append(raw, sizeof value);
}

}  // namespace

ByteReader::ByteReader(std::string_view bytes, std::string doing, std::string file)
    : m_bytes(bytes), m_doing(std::move(doing)), m_file(std::move(file)) {}

std::string ByteReader::Str16() {
  const std::uint16_t length = U16();
  return FromWindows1252(Bytes(length));
}

void ByteReader::Seek(std::size_t position) {
  if (position > m_bytes.size())
    Fail("offset " + std::to_string(position) + " lies behind the end at " + std::to_string(m_bytes.size()));
  m_position = position;
}

std::size_t ByteReader::CheckedCount(std::int64_t count, std::size_t leastSize, std::string_view what) const {
  const std::size_t room = Left() / leastSize;
  if (count < 0 || static_cast<std::uint64_t>(count) > room)
    Fail(std::to_string(count) + " " + std::string(what) + " announced, room for " + std::to_string(room));
  return static_cast<std::size_t>(count);
}

void ByteReader::Fail(const std::string& found) const {
  throw RuntimeError::At(m_doing, m_file, "offset " + std::to_string(m_position), found);
}

void ByteReader::FailShort(std::size_t count) const {
  Fail(std::to_string(count) + " bytes needed, " + std::to_string(Left()) + " left");
}

void ByteWriter::U8(std::uint8_t value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::U16(std::uint16_t value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::I16(std::int16_t value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::I32(std::int32_t value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::U32(std::uint32_t value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::F32(float value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::F64(double value) {
  AppendValue(m_bytes, value);
}

void ByteWriter::Str16(std::string_view utf8) {
  const std::string bytes = ToWindows1252(utf8);
  if (bytes.size() > std::numeric_limits<std::uint16_t>::max())
    throw RuntimeError::At("writing a text", "", "",
                           std::to_string(bytes.size()) + " bytes, at most 65535 fit");
  U16(static_cast<std::uint16_t>(bytes.size()));
  m_bytes += bytes;
}

void ByteWriter::Bytes(std::string_view bytes) {
  m_bytes += bytes;
}

void ByteWriter::PatchU32(std::size_t position, std::uint32_t value) {
  if (position > m_bytes.size() || m_bytes.size() - position < sizeof value)
    throw RuntimeError::At("writing bytes", "", "offset " + std::to_string(position),
                           "nothing is written there yet");
  std::memcpy(m_bytes.data() + position, &value, sizeof value);
}

}  // namespace landsmith
