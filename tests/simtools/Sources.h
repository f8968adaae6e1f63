// Sources that the tests start from, each valid: the random files of the fuzzer begin with the same ones.
#pragma once

#include "platform/Paths.h"

#include <filesystem>
#include <string>

namespace landsmith::simtools::test {

inline std::string Source(const char* name) {
  return ReadWholeFile(std::filesystem::path(LANDSMITH_SOURCE_DIR) / "fuzz/corpus/scm" / name);
}

/// One road of a place and three steps. Tests count its lines, as they do those of the others.
inline const std::string OneRoad = Source("one_road.scm");
/// A polygon of vector terrain in one Cell, exclusions in another.
inline const std::string OneAreaAndExclusions = Source("area_and_exclusions.scm");
/// A fill and a water polygon.
inline const std::string OneLake = Source("one_lake.scm");
/// A sloped polygon in a Cell that is flatten as a whole.
inline const std::string OneSlope = Source("one_slope.scm");
/// A textured polygon with a night texture, and one of its material alone.
inline const std::string TwoSurfaces = Source("two_surfaces.scm");

}  // namespace landsmith::simtools::test
