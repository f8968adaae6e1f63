// Pictures of any size stretched onto an image: from the copy that fits the scale, so that a map of a hundred
// million pixels costs no more than the pixels of the canvas.
#pragma once

#include "forms/PictureCache.h"
#include "platform/Surface.h"

#include <QRectF>

class QPainter;

namespace landsmith {

/// Paints `source`, a rectangle in pixels of the picture, over `target`, in pixels of `image` as `painter`,
/// which is active on it, counts them. Both may reach over the borders. Where the picture is made larger, or
/// `quality` is Exact, each pixel of the image takes the colour of the picture's pixel under its middle.
void PaintPicture(QImage& image, QPainter& painter, const Picture& picture, const QRectF& source,
                  const QRectF& target, PictureQuality quality);

}  // namespace landsmith
