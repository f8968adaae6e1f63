// Surfaces that keep what was painted on them, for tests that ask what a painter did.
#pragma once

#include "editor/Display.h"
#include "platform/Surface.h"

#include <algorithm>
#include <string>
#include <vector>

namespace landsmith::test {

class RecordingSurface final : public Surface {
public:
  struct Call {
    enum class Kind { Polygon, Polyline, Box, Spans, Image, Text } kind = Kind::Polygon;
    std::int32_t pen = 0, penWidth = 1, brush = 0;
    PenStyle penStyle = PenStyle::Solid;
    BrushStyle brushStyle = BrushStyle::None;
    std::vector<PixelPoint> points;
    PixelBox box;
    std::string text;
  };
  std::vector<Call> calls;
  std::int32_t width = 800, height = 600;

  std::int32_t Width() const override { return width; }
  std::int32_t Height() const override { return height; }
  void SetPen(std::int32_t color, std::int32_t penWidth, PenStyle style) override {
    m_now.pen = color;
    m_now.penWidth = penWidth;
    m_now.penStyle = style;
  }
  void SetBrush(std::int32_t color, BrushStyle style) override {
    m_now.brush = color;
    m_now.brushStyle = style;
  }
  void Polygon(std::span<const PixelPoint> ring) override {
    Keep(Call::Kind::Polygon).points.assign(ring.begin(), ring.end());
  }
  void Polyline(std::span<const PixelPoint> points) override {
    Keep(Call::Kind::Polyline).points.assign(points.begin(), points.end());
  }
  void Spans(std::span<const PixelSpan> spans, std::int32_t color) override {
    Call& call = Keep(Call::Kind::Spans);
    call.brush = color;
    for (const PixelSpan& span : spans)
      for (std::int32_t x = span.left; x < span.right; ++x)
        call.points.push_back({x, span.y});
  }
  void Box(const PixelBox& box) override { Keep(Call::Kind::Box).box = box; }
  void Image(const std::filesystem::path& file, const PixelBox& box) override {
    Call& call = Keep(Call::Kind::Image);
    call.text = file.filename().string();
    call.box = box;
  }
  void Text(PixelPoint, std::string_view text) override { Keep(Call::Kind::Text).text = text; }
  std::int32_t Pixel(PixelPoint) const override { return 0xFFFFFF; }

  std::vector<Call> Of(Call::Kind kind) const {
    std::vector<Call> found;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                 [&](const Call& call) { return call.kind == kind; });
    return found;
  }

private:
  Call& Keep(Call::Kind kind) {
    calls.push_back(m_now);
    calls.back().kind = kind;
    return calls.back();
  }
  Call m_now;
};

class RecordingCanvas final : public CanvasSurfaces {
public:
  RecordingSurface base, overlay, top;
  std::vector<std::int32_t> cleared;  ///< colours of the base image, in turn
  int presented = 0;

  Surface& Base() override { return base; }
  Surface& Overlay() override { return overlay; }
  Surface& Top() override { return top; }
  void ClearBase(std::int32_t color) override {
    cleared.push_back(color);
    base.calls.clear();
  }
  void ClearOverlay() override { overlay.calls.clear(); }
  void ClearTop() override { top.calls.clear(); }
  void Present() override { ++presented; }
};

}  // namespace landsmith::test
