#include "wiring/CompileSteps.h"

#include "compile/ExcludePolys.h"
#include "compile/LwmPolys.h"
#include "compile/VtpLines.h"
#include "compile/VtpPolys.h"
#include "raster/ClassCells.h"
#include "raster/CompileFills.h"
#include "vector/LineType.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace landsmith {
namespace {

template <class Record>
bool AnySelected(const RecordList<Record>& records) {
  return std::any_of(records.begin(), records.end(), [](const Record& record) { return record.Selected; });
}

bool HasSelectedPoly(const ProjectState& project, std::string_view head) {
  return std::any_of(project.Polys.begin(), project.Polys.end(),
                     [head](const PolyRec& poly) { return poly.Selected && TypeHead(poly.Type) == head; });
}

bool HasLands(const ProjectState& project) {
  return HasSelectedTile(project.Lands);
}
bool HasWaters(const ProjectState& project) {
  return project.NoOfWaters > 0 && HasSelectedTile(project.Waters);
}
bool HasFills(const ProjectState& project) {
  return AnySelected(project.Fills);
}
bool HasLwmPolys(const ProjectState& project) {
  return HasSelectedPoly(project, "LWM");
}
bool HasTexturedPolys(const ProjectState& project) {
  return HasSelectedPoly(project, "TEX");
}
bool HasVtpPolys(const ProjectState& project) {
  return HasSelectedPoly(project, "VTP");
}
bool HasExcludePolys(const ProjectState& project) {
  return HasSelectedPoly(project, "Other");
}
bool HasMeshes(const ProjectState& project) {
  return AnySelected(project.Meshes);
}
bool HasObjects(const ProjectState& project) {
  return AnySelected(project.Objects);
}
bool HasExcludes(const ProjectState& project) {
  return AnySelected(project.Excludes);
}

constexpr std::string_view FillsStep = "fills", LwmStep = "lwm";

/// One file for both kinds of mask; the row of the fills then does the work of both.
bool SharesLwmFile(const CompileContext& context) {
  return context.settings.SingleLWMBGL && context.Runs(FillsStep) && context.Runs(LwmStep);
}
void RunFills(const CompileContext& context) {
  if (SharesLwmFile(context))
    CompileLWMFillsAndPolys(context);
  else
    CompileFills(context);
}
void RunLwmPolys(const CompileContext& context) {
  if (!SharesLwmFile(context)) CompileLWMPolys(context, LwmPolyChoice::FlatAndSloped);
}

}  // namespace

const StepTable& CompileSteps() {
  // Name, control, frame, caption, data test, ticked with data, offers the texture copy, compiler.
  static const StepTable table{
      {"land", "ckLand", "frClass", "Land Classes", HasLands, true, false, nullptr},
      {"water", "ckWater", "frClass", "Water Classes", HasWaters, true, false, nullptr},
      {"photo", "ckPhoto", "frPhoto", "Photos", nullptr, true, true, nullptr},
      {"bitmaps", "ckBitmaps", "frPhoto", "Photo Bitmaps", nullptr, true, true, nullptr},
      {"xphoto", "ckXPhoto", "frPhoto", "High Resolution Photos", nullptr, false, true, nullptr},
      {"xbitmaps", "ckXBitmaps", "frPhoto", "High Resolution Bitmaps", nullptr, false, true, nullptr},
      {FillsStep, "ckFills", "frLWM", "Area Fills", HasFills, true, false, RunFills},
      {LwmStep, "ckLWMPolys", "frLWM", "LWM Polygons", HasLwmPolys, true, false, RunLwmPolys},
      {"tex", "ckPolyTex", "frOther", "Textured Polygons", HasTexturedPolys, true, false, nullptr},
      {"vtp-polys", "ckVTPPolys", "frVTP", "VTP Polygons", HasVtpPolys, true, false, CompileVTPPolys},
      {"exc-polys", "ckEXCPolys", "frOther", "Exclusion Polygons", HasExcludePolys, true, false,
       CompileExcludePolys},
      {"vtp-lines", "ckVTPLines", "frVTP", "VTP Lines", HasSelectedVtpLine, true, false, CompileVTPLines},
      {"meshes", "ckMeshes", "frOther", "Meshes", HasMeshes, true, false, nullptr},
      {"objects", "ckObjects", "frOther", "Objects", HasObjects, true, false, nullptr},
      {"excludes", "ckObjExc", "frOther", "Exclusion Rectangles", HasExcludes, true, false, nullptr},
  };
  return table;
}

}  // namespace landsmith
