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
  template <class Path>
  Path Figure(std::initializer_list<PixelOffset> points) const {
    Path path;
    for (const PixelOffset& at : points) {
      const LatLon place = At(at.x, at.y);
      path.Points.push_back({place.lon, place.lat, 10, false});
    }
    SetPathBounds(path);
    return path;
  }
  void AddLine(std::initializer_list<PixelOffset> points) {
    session.project.Lines.push_back(Figure<LineRec>(points));
  }
  void AddPoly(std::initializer_list<PixelOffset> points) {
    session.project.Polys.push_back(Figure<PolyRec>(points));
  }
  GeoBox Box(PixelOffset northWest, PixelOffset southEast) const {
    const LatLon first = At(northWest.x, northWest.y), last = At(southEast.x, southEast.y);
    return {first.lat, last.lat, first.lon, last.lon};
  }
  void AddMap(PixelOffset northWest, PixelOffset southEast) {
    const GeoBox box = Box(northWest, southEast);
    MapRec map;
    map.Name = "Sheet";
    map.Level[0] = map.Level[1] = {10, 10, box.NLat, box.SLat, box.WLon, box.ELon};
    session.project.Maps.push_back(map);
  }
  void AddExclude(PixelOffset northWest, PixelOffset southEast) {
    ExcludeRec exclude;
    exclude.Box = Box(northWest, southEast);
    session.project.Excludes.push_back(exclude);
  }
  /// Its footprint is a square that stands on a corner, `reach` pixels from the centre.
  void AddObject(PixelOffset at, float reach) {
    ObjectRec object;
    object.Description = "0A|1|Tower";
    const LatLon place = At(at.x, at.y);
    object.Lat = place.lat;
    object.Lon = place.lon;
    const auto metres = static_cast<float>(reach / session.view.Scale.PixelsPerMeter);
    object.X1 = object.Y2 = metres;
    object.X3 = object.Y4 = -metres;
    object.Box = Box({at.x - reach, at.y - reach}, {at.x + reach, at.y + reach});
    session.project.Objects.push_back(object);
  }
  /// In pixels from the centre at the rig's first view.
  PixelOffset PixelOf(LatLon at) const {
    return {static_cast<float>(at.lon * session.view.Scale.PixelsPerDegLon),
            static_cast<float>(-at.lat * session.view.Scale.PixelsPerDegLat)};
  }
  PixelOffset Place(std::size_t line, std::size_t point) const {
    const LinePoint& p = session.project.Lines[line].Points.at(point);
    return PixelOf({p.Lat, p.Lon});
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
  EditorRig& KeyUp(int code) {
    editor.KeyUp({code, shift, ctrl, false});
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
