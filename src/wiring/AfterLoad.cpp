#include "wiring/AfterLoad.h"

#include "core/Grid.h"
#include "objects/ObjectFootprint.h"

namespace landsmith {

void RebuildLoadedProject(ProjectState& project) {
  ComputeGridBoxes(project);
  const ViewScale scale = UpdateScale(project.Zoom, project.LatDispCenter);
  for (ObjectRec& object : project.Objects)
    ComputeObjectFootprint(object, scale);
}

}  // namespace landsmith
