#include "editor/Display.h"

#include <array>
#include <utility>

namespace landsmith {

namespace {

struct LayerBit {
  LayerKind Kind;
  int Bit;
};

/// In painting order.
constexpr std::array<LayerBit, LayerKindCount> Layers{{{LayerKind::Maps, LayerMask::Maps},
                                                       {LayerKind::Meshes, LayerMask::MeshesAndPhotos},
                                                       {LayerKind::Fills, LayerMask::Fills},
                                                       {LayerKind::Lands, LayerMask::Lands},
                                                       {LayerKind::Waters, LayerMask::Waters},
                                                       {LayerKind::Photos, LayerMask::MeshesAndPhotos},
                                                       {LayerKind::Excludes, LayerMask::Excludes},
                                                       {LayerKind::Polys, LayerMask::Polys},
                                                       {LayerKind::Lines, LayerMask::Lines},
                                                       {LayerKind::Objects, LayerMask::Objects},
                                                       {LayerKind::Grid, LayerMask::Grid}}};

/// The kind under edit never goes into the base image, whatever was asked for.
int EffectiveMask(int mask, ModeId mode) {
  if (mask == 0) return LayerMask::All;
  if (mode == ModeId::Poly) return LayerMask::AllButPolys;
  if (mode == ModeId::Line) return LayerMask::AllButLines;
  return mask;
}

bool IsMovable(LayerKind kind) {
  return kind == LayerKind::Lines || kind == LayerKind::Polys || kind == LayerKind::Objects ||
         kind == LayerKind::Excludes || kind == LayerKind::Maps;
}

/// Marks the canvas as being painted for as long as it lives; mouse events and repaints wait meanwhile.
class PaintGuard {
public:
  explicit PaintGuard(bool& busy) : m_busy(busy) { m_busy = true; }
  ~PaintGuard() { m_busy = false; }
  PaintGuard(const PaintGuard&) = delete;
  PaintGuard& operator=(const PaintGuard&) = delete;

private:
  bool& m_busy;
};

}  // namespace

const GeometryIndex& Display::Index() {
  m_index.Follow(m_session.project);
  return m_index;
}

PaintInput Display::Input(PaintPart partWhileMoving) {
  // While something moves the index is not asked for it, and what stays is as it was.
  if (!m_moving) m_index.Follow(m_session.project);
  m_bitmaps = m_session.folders.Bitmaps();
  return {m_session.project,
          m_session.settings,
          m_session.view,
          m_session.tool,
          m_session.lands,
          m_session.waters,
          m_bitmaps,
          &m_index,
          m_moving ? partWhileMoving : PaintPart::All,
          m_moving ? &*m_moving : nullptr};
}

bool Display::ShowsAny(LayerKind kind) const {
  const ProjectState& project = m_session.project;
  switch (kind) {
    case LayerKind::Maps:
      return !project.Maps.empty();
    case LayerKind::Meshes:
      return !project.Meshes.empty();
    case LayerKind::Lands:
      return project.NoOfLands > 0;
    case LayerKind::Waters:
      return project.NoOfWaters > 0;
    case LayerKind::Photos:
      return !project.Photos.empty();
    case LayerKind::Lines:
      return !project.Lines.empty();
    case LayerKind::Polys:
      return !project.Polys.empty();
    case LayerKind::Fills:
      return !project.Fills.empty();
    case LayerKind::Objects:
      return !project.Objects.empty();
    case LayerKind::Excludes:
      return !project.Excludes.empty();
    case LayerKind::Grid:
      return m_session.view.GridLod > 0;
  }
  return false;
}

void Display::PaintLayer(LayerKind kind, Surface& surface, const PaintInput& in) {
  switch (kind) {
    case LayerKind::Maps:
      return DisplayMaps(surface, in);
    case LayerKind::Meshes:
      return DisplayMeshes(surface, in);
    case LayerKind::Lands:
      return DisplayLands(surface, in);
    case LayerKind::Waters:
      return DisplayWaters(surface, in);
    case LayerKind::Photos:
      return DisplayPhotos(surface, in);
    case LayerKind::Lines:
      return DisplayLines(surface, in, m_session.view.LinesDrawn);
    case LayerKind::Polys:
      return DisplayPolys(surface, in, m_session.view.PolysDrawn);
    case LayerKind::Fills:
      return DisplayFills(surface, in);
    case LayerKind::Objects:
      return DisplayObjects(surface, in);
    case LayerKind::Excludes:
      return DisplayExcludes(surface, in);
    case LayerKind::Grid:
      return DisplayGrid(surface, in);
  }
}

void Display::PaintBase(int mask) {
  const PaintInput in = Input(PaintPart::Still);
  m_surfaces.ClearBase(m_session.project.ProjectOpen ? Colors.Window : Colors.Workspace);
  m_surfaces.ClearOverlay();
  m_session.view.OverlayPending.fill(true);
  for (const LayerBit& layer : Layers) {
    if ((mask & layer.Bit) == 0) continue;
    if (ShowsAny(layer.Kind) && m_session.view.Shows(layer.Kind))
      PaintLayer(layer.Kind, m_surfaces.Base(), in);
    m_session.view.Pending(layer.Kind) = m_moving && IsMovable(layer.Kind);
  }
}

/// The kind that the mode edits, whatever is shown.
void Display::PaintEdited(const PaintInput& in) {
  if (m_session.tool.Mode == ModeId::Line) PaintLayer(LayerKind::Lines, m_surfaces.Overlay(), in);
  if (m_session.tool.Mode == ModeId::Poly) PaintLayer(LayerKind::Polys, m_surfaces.Overlay(), in);
}

void Display::PaintTop() {
  m_surfaces.ClearTop();
  if (m_extra) m_extra(m_surfaces.Top());
}

void Display::RedrawTop() {
  if (m_session.view.BusyPainting) return;
  {
    const PaintGuard guard(m_session.view.BusyPainting);
    PaintTop();
  }
  m_surfaces.Present();
}

void Display::RebuildDisplay(int mask) {
  ViewState& view = m_session.view;
  if (view.BusyPainting) return;
  {
    const PaintGuard guard(view.BusyPainting);
    PaintBase(m_moving ? LayerMask::All : EffectiveMask(mask, m_session.tool.Mode));
    const PaintInput in = Input(PaintPart::Moving);
    if (m_moving)
      PaintPending(in);
    else if (mask > 0)
      PaintEdited(in);
    DisplayAircraft(m_surfaces.Overlay(), in);
    PaintTop();
  }
  m_surfaces.Present();
}

void Display::PaintPending(const PaintInput& in) {
  for (const LayerBit& layer : Layers) {
    if (m_session.view.Pending(layer.Kind) && m_session.view.Shows(layer.Kind) && ShowsAny(layer.Kind))
      PaintLayer(layer.Kind, m_surfaces.Overlay(), in);
  }
}

void Display::BeginMoving(MovingItems moving) {
  if (m_session.view.BusyPainting) return;
  Index();
  m_moving = std::move(moving);
  const PaintGuard guard(m_session.view.BusyPainting);
  PaintBase(LayerMask::All);
}

void Display::EndMoving() {
  if (!std::exchange(m_moving, std::nullopt)) return;
  RebuildDisplay(LayerMask::All);
}

void Display::RedrawOverlay() {
  if (m_session.view.BusyPainting) return;
  m_surfaces.ClearOverlay();
  PaintOverlay();
}

void Display::PaintOverlay() {
  ViewState& view = m_session.view;
  if (view.BusyPainting) return;
  {
    const PaintGuard guard(view.BusyPainting);
    const PaintInput in = Input(PaintPart::Moving);
    PaintPending(in);
    DisplayAircraft(m_surfaces.Overlay(), in);
    PaintTop();
  }
  m_surfaces.Present();
}

}  // namespace landsmith
