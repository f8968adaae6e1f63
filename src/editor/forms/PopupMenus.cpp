#include "forms/PopupMenus.h"

#include "core/Text.h"
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
      m_objects(MakeMenu("mnuPUObjects")) {
  m_generalTitle = Add(*m_general, "mnuPUGeneralItem", {}, nullptr);
  m_general->addSeparator();
  AddViewCommands(*m_general);
  m_general->addSeparator();
  Add(*m_general, "mnuPUGeneralProperties", QObject::tr("&Properties ..."), &PopupMenus::Properties);

  m_objectsTitle = Add(*m_objects, "mnuPUObjectsItem", {}, nullptr);
  m_objects->addSeparator();
  AddViewCommands(*m_objects);
  m_objects->addSeparator();
  Add(*m_objects, "mnuPUObjectsDelete", QObject::tr("&Delete"), &PopupMenus::Delete);
  m_objectsProperties =
      Add(*m_objects, "mnuPUObjectsProperties", QObject::tr("&Properties ..."), &PopupMenus::Properties);
}

QMenu* PopupMenus::MakeMenu(const char* name) {
  auto* menu = new QMenu(&m_canvas);
  menu->setObjectName(QString::fromLatin1(name));
  return menu;
}

QAction* PopupMenus::Add(QMenu& menu, const char* name, const QString& text, void (PopupMenus::*command)()) {
  QAction* action = menu.addAction(text);
  action->setObjectName(QString::fromLatin1(name));
  if (command)
    QObject::connect(action, &QAction::triggered, &m_canvas, [this, command] { (this->*command)(); });
  else
    MakeTitle(*action);
  return action;
}

void PopupMenus::AddViewCommands(QMenu& menu) {
  const QByteArray prefix = menu.objectName().toLatin1();
  Add(menu, (prefix + "Center").constData(), QObject::tr("&Center"), &PopupMenus::Center);
  Add(menu, (prefix + "ZI").constData(), QObject::tr("Zoom &In"), &PopupMenus::ZoomIn);
  Add(menu, (prefix + "ZO").constData(), QObject::tr("Zoom &Out"), &PopupMenus::ZoomOut);
}

void PopupMenus::Show(const PopupTarget& target) {
  m_target = target;
  const bool general = target.Kind.empty();
  if (general)
    m_generalTitle->setText(LiteralText(ToUpper(m_editor.State().project.Name)));
  else
    m_objectsTitle->setText(LiteralText(target.Title));
  m_objectsProperties->setEnabled(target.Kind == "Line" || VertexOf(target));
  const QPoint at(static_cast<int>(std::lround(target.At.x + static_cast<float>(m_canvas.width()) / 2)),
                  static_cast<int>(std::lround(target.At.y + static_cast<float>(m_canvas.height()) / 2)));
  (general ? m_general : m_objects)->popup(m_canvas.mapToGlobal(at));
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
