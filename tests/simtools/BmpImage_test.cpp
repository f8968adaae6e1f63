#include "simtools/BmpImage.h"

#include "core/Bytes.h"
#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith::simtools {

using testing::HasSubstr;

namespace {

constexpr BmpPixel Black{0, 0, 0}, White{255, 255, 255}, Red{255, 0, 0}, Blue{0, 0, 255};

struct BmpRow {
  const char* name;
  int bits;
  std::uint32_t compression;
  int width, height;
  std::string extra;  ///< masks or palette, between the 40 bytes of the header and the rows
  std::string rows;
  std::vector<BmpPixel> pixels;  ///< expected, from the top
};

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values)
    bytes += static_cast<char>(value);
  return bytes;
}

std::string FileOf(const BmpRow& row) {
  ByteWriter out;
  out.Bytes("BM");
  out.U32(0);
  out.U32(0);
  out.U32(static_cast<std::uint32_t>(54 + row.extra.size()));
  out.U32(40);
  out.I32(row.width);
  out.I32(row.height);
  out.U16(1);
  out.U16(static_cast<std::uint16_t>(row.bits));
  out.U32(row.compression);
  for (int i = 0; i < 3; ++i)
    out.U32(0);
  out.U32(row.bits < 8 ? 2 : 0);
  out.U32(0);
  return out.Take() + row.extra + row.rows;
}

std::string Palette256() {
  std::string palette(1024, '\0');
  palette.replace(4 * 200, 3, Bytes({255, 0, 0}));  // blue comes first
  return palette;
}

const std::vector<BmpRow>& Rows() {
  static const std::string TwoColors = Bytes({0, 0, 255, 0, 255, 255, 255, 0});
  static const std::string Masks565 = Bytes({0, 0xF8, 0, 0, 0xE0, 7, 0, 0, 0x1F, 0, 0, 0});
  static const std::vector<BmpPixel> WhiteEnds{White, Red, Red, Red, Red, Red, Red, Red, Red, White};
  static const std::string FromBelow = Bytes({200, 9, 9, 9, 0, 9, 9, 9});
  static const std::vector<BmpRow> All{
      {"1 bit", 1, 0, 10, 1, TwoColors, Bytes({0x80, 0x40, 0, 0}), WhiteEnds},
      {"4 bits", 4, 0, 3, 1, TwoColors, Bytes({0x10, 0x90, 0, 0}), {White, Red, Black}},
      {"8 bits, two rows from below", 8, 0, 1, 2, Palette256(), FromBelow, {Black, Blue}},
      {"16 bits 555", 16, 0, 2, 1, "", Bytes({0x00, 0x7C, 0x10, 0x00}), {Red, {0, 0, 132}}},
      {"16 bits 565", 16, 3, 2, 1, Masks565, Bytes({0x00, 0xF8, 0x00, 0x04}), {Red, {0, 130, 0}}},
      {"24 bits, rows from above", 24, 0, 1, -2, "", Bytes({255, 0, 0, 9, 0, 0, 255, 9}), {Blue, Red}},
      {"32 bits", 32, 0, 2, 1, "", Bytes({1, 2, 3, 77, 255, 0, 0, 0}), {{3, 2, 1}, Blue}},
  };
  return All;
}

TEST(BmpImage, ReadsEveryPlainDepth) {
  for (const BmpRow& row : Rows()) {
    const BmpImage image = ReadBmp(FileOf(row), "x.bmp");
    EXPECT_EQ(image.Width, row.width) << row.name;
    EXPECT_EQ(image.Pixels, row.pixels) << row.name;
  }
}

TEST(BmpImage, WritesPaddedRowsFromBelow) {
  const std::string bytes = WriteBmp24({1, 2, {{1, 2, 3}, {4, 5, 6}}});
  EXPECT_EQ(bytes.size(), 62U);
  EXPECT_EQ(bytes.substr(0, 30), "BM" + Bytes({62, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0,
                                               0,  0, 1, 0, 0, 0, 2, 0, 0,  0, 1, 0, 24, 0}));
  EXPECT_EQ(bytes.substr(54), Bytes({6, 5, 4, 0, 3, 2, 1, 0}));
}

TEST(BmpImage, RefusesWhatItCannotRead) {
  const std::string good = FileOf(Rows()[5]);
  const auto with = [&](std::size_t place, int value) {
    std::string bytes = good;
    bytes.at(place) = static_cast<char>(value);
    return bytes;
  };
  struct Refusal {
    std::string bytes;
    const char* reason;
  };
  for (const Refusal& row :
       {Refusal{with(0, 'C'), "BM"}, Refusal{with(14, 12), "info header of 12"},
        Refusal{with(28, 2), "2 bits"}, Refusal{with(30, 1), "compressed"}, Refusal{with(18, 0), "size of 0"},
        Refusal{with(10, 200), "x.bmp"}, Refusal{with(19, 127), "rows"},
        Refusal{good.substr(0, good.size() - 1), "rows"}, Refusal{"BM", "x.bmp"}}) {
    EXPECT_THAT(landsmith::test::ErrorOf([&] { ReadBmp(row.bytes, "x.bmp"); }), HasSubstr(row.reason));
  }
}

}  // namespace

}  // namespace landsmith::simtools
