#include "core/Color.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "support/Errors.h"
#include "support/TempFolder.h"
#include "vector/TextureCatalog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::AllOf;
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

TEST(TextureCatalogText, IsRefusedWithItsLine) {
  const struct {
    const char* text;
    const char* line;
  } rows[] = {{"\r\n[Texture.x]\r\n", "line 2"},
              {"[Texture.40000]\r\n", "line 1"},
              {"[Textu", "line 1"},
              {"Title=x\r\n", "line 1"},
              {"[Texture.1]\r\nColor=1 2\r\n", "line 2"},
              {"[Texture.1]\r\n\r\nColor=1 2 256\r\n", "line 3"}};
  for (const auto& row : rows)
    EXPECT_THAT(test::ErrorOf([&] { ParseTextureCatalog(row.text, "polys.txt"); }),
                AllOf(HasSubstr("polys.txt"), HasSubstr(row.line)))
        << row.text;
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

}  // namespace
}  // namespace landsmith
