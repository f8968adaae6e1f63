#include "vector/TextureCatalog.h"
#include "vector/TextureText.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(TextureText, IsANumberOrANameWithItsNumbers) {
  NamedTexture waves;
  waves.Effect = true;
  const struct {
    std::string text;
    bool fits;
  } rows[] = {
      {"7", true},
      {"1004", true},
      {"road", false},
      {"-12", false},
      {"", false},
      {NamedTextureText({}), true},
      {NamedTextureText(waves), true},
      {"\"a.bmp;b.bmp\" 1 0 0 4", true},
      {"beach.bmp", true},
      {"beach.bmp 1 0 0 4", true},
      {"my beach.bmp", false},
      {"\"my beach.bmp\"", true},
      {"\"a.bmp;b.bmp 1 0 0 4", false},             // the quotes do not close
      {"\"\" 1 0 0 4", false},                      // no name
      {"\"a.bmp\" 1 0 4", false},                   // a number is missing
      {"\"a.bmp\" 16 0 0 4", false},                // no such type
      {"\"a.bmp\" 1 1 0 4", false},                 // an effect without its controller
      {"\"a.bmp\" 1 0 0 4 wavecontroller", false},  // and the other way round
      {"\"a.bmp\" 1 0 0 four", false},
  };
  for (const auto& row : rows)
    EXPECT_EQ(IsTextureText(row.text), row.fits) << row.text;
}

}  // namespace
}  // namespace landsmith
