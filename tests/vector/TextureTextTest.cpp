#include "vector/TextureCatalog.h"
#include "vector/TextureText.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(TextureText, IsANumberOrANameWithItsNumbers) {
  using enum TextureField;
  NamedTexture waves;
  waves.Effect = true;
  const struct {
    std::string text;
    TextureField expected;
  } rows[] = {
      {"7", Good},
      {"1004", Good},
      {"road", Strange},
      {"-12", Strange},
      {"", Unreadable},
      {NamedTextureText({}), Good},
      {NamedTextureText(waves), Good},
      {"\"a.bmp;b.bmp\" 1 0 0 4", Good},
      {"12345", Strange},
      {"gravel", Strange},
      {"1 2", Unreadable},
      {"beach.bmp", Good},
      {"beach.bmp 1 0 0 4", Good},
      {"my beach.bmp", Unreadable},
      {"\"my beach.bmp\"", Good},
      {"\"a.bmp;b.bmp 1 0 0 4", Unreadable},             // the quotes do not close
      {"\"\" 1 0 0 4", Unreadable},                      // no name
      {"\"a.bmp\" 1 0 4", Unreadable},                   // a number is missing
      {"\"a.bmp\" 16 0 0 4", Unreadable},                // no such type
      {"\"a.bmp\" 1 1 0 4", Unreadable},                 // an effect without its controller
      {"\"a.bmp\" 1 0 0 4 wavecontroller", Unreadable},  // and the other way round
      {"\"a.bmp\" 1 0 0 four", Unreadable},
  };
  for (const auto& row : rows)
    EXPECT_EQ(JudgeTextureField(row.text), row.expected) << row.text;
}

}  // namespace
}  // namespace landsmith
