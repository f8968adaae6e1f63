#include "core/Bytes.h"
#include "platform/RuntimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <string>

namespace landsmith {
namespace {

TEST(ByteWriter, CountsATextInBytesOfTheCodePage) {
  std::string degrees;
  for (int i = 0; i < 65535; ++i)
    degrees += "\u00B0";
  ByteWriter out;
  out.Str16(degrees);
  EXPECT_EQ(out.Size(), 2u + 65535u);
  EXPECT_THROW(out.PatchU32(out.Size() - 3, 0), RuntimeError) << "one byte is missing";
  EXPECT_THROW(out.Str16(degrees + "x"), RuntimeError);
}

TEST(ByteReader, NamesThePlaceThatRunsShort) {
  ByteReader in("\x01\x02\x03\x04\x05", "reading the project", "X.LSP");
  EXPECT_EQ(in.U16(), 0x0201);
  EXPECT_EQ(test::ErrorOf([&] { in.I32(); }), "reading the project: X.LSP, offset 2: 4 bytes needed, 3 left");
  EXPECT_EQ(in.Position(), 2u);
  in.Seek(5);
  EXPECT_EQ(in.Left(), 0u);
  EXPECT_THROW(in.U8(), RuntimeError);
  EXPECT_THROW(in.Seek(6), RuntimeError);
}

}  // namespace
}  // namespace landsmith
