#include "forms/ColorSwatch.h"

#include "core/Color.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace landsmith {

ColorSwatch::ColorSwatch(QWidget* parent) : QPushButton(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAutoDefault(false);
}

void ColorSwatch::SetColor(std::int32_t color) {
  m_color = color;
  const ColorParts parts = SplitColor(color);
  setAccessibleDescription(
      QStringLiteral("red %1, green %2, blue %3").arg(parts.R).arg(parts.G).arg(parts.B));
  update();
}

QSize ColorSwatch::sizeHint() const {
  const int height = fontMetrics().height() + 8;
  return {height * 2, height};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const ColorParts parts = SplitColor(m_color);
  QColor frame = palette().color(isDown() ? QPalette::Highlight : QPalette::WindowText);
  frame.setAlpha(140);
  painter.setPen(frame);
  painter.setBrush(QColor(parts.R, parts.G, parts.B));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

}  // namespace landsmith
