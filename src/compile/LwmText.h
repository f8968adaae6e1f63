// The source text of land and water files.
#pragma once

#include "compile/LwmTree.h"
#include "core/GeoTypes.h"

#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// `Fills`: area fills alone. `Flat`: polygons of one altitude each, and fills beside them. `Sloped`:
/// polygons whose points have an altitude each, written as a byte between the lowest and the highest.
enum class LwmFileKind { Fills, Flat, Sloped };

struct LwmTextOptions {
  LwmFileKind Kind = LwmFileKind::Flat;
  GeoBox Bounds;            ///< of all that was selected for the file
  bool FillAsPoly = false;  ///< fills are macros that draw polygons
};

/// How the tool is called for these files.
inline constexpr std::string_view LwmToolOptions = " -l";

std::string LwmText(const std::vector<LwmCell>& cells, const LwmTextOptions& options);

}  // namespace landsmith
