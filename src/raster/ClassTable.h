// The tables of land and water classes, tools\lands.txt and tools\waters.txt.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace landsmith {

struct ClassTableItem {
  std::uint8_t Code = 0;  ///< the simulator's class number
  std::string Texture;    ///< file name in tools\bmps
  std::string Text;
  std::int32_t R = 0, G = 0, B = 0;
};

enum class ClassKind { Land, Water };

/// Items 1 to `Count` come from the file; item i + 128 is the selected twin of item i. Item 0 is empty.
struct ClassTable {
  std::array<ClassTableItem, 256> Items;
  int Count = 0;
};

/// Fixed columns: 1-3 texture number, 5-7 red, 9-11 green, 13-15 blue, 17 to the end the text, whose first
/// three characters are the code. Throws RuntimeError with file, line and reason.
ClassTable ParseClassTable(std::string_view bytes, ClassKind kind, const std::string& file);
ClassTable ReadClassTable(const std::filesystem::path& file, ClassKind kind);

/// Whether any item of the table has the code.
bool HasClassCode(const ClassTable& table, int code);

/// Reads "101 102 103 City Textures" into the three class places and the key of a legend entry. False, and
/// nothing changed, when one of the three numbers is missing or not a class of the table.
struct ClassNumbers {
  std::array<int, 3> Codes{};
};
bool ParseClassItemText(std::string_view text, const ClassTable& table, ClassNumbers& numbers);

}  // namespace landsmith
