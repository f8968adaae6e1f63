#include "editor/Modes.h"

#include "editor/ExcludeMode.h"
#include "editor/FillMode.h"
#include "editor/Gestures.h"
#include "editor/MapMode.h"
#include "editor/MenuMode.h"
#include "editor/ObjectMode.h"
#include "editor/PathMode.h"
#include "editor/PointerMode.h"
#include "editor/SelectKinds.h"

#include <array>

namespace landsmith {

namespace {

/// The left button zooms in on the point, the right one out.
class ZoomMode final : public CanvasMode {
public:
  using CanvasMode::CanvasMode;
  std::unique_ptr<Gesture> Press(const PointerInput& in) override {
    if (in.button == MouseButton::Left) ZoomAtPoint(m_context, in.at, ZoomStep::In);
    if (in.button == MouseButton::Right) ZoomAtPoint(m_context, in.at, ZoomStep::Out);
    return nullptr;
  }
  CursorShape Cursor() const override { return CursorShape::Zoom; }
  std::string Hint() const override { return "Click: zoom in. Right click: zoom out"; }
};

constexpr std::size_t ModeCount = 12;
/// In the order of ModeId.
const std::array<ModeSetup, ModeCount> Setups{{
    {},                                    // Pointer
    {},                                    // Zoom
    {LayerKind::Maps},                     // Map
    {LayerKind::Meshes, 0.25, 8, "Mesh"},  // Mesh
    {LayerKind::Lines},                    // Line
    {LayerKind::Polys},                    // Poly
    {LayerKind::Objects},                  // Object
    {LayerKind::Excludes},                 // Exclude
    {LayerKind::Photos, 8, 13, "Summer"},  // Photo
    {LayerKind::Lands, 8, 13},             // Land
    {LayerKind::Waters, 8, 13},            // Water
    {LayerKind::Fills, 8},                 // Fill
}};

}  // namespace

const ModeSetup& SetupOf(ModeId mode) {
  return Setups[static_cast<std::size_t>(mode)];
}

bool DrawsItems(ModeId mode) {
  return mode == ModeId::Line || mode == ModeId::Poly || mode == ModeId::Object;
}

std::unique_ptr<ToolMode> MakeMode(ModeId mode, ModeContext& context) {
  switch (mode) {
    case ModeId::Pointer:
      return std::make_unique<PointerMode>(context);
    case ModeId::Zoom:
      return std::make_unique<ZoomMode>(context);
    case ModeId::Map:
      return std::make_unique<MapMode>(context);
    case ModeId::Mesh:
      return std::make_unique<MenuMode>(context, CursorShape::Mesh);
    case ModeId::Line:
      return std::make_unique<PathMode<LineRec>>(context);
    case ModeId::Poly:
      return std::make_unique<PathMode<PolyRec>>(context);
    case ModeId::Object:
      return std::make_unique<ObjectMode>(context);
    case ModeId::Exclude:
      return std::make_unique<ExcludeMode>(context);
    case ModeId::Photo:
      return std::make_unique<MenuMode>(context, CursorShape::Photo);
    case ModeId::Land:
      return std::make_unique<MenuMode>(context, CursorShape::Land);
    case ModeId::Water:
      return std::make_unique<MenuMode>(context, CursorShape::Water);
    case ModeId::Fill:
      return std::make_unique<FillMode>(context);
  }
  return std::make_unique<PointerMode>(context);
}

std::unique_ptr<Gesture> StartRubberBox(ModeContext& context, const PointerInput& in, int layers) {
  if (!in.shift) ClearSelection(context.session.project, context.session.tool);
  context.display.RebuildDisplay(layers);
  return std::make_unique<RubberBox>(context, in);
}

}  // namespace landsmith
