#include "simtools/VtpChecker.h"

#include "simtools/BglLayout.h"
#include "simtools/StatementCheck.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <utility>

namespace landsmith::simtools {

namespace {

/// By depth: the statement that opens a block, and what a block announces.
constexpr std::array<const char*, 8> OpenedBy{"VTPFileHeader", "label",   "VTPArea",   "VTPLayer",
                                              "VTPTexID",      "VTPPoly", "VTPWPoint", "VTPCPoint"};
constexpr std::array<const char*, 8> HoldsNamed{"cells", "areas",  "layers", "textures",
                                                "polys", "points", "steps",  ""};

std::uint32_t Unsigned(std::optional<std::int64_t> value) {
  return static_cast<std::uint32_t>(value.value_or(0));
}

std::uint8_t Byte(std::optional<std::int64_t> value) {
  return static_cast<std::uint8_t>(value.value_or(0));
}

}  // namespace

void VtpChecker::FileHeader(const Statement& statement, bool complete) {
  if (m_stage != Stage::Start) {
    Fail(statement.Line, "a second VTPFileHeader");
    return;
  }
  m_stage = Stage::Cells;
  if (complete && !statement.Arguments.empty())
    m_file.Format = Unsigned(NumberArgument(statement, 0, {"the format", 0, 0x7FFFFFFF}, m_errors));
}

void VtpChecker::Label(const Statement& statement) {
  if (m_stage == Stage::Cells) Open(Block::Cell, statement);
}

void VtpChecker::Area(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Area, statement);
  if (!complete) return;
  block.Announced = NumberArgument(statement, 0, {"the number of layers", 0, bgl::MostLayers}, m_errors);
  m_area.WholeCell = Unsigned(NumberArgument(statement, 1, {"the cell flag", 0, 1}, m_errors)) == 1;
  m_area.X = Unsigned(NumberArgument(statement, 2, {"x", 0, 31}, m_errors));
  m_area.Y = Unsigned(NumberArgument(statement, 3, {"y", 0, 31}, m_errors));
}

void VtpChecker::Layer(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Layer, statement);
  if (!complete) return;
  m_layer.Layer = Unsigned(NumberArgument(statement, 0, {"the layer", 0, bgl::LastLayer}, m_errors));
  m_layer.Replace = Unsigned(NumberArgument(statement, 1, {"the replace flag", 0, 1}, m_errors)) == 1;
  block.Announced = NumberArgument(statement, 2, {"the number of textures", 0, bgl::LargestCount}, m_errors);
  FixedArgument(statement, 3, "the last number", 0, m_errors);
}

void VtpChecker::TexID(const Statement& statement, bool complete) {
  Open(Block::Texture, statement);
  m_hasPolyCount = false;
  if (!complete) return;
  const auto id = NumberArgument(statement, 0, {"the texture", 0, bgl::LargestCount}, m_errors);
  if (id) m_references.push_back({statement.Line, *id});
  m_texture.TexId = Unsigned(id);
  FixedArgument(statement, 1, "the last number", 0, m_errors);
}

void VtpChecker::PolyCount(const Statement& statement, bool complete) {
  CloseDownTo(Block::Poly);
  if (m_open.empty() || m_open.back().Kind != Block::Texture || m_hasPolyCount || m_open.back().Seen > 0) {
    Fail(statement.Line, "VTPPolyCount does not stand right behind a VTPTexID");
    return;
  }
  m_hasPolyCount = true;
  m_open.back().Line = statement.Line;  // this is the statement that announces
  if (complete)
    m_open.back().Announced =
        NumberArgument(statement, 0, {"the number of polys", 1, bgl::LargestCount}, m_errors);
}

void VtpChecker::Poly(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Poly, statement);
  if (!complete) return;
  FixedArgument(statement, 0, "the first number", 2, m_errors);
  block.Announced = NumberArgument(statement, 1, {"the number of points", 1, bgl::MostPoints}, m_errors);
  m_feature.Kind =
      Unsigned(NumberArgument(statement, 2, {"the kind", bgl::LineFeature, bgl::LineFeature}, m_errors));
}

void VtpChecker::WPoint(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Place, statement);
  if (!complete) return;
  VtpPoint point;
  SetPlace(point, statement);
  block.Announced = NumberArgument(statement, 2, {"the number of steps", 0, bgl::MostSteps}, m_errors);
  point.Steps = Byte(block.Announced);
  if (statement.Arguments.size() > 3)
    point.Width = Byte(NumberArgument(statement, 3, {"the width", 1, 255}, m_errors));
  m_feature.Points.push_back(point);
}

/// Lines may have vertices far from the Cell, so only what is no place at all is an error.
void VtpChecker::SetPlace(VtpPoint& point, const Statement& statement) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto x = NumberArgument(statement, 0, {"x", Limits::min(), Limits::max()}, m_errors);
  const auto y = NumberArgument(statement, 1, {"y", Limits::min(), Limits::max()}, m_errors);
  if (!x || !y) return;
  const auto held = [](std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, bgl::LargestPoint));
  };
  point.X = held(*x);
  point.Y = held(*y);
  if (point.X != *x || point.Y != *y)
    m_heldPoints.push_back({statement.Line, statement.Name + ": the point " + std::to_string(*x) + " " +
                                                std::to_string(*y) + " is held to " +
                                                std::to_string(point.X) + " " + std::to_string(point.Y)});
}

void VtpChecker::CPoint(const Statement& statement, bool complete) {
  Open(Block::Step, statement);
  // A step counts behind its place, and as one of the points of the poly.
  if (m_open.size() >= 3 && m_open[m_open.size() - 3].Kind == Block::Poly) ++m_open[m_open.size() - 3].Seen;
  if (!complete) return;
  VtpPoint point;
  point.IsStep = true;
  point.X = static_cast<std::int32_t>(
      NumberArgument(statement, 0, {"the step in x", -bgl::LargestStep, bgl::LargestStep}, m_errors)
          .value_or(0));
  point.Y = static_cast<std::int32_t>(
      NumberArgument(statement, 1, {"the step in y", -bgl::LargestStep, bgl::LargestStep}, m_errors)
          .value_or(0));
  if (statement.Arguments.size() > 2)
    point.Width = Byte(NumberArgument(statement, 2, {"the width", 1, 255}, m_errors));
  m_feature.Points.push_back(point);
}

void VtpChecker::IndexList(const Statement& statement, bool complete) {
  CloseDownTo(Block::Cell);
  if (!AdvanceTo(Stage::AfterIndex, statement) || !complete) return;
  const auto count =
      NumberArgument(statement, 0, {"the number of cells", 0, std::int64_t{1023} * 1023}, m_errors);
  if (!count) return;
  const std::size_t numbers = statement.Arguments.size() - 1;
  if (numbers != static_cast<std::size_t>(*count) * 3) {
    Fail(statement.Line, "VTPIndexList announces " + std::to_string(*count) + " cells of 3 numbers, " +
                             std::to_string(numbers) + " numbers follow");
    return;
  }
  if (static_cast<std::size_t>(*count) != m_file.Cells.size()) {
    Fail(statement.Line, "VTPIndexList holds " + std::to_string(*count) + " cells, the file has " +
                             std::to_string(m_file.Cells.size()));
    return;
  }
  std::set<std::pair<std::uint32_t, std::uint32_t>> places;
  for (std::size_t entry = 0; entry < m_file.Cells.size(); ++entry) {
    CheckIndexEntry(statement, entry);
    const VtpCell& cell = m_file.Cells[entry];
    if (!places.emplace(cell.CellX, cell.CellY).second)
      Fail(statement.ArgumentLines[1 + 3 * entry], "VTPIndexList: the cell " + std::to_string(cell.CellX) +
                                                       " " + std::to_string(cell.CellY) + " stands twice");
  }
}

void VtpChecker::CheckIndexEntry(const Statement& statement, std::size_t entry) {
  const std::size_t first = 1 + 3 * entry;
  VtpCell& cell = m_file.Cells[entry];
  // The last column and row are what a position on the very border of the world counts in.
  const auto x = NumberArgument(statement, first, {"the cell's column", 0, 768}, m_errors);
  const auto y = NumberArgument(statement, first + 1, {"the cell's row", 0, 512}, m_errors);
  FixedArgument(statement, first + 2, "the third number of a cell", 0, m_errors);
  cell.CellX = Unsigned(x);
  cell.CellY = Unsigned(y);
  if (!x || !y || cell.Areas.empty() || !cell.Areas.front().WholeCell) return;
  const VtpArea& area = cell.Areas.front();
  if (area.X == (cell.CellX & 31U) && area.Y == (cell.CellY & 31U)) return;
  Fail(statement.ArgumentLines[first],
       "VTPIndexList: the cell " + std::to_string(*x) + " " + std::to_string(*y) + " wants a VTPArea at " +
           std::to_string(cell.CellX & 31U) + " " + std::to_string(cell.CellY & 31U) +
           ", its own stands at " + std::to_string(area.X) + " " + std::to_string(area.Y));
}

void VtpChecker::TextureList(const Statement& statement, bool complete) {
  CloseDownTo(Block::Cell);
  if (!AdvanceTo(Stage::AfterTextures, statement) || !complete) return;
  const std::size_t errorsBefore = m_errors.size();
  m_file.Textures = ReadTextureEntries(statement, m_errors);
  if (m_errors.size() != errorsBefore) return;
  for (const TextureReference& use : m_references)
    if (static_cast<std::size_t>(use.TexId) >= m_file.Textures.size())
      Fail(use.Line, "VTPTexID: there is no texture " + std::to_string(use.TexId) +
                         ", VTPTextureList holds " + std::to_string(m_file.Textures.size()));
}

void VtpChecker::End(const Statement& statement, bool) {
  CloseDownTo(Block::Cell);
  AdvanceTo(Stage::Ended, statement);
}

void VtpChecker::Finish(std::size_t line) {
  CloseDownTo(Block::Cell);
  if (m_stage == Stage::Cells) Fail(line, "there is no VTPIndexList");
  if (m_stage == Stage::Cells || m_stage == Stage::AfterIndex) Fail(line, "there is no VTPTextureList");
  if (m_stage != Stage::Ended) Fail(line, "there is no VTPEnd");
}

/// True when `stage` is the next one; a stage that was left out is reported by its own successor.
bool VtpChecker::AdvanceTo(Stage stage, const Statement& statement) {
  if (m_stage >= stage) {
    Fail(statement.Line, "a second " + statement.Name + ", or one behind the blocks that follow it");
    return false;
  }
  if (static_cast<int>(m_stage) + 1 != static_cast<int>(stage)) {
    constexpr std::array<const char*, 5> Ends{"", "VTPFileHeader", "VTPIndexList", "VTPTextureList",
                                              "VTPEnd"};
    for (auto missing = static_cast<std::size_t>(m_stage) + 1; missing < static_cast<std::size_t>(stage);
         ++missing)
      Fail(statement.Line, statement.Name + " stands in front of " + Ends[missing]);
  }
  m_stage = stage;
  return true;
}

VtpChecker::OpenBlock& VtpChecker::Open(Block kind, const Statement& statement) {
  CloseDownTo(kind);
  if (m_stage == Stage::Start) {
    Fail(statement.Line, statement.Name + " stands in front of VTPFileHeader");
    m_stage = Stage::Cells;  // said once
  } else if (m_stage != Stage::Cells) {
    Fail(statement.Line, statement.Name + " stands behind VTPIndexList");
  }
  const auto depth = static_cast<std::size_t>(kind);
  if (kind != Block::Cell && m_stage == Stage::Cells) {
    if (m_open.empty() || m_open.back().Kind != static_cast<Block>(depth - 1))
      Fail(statement.Line, statement.Name + " stands outside of a " + OpenedBy[depth - 1]);
    else
      ++m_open.back().Seen;
  }
  m_open.push_back({kind, statement.Line, statement.Name, std::nullopt, 0});
  return m_open.back();
}

void VtpChecker::CloseDownTo(Block kind) {
  while (!m_open.empty() && m_open.back().Kind >= kind) {
    const OpenBlock block = std::move(m_open.back());
    m_open.pop_back();
    Close(block);
  }
}

void VtpChecker::Close(const OpenBlock& block) {
  CheckCount(block);
  switch (block.Kind) {
    case Block::Cell:
      CheckCellAreas(block);
      m_file.Cells.push_back(std::exchange(m_cell, {}));
      break;
    case Block::Area:
      m_cell.Areas.push_back(std::exchange(m_area, {}));
      break;
    case Block::Layer:
      m_area.Layers.push_back(std::exchange(m_layer, {}));
      break;
    case Block::Texture:
      if (!m_hasPolyCount) Fail(block.Line, "VTPTexID is not followed by a VTPPolyCount");
      m_layer.Textures.push_back(std::exchange(m_texture, {}));
      break;
    case Block::Poly:
      m_texture.Features.push_back(std::exchange(m_feature, {}));
      break;
    case Block::File:
    case Block::Place:
    case Block::Step:
      break;
  }
}

void VtpChecker::CheckCount(const OpenBlock& block) {
  if (!block.Announced || *block.Announced == block.Seen) return;
  const std::string statement = block.Kind == Block::Texture ? "VTPPolyCount" : block.Name;
  Fail(block.Line, statement + " announces " + std::to_string(*block.Announced) + " " +
                       HoldsNamed[static_cast<std::size_t>(block.Kind)] + ", " + std::to_string(block.Seen) +
                       " found");
}

void VtpChecker::CheckCellAreas(const OpenBlock& block) {
  if (m_cell.Areas.empty()) Fail(block.Line, "the label " + block.Name + " is followed by no VTPArea");
  if (m_cell.Areas.size() < 2) return;
  for (const VtpArea& area : m_cell.Areas)
    if (area.WholeCell) {
      Fail(block.Line, "the cell " + block.Name + " has a VTPArea for all of it beside another");
      return;
    }
}

}  // namespace landsmith::simtools
