// Checks the statements of land and water masks and gathers what they say.
//
// A cell (its label) holds fills and Areas; an Area announces how many polygons follow it. The index list
// says where the cells lie and which of them are all of one type; the body of such a cell may hold polygons
// that lie on it, but no fills.
#pragma once

#include "simtools/FileOrder.h"
#include "simtools/LwmBgl.h"

#include <optional>
#include <string>
#include <vector>

namespace landsmith::simtools {

class LwmChecker {
public:
  explicit LwmChecker(std::vector<ScmError>& errors)
      : m_errors(errors), m_order({"LWMFileHeader", "LWMIndexList", "LWMEnd"}, errors) {}

  /// One operation a statement. `complete`: the number of arguments is right; otherwise the statement only
  /// takes its place in the file.
  void FileHeader(const Statement& statement, bool complete);
  void Label(const Statement& statement);
  void AreaFill(const Statement& statement, bool complete);
  void Macro(const Statement& statement, bool complete);
  void AreaDrawPoly(const Statement& statement, bool complete);
  void Poly(const Statement& statement, bool complete);
  void Poly3(const Statement& statement, bool complete);
  void IndexList(const Statement& statement, bool complete);
  void End(const Statement& statement, bool complete);

  /// Reports what is missing at the end of the source, whose last line is `line`.
  void Finish(std::size_t line);
  /// What the statements said; of use only when there was no error.
  const LwmFile& File() const { return m_file; }

private:
  struct OpenCell {
    std::size_t Line = 0;
    std::string Label;
  };
  struct OpenArea {
    std::size_t Line = 0;
    std::optional<std::int64_t> Announced, Type;  ///< nothing: it was not readable
    std::int64_t Seen = 0;
  };

  void Fail(std::size_t line, std::string reason) { m_errors.push_back({line, std::move(reason)}); }
  bool OpenItem(const Statement& statement);
  void CloseArea();
  std::optional<LwmItem> ReadBlock(const Statement& statement, std::uint32_t size, std::size_t first);
  std::optional<std::int32_t> ReadAltitude(const Statement& statement, std::size_t index);
  bool OpenPoly(const Statement& statement, bool withAltitudes);
  void ReadPoly(const Statement& statement, bool withAltitudes);
  void CheckKind(const Statement& statement, std::int64_t kind);
  std::vector<LwmPoint> ReadPoints(const Statement& statement, std::size_t first, bool withAltitudes);
  void CheckCellType(const Statement& statement, std::size_t cell, std::uint32_t type);

  std::vector<ScmError>& m_errors;
  FileOrder m_order;
  LwmFile m_file;
  std::vector<OpenCell> m_cells;  ///< as many as m_file.Cells
  std::optional<OpenArea> m_area;
};

}  // namespace landsmith::simtools
