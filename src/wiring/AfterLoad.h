// What is rebuilt from the records after a project was loaded, in order. A kind with working data of its own
// is plugged in here.
#pragma once

#include "core/Project.h"

namespace landsmith {

/// Boxes of fills, photos and meshes; corners and boxes of objects with the scale of the project's own centre
/// and zoom.
void RebuildLoadedProject(ProjectState& project);

}  // namespace landsmith
