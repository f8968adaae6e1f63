// The program's own pictures. Icons are drawn in ink and accents; the ink is replaced by the palette's text
// colour, so that one set serves light and dark windows.
#pragma once

#include "editor/Editor.h"

#include <QCursor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace landsmith {

/// The icon of a toolbar key, "New", "Line" and so on; an empty icon for a key without a picture.
QIcon ToolIcon(const QString& key, const QPalette& palette);

QIcon ProgramIcon();

/// `ratio`: device pixels to a pixel of the window; the picture is drawn as sharp as the screen shows it.
QCursor ToQCursor(CursorShape shape, double ratio);

}  // namespace landsmith
