#include "raster/ClassTable.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

constexpr int MaxClasses = 127;
constexpr std::size_t SelectedTwin = 128;

struct KindTexts {
  std::string_view ending;    // behind the texture number
  std::string_view selected;  // the texture of every selected cell
  std::string_view doing;
};

KindTexts TextsOf(ClassKind kind) {
  if (kind == ClassKind::Land) return {"B2SU1.BMP", "SELB2SU1.BMP", "reading the land classes"};
  return {"B2WA1.BMP", "SELB2WA1.BMP", "reading the water classes"};
}

/// One class from its line; the message of what is wrong otherwise. Columns count from 1 in the file.
std::string ReadItem(std::string_view line, const KindTexts& texts, ClassTableItem& item) {
  constexpr std::size_t width = 3, red = 4, green = 8, blue = 12, text = 16;
  if (line.size() < text + width) return "the line is too short for a class";
  struct Part {
    std::size_t column;
    std::int32_t* value;
    std::string_view name;
  };
  for (const Part& part :
       {Part{red, &item.R, "red"}, Part{green, &item.G, "green"}, Part{blue, &item.B, "blue"}}) {
    const std::optional<std::uint8_t> value = ParseByte(line.substr(part.column, width));
    if (!value) return std::string(part.name) + " is no number from 0 to 255";
    *part.value = *value;
  }
  const std::optional<std::uint8_t> code = ParseByte(line.substr(text, width));
  if (!code) return "the text does not begin with a class number from 0 to 255";
  item.Code = *code;
  item.Text = FromWindows1252(line.substr(text));
  item.Texture = FromWindows1252(Trim(line.substr(0, width)));
  item.Texture += texts.ending;
  return {};
}

ClassTableItem SelectedTwinOf(const ClassTableItem& item, const KindTexts& texts) {
  ClassTableItem twin = item;
  twin.Texture = texts.selected;
  twin.R = 0;
  twin.G = 255;
  twin.B = 0;
  return twin;
}

}  // namespace

ClassTable ParseClassTable(std::string_view bytes, ClassKind kind, const std::string& file) {
  const KindTexts texts = TextsOf(kind);
  ClassTable table;
  std::vector<std::string_view> lines = SplitLines(bytes);
  while (!lines.empty() && Trim(lines.back()).empty())
    lines.pop_back();
  for (const std::string_view line : lines) {
    ClassTableItem item;
    const std::string wrong =
        table.Count == MaxClasses ? "there are more than 127 classes" : ReadItem(line, texts, item);
    ++table.Count;
    if (!wrong.empty())
      throw RuntimeError::At(std::string(texts.doing), file, "line " + std::to_string(table.Count), wrong);
    const auto place = static_cast<std::size_t>(table.Count);
    table.Items[place + SelectedTwin] = SelectedTwinOf(item, texts);
    table.Items[place] = std::move(item);
  }
  return table;
}

ClassTable ReadClassTable(const std::filesystem::path& file, ClassKind kind) {
  return ParseClassTable(ReadWholeFile(file), kind, PathText(file));
}

bool HasClassCode(const ClassTable& table, int code) {
  const auto first = table.Items.begin() + 1;
  return std::any_of(first, first + table.Count,
                     [code](const ClassTableItem& item) { return item.Code == code; });
}

bool ParseClassItemText(std::string_view text, const ClassTable& table, ClassNumbers& numbers) {
  ClassNumbers read;
  std::string_view rest = Trim(text);
  for (int& code : read.Codes) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    const std::optional<std::uint8_t> value = ParseByte(rest.substr(0, end));
    if (!value || !HasClassCode(table, *value)) return false;
    code = *value;
    rest = Trim(rest.substr(end));
  }
  numbers = read;
  return true;
}

}  // namespace landsmith
