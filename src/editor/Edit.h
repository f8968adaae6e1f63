// The only way to a mutable project. An access marks the project changed; the close asks for the
// repaint. No edit can forget, double or misplace either.
#pragma once

#include "editor/Display.h"
#include "editor/Session.h"

namespace landsmith {

class Edit {
public:
  /// `layers`: mask for the repaint at the close; -1 repaints nothing (a drag, which redraws its overlay).
  Edit(Session& session, Display& display, int layers = LayerMask::All)
      : m_session(session), m_display(display), m_layers(layers) {}
  ~Edit() {
    if (m_begun) ++m_session.Revision;
    if (m_begun && m_layers >= 0) m_display.RebuildDisplay(m_layers);
  }
  Edit(const Edit&) = delete;
  Edit& operator=(const Edit&) = delete;

  ProjectState& Project() {
    m_begun = true;
    m_session.project.Dirty = true;  // each time: a save may have come between
    ++m_session.Revision;
    return m_session.project;
  }
  bool Begun() const { return m_begun; }

private:
  Session& m_session;
  Display& m_display;
  int m_layers;
  bool m_begun = false;
};

}  // namespace landsmith
