#include "core/Color.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"

#include <array>
#include <string_view>

namespace landsmith {

namespace {

constexpr double LeastFootprintPixels = 20;
constexpr int TaxiSign = 8, Effect = 16, Beacon = 32, Windsock = 64;

struct ObjectPicture {
  int Type;
  std::string_view File;
  std::int32_t Left;  ///< pixels left of the position
};
constexpr std::int32_t PictureAbove = 20;
constexpr std::array<ObjectPicture, 4> Pictures{{{TaxiSign, "taxisign.bmp", 40},
                                                 {Beacon, "beacon.gif", 20},
                                                 {Windsock, "windsock.gif", 20},
                                                 {Effect, "effect.gif", 20}}};

void DrawPicture(Surface& surface, const PaintInput& in, const ObjectRec& object, PixelPoint at) {
  for (const ObjectPicture& picture : Pictures) {
    if (picture.Type != object.Type) continue;
    const std::int32_t left = at.x - picture.Left, top = at.y - PictureAbove;
    surface.Image(in.bitmaps / picture.File, {left, top, left, top});
  }
}

void DrawFootprint(Surface& surface, const PaintInput& in, const ObjectRec& object, CanvasPoint center) {
  const double scale = in.view.Scale.PixelsPerMeter;
  const auto at = [&](float x, float y) { return HeldPixel({center.x + x * scale, center.y - y * scale}); };
  const std::array<PixelPoint, 5> sides{at(object.X1, object.Y1), at(object.X2, object.Y2),
                                        at(object.X3, object.Y3), at(object.X4, object.Y4),
                                        at(object.X1, object.Y1)};
  const std::array<PixelPoint, 2> nose{HeldPixel(center), at(object.NoseX, object.NoseY)};
  const std::int32_t color = object.Selected ? Rgb(0, 255, 0) : Rgb(0, 0, 0);
  surface.SetPen(color, 1, PenStyle::Dot);
  surface.Polyline(sides);
  surface.Polyline(nose);
  surface.SetPen(color);
  if (in.tool.Mode != ModeId::Object) return;
  for (const PixelPoint& handle : {sides[0], sides[1], sides[2], sides[3], nose[1]})
    surface.Box({handle.x - 2, handle.y - 2, handle.x + 2, handle.y + 2});
}

void DrawObject(Surface& surface, const PaintInput& in, const ObjectRec& object) {
  const CanvasPoint center = ToCanvas(in.view, object.Lon, object.Lat);
  const PixelPoint at = HeldPixel(center);
  const bool large = (object.Width + object.Length) * in.view.Scale.PixelsPerMeter >= LeastFootprintPixels;
  if (large) DrawPicture(surface, in, object, at);
  surface.SetPen(object.Selected ? Rgb(0, 255, 0) : Rgb(0, 0, 0));
  surface.SetBrush(object.Selected ? Rgb(0, 255, 0) : Rgb(255, 255, 0));
  surface.Box({at.x - 3, at.y - 3, at.x + 3, at.y + 3});
  if (large) DrawFootprint(surface, in, object, center);
}

}  // namespace

void DisplayObjects(Surface& surface, const PaintInput& in) {
  for (const ObjectRec& object : in.project.Objects) {
    if (in.Takes(object.Selected) && Meets(in.view, object.Box)) DrawObject(surface, in, object);
  }
}

void DisplayAircraft(Surface& surface, const PaintInput& in) {
  if (!in.view.ShowAircraft) return;
  const PixelPoint at = HeldPixel(ToCanvas(in.view, in.view.Aircraft.lon, in.view.Aircraft.lat));
  surface.SetPen(Rgb(255, 0, 0));
  // Each stroke begins at a step from where the one before ended, so the cross is off centre.
  const std::array<PixelPoint, 2> across{{{at.x - 5, at.y}, {at.x + 7, at.y}}};
  const std::array<PixelPoint, 2> down{{{at.x + 1, at.y - 6}, {at.x + 1, at.y + 6}}};
  surface.Polyline(across);
  surface.Polyline(down);
}

}  // namespace landsmith
