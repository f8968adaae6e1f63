#include "forms/Icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

// Resources of a static library come in only when they are asked for, from outside any namespace.
static void InitResources() {
  Q_INIT_RESOURCE(forms);
}

namespace landsmith {

namespace {

const char* const Ink = "#2b2b2b";
constexpr std::array IconSizes{16, 24, 32, 48, 72};
constexpr double DisabledOpacity = 0.35;
constexpr int CursorSize = 32;

QByteArray ReadResource(const QString& path) {
  InitResources();
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap Render(QSvgRenderer& picture, int size, double opacity) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setOpacity(opacity);
  picture.render(&painter);
  return pixmap;
}

QIcon RenderIcon(const QByteArray& svg) {
  QSvgRenderer picture(svg);
  QIcon icon;
  if (!picture.isValid()) return icon;
  for (const int size : IconSizes) {
    icon.addPixmap(Render(picture, size, 1.0), QIcon::Normal);
    icon.addPixmap(Render(picture, size, DisabledOpacity), QIcon::Disabled);
  }
  return icon;
}

/// A cursor drawn in a picture of 32 by 32: its file and the pixel that points.
struct CursorRow {
  CursorShape shape;
  const char* name;
  int x, y;
};

// Where a tool acts on a point, the cross points and the picture beside it names the tool.
constexpr std::array CursorTable{
    CursorRow{CursorShape::Pan, "Pan", 16, 18},       CursorRow{CursorShape::Zoom, "Zoom", 13, 13},
    CursorRow{CursorShape::Map, "Map", 10, 10},       CursorRow{CursorShape::Land, "Land", 10, 10},
    CursorRow{CursorShape::Water, "Water", 10, 10},   CursorRow{CursorShape::Photo, "Photo", 10, 10},
    CursorRow{CursorShape::Line, "Line", 10, 10},     CursorRow{CursorShape::Poly, "Poly", 10, 10},
    CursorRow{CursorShape::Fill1, "Fill1", 10, 10},   CursorRow{CursorShape::Fill2, "Fill2", 10, 10},
    CursorRow{CursorShape::Fill4, "Fill4", 10, 10},   CursorRow{CursorShape::Fill8, "Fill8", 10, 10},
    CursorRow{CursorShape::Fill16, "Fill16", 10, 10}, CursorRow{CursorShape::Fill32, "Fill32", 10, 10},
    CursorRow{CursorShape::Object, "Object", 10, 10}, CursorRow{CursorShape::Exclude, "Exclude", 10, 10},
    CursorRow{CursorShape::Mesh, "Mesh", 10, 10},     CursorRow{CursorShape::Move, "Move", 16, 16},
    CursorRow{CursorShape::Resize, "Resize", 16, 16}, CursorRow{CursorShape::Rotate, "Rotate", 16, 16},
    CursorRow{CursorShape::Paste, "Paste", 10, 10},   CursorRow{CursorShape::Measure, "Measure", 10, 10},
};

QCursor PictureCursor(const CursorRow& row, double ratio) {
  const QString file = QStringLiteral(":/cursors/%1.svg").arg(QLatin1String(row.name));
  QSvgRenderer picture(ReadResource(file));
  if (!picture.isValid()) return QCursor(Qt::CrossCursor);
  QPixmap pixmap = Render(picture, qRound(CursorSize * ratio), 1.0);
  pixmap.setDevicePixelRatio(ratio);
  return QCursor(pixmap, row.x, row.y);
}

}  // namespace

QIcon ToolIcon(const QString& key, const QPalette& palette) {
  QByteArray svg = ReadResource(QStringLiteral(":/icons/%1.svg").arg(key));
  svg.replace(Ink, palette.color(QPalette::WindowText).name().toLatin1());
  return RenderIcon(svg);
}

QIcon ProgramIcon() {
  return RenderIcon(ReadResource(QStringLiteral(":/icons/Landsmith.svg")));
}

QCursor ToQCursor(CursorShape shape, double ratio) {
  if (shape == CursorShape::Cross) return QCursor(Qt::CrossCursor);
  if (shape == CursorShape::Busy) return QCursor(Qt::WaitCursor);
  const auto row = std::find_if(CursorTable.begin(), CursorTable.end(),
                                [shape](const CursorRow& r) { return r.shape == shape; });
  return row == CursorTable.end() ? QCursor(Qt::ArrowCursor) : PictureCursor(*row, ratio);
}

}  // namespace landsmith
