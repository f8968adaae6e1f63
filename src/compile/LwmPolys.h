// Land, water and flatten masks: polygons of head "LWM".
//
// collect (selected polygons, kind and altitudes read) -> cut along the Areas (PolyClip) -> group by Cell
// (LwmTree) -> text (LwmText) -> CompileStep. Polygons of one altitude, "flat" ones, go to project + "_LWM2",
// those whose vertices differ, "sloped" ones, to project + "_LWM3".
#pragma once

#include "compile/CompileContext.h"

#include <optional>
#include <string>

namespace landsmith {

enum class LwmPolyChoice { FlatAndSloped, SlopedAlone };

/// The texts of the selected polygons; nothing for a file that would hold no piece.
struct LwmSources {
  std::optional<std::string> Sloped, Flat;
};

/// Throws RuntimeError that names the polygon for a kind or an altitude that cannot be read, for a vertex
/// that is no place on the grid, and for a slope whose two vertices of known altitude are not there or lie at
/// one place. Polygons that lie wholly on one line of Points leave nothing.
LwmSources LwmPolySources(const ProjectState& project, LwmPolyChoice choice);

struct LwmSharedSource {
  std::optional<std::string> Text;  ///< fills and flat polygons; nothing without a fill and a piece
  bool LWMThirdFile = false;        ///< sloped polygons are selected too, which need a file of their own
};

/// Fails as above, for all selected polygons and for fills that no statement can name.
LwmSharedSource LwmFillAndPolySource(const ProjectState& project, const AppSettings& settings);

/// The sloped file, and then, where that gave no error, the flat one unless `choice` leaves it out. With
/// nothing to write no file is made, no tool runs, and a message says so.
void CompileLWMPolys(const CompileContext& context, LwmPolyChoice choice);

/// The selected fills and flat polygons in one file, "_LWM2", and then, whether that gave an error or not,
/// the sloped polygons in theirs.
void CompileLWMFillsAndPolys(const CompileContext& context);

}  // namespace landsmith
