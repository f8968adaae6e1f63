#include "core/Bytes.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <functional>

namespace landsmith {
namespace {

using namespace std::string_literals;

std::string MessageOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return {};
}

TEST(ByteWriter, WritesLittleEndian) {
  ByteWriter out;
  out.U8(0xAB);
  out.I16(-2);
  out.I32(0x01020304);
  out.F32(1.0f);
  out.F64(-2.0);
  out.Str16("\u00B0");
  out.PatchU32(3, 0x0A0B0C0D);
  EXPECT_EQ(out.Content(), "\xAB\xFE\xFF\x0D\x0C\x0B\x0A\0\0\x80\x3F\0\0\0\0\0\0\0\xC0\x01\0\xB0"s);
  EXPECT_THROW(out.PatchU32(out.Size() - 3, 0), RuntimeError);
}

TEST(ByteWriter, CountsATextInBytesOfTheCodePage) {
  std::string degrees;
  for (int i = 0; i < 65535; ++i)
    degrees += "\u00B0";
  ByteWriter out;
  out.Str16(degrees);
  EXPECT_EQ(out.Size(), 2u + 65535u);
  EXPECT_THROW(out.Str16(degrees + "x"), RuntimeError);
}

TEST(ByteReader, NamesThePlaceThatRunsShort) {
  ByteReader in("\x01\x02\x03\x04\x05", "reading the project", "X.LSP");
  EXPECT_EQ(in.U16(), 0x0201);
  EXPECT_EQ(MessageOf([&] { in.I32(); }), "reading the project: X.LSP, offset 2: 4 bytes needed, 3 left");
  EXPECT_EQ(in.Position(), 2u);
  in.Seek(5);
  EXPECT_EQ(in.Left(), 0u);
  EXPECT_THROW(in.U8(), RuntimeError);
  EXPECT_THROW(in.Seek(6), RuntimeError);
}

TEST(ByteReader, RefusesATextLongerThanTheRest) {
  const std::string bytes("\x05\0abcd", 6);
  ByteReader in(bytes, "reading", "F");
  EXPECT_THROW(in.Str16(), RuntimeError);
}

TEST(ByteReader, ChecksCountsAgainstWhatIsLeft) {
  ByteReader in("0123456789", "reading the project", "X.LSP");
  EXPECT_EQ(in.CheckedCount(3, 3, "points"), 3u);
  EXPECT_EQ(in.CheckedCount(0, 3, "points"), 0u);
  EXPECT_EQ(MessageOf([&] { in.CheckedCount(4, 3, "points"); }),
            "reading the project: X.LSP, offset 0: 4 points announced, room for 3");
  EXPECT_THROW(in.CheckedCount(-1, 3, "points"), RuntimeError);
}

}  // namespace
}  // namespace landsmith
