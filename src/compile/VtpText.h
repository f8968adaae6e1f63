// The source text of grouped VTP pieces.
#pragma once

#include "compile/ScmWriter.h"
#include "compile/VtpTree.h"
#include "core/GeoTypes.h"

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

struct VtpTextOptions {
  GeoBox Bounds;        ///< of all that the file holds
  bool Replace = true;  ///< output replaces what the simulator has
};

/// `textures`: the distinct texture fields; TexId is the place in it.
std::string VtpText(const std::vector<VtpCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options);
std::string VtpText(const std::vector<VtpPolyCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options);

/// The head line of files that hold areas, not lines.
inline constexpr std::string_view VtpAreaFileHeader = "VTPFileHeader( 0x100 )";

/// `cells`: anything with CellX and CellY.
template <class Cell>
void WriteVtpIndexList(ScmWriter& out, const std::vector<Cell>& cells) {
  out.EmptyLine().Text("VTPIndexList( ").Integer(std::ssize(cells)).EndLine();
  for (const Cell& cell : cells)
    out.Text("        ").Integer(cell.CellX).Text(" ").Integer(cell.CellY).Line(" 0");
  out.Line("        )");
}

inline void WriteVtpEnd(ScmWriter& out) {
  out.EmptyLine().Line("VTPEnd").EmptyLine();
}

}  // namespace landsmith
