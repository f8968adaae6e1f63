#include "wiring/AfterLoad.h"

#include "core/Grid.h"
#include "objects/ObjectFootprint.h"

namespace landsmith {

void RebuildLoadedProject(ProjectState& project) {
  ComputeGridBoxes(project);
  const ViewScale scale = UpdateScale(project.Zoom, project.LatDispCenter);
  for (std::size_t i = 0; i < project.Objects.size(); ++i)
    ComputeObjectFootprint(project.Objects.Edit(i), scale);
}

}  // namespace landsmith
