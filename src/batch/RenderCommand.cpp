// render: the canvas of the desktop program as a picture, without a window.
#include "batch/Commands.h"
#include "editor/Display.h"
#include "editor/SelectKinds.h"
#include "editor/Session.h"
#include "forms/QtSurface.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace landsmith {

namespace {

constexpr std::array<std::string_view, 9> MapViews{"Summer", "Winter",   "HardWinter", "Spring", "Fall",
                                                   "Alpha",  "NightMap", "Land",       "Mesh"};

constexpr std::array<std::pair<std::string_view, ModeId>, 12> Modes{{
    {"Pointer", ModeId::Pointer},
    {"Zoom", ModeId::Zoom},
    {"Map", ModeId::Map},
    {"Mesh", ModeId::Mesh},
    {"Line", ModeId::Line},
    {"Poly", ModeId::Poly},
    {"Object", ModeId::Object},
    {"Exclude", ModeId::Exclude},
    {"Photo", ModeId::Photo},
    {"Land", ModeId::Land},
    {"Water", ModeId::Water},
    {"Fill", ModeId::Fill},
}};

struct RenderArguments {
  std::string Project;
  std::string Out;
  std::string Size = "1024x768";
  std::vector<std::string> Center;
  std::string Zoom;
  std::string View = "Summer";
  std::string Grid = "0";
  std::string Mode = "Pointer";
};

constexpr int LargestSide = 16384;

std::pair<int, int> PictureSize(const std::string& text) {
  const auto sides = SplitAt(text, 'x');
  if (sides.size() != 2) throw UsageError("--size " + text + ": WxH is expected");
  const std::pair<int, int> size{IntegerArgument("--size", sides[0]), IntegerArgument("--size", sides[1])};
  if (std::min(size.first, size.second) < 1 || std::max(size.first, size.second) > LargestSide)
    throw UsageError("--size " + text + ": each side has 1 to " + std::to_string(LargestSide) + " pixels");
  return size;
}

ModeId ModeOf(const std::string& text) {
  for (const auto& [name, mode] : Modes)
    if (name == text) return mode;
  throw UsageError("--mode: there is no mode " + text);
}

/// What the options say of the view, checked before the project is read.
struct RenderOptions {
  std::pair<int, int> Size;
  int GridLod = 0;
  ModeId Mode = ModeId::Pointer;
};

RenderOptions CheckOptions(const RenderArguments& arguments) {
  RenderOptions options{PictureSize(arguments.Size), IntegerArgument("--grid", arguments.Grid),
                        ModeOf(arguments.Mode)};
  if (options.GridLod != 0 && (options.GridLod < 5 || options.GridLod > 19))
    throw UsageError("--grid: the level is 0 for none, or 5 to 19");
  if (std::find(MapViews.begin(), MapViews.end(), arguments.View) == MapViews.end())
    throw UsageError("--view: there is no view " + arguments.View);
  if (!arguments.Center.empty()) PositionArgument("--center", arguments.Center);
  if (!arguments.Zoom.empty() && !(NumberArgument("--zoom", arguments.Zoom) > 0))
    throw UsageError("--zoom: the zoom is above 0");
  return options;
}

void SetView(Session& session, const RenderArguments& arguments, const RenderOptions& options) {
  if (!arguments.Center.empty()) {
    const LatLon center = PositionArgument("--center", arguments.Center);
    session.project.LatDispCenter = center.lat;
    session.project.LonDispCenter = center.lon;
  }
  if (!arguments.Zoom.empty()) session.project.Zoom = NumberArgument("--zoom", arguments.Zoom);
  session.view.ScaleWidth = options.Size.first;
  session.view.ScaleHeight = options.Size.second;
  TakeViewFrom(session.view, session.project);
  UpdateScale(session.view);
  SetDisplayExtent(session.view);
  session.view.MapView = arguments.View;
  session.view.GridLod = options.GridLod;
  session.tool.Mode = options.Mode;
}

/// Base image and overlay as two pictures; no tool draws on top.
class PictureSurfaces final : public CanvasSurfaces {
public:
  explicit PictureSurfaces(std::pair<int, int> size)
      : m_base(size.first, size.second, QImage::Format_RGB32),
        m_overlay(size.first, size.second, QImage::Format_ARGB32_Premultiplied),
        m_baseSurface(m_base),
        m_overlaySurface(m_overlay) {
    ClearOverlay();
  }

  Surface& Base() override { return m_baseSurface; }
  Surface& Overlay() override { return m_overlaySurface; }
  Surface& Top() override { return m_overlaySurface; }
  void ClearBase(std::int32_t color) override {
    const ColorParts parts = SplitColor(color);
    m_baseSurface.Clear(QColor(parts.R, parts.G, parts.B));
  }
  void ClearOverlay() override { m_overlaySurface.Clear(QColor(0, 0, 0, 0)); }
  void ClearTop() override {}
  void Present() override {}

  /// Both, one on the other.
  QImage Picture() const {
    QImage picture = m_base.copy();
    QPainter(&picture).drawImage(0, 0, m_overlay);
    return picture;
  }

private:
  QImage m_base;
  QImage m_overlay;
  QtSurface m_baseSurface;
  QtSurface m_overlaySurface;
};

void WritePng(const QImage& picture, const std::filesystem::path& file) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
    throw RuntimeError::At("writing the picture", PathText(file), "", "it could not be made");
  WriteWholeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void Render(BatchRun& run, const RenderArguments& arguments) {
  const RenderOptions options = CheckOptions(arguments);
  SystemToolRunner tools(run.folders.Tools(), CurrentProgram().parent_path(), run.dialogs);
  Session session(run.folders, run.dialogs, tools);
  session.settings = run.settings;
  session.project = OpenForCommand(run, arguments.Project);
  RecountSelection(session.project, session.tool.Selected);
  session.lands = ReadClassTable(MapPathIn(run.folders.Tools(), "lands.txt"), ClassKind::Land);
  session.waters = ReadClassTable(MapPathIn(run.folders.Tools(), "waters.txt"), ClassKind::Water);
  SetView(session, arguments, options);

  PictureSurfaces surfaces(options.Size);
  Display display(session, surfaces);
  display.DisplayAll();
  WritePng(surfaces.Picture(), MapPath(arguments.Out));
}

}  // namespace

void AddRenderCommand(CLI::App& app, Command& chosen) {
  auto* command = app.add_subcommand("render", "paints the canvas to a picture");
  auto arguments = std::make_shared<RenderArguments>();
  command->add_option("PROJECT", arguments->Project)->required();
  command->add_option("OUT", arguments->Out, "the PNG file to write")->required();
  command->add_option("--size", arguments->Size, "WxH in pixels")->capture_default_str();
  command->add_option("--center", arguments->Center, "LAT LON, in decimal degrees")->expected(2);
  command->add_option("--zoom", arguments->Zoom, "1: an Area is 8 pixels high");
  command->add_option("--view", arguments->View, "Summer, Winter, ..., Land, Mesh")->capture_default_str();
  command->add_option("--grid", arguments->Grid, "level of the grid, 5 to 19")->capture_default_str();
  command->add_option("--mode", arguments->Mode, "Pointer, Line, ...")->capture_default_str();
  command->callback(
      [arguments, &chosen] { chosen = [arguments](BatchRun& run) { Render(run, *arguments); }; });
}

}  // namespace landsmith
