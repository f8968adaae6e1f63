#include "forms/frmShortcuts.h"

#include "forms/ShortcutTable.h"
#include "ui_frmShortcuts.h"

#include <QAction>
#include <QMenu>

namespace landsmith {

namespace {

QString Heading(const QString& title) {
  return QStringLiteral("<h3>%1</h3>").arg(title.toHtmlEscaped());
}

QString Row(const QString& input, const QString& effect) {
  return QStringLiteral("<tr><td width=\"45%\"><b>%1</b></td><td>%2</td></tr>")
      .arg(input.toHtmlEscaped(), effect.toHtmlEscaped());
}

QString Table(const QString& rows) {
  return QStringLiteral("<table width=\"100%\" cellpadding=\"3\">%1</table>").arg(rows);
}

QString GroupText(const ShortcutGroup& group) {
  QString rows;
  for (const ShortcutRow& row : group.rows)
    rows += Row(QString::fromUtf8(row.input), QString::fromUtf8(row.effect));
  return Heading(QString::fromUtf8(group.title)) + Table(rows);
}

/// The caption without its letter marks and without the key that is shown behind it.
QString PlainCaption(const QString& text) {
  return text.section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
}

QString KeysOf(const QAction& action) {
  QStringList keys;
  for (const QKeySequence& shortcut : action.shortcuts())
    keys += shortcut.toString(QKeySequence::NativeText);
  return keys.join(QStringLiteral(", "));
}

QString MenuRows(const QMenu& menu) {
  QString rows;
  for (const QAction* action : menu.actions()) {
    if (action->menu())
      rows += MenuRows(*action->menu());
    else if (!action->shortcut().isEmpty())
      rows += Row(KeysOf(*action), PlainCaption(menu.title()) + QStringLiteral(", ") +
                                       PlainCaption(action->text()).remove(QStringLiteral(" ...")));
  }
  return rows;
}

}  // namespace

frmShortcuts::frmShortcuts(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmShortcuts>()) {
  m_ui->setupUi(this);
  QString text;
  for (const ShortcutGroup& group : ShortcutGroups())
    text += GroupText(group);
  QString rows;
  for (const QAction* action : menus.actions())
    if (action->menu()) rows += MenuRows(*action->menu());
  m_ui->txtShortcuts->setHtml(text + Heading(tr("Menus")) + Table(rows));
}

frmShortcuts::~frmShortcuts() = default;

}  // namespace landsmith
