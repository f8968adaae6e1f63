// What was cut or copied last: one line, one polygon, one object. It stays inside the program.
#pragma once

#include "core/Records.h"

#include <optional>

namespace landsmith {

struct Clipboard {
  std::optional<LineRec> CopiedLine;
  std::optional<PolyRec> CopiedPoly;
  std::optional<ObjectRec> CopiedObject;
};

}  // namespace landsmith
