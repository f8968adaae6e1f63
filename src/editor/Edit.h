// The only way to a mutable project. Its first access marks the project changed and remembers how it was; its
// close keeps that as an undo point, if anything has changed at all, and asks for the repaint. No edit can
// forget, double or misplace any of it. An Edit inside another one belongs to the outer: many deletions make
// one undo point.
#pragma once

#include "editor/Display.h"
#include "editor/Session.h"
#include "editor/UndoRing.h"

#include <optional>

namespace landsmith {

/// Whether an edit can be undone by itself (Take). The clicks that lengthen a line under way belong to its
/// first one (Share); a figure given up takes the undo point of its first click with it (Withdraw).
enum class UndoPoint { Take, Share, Withdraw };

class Edit {
public:
  /// `layers`: mask for the repaint at the close; -1 repaints nothing (a drag, which redraws its overlay).
  Edit(Session& session, Display& display, int layers = LayerMask::All, UndoPoint undo = UndoPoint::Take)
      : m_session(session), m_display(display), m_layers(layers), m_undo(undo) {}
  ~Edit();
  Edit(const Edit&) = delete;
  Edit& operator=(const Edit&) = delete;

  ProjectState& Project();
  bool Begun() const { return m_begun; }

private:
  void Begin();
  void KeepUndoPoint();

  Session& m_session;
  Display& m_display;
  int m_layers;
  UndoPoint m_undo;
  bool m_begun = false;
  bool m_wasDirty = false;
  std::optional<UndoSnapshot> m_before;  ///< of the outermost edit
};

/// The project as undo would bring it back, at this moment.
UndoSnapshot SnapshotOf(const Session& session);
/// Puts the state back, the display centre with it. The file, the zoom and whether there is a project stay;
/// the project counts as changed. The caller repaints.
void RestoreSnapshot(Session& session, UndoSnapshot snapshot);

}  // namespace landsmith
