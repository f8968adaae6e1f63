#include "simtools/LwmChecker.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "simtools/BglLayout.h"
#include "simtools/IndexList.h"
#include "simtools/StatementCheck.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace landsmith::simtools {

namespace {

constexpr std::int64_t Land = 1;
constexpr std::int64_t Flatten = 2;
constexpr std::int64_t WaterOrLand = 3;
constexpr std::size_t PolyNumbers = 3;  // count, kind and altitude stand in front of the points
constexpr std::uint32_t NoSize = 0;

/// The macros that draw a block of Areas as polygons.
struct BlockMacro {
  std::string_view File;
  std::uint32_t Size;
};
constexpr std::array<BlockMacro, 6> BlockMacros{{{"Area01X01Poly.scm", 1},
                                                 {"Area02X02Poly.scm", 2},
                                                 {"Area04X04Poly.scm", 4},
                                                 {"Area08X08Poly.scm", 8},
                                                 {"Area16X16Poly.scm", 16},
                                                 {"Area32X32Poly.scm", 32}}};

std::uint32_t MacroSize(std::string_view file) {
  const auto found = std::find_if(BlockMacros.begin(), BlockMacros.end(), [&](const BlockMacro& macro) {
    return EqualsIgnoringCase(macro.File, file);
  });
  return found == BlockMacros.end() ? NoSize : found->Size;
}

bool IsFillSize(std::int64_t size) {
  return std::any_of(BlockMacros.begin(), BlockMacros.end(),
                     [&](const BlockMacro& macro) { return macro.Size == size; });
}

}  // namespace

void LwmChecker::FileHeader(const Statement& statement, bool complete) {
  if (!m_order.Begin(statement) || !complete || statement.Arguments.empty()) return;
  if (FixedArgument(statement, 0, "the format", bgl::AltitudesFormat, m_errors))
    m_file.Format = bgl::AltitudesFormat;
}

void LwmChecker::Label(const Statement& statement) {
  CloseArea();
  if (!m_order.InCells()) return;
  m_cells.push_back({statement.Line, statement.Name});
  m_file.Cells.emplace_back();
}

/// Before a fill or an Area. False when there is no cell that could hold it.
bool LwmChecker::OpenItem(const Statement& statement) {
  CloseArea();
  m_order.ExpectCells(statement);
  if (!m_order.InCells()) return false;
  if (!m_cells.empty()) return true;
  Fail(statement.Line, statement.Name + " stands in front of the first label");
  return false;
}

void LwmChecker::CloseArea() {
  if (m_area && m_area->Announced && *m_area->Announced != m_area->Seen)
    Fail(m_area->Line, "LWMAreaDrawPoly announces " + std::to_string(*m_area->Announced) + " polygons, " +
                           std::to_string(m_area->Seen) + " found");
  m_area.reset();
}

std::optional<std::int32_t> LwmChecker::ReadAltitude(const Statement& statement, std::size_t index) {
  const auto metres =
      RealArgument(statement, index, {"the altitude", bgl::LowestAltitude, bgl::HighestAltitude}, m_errors);
  if (!metres) return std::nullopt;
  return RoundHalfEven(*metres * bgl::AltitudeParts);
}

/// A block of `size` Areas each way; its type, column and row are the arguments from `first` on.
std::optional<LwmItem> LwmChecker::ReadBlock(const Statement& statement, std::uint32_t size,
                                             std::size_t first) {
  const std::int64_t last = (bgl::LastArea + 1) / size - 1;
  const auto type = NumberArgument(statement, first, {"the type", 0, Flatten}, m_errors);
  const auto column = NumberArgument(statement, first + 1, {"the column", 0, last}, m_errors);
  const auto row = NumberArgument(statement, first + 2, {"the row", 0, last}, m_errors);
  if (!type || !column || !row) return std::nullopt;
  LwmItem block;
  block.Type = static_cast<std::uint32_t>(*type);
  block.FillSize = size;
  block.X = static_cast<std::uint32_t>(*column) * size;
  block.Y = static_cast<std::uint32_t>(*row) * size;
  return block;
}

void LwmChecker::AreaFill(const Statement& statement, bool complete) {
  if (!OpenItem(statement) || !complete) return;
  const auto size = NumberArgument(statement, 0, {"the size", 1, bgl::LastArea + 1}, m_errors);
  if (!size) return;
  if (!IsFillSize(*size)) {
    Fail(statement.Line,
         "LWMAreaFill: the size is " + std::to_string(*size) + ", allowed are 1, 2, 4, 8, 16 and 32");
    return;
  }
  auto fill = ReadBlock(statement, static_cast<std::uint32_t>(*size), 1);
  if (!fill) return;
  const bool hasHeight = statement.Arguments.size() > 4;
  if (hasHeight == (fill->Type == Land)) {
    Fail(statement.Line,
         hasHeight ? "LWMAreaFill: land has no height, one is given" : "LWMAreaFill: the height is missing");
    return;
  }
  if (hasHeight) fill->Height = ReadAltitude(statement, 4).value_or(0);
  m_file.Cells.back().Items.push_back(*fill);
}

void LwmChecker::Macro(const Statement& statement, bool complete) {
  if (!OpenItem(statement) || !complete) return;
  const std::uint32_t size = MacroSize(statement.Arguments[0]);
  if (size == NoSize) {
    Fail(statement.Line, "macro: " + statement.Arguments[0] + " is not known, Area01X01Poly.scm to " +
                             "Area32X32Poly.scm are");
    return;
  }
  auto block = ReadBlock(statement, size, 1);
  const auto height = ReadAltitude(statement, 4);
  if (!block || !height) return;
  if (m_file.Format == bgl::AltitudesFormat)
    Fail(statement.Line, "macro: its polygons have one altitude, those of this file have two");
  block->Height = *height;
  block->AsPolys = true;
  m_file.Cells.back().Items.push_back(*block);
}

void LwmChecker::AreaDrawPoly(const Statement& statement, bool complete) {
  const bool inCell = OpenItem(statement);
  m_area = OpenArea{statement.Line, std::nullopt, std::nullopt, 0};
  LwmItem item;
  if (complete) {
    const auto read = [&](std::size_t index, NumberRange range) {
      return NumberArgument(statement, index, range, m_errors);
    };
    m_area->Announced = read(0, {"the number of polygons", 1, bgl::MostMaskPolys});
    m_area->Type = read(1, {"the type", Flatten, WaterOrLand});
    item.Type = static_cast<std::uint32_t>(m_area->Type.value_or(WaterOrLand));
    item.X = static_cast<std::uint32_t>(read(2, {"x", 0, bgl::LastArea}).value_or(0));
    item.Y = static_cast<std::uint32_t>(read(3, {"y", 0, bgl::LastArea}).value_or(0));
  }
  if (inCell) m_file.Cells.back().Items.push_back(item);
}

void LwmChecker::Poly(const Statement& statement, bool complete) {
  if (OpenPoly(statement, false) && complete) ReadPoly(statement, false);
}

void LwmChecker::Poly3(const Statement& statement, bool complete) {
  if (OpenPoly(statement, true) && complete) ReadPoly(statement, true);
}

/// False when there is no item that could hold the polygon.
bool LwmChecker::OpenPoly(const Statement& statement, bool withAltitudes) {
  m_order.ExpectCells(statement);
  if (!m_area) {
    Fail(statement.Line, statement.Name + " stands outside of a LWMAreaDrawPoly");
    return false;
  }
  ++m_area->Seen;
  const bool fileHasAltitudes = m_file.Format == bgl::AltitudesFormat;
  if (withAltitudes && !fileHasAltitudes)
    Fail(statement.Line, "LWMPoly3 wants LWMFileHeader( 0x300 )");
  else if (!withAltitudes && fileHasAltitudes)
    Fail(statement.Line, "LWMPoly stands in a file of LWMFileHeader( 0x300 ), whose polygons are LWMPoly3");
  return m_order.InCells() && !m_cells.empty();
}

void LwmChecker::ReadPoly(const Statement& statement, bool withAltitudes) {
  const std::size_t head = withAltitudes ? PolyNumbers + 1 : PolyNumbers;
  const std::size_t perPoint = withAltitudes ? 3 : 2;
  const auto count = NumberArgument(statement, 0, {"the number of points", 3, bgl::MostMaskPoints}, m_errors);
  const auto kind = NumberArgument(statement, 1, {"the kind", 0, Flatten}, m_errors);
  if (kind) CheckKind(statement, *kind);
  LwmPoly poly;
  poly.IsLand = kind == Land;
  poly.AltAt0 = ReadAltitude(statement, 2).value_or(0);
  poly.AltAt255 = withAltitudes ? ReadAltitude(statement, 3).value_or(0) : poly.AltAt0;
  if (!count) return;
  const std::size_t numbers = statement.Arguments.size() - head;
  if (numbers != static_cast<std::size_t>(*count) * perPoint) {
    Fail(statement.Line, statement.Name + " announces " + std::to_string(*count) + " points of " +
                             std::to_string(perPoint) + " numbers, " + std::to_string(numbers) +
                             " numbers follow");
    return;
  }
  poly.Points = ReadPoints(statement, head, withAltitudes);
  m_file.Cells.back().Items.back().Polys.push_back(std::move(poly));
}

void LwmChecker::CheckKind(const Statement& statement, std::int64_t kind) {
  const std::int64_t wanted = kind == Flatten ? Flatten : WaterOrLand;
  if (m_area->Type && *m_area->Type != wanted)
    Fail(statement.Line, statement.Name + ": the kind " + std::to_string(kind) +
                             " wants an LWMAreaDrawPoly of type " + std::to_string(wanted) +
                             ", this one has " + std::to_string(*m_area->Type));
}

std::vector<LwmPoint> LwmChecker::ReadPoints(const Statement& statement, std::size_t first,
                                             bool withAltitudes) {
  const auto byte = [&](std::size_t index, std::string_view what) {
    return static_cast<std::uint8_t>(NumberArgument(statement, index, {what, 0, 255}, m_errors).value_or(0));
  };
  const std::size_t errorsBefore = m_errors.size();
  std::vector<LwmPoint> points;
  std::set<std::pair<std::uint8_t, std::uint8_t>> places;
  for (std::size_t index = first; index < statement.Arguments.size(); index += withAltitudes ? 3 : 2) {
    LwmPoint point;
    point.X = byte(index, "x");
    point.Y = byte(index + 1, "y");
    if (withAltitudes) point.Altitude = byte(index + 2, "the altitude of a point");
    points.push_back(point);
    places.emplace(point.X, point.Y);
  }
  if (places.size() < 3 && m_errors.size() == errorsBefore)
    Fail(statement.Line, statement.Name + " has fewer than three different points");
  return points;
}

void LwmChecker::IndexList(const Statement& statement, bool complete) {
  CloseArea();
  if (!m_order.Begin(statement) || !complete) return;
  constexpr std::size_t numbers = 5;
  const auto places = ReadCellPlaces(statement, numbers, m_file.Cells.size(), m_errors);
  for (std::size_t cell = 0; cell < places.size(); ++cell) {
    const std::size_t first = 1 + numbers * cell;
    const auto type = NumberArgument(statement, first + 2, {"the cell's type", 0, bgl::NoCellType}, m_errors);
    FixedArgument(statement, first + 3, "the fourth number of a cell", 0, m_errors);
    FixedArgument(statement, first + 4, "the fifth number of a cell", 0, m_errors);
    if (!places[cell] || !type) continue;
    m_file.Cells[cell].CellX = places[cell]->X;
    m_file.Cells[cell].CellY = places[cell]->Y;
    m_file.Cells[cell].Type = static_cast<std::uint32_t>(*type);
    CheckCellType(statement, cell, m_file.Cells[cell].Type);
  }
}

void LwmChecker::CheckCellType(const Statement& statement, std::size_t cell, std::uint32_t type) {
  const auto& items = m_file.Cells[cell].Items;
  const OpenCell& label = m_cells[cell];
  if (type == bgl::NoCellType) {
    if (items.empty())
      Fail(label.Line, "the label " + label.Label + " is followed by no fill and no polygon");
    return;
  }
  if (std::any_of(items.begin(), items.end(), [](const LwmItem& item) { return item.FillSize != 0; }))
    Fail(label.Line, "the cell " + label.Label + " has fills, and " + statement.Name +
                         " says that all of it is of type " + std::to_string(type));
}

void LwmChecker::End(const Statement& statement, bool) {
  CloseArea();
  m_order.Begin(statement);
}

void LwmChecker::Finish(std::size_t line) {
  CloseArea();
  m_order.Finish(line);
}

}  // namespace landsmith::simtools
