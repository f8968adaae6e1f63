#include "editor/FillMode.h"

#include "core/Color.h"
#include "editor/Edit.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "editor/SelectKinds.h"

#include <utility>
#include <vector>

namespace landsmith {

namespace {

constexpr int SettleMilliseconds = 100;

CursorShape CursorOfBrush(int fillSize) {
  switch (fillSize) {
    case 2:
      return CursorShape::Fill2;
    case 4:
      return CursorShape::Fill4;
    case 8:
      return CursorShape::Fill8;
    case 16:
      return CursorShape::Fill16;
    case 32:
      return CursorShape::Fill32;
    default:
      return CursorShape::Fill1;
  }
}

std::optional<FillRec> FillAt(const Session& session, LatLon at) {
  return MakeFill(at, static_cast<std::uint8_t>(session.view.FillSize), session.tool.CurrentFillType,
                  session.tool.CurrentFillHeight);
}

/// From the press to the release, one change. A hand that trembles in a click must not fill the block beside
/// it, so moves count only after a moment; the way from the first block is then filled too. What has been
/// filled stays when the stroke is interrupted.
class FillStroke final : public Gesture {
public:
  FillStroke(ModeContext& context, LatLon at, const FillRec& first)
      : m_context(context), m_edit(context.session, context.display, -1), m_last(at), m_brush(first) {
    Place(first);
    m_context.display.DisplayAll();
    m_settling = context.host.StartTimer(TimerId::DragSettle, SettleMilliseconds);
  }

  void Update(const PointerInput& in) override {
    const LatLon at = ToLatLon(m_context.session.view, in.at);
    if (m_settling || !Brush(at)) return;
    for (const LatLon& middle : BlocksOnTheWay(m_last, at, m_brush.Size))
      if (const auto fill = Brush(middle)) {
        Place(*fill);
        m_later.push_back(*fill);
      }
    m_last = at;
    m_context.display.RedrawTop();
  }
  void End(const PointerInput&) override { Finish(); }
  void Cancel() override { Finish(); }
  void Tick(TimerId timer) override {
    if (timer == TimerId::DragSettle) m_settling = false;
  }
  CursorShape Cursor() const override { return CursorOfBrush(m_brush.Size); }
  std::string Hint() const override { return "Drag: fill one block after the other"; }

  /// On top of everything, until the canvas is painted anew at the end.
  void Paint(Surface& surface) const override {
    for (const FillRec& fill : m_later)
      PaintFill(surface, fill, m_context.session.view, m_context.session.settings);
  }

private:
  /// The same fill elsewhere: the palette and the grid do not change a stroke under way.
  std::optional<FillRec> Brush(LatLon at) const {
    return MakeFill(at, m_brush.Size, TypeOfFill(m_brush), m_brush.Height);
  }

  void Place(const FillRec& fill) {
    ProjectState& project = m_edit.Project();
    Selection& selection = m_context.session.tool.Selected;
    if (AddNewFill(project.Fills, fill) > 0 && selection.SelectionActive)
      RecountSelection(project, selection);
  }

  void Finish() {
    if (!m_later.empty()) m_context.display.DisplayAll();
  }

  ModeContext& m_context;
  Edit m_edit;
  LatLon m_last;
  FillRec m_brush;
  std::vector<FillRec> m_later;  ///< those after the first
  bool m_settling = false;
};

}  // namespace

std::unique_ptr<Gesture> FillMode::Press(const PointerInput& in) {
  if (in.button == MouseButton::Right) m_context.menuAt = in.at;
  if (in.button != MouseButton::Left) return nullptr;
  const LatLon at = ToLatLon(TheSession().view, in.at);
  const auto fill = FillAt(TheSession(), at);
  if (!fill) return nullptr;
  return std::make_unique<FillStroke>(m_context, at, *fill);
}

std::optional<FillRec> FillMode::UnderMouse() const {
  const ViewState& view = TheSession().view;
  return FillAt(TheSession(), ToLatLon(view, view.Mouse));
}

void FillMode::Hover(const PointerInput& in) {
  CanvasMode::Hover(in);
  m_hovering = true;
  if (m_framed == UnderMouse()) return;
  m_framed = UnderMouse();
  m_context.display.RedrawTop();
}

void FillMode::HoverEnd() {
  m_framed.reset();
  if (std::exchange(m_hovering, false)) m_context.display.RedrawTop();
}

CursorShape FillMode::Cursor() const {
  return CursorOfBrush(TheSession().view.FillSize);
}

std::string FillMode::Hint() const {
  return "Click: fill the block. Drag: fill one after the other. Right click: menu";
}

/// White under black: it shows on dark maps too.
void FillMode::Paint(Surface& surface) const {
  const auto block = UnderMouse();
  if (!m_hovering || !block) return;
  const PixelBox frame = CanvasBox(TheSession().view, block->Box);
  surface.SetBrush(0, BrushStyle::None);
  surface.SetPen(Rgb(255, 255, 255));
  surface.Box(frame);
  surface.SetPen(0, 1, PenStyle::Dot);
  surface.Box(frame);
  surface.SetPen(0);
}

}  // namespace landsmith
