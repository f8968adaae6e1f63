// The viewport: centre, zoom, scales, what is shown, what waits on the overlay; and the arithmetic of
// panning, zooming and visibility.
//
// Degrees become pixels by one plate carree at the display centre's latitude: x = (lon - LonLeft) *
// PixelsPerDegLon, y = (LatTop - lat) * PixelsPerDegLat. A pan alone does not change the scales.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "platform/Surface.h"
#include "vector/PathSelection.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace landsmith {

/// Kinds of item that can be shown and hidden; Grid has a pending flag alone.
enum class LayerKind { Maps, Meshes, Lands, Waters, Photos, Lines, Polys, Fills, Objects, Excludes, Grid };
inline constexpr std::size_t LayerKindCount = 11;

/// Bits of the masks of RebuildDisplay.
namespace LayerMask {
inline constexpr int Maps = 1, Grid = 2, Polys = 4, Lines = 8, Excludes = 16, Fills = 32, Waters = 64,
                     Objects = 128, MeshesAndPhotos = 256, Lands = 512;
inline constexpr int All = 1023, AllButLines = 1015, AllButPolys = 1019, AllButObjects = 895,
                     AllButExcludes = 1007;
inline constexpr int Drag = 867, DragWithMap = 866;  ///< what stays in the base image during a drag
}  // namespace LayerMask

/// An offset from the canvas centre, y down.
struct PixelOffset {
  float x = 0;
  float y = 0;
};

/// What the maps show at present: the work of LoadMapView.
struct MapPictures {
  /// One file a map; an empty one, or none, for a map without a picture.
  std::vector<std::filesystem::path> Files;
  /// The altitude that is marked in the mesh view: pixels of this colour get another one.
  std::optional<std::int32_t> ChangeColorFrom;
};

struct ViewState {
  double Zoom = 1;
  double LatDispCenter = 0, LonDispCenter = 0;
  ViewScale Scale;
  double LatTop = 0, LatBottom = 0, LonLeft = 0, LonRight = 0;
  std::int32_t ScaleWidth = 1, ScaleHeight = 1;  ///< client size of the canvas in pixels
  PixelOffset Mouse;
  bool BusyPainting = false;
  std::array<bool, LayerKindCount> ShowFlag = AllSet();
  std::array<bool, LayerKindCount> OverlayPending{};
  int GridLod = 0;  ///< 0 no grid, else 5 to 19
  int FillSize = 1;
  std::string MapView;  ///< "Summer", ..., or empty
  MapPictures Pictures;
  ClassWindow Classes;
  bool ShowAircraft = false;
  LatLon Aircraft;
  /// One byte a line or polygon: drawn by the last paint. Working data of moves and hits.
  std::vector<std::uint8_t> LinesDrawn, PolysDrawn;

  bool Shows(LayerKind kind) const { return ShowFlag[static_cast<std::size_t>(kind)]; }
  bool& Pending(LayerKind kind) { return OverlayPending[static_cast<std::size_t>(kind)]; }
  GeoBox VisibleBox() const { return {LatTop, LatBottom, LonLeft, LonRight}; }

private:
  static constexpr std::array<bool, LayerKindCount> AllSet() {
    std::array<bool, LayerKindCount> all{};
    all.fill(true);
    return all;
  }
};

void UpdateScale(ViewState& view);
void SetDisplayExtent(ViewState& view);
/// By pixels; the centre stays within 80 degrees north and south.
void PanDisplay(ViewState& view, double dx, double dy);
/// The same from the centre saved at the start of a drag.
void DragDisplay(ViewState& view, LatLon savedCenter, double dx, double dy);
enum class ZoomStep { In = 1, Out = 2 };
/// Doubles up to 65536, halves down to 0.03125. False when nothing changed. Scales follow, the extent does
/// not.
bool StepZoom(ViewState& view, ZoomStep step);

/// Outside the box that the drawing tools keep the cursor in.
bool IsOutsideCenterBox(const ViewState& view, PixelOffset at, int toolbarHeight, int statusBarHeight);

LatLon ToLatLon(const ViewState& view, PixelOffset at);
WorldPixel ToWorldPixel(const ViewState& view, PixelOffset at);
bool PointInView(const ViewState& view, double lon, double lat);
bool SegmentCrossesView(const ViewState& view, double lon1, double lat1, double lon2, double lat2);

/// Pixels from the top left corner, not yet rounded. At high zoom they overflow 32 bits far outside the view:
/// painters cut first and round then.
struct CanvasPoint {
  double x = 0;
  double y = 0;
};
CanvasPoint ToCanvas(const ViewState& view, double lon, double lat);
/// Offsets from the canvas centre and pixels from its top left corner.
PixelOffset ToOffset(const ViewState& view, PixelPoint raw);

/// Brush size of Fill mode for a grid level.
int FillSizeOfGrid(int gridLod);

/// Centre and zoom from and to the project that stores them; the class window follows the land centre. A
/// centre that is nowhere on the earth becomes 0, a zoom outside the canvas's steps the nearest of them.
void TakeViewFrom(ViewState& view, const ProjectState& project);
void StoreView(const ViewState& view, ProjectState& project);

}  // namespace landsmith
