#include "raster/ClassTable.h"
#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr const char* TwoClasses =
    "001 150 120 007 011 City Textures\r\n"
    "255 000 010 255 104 Fjord \xE5\r\n\r\n";

TEST(ClassTableText, HasFixedColumns) {
  const ClassTable table = ParseClassTable(TwoClasses, ClassKind::Land, "lands.txt");
  ASSERT_EQ(table.Count, 2);
  const ClassTableItem& city = table.Items[1];
  EXPECT_EQ(city.Code, 11);
  EXPECT_EQ(city.Texture, "001B2SU1.BMP");
  EXPECT_EQ(city.Text, "011 City Textures");
  EXPECT_TRUE(city.R == 150 && city.G == 120 && city.B == 7);
  EXPECT_EQ(table.Items[2].Text, "104 Fjord \xC3\xA5");
  EXPECT_EQ(table.Items[3].Code, 0) << "behind the table nothing has a code";
}

TEST(ClassTableText, GivesEachClassASelectedTwin) {
  const struct {
    ClassKind kind;
    const char* own;
    const char* twin;
  } rows[] = {{ClassKind::Land, "001B2SU1.BMP", "SELB2SU1.BMP"},
              {ClassKind::Water, "001B2WA1.BMP", "SELB2WA1.BMP"}};
  for (const auto& row : rows) {
    const ClassTable table = ParseClassTable(TwoClasses, row.kind, "x.txt");
    EXPECT_EQ(table.Items[1].Texture, row.own);
    const ClassTableItem& twin = table.Items[130];
    EXPECT_EQ(twin.Texture, row.twin);
    EXPECT_EQ(twin.Code, 104);
    EXPECT_TRUE(twin.R == 0 && twin.G == 255 && twin.B == 0);
    EXPECT_EQ(table.Items[128].Code, 0) << "the mark alone is an empty cell";
  }
}

TEST(ClassTableText, IsRefusedWithItsLine) {
  std::string manyClasses;
  for (int i = 0; i < 128; ++i)
    manyClasses += "001 000 000 000 001 x\n";
  const struct {
    std::string text;
    const char* found;
  } rows[] = {{"001 150 120 007 011 x\n001 15", "line 2"},
              {"001 1x0 120 007 011 x", "red"},
              {"001 150 256 007 011 x", "green"},
              {"001 150 120     011 x", "blue"},
              {"001 150 120 007 cit x", "class number"},
              {"\n001 150 120 007 011 x", "line 1"},
              {manyClasses, "line 128"}};
  for (const auto& row : rows)
    EXPECT_THAT(test::ErrorOf([&] { ParseClassTable(row.text, ClassKind::Land, "lands.txt"); }),
                AllOf(HasSubstr("lands.txt"), HasSubstr(row.found)))
        << row.text;
}

TEST(ClassItemTexts, BeginWithThreeClassesOfTheTable) {
  const ClassTable table = ParseClassTable(TwoClasses, ClassKind::Land, "lands.txt");
  ClassNumbers numbers;
  ASSERT_TRUE(ParseClassItemText("104 11  104 City Textures", table, numbers));
  EXPECT_EQ(numbers.Codes, (std::array<int, 3>{104, 11, 104}));
  ASSERT_TRUE(ParseClassItemText(" 011 011 104", table, numbers));
  for (const char* bad : {"", "11 104", "11 104 City", "11 104 12 x", "11 104 0", "11 104 300", "11,104,11"})
    EXPECT_FALSE(ParseClassItemText(bad, table, numbers)) << bad;
  EXPECT_EQ(numbers.Codes, (std::array<int, 3>{11, 11, 104})) << "a refused text changes nothing";
}

}  // namespace
}  // namespace landsmith
