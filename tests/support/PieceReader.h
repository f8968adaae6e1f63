// Reads polygon pieces back from the source text of masks and of vector terrain, as the language describes it
// and sharing nothing with what writes it.
#pragma once

#include "support/Lattice.h"

#include <cctype>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {

struct ReadPiece {
  std::int64_t SquareX = 0, SquareY = 0;  ///< Area or Cell of the world
  LatticeRing Points;                     ///< from the square's north-west corner
  std::vector<std::int64_t> Heights;      ///< of a sloped mask, 0..255
  std::int64_t Kind = 0;                  ///< of a mask: 0 water, 1 land, 2 flatten; of terrain the layer
  double Alt1 = 0, Alt2 = 0;              ///< of a mask; a level one has the first alone
  std::int64_t Texture = 0;
  bool operator==(const ReadPiece&) const = default;
};

namespace reading {

struct Statement {
  std::string Name;
  std::vector<std::string> Arguments;
  std::int64_t Whole(std::size_t k) const { return std::stoll(Arguments.at(k)); }
  double Real(std::size_t k) const { return std::stod(Arguments.at(k)); }
};

inline std::vector<Statement> Statements(std::string_view text) {
  std::vector<Statement> list;
  bool inside = false;
  std::string word;
  const auto end = [&] {
    if (word.empty()) return;
    if (inside)
      list.back().Arguments.push_back(word);
    else
      list.push_back({word, {}});
    word.clear();
  };
  for (const char c : text) {
    if (c != '(' && c != ')' && std::isspace(static_cast<unsigned char>(c)) == 0) {
      word += c;
      continue;
    }
    end();
    if (c == '(') inside = true;
    if (c == ')') inside = false;
  }
  end();
  return list;
}

/// The Cells of the index list, in the order of their labels.
inline LatticeRing IndexedCells(const std::vector<Statement>& statements, const std::string& listName,
                                std::size_t wordsPerCell) {
  for (const Statement& statement : statements)
    if (statement.Name == listName) {
      LatticeRing cells;
      for (std::size_t k = 1; k + wordsPerCell <= statement.Arguments.size(); k += wordsPerCell)
        cells.push_back({statement.Whole(k), statement.Whole(k + 1)});
      if (static_cast<std::size_t>(statement.Whole(0)) != cells.size())
        throw std::runtime_error(listName + " announces another number of Cells");
      return cells;
    }
  throw std::runtime_error("no " + listName);
}

inline ReadPiece MaskPiece(const Statement& poly, LatticePoint area) {
  const bool sloped = poly.Name == "LWMPoly3";
  ReadPiece piece{area.X, area.Y, {}, {}, poly.Whole(1), poly.Real(2), 0, 0};
  if (sloped) {
    piece.Alt2 = poly.Real(2);
    piece.Alt1 = poly.Real(3);
  }
  const std::size_t head = sloped ? 4 : 3, words = sloped ? 3 : 2;
  const auto count = static_cast<std::size_t>(poly.Whole(0));
  if (poly.Arguments.size() != head + count * words)
    throw std::runtime_error(poly.Name + " announces another number of points");
  for (std::size_t k = head; k < poly.Arguments.size(); k += words) {
    piece.Points.push_back({poly.Whole(k), poly.Whole(k + 1)});
    if (sloped) piece.Heights.push_back(poly.Whole(k + 2));
  }
  return piece;
}

}  // namespace reading

/// The pieces of masks, level or sloped, in the text's order. Throws for counts that do not agree.
inline std::vector<ReadPiece> ReadMaskPieces(std::string_view text) {
  using namespace reading;
  const std::vector<Statement> statements = Statements(text);
  const LatticeRing cells = IndexedCells(statements, "LWMIndexList", 5);
  std::vector<ReadPiece> pieces;
  std::size_t cellsBegun = 0;
  LatticePoint area;
  for (const Statement& statement : statements) {
    if (statement.Name.starts_with(":cell")) {
      ++cellsBegun;
    } else if (statement.Name == "LWMAreaDrawPoly") {
      const LatticePoint cell = cells.at(cellsBegun - 1);
      area = {cell.X * 32 + statement.Whole(2), cell.Y * 32 + statement.Whole(3)};
    } else if (statement.Name == "LWMPoly" || statement.Name == "LWMPoly3") {
      pieces.push_back(MaskPiece(statement, area));
    }
  }
  return pieces;
}

/// The pieces of vector terrain polygons in the text's order, Points of 0..8160 in their Cell, -1 and 8161
/// for corners. Throws for counts that do not agree.
inline std::vector<ReadPiece> ReadTerrainPieces(std::string_view text) {
  using namespace reading;
  const std::vector<Statement> statements = Statements(text);
  const LatticeRing cells = IndexedCells(statements, "VTPIndexList", 3);
  std::vector<ReadPiece> pieces;
  std::size_t cellsBegun = 0, pointsLeft = 0;
  std::int64_t layer = 0, texture = 0;
  for (const Statement& statement : statements) {
    if (statement.Name == "VTPArea") {
      const LatticePoint cell = cells.at(cellsBegun++);
      if (statement.Whole(2) != (cell.X & 31) || statement.Whole(3) != (cell.Y & 31))
        throw std::runtime_error("a VTPArea of another Cell than the index list says");
    } else if (statement.Name == "VTPLayer") {
      layer = statement.Whole(0);
    } else if (statement.Name == "VTPTexID") {
      texture = statement.Whole(0);
    } else if (statement.Name == "VTPPoly") {
      const LatticePoint cell = cells.at(cellsBegun - 1);
      if (pointsLeft != 0) throw std::runtime_error("a VTPPoly with too few points");
      pointsLeft = static_cast<std::size_t>(statement.Whole(1));
      pieces.push_back({cell.X, cell.Y, {}, {}, layer, 0, 0, texture});
    } else if (statement.Name == "VTPPointXY") {
      if (pointsLeft-- == 0) throw std::runtime_error("a VTPPoly with too many points");
      pieces.back().Points.push_back({statement.Whole(0) - 4080, statement.Whole(1) - 4080});
    }
  }
  if (pointsLeft != 0) throw std::runtime_error("a VTPPoly with too few points");
  return pieces;
}

}  // namespace landsmith::test
