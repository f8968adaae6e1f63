// What an author feels while editing a project of 1,000,000 points, 100,000 lines of ten:
//
//   UndoPoint       below 2 ms: an edit of one line from its first access to its close, without the repaint
//   UndoMemory      bytes that such an edit keeps for undo, beside the bytes of the project
//   HitTest         below 2 ms: what lies under the mouse, by the order of a context menu
//   RubberBox       below 2 ms: a box around a hundredth of the project
//   DragStep        below 16 ms: one move of one line, painted and put on the screen's image; beside a whole
//                   repaint in the same run
#include "core/Numbers.h"
#include "editor/Editor.h"
#include "editor/PopupAt.h"
#include "editor/SelectKinds.h"
#include "forms/QtSurface.h"
#include "support/RecordingHost.h"
#include "support/RecordingTools.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <QColor>
#include <QImage>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <cmath>
#include <random>

namespace landsmith {
namespace {

constexpr int Width = 1600, Height = 1000;
constexpr std::size_t LineCount = 100'000, PointsPerLine = 10;

class ImageCanvas final : public CanvasSurfaces {
public:
  Surface& Base() override { return m_baseSurface; }
  Surface& Overlay() override { return m_overlaySurface; }
  Surface& Top() override { return m_topSurface; }
  void ClearBase(std::int32_t color) override { m_baseSurface.Clear(ToQColor(color)); }
  void ClearOverlay() override { m_overlaySurface.Clear(Qt::transparent); }
  void ClearTop() override { m_topSurface.Clear(Qt::transparent); }
  bool LoadPicture(const std::filesystem::path&) override { return false; }  // no maps here
  void KeepPictures(std::span<const std::filesystem::path>) override {}
  void Present() override {
    QPainter painter(&m_screen);
    painter.drawImage(0, 0, m_base);
    painter.drawImage(0, 0, m_overlay);
    painter.drawImage(0, 0, m_top);
  }

private:
  QImage m_base{Width, Height, QImage::Format_RGB32};
  QImage m_overlay{Width, Height, QImage::Format_ARGB32_Premultiplied};
  QImage m_top{Width, Height, QImage::Format_ARGB32_Premultiplied};
  QImage m_screen{Width, Height, QImage::Format_RGB32};
  QtSurface m_baseSurface{m_base}, m_overlaySurface{m_overlay}, m_topSurface{m_top};
};

/// An editor with a road map all over its canvas.
class Desk {
public:
  Desk() : session(NewSession()), editor(session, canvas, host) {
    session.project.ProjectOpen = true;
    session.view.LatDispCenter = 47;
    session.view.LonDispCenter = 8;
    session.view.Zoom = 1;
    editor.Resize(Width, Height);
    Strew();
    editor.Canvas().DisplayAll();
  }

  PointerInput At(double x, double y, MouseButton button) const {
    PointerInput in;
    in.at = {static_cast<float>(x), static_cast<float>(y)};
    in.raw = {RoundHalfEven(x + Width / 2.0), RoundHalfEven(y + Height / 2.0)};
    in.button = button;
    return in;
  }
  PixelOffset PlaceOf(const LinePoint& point) const {
    const WorldPixel center = ToWorldPixel(session.view, {});
    return {static_cast<float>(point.Lon * session.view.Scale.PixelsPerDegLon - center.X),
            static_cast<float>(center.Y - point.Lat * session.view.Scale.PixelsPerDegLat)};
  }

  test::TempFolder folder;
  test::ScriptedDialogs dialogs;
  test::RecordingTools tools;
  test::RecordingHost host;
  ImageCanvas canvas;
  Session session;
  Editor editor;

private:
  Session NewSession() {
    ProgramFolders folders;
    folders.AppPath = folder.Path();
    return Session(folders, dialogs, tools);
  }
  void Strew() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> part(0, 1), turn(-0.5, 0.5);
    const ViewState& view = session.view;
    for (std::size_t i = 0; i < LineCount; ++i) {
      LineRec line;
      line.Name = "road";
      line.Type = "VTP//8//1004//";
      double lon = view.LonLeft + part(random) * (view.LonRight - view.LonLeft);
      double lat = view.LatBottom + part(random) * (view.LatTop - view.LatBottom);
      double heading = part(random) * 2 * Pi;
      for (std::size_t k = 0; k < PointsPerLine; ++k) {
        line.Points.push_back({lon, lat, 10, false});
        heading += turn(random);
        lon += 3 * std::cos(heading) / view.Scale.PixelsPerDegLon;
        lat += 3 * std::sin(heading) / view.Scale.PixelsPerDegLat;
      }
      SetPathBounds(line);
      session.project.Lines.push_back(std::move(line));
    }
  }
};

void EditOneLine(Desk& desk, std::size_t line) {
  Edit edit(desk.session, desk.editor.Canvas(), -1);
  edit.Project().Lines.Edit(line).Points[3].Lat += 1e-5;
}

void UndoPointOfMillion(benchmark::State& state) {
  Desk desk;
  std::size_t line = 0;
  for (auto _ : state)
    EditOneLine(desk, line = (line + 7919) % LineCount);
}

void UndoMemory(benchmark::State& state) {
  Desk desk;
  desk.session.settings.UndoDepth = 100;
  const auto whole = static_cast<double>(mallinfo2().uordblks);
  constexpr std::size_t edits = 50;
  for (auto _ : state) {
    desk.session.undo.Reset();
    const std::size_t before = mallinfo2().uordblks;
    for (std::size_t i = 0; i < edits; ++i)
      EditOneLine(desk, i * 1999);
    const auto kept = static_cast<double>(mallinfo2().uordblks - before);
    state.counters["bytes_an_edit"] = kept / edits;
    state.counters["bytes_of_all"] = whole;
  }
}

void HitTest(benchmark::State& state) {
  Desk desk;
  const GeometryIndex& index = desk.editor.Canvas().Index();
  std::mt19937 random(3);
  std::uniform_real_distribution<float> x(-Width / 2.0F, Width / 2.0F), y(-Height / 2.0F, Height / 2.0F);
  for (auto _ : state)
    benchmark::DoNotOptimize(PopupTargetAt(desk.session.project, desk.session.view, ModeId::Pointer,
                                           {x(random), y(random)}, index));
}

void RubberBoxOfHundredth(benchmark::State& state) {
  Desk desk;
  Session& session = desk.session;
  const double lat = (session.view.LatTop - session.view.LatBottom) / 20;
  const double lon = (session.view.LonRight - session.view.LonLeft) / 20;
  const GeoBox box{47 + lat, 47 - lat, 8 - lon, 8 + lon};
  for (auto _ : state) {
    SelectInBox(session.project, desk.editor.Canvas().Index(), session.view, box, session.tool);
    state.counters["selected"] = session.tool.Selected.SelectedCount;
    state.PauseTiming();
    ClearSelection(session.project, session.tool);
    desk.editor.Canvas().Index();
    state.ResumeTiming();
  }
}

void DragStep(benchmark::State& state, ModeId mode) {
  Desk desk;
  desk.editor.ChooseMode(mode);
  const auto repaint = std::chrono::steady_clock::now();
  desk.editor.Canvas().DisplayAll();
  const std::chrono::duration<double, std::milli> whole = std::chrono::steady_clock::now() - repaint;
  const PixelOffset from = desk.PlaceOf(desk.session.project.Lines[LineCount / 2].Points[0]);
  desk.editor.Press(desk.At(from.x, from.y, MouseButton::Left));
  desk.editor.Move(desk.At(from.x + 1, from.y, MouseButton::Left));
  double step = 1;
  for (auto _ : state) {
    step = step > 200 ? 1 : step + 1;
    desk.editor.Move(desk.At(from.x + step, from.y, MouseButton::Left));
  }
  desk.editor.Release(desk.At(from.x, from.y, MouseButton::Left));
  state.counters["whole_repaint_ms"] = whole.count();
}

constexpr auto Unit = benchmark::kMillisecond;
BENCHMARK(UndoPointOfMillion)->Name("UndoPoint")->Unit(Unit);
BENCHMARK(UndoMemory)->Unit(Unit)->Iterations(3);
BENCHMARK(HitTest)->Unit(Unit);
BENCHMARK(RubberBoxOfHundredth)->Name("RubberBox")->Unit(Unit)->Iterations(50);
BENCHMARK_CAPTURE(DragStep, pointer_mode, ModeId::Pointer)->Unit(Unit);
BENCHMARK_CAPTURE(DragStep, line_mode, ModeId::Line)->Unit(Unit);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
