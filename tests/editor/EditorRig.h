// Drives the editor without a window: feeds presses, moves, keys and timer ticks; the test reads project,
// selection and overlay. Positions are pixels from the centre of a canvas of 800 by 600 that lies at 0 N 0 E,
// where a pixel is the same part of a degree both ways.
#pragma once

#include "editor/Editor.h"
#include "support/Builders.h"
#include "support/RecordingHost.h"
#include "support/RecordingSurface.h"
#include "support/RecordingTools.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <initializer_list>
#include <vector>

namespace landsmith::test {

class EditorRig {
public:
  EditorRig() : session(NewSession()), editor(session, canvas, host) {
    session.project.Name = "Coast";
    session.project.ProjectOpen = true;
    session.settings.LnColorUns = 1;
    session.settings.LnColorSel = 2;
    session.settings.PtColorUns = 3;
    session.settings.PtColorSel = 4;
    session.view.Classes = ClassWindowOf(0, 0);
    session.view.LatDispCenter = session.view.LonDispCenter = 0;
    editor.Resize(800, 600);
  }

  /// Degrees of a pixel from the centre.
  LatLon At(double x, double y) const {
    return {-y / session.view.Scale.PixelsPerDegLat, x / session.view.Scale.PixelsPerDegLon};
  }
  LineRec Line(std::initializer_list<PixelOffset> points) const {
    LineRec line;
    for (const PixelOffset& at : points) {
      const LatLon place = At(at.x, at.y);
      line.Points.push_back({place.lon, place.lat, 10, false});
    }
    SetPathBounds(line);
    return line;
  }
  void AddLine(std::initializer_list<PixelOffset> points) { session.project.Lines.push_back(Line(points)); }
  /// Where a vertex stands, in pixels from the centre at the rig's first view.
  PixelOffset Place(std::size_t line, std::size_t point) const {
    const LinePoint& p = session.project.Lines[line].Points.at(point);
    return {static_cast<float>(p.Lon * session.view.Scale.PixelsPerDegLon),
            static_cast<float>(-p.Lat * session.view.Scale.PixelsPerDegLat)};
  }

  PointerInput Pointer(PixelOffset at, MouseButton button) const {
    PointerInput in;
    in.at = at;
    in.raw = {static_cast<std::int32_t>(at.x) + 400, static_cast<std::int32_t>(at.y) + 300};
    in.button = button;
    in.shift = shift;
    in.ctrl = ctrl;
    return in;
  }
  EditorRig& Press(PixelOffset at, MouseButton button = MouseButton::Left) {
    m_button = button;
    editor.Press(Pointer(at, button));
    return *this;
  }
  EditorRig& MoveTo(PixelOffset at) {
    editor.Move(Pointer(at, MouseButton::None));
    m_at = at;
    return *this;
  }
  EditorRig& Release() {
    editor.Release(Pointer(m_at, m_button));
    return *this;
  }
  EditorRig& Click(PixelOffset at, MouseButton button = MouseButton::Left) {
    Press(at, button);
    m_at = at;
    return Release();
  }
  EditorRig& Key(int code) {
    editor.KeyDown({code, shift, ctrl, false});
    return *this;
  }

  const RecordList<LineRec>& Lines() const { return session.project.Lines; }
  std::int32_t Selected() const { return session.tool.Selected.SelectedCount; }

  TempFolder folder;
  ScriptedDialogs dialogs;
  RecordingTools tools;
  RecordingHost host;
  RecordingCanvas canvas;
  Session session;
  Editor editor;
  bool shift = false, ctrl = false;

private:
  Session NewSession() {
    ProgramFolders folders;
    folders.AppPath = folder.Path();
    return Session(folders, dialogs, tools);
  }

  PixelOffset m_at;
  MouseButton m_button = MouseButton::Left;
};

}  // namespace landsmith::test
