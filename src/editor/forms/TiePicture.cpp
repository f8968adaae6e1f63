#include "forms/TiePicture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

namespace landsmith {

namespace {

// On bitmaps of any colour: each mark has a dark or light rim.
constexpr QColor RimColor(0, 0, 0), LineColor(255, 255, 255), PointColor(255, 214, 0),
    CurrentColor(226, 30, 30);
constexpr double PointRadius = 4, CurrentRadius = 5.5;
constexpr int RasterLines = 8;

QPointF ToPoint(PixelPoint at) {
  return {static_cast<double>(at.x), static_cast<double>(at.y)};
}
PixelPoint PixelOf(const QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  return {at.x(), at.y()};
}

/// The whole raster.
QRectF RasterBox() {
  return {ToPoint(ToPicture({0, RasterSide})), ToPoint(ToPicture({RasterSide, 0}))};
}

void PaintMarker(QPainter& painter, PixelPoint at, const QColor& color, double radius) {
  painter.setPen(QPen(RimColor, 1.5));
  painter.setBrush(color);
  painter.drawEllipse(ToPoint(at), radius, radius);
}

void PaintPoints(QPainter& painter, const TiePoints& points) {
  QPolygonF ring;
  for (const PixelPoint point : points.Points())
    ring << ToPoint(point);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(RimColor, 3));
  painter.drawPolygon(ring);
  painter.setPen(QPen(LineColor, 1.2));
  painter.drawPolygon(ring);
  for (const PixelPoint point : points.Points())
    PaintMarker(painter, point, PointColor, PointRadius);
  PaintMarker(painter, points.Points()[points.CurrentTiePoint()], CurrentColor, CurrentRadius);
}

}  // namespace

TiePicture::TiePicture(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setCursor(Qt::CrossCursor);
}

void TiePicture::Show(TiePoints& points, const QPixmap& bitmap) {
  m_points = &points;
  m_bitmap = bitmap;
  update();
}

QSize TiePicture::sizeHint() const {
  return {PictureFirst + PictureLast, PictureFirst + PictureLast};
}

void TiePicture::PaintGround(QPainter& painter) const {
  const QRectF raster = RasterBox();
  constexpr int frame = PictureLast - PictureFirst;
  painter.fillRect(QRect(PictureFirst, PictureFirst, frame, frame),
                   palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  if (!m_bitmap.isNull()) {
    painter.drawPixmap(raster, m_bitmap, QRectF(m_bitmap.rect()));
    return;
  }
  painter.fillRect(raster, palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Mid));
  for (int line = 1; line < RasterLines; ++line) {
    const double offset = raster.width() * line / RasterLines;
    painter.drawLine(QPointF(raster.left() + offset, raster.top()),
                     QPointF(raster.left() + offset, raster.bottom()));
    painter.drawLine(QPointF(raster.left(), raster.top() + offset),
                     QPointF(raster.right(), raster.top() + offset));
  }
}

void TiePicture::paintEvent(QPaintEvent*) {
  if (m_points == nullptr) return;
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  PaintGround(painter);
  PaintPoints(painter, *m_points);
}

void TiePicture::Tell() {
  update();
  emit Edited();
}

void TiePicture::mousePressEvent(QMouseEvent* event) {
  if (m_points == nullptr || event->button() != Qt::LeftButton) return;
  m_points->Press(PixelOf(event));
  Tell();
}

void TiePicture::mouseMoveEvent(QMouseEvent* event) {
  if (m_points == nullptr || !(event->buttons() & Qt::LeftButton)) return;
  m_points->Drag(PixelOf(event));
  Tell();
}

void TiePicture::mouseReleaseEvent(QMouseEvent* event) {
  if (m_points != nullptr && event->button() == Qt::LeftButton) m_points->Release();
}

void TiePicture::keyPressEvent(QKeyEvent* event) {
  if (m_points == nullptr) return QWidget::keyPressEvent(event);
  const std::int32_t step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
  switch (event->key()) {
    case Qt::Key_Left:
      m_points->Nudge(-step, 0);
      break;
    case Qt::Key_Right:
      m_points->Nudge(step, 0);
      break;
    case Qt::Key_Up:
      m_points->Nudge(0, step);
      break;
    case Qt::Key_Down:
      m_points->Nudge(0, -step);
      break;
    case Qt::Key_PageUp:
      m_points->ChoosePrevious();
      break;
    case Qt::Key_PageDown:
      m_points->ChooseNext();
      break;
    default:
      return QWidget::keyPressEvent(event);
  }
  Tell();
}

}  // namespace landsmith
