#include "compile/VtpPolys.h"

#include "compile/CompileStep.h"
#include "compile/ConvexPieces.h"
#include "compile/PolyClip.h"
#include "compile/VtpItems.h"
#include "compile/VtpText.h"
#include "compile/VtpTree.h"
#include "vector/PolyType.h"

#include <utility>
#include <variant>

namespace landsmith {
namespace {

constexpr ItemWords PolyWords{"compiling the VTP polygons", "polygon"};

/// Collects the convex pieces of one polygon after the other, and the bounds of all.
class PieceCollector {
public:
  void Add(const std::vector<PolyPoint>& ring, const VtpItem& item) {
    const ClippedPoly clipped = ClipPolyToCells(ring);
    if (clipped.IsDropped) return;
    m_bounds.Add(clipped.Box);
    for (const PolyPiece& piece : clipped.Pieces) {
      m_ring.clear();
      for (const PiecePoint& point : clipped.PointsOf(piece))
        m_ring.push_back({point.X, point.Y});
      for (ConvexPart& part : ConvexPieces(m_ring))
        m_polys.push_back({item.TexId, item.Layer, piece.CellX, piece.CellY, std::move(part)});
    }
  }

  std::vector<VtpPolyRec> TakePolys() { return std::move(m_polys); }
  const GeoBox& Bounds() const { return m_bounds; }

private:
  std::vector<VtpPolyRec> m_polys;
  GeoBox m_bounds;
  std::vector<CellPoint> m_ring;  ///< of the piece at hand; kept so that its room is used again
};

}  // namespace

std::optional<std::string> VtpPolySource(const ProjectState& project, const AppSettings& settings) {
  TextureNames textures;
  PieceCollector pieces;
  const auto fieldsOf = [](const std::string& type) { return std::get<VtpPolyType>(DecodePolyType(type)); };
  for (const VtpItem& item : CollectVtpItems(project.Polys, fieldsOf, PolyWords, textures)) {
    const PolyRec& poly = project.Polys[item.Index];
    try {
      pieces.Add(ShiftedVtp(poly.Points, settings), item);
    } catch (const RuntimeError& failure) {
      throw ItemFailure(PolyWords, item.Index, poly.Name, failure.what());
    }
  }
  std::vector<VtpPolyRec> polys = pieces.TakePolys();
  if (polys.empty()) return std::nullopt;
  return VtpText(GroupPolys(std::move(polys)), textures.Names(), {pieces.Bounds(), settings.VTPReplace});
}

void CompileVTPPolys(const CompileContext& context) {
  auto source = VtpPolySource(context.project, context.settings);
  if (!source) {
    context.dialogs.Message(MessageKind::Info,
                            "No selected VTP polygon covers any ground: nothing was compiled.");
    return;
  }
  CompileStepRequest request;
  request.BaseName = ProjectFileName(context.project.Name) + "_VTPP";
  request.Source = std::move(*source);
  CompileStep(context, request);
}

}  // namespace landsmith
