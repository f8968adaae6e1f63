// The bitmap of a textured polygon with its tie points on it, which mouse and keyboard move.
#pragma once

#include "editor/TiePoints.h"

#include <QPixmap>
#include <QWidget>

namespace landsmith {

/// The arrow keys move the current point by one, with Shift by ten; Page Up and Page Down choose another one.
class TiePicture final : public QWidget {
  Q_OBJECT

public:
  explicit TiePicture(QWidget* parent = nullptr);

  /// `points` must outlive the widget; without a bitmap an empty raster is shown.
  void Show(TiePoints& points, const QPixmap& bitmap);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

signals:
  /// A point has been chosen or moved here.
  void Edited();

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  void PaintGround(QPainter& painter) const;
  void Tell();

  TiePoints* m_points = nullptr;
  QPixmap m_bitmap;
};

}  // namespace landsmith
