// Checks a parsed source against the table of known statements, and keeps what a BGL is made of.
#pragma once

#include "simtools/BglWriter.h"
#include "simtools/LwmBgl.h"
#include "simtools/ScmParser.h"
#include "simtools/VtpBgl.h"

#include <optional>
#include <vector>

namespace landsmith::simtools {

struct CheckedSource {
  BglHeader Header;
  std::optional<LwmFile> Lwm;     ///< the masks of the source, if it has any
  std::optional<VtpFile> Vtp;     ///< its vector terrain
  std::size_t TexturedAreas = 0;  ///< its textured polygons, of which nothing is kept
  std::vector<ScmError> Errors;  ///< by line, those of the parser included; the rest counts without any alone
  std::vector<ScmError> HeldPoints;  ///< by line: points that the file holds in another place than they say
};

/// Never throws for what a source says.
CheckedSource CheckScm(const ScmSource& source);

}  // namespace landsmith::simtools
