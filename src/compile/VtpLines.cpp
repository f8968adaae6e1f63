#include "compile/VtpLines.h"

#include "compile/CompileStep.h"
#include "compile/VtpClip.h"
#include "compile/VtpShape.h"
#include "compile/VtpText.h"
#include "compile/VtpTree.h"
#include "core/Numbers.h"
#include "platform/RuntimeError.h"
#include "vector/LineType.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

namespace landsmith {
namespace {

/// The settings count 1/8192 of a Cell.
constexpr double ShiftUnitLat = 4.291534423828125e-05, ShiftUnitLon = 5.7220458984375e-05;

/// The distinct texture fields in order of first use.
class TextureNames {
public:
  std::int32_t Add(const std::string& text) {
    const auto [entry, isNew] = m_places.try_emplace(text, static_cast<std::int32_t>(m_names.size()));
    if (isNew) m_names.push_back(text);
    return entry->second;
  }
  const std::vector<std::string>& Names() const { return m_names; }

private:
  std::vector<std::string> m_names;
  std::unordered_map<std::string, std::int32_t> m_places;
};

struct CollectedLine {
  std::size_t index = 0;  ///< in the project
  std::int32_t layer = 0;
  std::int32_t texId = 0;
};

bool IsWanted(const LineRec& line) {
  return line.Selected && TypeHead(line.Type) == "VTP";
}

/// A failure that names the line it is about.
RuntimeError FailureIn(const ProjectState& project, std::size_t index, const std::string& found) {
  const std::string place = "line " + std::to_string(index + 1) + " \"" + project.Lines[index].Name + "\"";
  return RuntimeError::At("compiling the VTP lines", "", place, found);
}

std::vector<CollectedLine> CollectVtpLines(const ProjectState& project, TextureNames& textures) {
  std::vector<CollectedLine> collected;
  for (std::size_t i = 0; i < project.Lines.size(); ++i) {
    const LineRec& line = project.Lines[i];
    if (!IsWanted(line)) continue;
    const LineType decoded = DecodeLineType(line.Type);
    const auto& type = std::get<VtpLine>(decoded);
    const auto layer = ParseInt16(type.Layer);
    if (!layer)
      throw FailureIn(project, i, "the layer \"" + type.Layer + "\" is no whole number from -32768 to 32767");
    collected.push_back({i, *layer, textures.Add(type.Texture)});
  }
  return collected;
}

std::vector<LinePoint> Shifted(std::vector<LinePoint> points, const AppSettings& settings) {
  if (settings.VTPShiftNS != 0) {
    const double dLat = -static_cast<double>(settings.VTPShiftNS) * ShiftUnitLat;
    for (LinePoint& point : points)
      point.Lat += dLat;
  }
  if (settings.VTPShiftWE != 0) {
    const double dLon = settings.VTPShiftWE * ShiftUnitLon;
    for (LinePoint& point : points)
      point.Lon += dLon;
  }
  return points;
}

/// The finished runs of one line, which adds to the bounds; none when all of it falls on one Point.
std::vector<LineRun> FinishedRuns(const LineRec& line, const CollectedLine& collected,
                                  const AppSettings& settings, GeoBox& bounds) {
  const auto points = SnapLinePoints(Shifted(line.Points, settings));
  if (points.size() < 2) return {};
  for (const LinePoint& point : points)
    bounds.Add(point.Lat, point.Lon);
  auto runs = ClipLineToCells(points, line.Name, collected.texId, collected.layer);
  for (LineRun& run : runs) {
    AddLineEnds(run);
    PackRunPoints(run);
  }
  return runs;
}

}  // namespace

std::optional<std::string> VtpLineSource(const ProjectState& project, const AppSettings& settings) {
  TextureNames textures;
  std::vector<LineRun> runs;
  GeoBox bounds;
  const std::vector<CollectedLine> lines = CollectVtpLines(project, textures);
  runs.reserve(lines.size() + lines.size() / 2);  // most lines stay in one Cell or two
  for (const CollectedLine& collected : lines) {
    try {
      for (LineRun& run : FinishedRuns(project.Lines[collected.index], collected, settings, bounds))
        runs.push_back(std::move(run));
    } catch (const RuntimeError& failure) {
      throw FailureIn(project, collected.index, failure.what());
    }
  }
  if (runs.empty()) return std::nullopt;
  return VtpText(GroupRuns(std::move(runs)), textures.Names(), {bounds, settings.VTPReplace});
}

void CompileVTPLines(const CompileContext& context) {
  auto source = VtpLineSource(context.project, context.settings);
  if (!source) {
    context.dialogs.Message(MessageKind::Info,
                            "No selected VTP line has two different points: nothing was compiled.");
    return;
  }
  CompileStepRequest request;
  request.BaseName = ProjectFileName(context.project.Name) + "_VTPL";
  request.Source = std::move(*source);
  CompileStep(context, request);
}

bool HasSelectedVtpLine(const ProjectState& project) {
  return std::any_of(project.Lines.begin(), project.Lines.end(), IsWanted);
}

}  // namespace landsmith
