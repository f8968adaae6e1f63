#include "raster/ClassCells.h"

#include <gtest/gtest.h>

#include <string>

namespace landsmith {
namespace {

std::string TilesOf(const ClassGrid& grid) {
  std::string tiles;
  const auto flags = SelectedTiles(grid);
  for (int column = 0; column < 5; ++column)
    for (int row = 0; row < 5; ++row)
      if (flags[static_cast<std::size_t>(column * 5 + row)])
        tiles += std::to_string(column) + std::to_string(row) + " ";
  return tiles;
}

TEST(SelectedClassTiles, ShareTheirBorderSamples) {
  const struct {
    int column, row;
    std::uint8_t value;
    const char* tiles;  // column, row
  } rows[] = {
      {0, 0, 129, "00 "},        {1280, 1280, 255, "44 "},  {255, 700, 130, "02 "},
      {256, 700, 130, "02 12 "}, {700, 512, 130, "21 22 "}, {1024, 256, 130, "30 31 40 41 "},
      {1280, 0, 130, "40 "},     {700, 700, 128, ""},  // the mark on an empty cell
      {700, 700, 127, ""},                             // not selected
  };
  for (const auto& row : rows) {
    ClassGrid grid;
    grid.Set(row.column, row.row, row.value);
    EXPECT_EQ(TilesOf(grid), row.tiles) << row.column << " " << row.row;
    EXPECT_EQ(HasSelectedTile(grid), *row.tiles != '\0');
  }
}

TEST(SelectedClassTiles, AreNoneInAGridWithoutRoom) {
  EXPECT_EQ(TilesOf(ClassGrid{}), "");
  EXPECT_FALSE(HasSelectedTile(ClassGrid{}));
}

}  // namespace
}  // namespace landsmith
