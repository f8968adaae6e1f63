// The context menus of the canvas: the general one, that of a map and that of any other item.
#pragma once

#include "editor/Editor.h"

#include <QMenu>
#include <QWidget>

namespace landsmith {

class PopupMenus {
public:
  /// The menus belong to `canvas` and act on `editor`, which must outlive them.
  PopupMenus(QWidget& canvas, Editor& editor);

  /// Opens the menu for `target` at its place on the canvas and returns at once.
  void Show(const PopupTarget& target);

private:
  QMenu* MakeMenu(const char* name);
  QMenu& MenuOf(const PopupTarget& target);
  void Add(QMenu& menu, const char* part, const QString& text, void (PopupMenus::*command)());

  void Center();
  void ZoomIn();
  void ZoomOut();
  void Delete();
  void Properties();

  QWidget& m_canvas;
  Editor& m_editor;
  QMenu* m_general;
  QMenu* m_maps;
  QMenu* m_objects;
  PopupTarget m_target;
};

}  // namespace landsmith
