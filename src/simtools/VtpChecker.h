// Checks vector terrain statements and gathers what they say.
//
// The blocks lie in each other: a cell (its label), the areas of the cell, their layers, the textures of a
// layer, the polys of a texture, the places of a poly and the steps behind a place. Each block announces how
// many follow inside it; a statement closes the blocks that are as deep as its own or deeper, and closing
// compares what was announced with what came.
#pragma once

#include "simtools/FileOrder.h"
#include "simtools/IndexList.h"
#include "simtools/VtpBgl.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace landsmith::simtools {

class VtpChecker {
public:
  /// `heldPoints` takes a line for each point that BglLayout.h cannot hold where it says.
  VtpChecker(std::vector<ScmError>& errors, std::vector<ScmError>& heldPoints)
      : m_errors(errors),
        m_heldPoints(heldPoints),
        m_order({"VTPFileHeader", "VTPIndexList", "VTPTextureList", "VTPEnd"}, errors) {}

  /// One operation a statement. `complete`: the number of arguments is right; otherwise the statement only
  /// takes its place among the blocks.
  void FileHeader(const Statement& statement, bool complete);
  void Label(const Statement& statement);
  void Area(const Statement& statement, bool complete);
  void Layer(const Statement& statement, bool complete);
  void TexID(const Statement& statement, bool complete);
  void PolyCount(const Statement& statement, bool complete);
  void Poly(const Statement& statement, bool complete);
  void WPoint(const Statement& statement, bool complete);
  void PointXY(const Statement& statement, bool complete);
  void CPoint(const Statement& statement, bool complete);
  void IndexList(const Statement& statement, bool complete);
  void TextureList(const Statement& statement, bool complete);
  void End(const Statement& statement, bool complete);

  /// Reports what is missing at the end of the source, whose last line is `line`.
  void Finish(std::size_t line);
  /// What the statements said; of use only when there was no error.
  const VtpFile& File() const { return m_file; }

private:
  enum class Block { File, Cell, Area, Layer, Texture, Poly, Place, Step };

  struct OpenBlock {
    Block Kind = Block::File;
    std::size_t Line = 0;
    std::string Name;                       ///< of the statement
    std::optional<std::int64_t> Announced;  ///< how many follow inside; nothing: it was not readable
    std::int64_t Seen = 0;
  };

  struct TextureReference {
    std::size_t Line = 0;
    std::int64_t TexId = 0;
  };

  void Fail(std::size_t line, std::string reason) { m_errors.push_back({line, std::move(reason)}); }
  OpenBlock& Open(Block kind, const Statement& statement);
  void CloseDownTo(Block kind);
  void Close(const OpenBlock& block);
  void CheckCount(const OpenBlock& block);
  void CheckCellAreas(const OpenBlock& block);
  void CheckLayers(const OpenBlock& block);
  void CheckIndexEntry(const Statement& statement, std::size_t entry, const CellPlace& place);
  OpenBlock& OpenPlace(const Statement& statement, std::uint32_t kind);
  void SetPlace(VtpPoint& point, const Statement& statement);

  std::vector<ScmError>& m_errors;
  std::vector<ScmError>& m_heldPoints;
  FileOrder m_order;
  std::vector<OpenBlock> m_open;
  std::vector<TextureReference> m_references;
  bool m_hasPolyCount = false;
  std::optional<std::int64_t> m_polyKind;  ///< of the open poly; nothing: it was not readable

  // What is inside the open blocks, one a depth; closing a block hands it to the one around it.
  VtpFile m_file;
  VtpCell m_cell;
  VtpArea m_area;
  VtpLayer m_layer;
  VtpTextureUse m_texture;
  VtpFeature m_feature;
};

/// The entries of a VTPTextureList behind its count, which is argument 0.
std::vector<VtpTextureEntry> ReadTextureEntries(const Statement& statement, std::vector<ScmError>& errors);

}  // namespace landsmith::simtools
