// The source text of grouped VTP pieces.
#pragma once

#include "compile/VtpTree.h"
#include "core/GeoTypes.h"

#include <string>
#include <vector>

namespace landsmith {

struct VtpTextOptions {
  GeoBox Bounds;        ///< of all that the file holds
  bool Replace = true;  ///< output replaces what the simulator has
};

/// `textures`: the distinct texture fields; TexId is the place in it.
std::string VtpText(const std::vector<VtpCell>& cells, const std::vector<std::string>& textures,
                    const VtpTextOptions& options);

}  // namespace landsmith
