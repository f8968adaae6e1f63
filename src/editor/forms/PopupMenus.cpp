#include "forms/PopupMenus.h"

#include "core/Text.h"
#include "editor/PopupAt.h"
#include "forms/QtText.h"

#include <QAction>
#include <QFont>
#include <QPoint>

#include <cmath>

namespace landsmith {

namespace {

void MakeTitle(QAction& action) {
  QFont font = action.font();
  font.setBold(true);
  action.setFont(font);
  action.setEnabled(false);
}

}  // namespace

PopupMenus::PopupMenus(QWidget& canvas, Editor& editor)
    : m_canvas(canvas),
      m_editor(editor),
      m_general(MakeMenu("mnuPUGeneral")),
      m_maps(MakeMenu("mnuPUMaps")),
      m_objects(MakeMenu("mnuPUObjects")) {
  for (QMenu* menu : {m_general, m_maps, m_objects}) {
    Add(*menu, "Item", {}, nullptr);
    menu->addSeparator();
    Add(*menu, "Center", QObject::tr("&Center"), &PopupMenus::Center);
    Add(*menu, "ZI", QObject::tr("Zoom &In"), &PopupMenus::ZoomIn);
    Add(*menu, "ZO", QObject::tr("Zoom &Out"), &PopupMenus::ZoomOut);
    menu->addSeparator();
    if (menu != m_general) Add(*menu, "Delete", QObject::tr("&Delete"), &PopupMenus::Delete);
    Add(*menu, "Properties", QObject::tr("&Properties ..."), &PopupMenus::Properties);
  }
}

QMenu* PopupMenus::MakeMenu(const char* name) {
  auto* menu = new QMenu(&m_canvas);
  menu->setObjectName(QString::fromLatin1(name));
  return menu;
}

/// The item is named as its menu and its part; without a command it is the title.
void PopupMenus::Add(QMenu& menu, const char* part, const QString& text, void (PopupMenus::*command)()) {
  QAction* action = menu.addAction(text);
  action->setObjectName(menu.objectName() + QLatin1String(part));
  if (command)
    QObject::connect(action, &QAction::triggered, &m_canvas, [this, command] { (this->*command)(); });
  else
    MakeTitle(*action);
}

QMenu& PopupMenus::MenuOf(const PopupTarget& target) {
  if (target.Kind.empty()) return *m_general;
  return target.Kind == "Map" ? *m_maps : *m_objects;
}

void PopupMenus::Show(const PopupTarget& target) {
  m_target = target;
  QMenu& menu = MenuOf(target);
  menu.actions().constFirst()->setText(LiteralText(target.Title));
  menu.actions().constLast()->setEnabled(HasProperties(target));
  const QPoint at(static_cast<int>(std::lround(target.At.x + static_cast<float>(m_canvas.width()) / 2)),
                  static_cast<int>(std::lround(target.At.y + static_cast<float>(m_canvas.height()) / 2)));
  menu.popup(m_canvas.mapToGlobal(at));
}

void PopupMenus::Center() {
  m_editor.CenterAt(m_target.At);
}

void PopupMenus::ZoomIn() {
  m_editor.ZoomAt(m_target.At, ZoomStep::In);
}

void PopupMenus::ZoomOut() {
  m_editor.ZoomAt(m_target.At, ZoomStep::Out);
}

void PopupMenus::Delete() {
  m_editor.DeleteTarget(m_target);
}

void PopupMenus::Properties() {
  m_editor.ShowTargetProperties(m_target);
}

}  // namespace landsmith
