#include "forms/Icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

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

QCursor PictureCursor(const QString& name, QPoint hotSpot) {
  QSvgRenderer picture(ReadResource(QStringLiteral(":/cursors/%1.svg").arg(name)));
  if (!picture.isValid()) return QCursor(Qt::CrossCursor);
  return QCursor(Render(picture, CursorSize, 1.0), hotSpot.x(), hotSpot.y());
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

QCursor ToQCursor(CursorShape shape) {
  switch (shape) {
    case CursorShape::Arrow:
      return QCursor(Qt::ArrowCursor);
    case CursorShape::Cross:
      return QCursor(Qt::CrossCursor);
    case CursorShape::Busy:
      return QCursor(Qt::WaitCursor);
    case CursorShape::Pan:
      return PictureCursor(QStringLiteral("Pan"), {16, 18});
    case CursorShape::Zoom:
      return PictureCursor(QStringLiteral("Zoom"), {13, 13});
    case CursorShape::Line:
      return PictureCursor(QStringLiteral("Line"), {16, 16});
    case CursorShape::Move:
      return PictureCursor(QStringLiteral("Move"), {16, 16});
    default:
      break;
  }
  return QCursor(Qt::ArrowCursor);
}

}  // namespace landsmith
