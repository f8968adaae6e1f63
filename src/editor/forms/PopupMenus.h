// The context menus of the canvas: the general one and that of an item. (Maps have one of their own once they
// can be placed.)
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
  QAction* Add(QMenu& menu, const char* name, const QString& text, void (PopupMenus::*command)());
  void AddViewCommands(QMenu& menu);

  void Center();
  void ZoomIn();
  void ZoomOut();
  void Delete();
  void Properties();

  QWidget& m_canvas;
  Editor& m_editor;
  QMenu* m_general;
  QMenu* m_objects;
  QAction* m_generalTitle = nullptr;
  QAction* m_objectsTitle = nullptr;
  QAction* m_objectsProperties = nullptr;
  PopupTarget m_target;
};

}  // namespace landsmith
