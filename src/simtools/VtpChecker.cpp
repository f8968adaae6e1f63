#include "simtools/VtpChecker.h"

#include "simtools/BglLayout.h"
#include "simtools/StatementCheck.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace landsmith::simtools {

namespace {

constexpr std::size_t IndexNumbers = 3;  // column, row and a 0 for each cell

/// By depth: the statement that opens a block, and what a block announces.
constexpr std::array<const char*, 8> OpenedBy{"VTPFileHeader", "label",   "VTPArea",   "VTPLayer",
                                              "VTPTexID",      "VTPPoly", "VTPWPoint", "VTPCPoint"};
constexpr std::array<const char*, 8> HoldsNamed{"cells", "areas",  "layers", "textures",
                                                "polys", "points", "steps",  ""};

std::uint32_t Unsigned(std::optional<std::int64_t> value) {
  return static_cast<std::uint32_t>(value.value_or(0));
}

}  // namespace

void VtpChecker::FileHeader(const Statement& statement, bool complete) {
  if (m_order.Begin(statement) && complete && !statement.Arguments.empty())
    m_file.Format = Unsigned(NumberArgument(statement, 0, {"the format", 0, 0x7FFFFFFF}, m_errors));
}

void VtpChecker::Label(const Statement& statement) {
  if (m_order.InCells()) Open(Block::Cell, statement);
}

void VtpChecker::Area(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Area, statement);
  if (!complete) return;
  block.Announced = NumberArgument(statement, 0, {"the number of layers", 0, bgl::LastLayer + 1}, m_errors);
  m_area.WholeCell = Unsigned(NumberArgument(statement, 1, {"the cell flag", 0, 1}, m_errors)) == 1;
  m_area.X = Unsigned(NumberArgument(statement, 2, {"x", 0, bgl::LastArea}, m_errors));
  m_area.Y = Unsigned(NumberArgument(statement, 3, {"y", 0, bgl::LastArea}, m_errors));
}

void VtpChecker::Layer(const Statement& statement, bool complete) {
  OpenBlock& block = Open(Block::Layer, statement);
  if (!complete) return;
  m_layer.Replace = Unsigned(NumberArgument(statement, 1, {"the replace flag", 0, 1}, m_errors)) == 1;
  block.Announced = NumberArgument(statement, 2, {"the number of textures", 0, bgl::LargestCount}, m_errors);
  // Only a layer that shows nothing, but replaces, may have a number that readers of features do not know.
  const std::uint32_t last = block.Announced.value_or(0) == 0 ? bgl::LastLayer : bgl::LastTexturedLayer;
  m_layer.Layer = Unsigned(NumberArgument(statement, 0, {"the layer", 0, last}, m_errors));
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
  m_polyKind.reset();
  if (!complete) return;
  FixedArgument(statement, 0, "the first number", 2, m_errors);
  m_polyKind = NumberArgument(statement, 2, {"the kind", bgl::PolyFeature, bgl::LineFeature}, m_errors);
  m_feature.Kind = Unsigned(m_polyKind);
  const std::int64_t least = m_polyKind == bgl::PolyFeature ? 3 : 1;
  block.Announced = NumberArgument(statement, 1, {"the number of points", least, bgl::MostPoints}, m_errors);
}

void VtpChecker::IndexList(const Statement& statement, bool complete) {
  CloseDownTo(Block::Cell);
  if (!m_order.Begin(statement) || !complete) return;
  const auto places = ReadCellPlaces(statement, IndexNumbers, m_file.Cells.size(), m_errors);
  for (std::size_t entry = 0; entry < places.size(); ++entry) {
    FixedArgument(statement, IndexNumbers * (entry + 1), "the third number of a cell", 0, m_errors);
    if (places[entry]) CheckIndexEntry(statement, entry, *places[entry]);
  }
}

void VtpChecker::CheckIndexEntry(const Statement& statement, std::size_t entry, const CellPlace& place) {
  VtpCell& cell = m_file.Cells[entry];
  cell.CellX = place.X;
  cell.CellY = place.Y;
  if (cell.Areas.empty() || !cell.Areas.front().WholeCell) return;
  const VtpArea& area = cell.Areas.front();
  if (area.X == (cell.CellX & 31U) && area.Y == (cell.CellY & 31U)) return;
  Fail(statement.ArgumentLines[1 + IndexNumbers * entry],
       "VTPIndexList: the cell " + std::to_string(cell.CellX) + " " + std::to_string(cell.CellY) +
           " wants a VTPArea at " + std::to_string(cell.CellX & 31U) + " " +
           std::to_string(cell.CellY & 31U) + ", its own stands at " + std::to_string(area.X) + " " +
           std::to_string(area.Y));
}

void VtpChecker::TextureList(const Statement& statement, bool complete) {
  CloseDownTo(Block::Cell);
  if (!m_order.Begin(statement) || !complete) return;
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
  m_order.Begin(statement);
}

void VtpChecker::Finish(std::size_t line) {
  CloseDownTo(Block::Cell);
  m_order.Finish(line);
}

VtpChecker::OpenBlock& VtpChecker::Open(Block kind, const Statement& statement) {
  CloseDownTo(kind);
  m_order.ExpectCells(statement);
  const auto depth = static_cast<std::size_t>(kind);
  if (kind != Block::Cell && m_order.InCells()) {
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
      CheckLayers(block);
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
  std::set<std::pair<std::uint32_t, std::uint32_t>> places;
  for (const VtpArea& area : m_cell.Areas) {
    if (area.WholeCell) {
      Fail(block.Line, "the cell " + block.Name + " has a VTPArea for all of it beside another");
      return;
    }
    if (!places.emplace(area.X, area.Y).second)
      Fail(block.Line, "the cell " + block.Name + " has two VTPAreas at " + std::to_string(area.X) + " " +
                           std::to_string(area.Y));
  }
}

void VtpChecker::CheckLayers(const OpenBlock& block) {
  std::set<std::uint32_t> layers;
  for (const VtpLayer& layer : m_area.Layers)
    if (!layers.insert(layer.Layer).second)
      Fail(block.Line, "VTPArea has the layer " + std::to_string(layer.Layer) + " twice");
}

}  // namespace landsmith::simtools
