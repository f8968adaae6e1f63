// Checks the statements of free-standing scenery: what is drawn at a place of the world and called through a
// layer. Nothing of it is kept, since the BGL of such a source has the header alone.
//
// An Area is a routine around its reference point, to its EndA. Inside it a version, to its EndVersion, lists
// textures, materials and vertices and draws triangles of them. Labels belong to their Area: the next one may
// use the same again.
#pragma once

#include "simtools/BglWriter.h"
#include "simtools/LabelScope.h"
#include "simtools/StatementCheck.h"

#include <optional>
#include <string>
#include <vector>

namespace landsmith::simtools {

class ObjectChecker {
public:
  /// `header` is that of the source, filled in before the first statement comes here.
  ObjectChecker(const BglHeader& header, std::vector<ScmError>& errors)
      : m_header(header), m_errors(errors), m_labels(errors) {}

  /// One operation a statement. `complete`: the number of arguments is right; otherwise the statement only
  /// takes its place among the blocks.
  void LatRange(const Statement& statement, bool complete);
  void Area(const Statement& statement, bool complete);
  void LayerCall(const Statement& statement, bool complete);
  void Jump(const Statement& statement, bool complete);
  void RefPoint(const Statement& statement, bool complete);
  void Version(const Statement& statement, bool complete);
  void TextureList(const Statement& statement, bool complete);
  void MaterialList(const Statement& statement, bool complete);
  void VertexList(const Statement& statement, bool complete);
  void SetMaterial(const Statement& statement, bool complete);
  void DrawTriList(const Statement& statement, bool complete);
  void EndVersion(const Statement& statement, bool complete);
  void Return(const Statement& statement, bool complete);
  void EndA(const Statement& statement, bool complete);

  /// A label stands in an Area, and so in its scope.
  bool InArea() const { return m_area.has_value(); }
  void Label(const Statement& statement) { m_labels.Define(statement); }
  void Finish();
  /// The Areas that drew triangles of a version.
  std::size_t TexturedAreas() const { return m_texturedAreas; }

private:
  struct OpenArea {
    std::size_t Line = 0;
    bool HasRefPoint = false, HasCall = false, HasReturn = false, HasTriangles = false;
  };
  struct OpenVersion {
    std::size_t Line = 0;
    std::optional<std::size_t> Textures, Materials, Vertices;  ///< entries; nothing: there is no such list
    bool HasMaterial = false, HasTexture = false;              ///< set for what is drawn
  };

  void Fail(const Statement& statement, const std::string& reason) {
    m_errors.push_back({statement.Line, statement.Name + reason});
  }
  bool ExpectArea(const Statement& statement);
  bool ExpectVersion(const Statement& statement);
  bool ExpectList(const Statement& statement, std::optional<std::size_t> OpenVersion::*list);
  void CloseArea();
  void CloseVersion(std::size_t line, const std::string& by);
  void CheckPlace(const Statement& statement, std::size_t first);
  std::optional<std::size_t> Entries(const Statement& statement, std::size_t words, std::string_view entry,
                                     std::size_t least);
  void CheckTexture(const Statement& statement, std::size_t first);
  bool ExpectOutsideVersion(const Statement& statement);

  const BglHeader& m_header;
  std::vector<ScmError>& m_errors;
  LabelScope m_labels;
  bool m_hasLatRange = false;
  std::optional<OpenArea> m_area;
  std::optional<OpenVersion> m_version;
  std::size_t m_texturedAreas = 0;
};

}  // namespace landsmith::simtools
