// A tool mode is one class that takes plain input and knows nothing of other modes or of the window.
#pragma once

#include "editor/ToolState.h"
#include "editor/ViewState.h"
#include "platform/Surface.h"

#include <memory>
#include <string>

namespace landsmith {

/// Button numbers as the events hold them.
enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

struct PointerInput {
  PixelOffset at;  ///< from the canvas centre
  PixelPoint raw;  ///< from its top left corner
  MouseButton button = MouseButton::None;
  bool shift = false;
  bool ctrl = false;
};

/// Key codes are the documented ones (46 Delete, 27 Esc, 73 I, 107 numpad plus, ...).
struct KeyInput {
  int code = 0;
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
};

/// Fill1 to Fill32: by the side of the brush.
enum class CursorShape {
  Arrow,
  Cross,
  Pan,
  Zoom,
  Map,
  Land,
  Water,
  Photo,
  Line,
  Poly,
  Fill1,
  Fill2,
  Fill4,
  Fill8,
  Fill16,
  Fill32,
  Object,
  Exclude,
  Mesh,
  Move,
  Resize,
  Rotate,
  Paste,
  Measure,
  Busy
};

/// One-shot timers that the window keeps for the editor; starting one anew restarts it.
enum class TimerId {
  DragSettle,  ///< until its tick a press on a selection is no drag
  DragRedraw,  ///< puts the repaints of quick moves together
  Label,       ///< the label under a mouse that rests
};

/// A drag. Exactly one of End and Cancel is called: release; or focus lost, mode changed, project replaced.
class Gesture {
public:
  virtual ~Gesture() = default;
  virtual void Update(const PointerInput& in) = 0;
  virtual void End(const PointerInput& in) = 0;
  virtual void Cancel() = 0;
  virtual void Tick(TimerId) {}
  virtual CursorShape Cursor() const { return CursorShape::Arrow; }
  /// Whether it moves the view and not what is on the canvas.
  virtual bool MovesView() const { return false; }
  /// What the mouse does meanwhile, in a few words for the status bar.
  virtual std::string Hint() const { return {}; }
  /// Drawn on top of the overlay while the drag lasts.
  virtual void Paint(Surface&) const {}
};

class ToolMode {
public:
  virtual ~ToolMode() = default;
  /// May return a drag that the canvas then owns.
  virtual std::unique_ptr<Gesture> Press(const PointerInput& in) = 0;
  virtual void Hover(const PointerInput&) {}
  virtual void HoverEnd() {}                           ///< the mouse is no longer over the canvas
  virtual bool Key(const KeyInput&) { return false; }  ///< true: used
  virtual void Tick(TimerId) {}
  virtual CursorShape Cursor() const { return CursorShape::Arrow; }
  virtual bool IsDrawing() const { return false; }  ///< a figure is begun and not ended
  virtual void Leave() {}                           ///< ends what is half made
  /// Forgets what is half made, since the project is about to be restored. True when nothing of it was in
  /// the project yet: then there is no more to undo.
  virtual bool Abandon() { return false; }
  /// What a click does at this moment, in a few words for the status bar: "Click: start a line".
  virtual std::string Hint() const { return {}; }
  virtual void Paint(Surface&) const {}  ///< rubber lines, the block that a click fills
};

}  // namespace landsmith
