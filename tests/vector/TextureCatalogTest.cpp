#include "core/Color.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "support/TempFolder.h"
#include "vector/TextureCatalog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::HasSubstr;

constexpr const char* TwoSections =
    "[Texture.7]\r\nTitle=Stra\xDF"
    "e\r\nColor=10 200 30\r\nTextures=road.bmp\r\nNamePack=\r\n\r\n"
    "[Texture.1200]\nTitle=A=B\nColor=  1  2  3\nTextures=na.bmp\nNamePack=\"w;s\" 1 0 0 4 \n";

TEST(TextureCatalogText, GivesItsItemsInOrder) {
  const TextureCatalog catalog = ParseTextureCatalog(TwoSections, "lines.txt");
  const TextureCatalog expected{{7, "road.bmp",
                                 "Stra\xC3\x9F"
                                 "e",
                                 "", 10, 200, 30},
                                {1200, "na.bmp", "A=B", "\"w;s\" 1 0 0 4 ", 1, 2, 3}};
  EXPECT_EQ(catalog, expected);
  EXPECT_EQ(TextureText(catalog[0]), "7");
  EXPECT_EQ(TextureText(catalog[1]), "\"w;s\" 1 0 0 4 ");
}

TEST(TextureCatalogText, IsSearchedByTheNumberATextNames) {
  TextureCatalog catalog = ParseTextureCatalog(TwoSections, "lines.txt");
  catalog.push_back({7, "", "again", "", 0, 0, 0});
  EXPECT_EQ(FindTexture(catalog, "1200"), 1U);
  EXPECT_EQ(FindTexture(catalog, " 7 "), 0U);
  EXPECT_EQ(FindTexture(catalog, "8"), 3U);
  EXPECT_EQ(FindTexture(catalog, "road"), 3U);
  EXPECT_EQ(FindTexture(catalog, "66743"), 3U);  // 7 + 65536
}

struct BadRow {
  const char* name;
  const char* text;
  const char* found;
};

class BadTextureCatalog : public testing::TestWithParam<BadRow> {};

TEST_P(BadTextureCatalog, IsRefusedWithItsLine) {
  try {
    ParseTextureCatalog(GetParam().text, "polys.txt");
    FAIL() << "accepted";
  } catch (const RuntimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr("polys.txt"));
    EXPECT_THAT(error.what(), HasSubstr(GetParam().found));
  }
}

INSTANTIATE_TEST_SUITE_P(All, BadTextureCatalog,
                         testing::Values(BadRow{"noNumber", "\r\n[Texture.x]\r\n", "line 2"},
                                         BadRow{"numberTooLarge", "[Texture.40000]\r\n", "line 1"},
                                         BadRow{"headCutShort", "[Textu", "line 1"},
                                         BadRow{"keyBeforeSection", "Title=x\r\n", "line 1"},
                                         BadRow{"twoColours", "[Texture.1]\r\nColor=1 2\r\n", "line 2"},
                                         BadRow{"colourTooLarge", "[Texture.1]\r\n\r\nColor=1 2 256\r\n",
                                                "line 3"}),
                         [](const auto& row) { return row.param.name; });

TEST(TextureCatalogFile, MissingIsAnError) {
  const test::TempFolder folder;
  EXPECT_THROW(ReadTextureCatalog(folder / "lines.txt"), RuntimeError);
}

TEST(TextureCatalogFile, GrowsByASectionAndKeepsWhatItHeld) {
  const test::TempFolder folder;
  const auto file = folder / "lines.txt";
  const std::string held = "; my own note\n[Texture.41]\nTitle=x\nColor=1 2 3\nTextures=x.bmp\nNamePack=";
  WriteWholeFile(file, held);
  TextureCatalog catalog = ReadTextureCatalog(file);

  const TextureItem added = AppendTexture(file, catalog, "Caf\xC3\xA9", Rgb(9, 8, 7), "\"a\" 1 0 0 4 ");

  EXPECT_EQ(added.Id, 42);
  EXPECT_EQ(ReadWholeFile(file), held +
                                     "\r\n[Texture.42]\r\nTitle=Caf\xE9\r\nColor=9 8 7\r\nTextures=na.bmp\r\n"
                                     "NamePack=\"a\" 1 0 0 4 \r\n\r\n");
  EXPECT_EQ(ReadTextureCatalog(file), catalog);
  AppendTexture(file, catalog, "next", 0, "");
  EXPECT_EQ(ReadTextureCatalog(file).back().Id, 43);
}

TEST(TextureCatalogFile, HasNoNumberBehindTheLargest) {
  const test::TempFolder folder;
  TextureCatalog catalog{{32767, "", "last", "", 0, 0, 0}};
  EXPECT_THROW(AppendTexture(folder / "lines.txt", catalog, "one more", 0, ""), RuntimeError);
  EXPECT_EQ(catalog.size(), 1U);
}

TEST(NamedTextureTexts, OrderTheSeasonsFromWinterToNight) {
  NamedTexture parts{"su", "wi", "hw", "sp", "fa", "lm", 2, false, "wavecontroller"};
  EXPECT_EQ(NamedTextureText(parts), "\"wi;hw;sp;su;fa;lm\" 2 0 0 4 ");
  parts.Effect = true;
  EXPECT_EQ(NamedTextureText(parts), "\"wi;hw;sp;su;fa;lm\" 2 1 0 4 wavecontroller");
}

}  // namespace
}  // namespace landsmith
